#include "indices/apa/APA.h"

#include "apoyo/Fallos.h"
#include "basico/Saltando.h"
#include "indices/apa/APAParcela.h"
#include "indices/apa/APAVecinos.h"
#include "indices/vecinos/Marcas.h"

#include <gtest/gtest.h>

#include <cmath>

namespace varo {
namespace {

// The slopes of the sides, the vertices and the roots of Heron's formula round in their last places.
constexpr double redondeoDeArea = 1E-13;      // m2, and metres along a side
constexpr double redondeoDeAreaMayor = 1E-12; // m2, cells above 10 m2
constexpr double redondeoDePunto = 1E-14;     // metres, a coordinate below 8 m

std::vector<double> Columna(const ParcelaAPA& parcela, double k) {
    return CalcularAPA(parcela.arboles(), parcela.contorno(), k);
}

int Fallo(const ParcelaAPA& parcela, double k = 0) {
    return FalloDe([&] { Columna(parcela, k); });
}

/// The place that a fault of that number names; empty where nothing faults.
std::string LugarDelFallo(const ParcelaAPA& parcela, int numero) {
    const auto error = Saltando([&] { Columna(parcela, 0); });
    EXPECT_TRUE(error && error->numero() == numero);
    return error ? error->lugar() : std::string{};
}

/// A tree at the origin amid four at the corners of a square, which stand on the boundary. No two trees share
/// an x or a y; the boundary leaves room for the largest cell that the middle tree can have.
ParcelaAPA CuatroAlrededorDeUno(const std::string& tamano = "0,1") {
    ParcelaAPA parcela;
    parcela.anadir(0, 0, tamano);
    parcela.anadir(2, 1, "0,1");
    parcela.anadir(-1, 2, "0,1");
    parcela.anadir(-2, -1, "0,1");
    parcela.anadir(1, -2, "0,1");
    parcela.contornoX = {-3.6, -1, 1.2, 2, 3.6, 1, -1.2, -2, -3.6};
    parcela.contornoY = {1.2, 2, 3.6, 1, -1.2, -2, -3.6, -1, 1.2};
    return parcela;
}

/// The fault of those five with one tree more.
int FalloConOtroEn(double x, double y) {
    ParcelaAPA parcela = CuatroAlrededorDeUno();
    parcela.anadir(x, y);
    return Fallo(parcela);
}

/// The fault of a few equal trees well inside the boundary, none of which stands on it.
int FalloDeUnosPocos(const std::vector<std::pair<double, double>>& sitios) {
    ParcelaAPA parcela;
    for (const auto& [x, y] : sitios) {
        parcela.anadir(x, y);
    }
    parcela.cuadrar(-20, 20);
    return Fallo(parcela);
}

/// Where tree j is seen from tree i.
std::pair<double, double> Visto(const ParcelaAPA& parcela, double k, VecinosAPA::Fila i, VecinosAPA::Fila j) {
    const Arboles arboles = parcela.arboles();
    const PesosAPA pesos{arboles, k};
    VecinosAPA vecinos;
    Pareja pareja{i, i};
    std::vector<VecinosAPA::Fila> filas{std::min(i, j), std::max(i, j)};
    ReunirVecinos(pesos, filas, pareja, vecinos);
    return {vecinos.x.at(0), vecinos.y.at(0)};
}

// The corners lie at root 5 from the middle: at W of that way stand the sides of a square of (2 W root 5)^2.

TEST(APA, ConExponenteCeroLaCeldaEsLaDeVoronoi) {
    const std::vector<double> columna = Columna(CuatroAlrededorDeUno("0,3"), 0);
    EXPECT_NEAR(columna[0], 5, redondeoDeArea);
    EXPECT_EQ((std::vector<double>(columna.begin() + 1, columna.end())),
              std::vector<double>(4, arbolDeContorno));
}

TEST(APA, UnArbolTresVecesMasGruesoEmpujaElLadoATresCuartos) {
    EXPECT_NEAR(Columna(CuatroAlrededorDeUno("0,3"), 1)[0], 11.25, redondeoDeAreaMayor);
}

TEST(APA, UnExponenteNegativoDaLaVentajaAlMasDelgado) {
    EXPECT_NEAR(Columna(CuatroAlrededorDeUno("0,3"), -1)[0], 1.25, redondeoDeArea);
}

TEST(APA, ConUnExponenteGrandeElLadoLlegaHastaElVecinoMasDelgado) {
    // W = 1 / (1 + 3^-200): the side passes through the neighbour itself.
    EXPECT_NEAR(Columna(CuatroAlrededorDeUno("0,3"), 200)[0], 20, redondeoDeAreaMayor);
    const auto [x, y] = Visto(CuatroAlrededorDeUno("0,3"), 200, 0, 1);
    EXPECT_NEAR(x, 4, redondeoDePunto);
    EXPECT_NEAR(y, 2, redondeoDePunto);
}

TEST(APA, ElDibujoDeCadaCeldaLlegaCuandoEstaAcabada) {
    const ParcelaAPA parcela = CuatroAlrededorDeUno();
    std::vector<std::size_t> arboles;
    std::vector<TrazoAPA> lados;
    CalcularAPA(parcela.arboles(), parcela.contorno(), 0,
                [&](std::size_t arbol, std::span<const TrazoAPA> trazos) {
                    arboles.push_back(arbol);
                    lados.assign(trazos.begin(), trazos.end());
                });
    EXPECT_EQ(arboles, std::vector<std::size_t>{0}); // the others have a marker and no cell
    ASSERT_EQ(lados.size(), 4U);
    for (std::size_t v = 0; v < 4; ++v) {
        EXPECT_NEAR(Distancia(lados[v].x1, lados[v].y1, lados[v].x2, lados[v].y2), std::sqrt(5.0),
                    redondeoDeArea);
        EXPECT_EQ(lados[v].x2, lados[(v + 1) % 4].x1);
        EXPECT_EQ(lados[v].y2, lados[(v + 1) % 4].y1);
    }
}

TEST(APA, ElVecinoVirtualGuardaElCuadranteDelArbol) {
    // Three trees four times as thick at five metres: W = 1/5, so each one is seen at two metres.
    ParcelaAPA parcela;
    parcela.anadir(1, 1, "0,1");
    for (const auto& [dx, dy] : {std::pair{3, 4}, {-3, 4}, {-3, -4}, {3, -4}}) {
        parcela.anadir(1 + dx, 1 + dy, "0,4");
    }
    parcela.cuadrar(-20, 20);
    for (VecinosAPA::Fila j = 1; j <= 4; ++j) {
        const auto [x, y] = Visto(parcela, 1, 0, j);
        EXPECT_NEAR(x - 1, (parcela.x[j] - 1) * 2 / 5, redondeoDePunto);
        EXPECT_NEAR(y - 1, (parcela.y[j] - 1) * 2 / 5, redondeoDePunto);
    }
}

TEST(APA, UnArbolJustoALaIzquierdaSeVeALaDerecha) {
    ParcelaAPA parcela;
    parcela.anadir(1, 7);
    parcela.anadir(-2, 7);
    parcela.cuadrar(-20, 20);
    EXPECT_EQ(Visto(parcela, 0, 0, 1), (std::pair{4.0, 7.0}));
}

TEST(APA, UnaCeldaSinTamanoEsSinArbolYNoEsVecina) {
    ParcelaAPA parcela = CuatroAlrededorDeUno();
    parcela.anadir(0.5, 0.25, "");
    const std::vector<double> columna = Columna(parcela, 0);
    EXPECT_NEAR(columna[0], 5, redondeoDeArea);
    EXPECT_EQ(columna[5], sinArbol);
}

TEST(APA, UnArbolSinTamanoNoNecesitaSitio) {
    ParcelaAPA parcela = CuatroAlrededorDeUno();
    parcela.anadir(0, 1, ""); // the x of the middle tree
    EXPECT_NEAR(Columna(parcela, 0)[0], 5, redondeoDeArea);
}

TEST(APA, UnTamanoCeroNoEsVecinoPeroSuSitioSeMira) {
    ParcelaAPA parcela = CuatroAlrededorDeUno();
    parcela.anadir(-1.2, -3.6, "0"); // on the boundary
    EXPECT_NEAR(Columna(parcela, 0)[0], 5, redondeoDeArea);
    parcela.anadir(0, 1, "0");
    EXPECT_EQ(Fallo(parcela), fallo::divisionPorCero);
}

TEST(APA, ConExponenteCeroUnTamanoCeroTieneCelda) {
    EXPECT_NEAR(Columna(CuatroAlrededorDeUno("0"), 0)[0], 5, redondeoDeArea); // 0^0 is 1
}

TEST(APA, UnSujetoDeTamanoCeroDivideEntreCero) {
    // Its neighbours are seen where it stands itself.
    EXPECT_EQ(Fallo(CuatroAlrededorDeUno("0"), 1), fallo::divisionPorCero);
    EXPECT_EQ(Fallo(CuatroAlrededorDeUno("0"), -1), fallo::divisionPorCero);
}

TEST(APA, SinTamanoVaAntesQueElVertice) {
    ParcelaAPA parcela = CuatroAlrededorDeUno();
    parcela.tamano[1] = "";
    parcela.tamano[0] = "";
    EXPECT_EQ(Columna(parcela, 0),
              (std::vector<double>{sinArbol, sinArbol, arbolDeContorno, arbolDeContorno, arbolDeContorno}));
}

TEST(APA, DosArbolesConLaMismaXFallanYSeNombran) {
    ParcelaAPA parcela = CuatroAlrededorDeUno();
    parcela.anadir(0, 1);
    EXPECT_EQ(LugarDelFallo(parcela, fallo::divisionPorCero), "fila 1, con el vecino de la fila 6");
}

TEST(APA, DosArbolesConLaMismaXEnElContornoNoSeMiranEntreSi) {
    ParcelaAPA parcela = CuatroAlrededorDeUno();
    parcela.anadir(2, -3.6);
    parcela.contornoX.insert(parcela.contornoX.begin() + 6, 2);
    parcela.contornoY.insert(parcela.contornoY.begin() + 6, -3.6);
    EXPECT_NEAR(Columna(parcela, 0)[0], 5, redondeoDeArea);
}

TEST(APA, UnVecinoConLaMismaYFalla) {
    EXPECT_EQ(FalloConOtroEn(0.5, 0), fallo::divisionPorCero); // the nearest: the first side
    EXPECT_EQ(FalloConOtroEn(16, 0), fallo::divisionPorCero);  // tried in the turn
}

TEST(APA, DosVecinosEnLineaConElArbolFallan) {
    EXPECT_EQ(FalloConOtroEn(4, 2), fallo::divisionPorCero);
}

TEST(APA, SinNingunVecinoFalla) {
    EXPECT_EQ(FalloDeUnosPocos({{1, 1}}), fallo::divisionPorCero);
    ParcelaAPA conUnaFilaSinArbol;
    conUnaFilaSinArbol.anadir(1, 1);
    conUnaFilaSinArbol.anadir(2, 3, "");
    conUnaFilaSinArbol.cuadrar(-20, 20);
    EXPECT_EQ(Fallo(conUnaFilaSinArbol), fallo::divisionPorCero);
}

TEST(APA, UnSoloVecinoNoCierraLaCelda) {
    EXPECT_EQ(FalloDeUnosPocos({{1, 1}, {2, 3}}), fallo::divisionPorCero);
}

TEST(APA, UnVecinoAMilKilometrosNoEsNinguno) {
    EXPECT_EQ(FalloDeUnosPocos({{0, 0}, {800000, 600000}}), fallo::divisionPorCero);
}

TEST(APA, UnCandidatoRechazadoNoVuelve) {
    // From the nearest tree (-0,5; 2) the turn takes (-4; 3) and then tries (3; 2,5), across more than half a
    // turn: that circle holds (-0,5; 2). With it the tree would have a triangle; without, two sides that meet
    // in one point.
    ParcelaAPA parcela;
    parcela.anadir(0, 0);
    parcela.anadir(3, 2.5);
    parcela.anadir(-0.5, 2);
    parcela.anadir(-4, 3);
    parcela.contornoX = {-4, -0.5, 3, 0, -3, -4};
    parcela.contornoY = {3, 2, 2.5, -5, -4, 3};
    EXPECT_EQ(Columna(parcela, 0),
              (std::vector<double>{0, arbolDeContorno, arbolDeContorno, arbolDeContorno}));
}

TEST(APA, UnaParcelaSinArbolesNoTieneValores) {
    EXPECT_TRUE(Columna(ParcelaAPA{}, 0).empty());
}

TEST(APA, UnTamanoQueNoEsNumeroFallaAlLeerlo) {
    ParcelaAPA parcela = CuatroAlrededorDeUno();
    parcela.tamano[3] = "grueso";
    EXPECT_EQ(LugarDelFallo(parcela, fallo::tiposDistintos), "al calcular la fila 1, fila 4, columna «D»");
}

TEST(APA, UnTamanoQueNoEsNumeroFallaTambienEnElContorno) {
    ParcelaAPA parcela = CuatroAlrededorDeUno();
    parcela.tamano[0] = "";
    parcela.tamano[3] = "grueso";
    EXPECT_EQ(LugarDelFallo(parcela, fallo::tiposDistintos), "fila 4, columna «D»");
}

TEST(APA, UnaCeldaIlegibleQueNadieLeeNoFalla) {
    // No one reads the place of a tree without a size, or a neighbour where there is no cell to work out.
    ParcelaAPA parcela = CuatroAlrededorDeUno();
    const CeldasDeArboles celdas{{"X", {"0", "2", "x"}}, {"Y", {"0", "1", "y"}}, {"D", {"", "0,1", ""}}, {}};
    const Arboles arboles{celdas, {false, UnidadLongitud::Metros}, parcela.contorno()};
    EXPECT_EQ(CalcularAPA(arboles, parcela.contorno(), 0),
              (std::vector<double>{sinArbol, arbolDeContorno, sinArbol}));
}

TEST(APA, UnTamanoNegativoConExponenteFraccionarioFalla) {
    ParcelaAPA parcela = CuatroAlrededorDeUno();
    parcela.tamano[2] = "-0,1";
    EXPECT_EQ(Fallo(parcela, 0.5), fallo::argumentoNoValido);
    EXPECT_EQ(Fallo(parcela, 1), fallo::divisionPorCero); // 0,1 + -0,1
}

TEST(APA, UnaPotenciaDesmedidaFalla) {
    EXPECT_EQ(Fallo(CuatroAlrededorDeUno(), -400), fallo::desbordamiento);
}

} // namespace
} // namespace varo
