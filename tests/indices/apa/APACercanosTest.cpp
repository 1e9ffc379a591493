// The turn over the near neighbours against the literal one, bit for bit.
#include "indices/apa/APACercanos.h"

#include "apoyo/Fallos.h"
#include "indices/apa/APALiteral.h"
#include "indices/apa/APAParcela.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numeric>
#include <random>
#include <tuple>

namespace varo {
namespace {

literal::Columna Rapida(const Arboles& arboles, const ContornoXY& contorno, double k) {
    literal::Columna columna;
    const auto error = Saltando([&] {
        columna.indices =
            CalcularAPA(arboles, contorno, k, [&](std::size_t arbol, std::span<const TrazoAPA> trazos) {
                for (const auto& trazo : trazos) {
                    columna.trazos.push_back({arbol, trazo});
                }
            });
        if (const auto circulo = UltimoCirculoAPA(arboles, k)) {
            columna.CentroCircX = circulo->CentroCircX;
            columna.CentroCircY = circulo->CentroCircY;
        }
    });
    columna.fallo = error ? error->numero() : 0;
    return columna;
}

/// Compares value for value, stroke for stroke and fault for fault. Where a column faults, only its drawing
/// shows how far it came.
void CompararConLaLiteral(const ParcelaAPA& parcela, double k) {
    const Arboles arboles = parcela.arboles();
    const ContornoXY contorno = parcela.contorno();
    literal::Columna esperada = literal::APA{arboles, contorno, k}.columna();
    const literal::Columna hallada = Rapida(arboles, contorno, k);
    if (esperada.fallo != 0) {
        esperada.indices.clear();
        esperada.CentroCircX = esperada.CentroCircY = 0;
    }
    RC_CLASSIFY(esperada.fallo != 0, "con fallo");
    RC_ASSERT(hallada.fallo == esperada.fallo);
    RC_ASSERT(hallada.trazos == esperada.trazos);
    RC_ASSERT(hallada.indices == esperada.indices);
    RC_ASSERT(hallada.CentroCircX == esperada.CentroCircX);
    RC_ASSERT(hallada.CentroCircY == esperada.CentroCircY);
}

class Azar {
public:
    explicit Azar(unsigned semilla) : azar_{semilla} {}

    double entre(double a, double b) { return std::uniform_real_distribution<double>{a, b}(azar_); }
    int entero(int a, int b) { return std::uniform_int_distribution<int>{a, b}(azar_); }
    bool unaDeCada(int veces) { return entero(1, veces) == 1; }

    /// Coordinates in a random order, no two of them nearer than half their mean distance: no two trees are
    /// in line with an axis, or almost.
    std::vector<double> repartidos(int cuantos, double lado) {
        std::vector<double> sitios;
        for (int i = 0; i < cuantos; ++i) {
            sitios.push_back((i + entre(0.25, 0.75)) * lado / cuantos);
        }
        std::shuffle(sitios.begin(), sitios.end(), azar_);
        return sitios;
    }

private:
    std::mt19937 azar_;
};

/// A coordinate as its cell has it.
double Escrito(double coordenada) {
    return ANumero(ATexto(coordenada));
}

/// A boundary that half the time is the hull of the trees, and else a smaller or larger one.
void Envolver(ParcelaAPA& parcela, Azar& azar) {
    parcela.envolver(azar.unaDeCada(2) ? 1 : azar.entre(0.3, 1.2));
}

/// Trees in a rectangle of those sides, whose corner stands at (x0; y0).
ParcelaAPA ParcelaRepartida(Azar& azar, int cuantos, double ancho, double alto, double x0 = 0,
                            double y0 = 0) {
    const auto x = azar.repartidos(cuantos, ancho);
    const auto y = azar.repartidos(cuantos, alto);
    ParcelaAPA parcela;
    for (std::size_t i = 0; i < x.size(); ++i) {
        parcela.anadir(Escrito(x0 + x[i]), Escrito(y0 + y[i]));
    }
    return parcela;
}

/// 10 to 40 cm.
std::string UnTamano(Azar& azar) {
    return ATexto(azar.entero(10, 40) / 100.0);
}

/// A size for each tree; some are empty and, where the exponent allows it, some are 0.
void DarTamanos(ParcelaAPA& parcela, Azar& azar, double k) {
    for (auto& tamano : parcela.tamano) {
        tamano = UnTamano(azar);
        if (azar.unaDeCada(40)) {
            tamano = "";
        } else if (k >= 0 && azar.unaDeCada(80)) {
            tamano = "0";
        }
    }
}

double Exponente() {
    return *rc::gen::element(0.0, 0.0, 1.0, 2.0, 0.5, -1.0, 3.0, 8.0, 30.0);
}

RC_GTEST_PROP(APACercanos, UnaParcelaSinArbolesAlineadosDaLosMismosBits, ()) {
    const int cuantos = *rc::gen::inRange(30, 140);
    Azar azar{*rc::gen::arbitrary<unsigned>()};
    const double k = Exponente();
    // Metres near the origin, metres of a map grid, kilometres and a plot in one centimetre.
    const auto [x0, y0, lado] =
        *rc::gen::element(std::array{0.0, 0.0, 30.0}, std::array{500000.0, 4500000.0, 30.0},
                          std::array{0.0, 0.0, 0.03}, std::array{0.0, 0.0, 30000.0});
    const bool alargada = azar.unaDeCada(4);
    ParcelaAPA parcela = ParcelaRepartida(azar, cuantos, lado, alargada ? lado / 50 : lado, x0, y0);
    DarTamanos(parcela, azar, k);
    Envolver(parcela, azar);
    CompararConLaLiteral(parcela, k);
}

RC_GTEST_PROP(APACercanos, UnaReticulaGiradaDaLosMismosBits, ()) {
    // Many neighbours in line and many on one circle, and none of one x or y.
    const int lado = *rc::gen::inRange(3, 10);
    Azar azar{*rc::gen::arbitrary<unsigned>()};
    const double k = azar.unaDeCada(2) ? 0 : Exponente();
    const double temblor = azar.unaDeCada(2) ? 0 : std::pow(10.0, azar.entero(-14, -1));
    ParcelaAPA parcela;
    for (int a = 0; a < lado; ++a) {
        for (int b = 0; b < lado; ++b) {
            if (!azar.unaDeCada(6)) {
                parcela.anadir(Escrito(11 * a + b + azar.entre(0, temblor)),
                               Escrito(11 * b - a + azar.entre(0, temblor)));
            }
        }
    }
    RC_PRE(parcela.x.size() > 2);
    if (azar.unaDeCada(2)) {
        DarTamanos(parcela, azar, k);
    }
    Envolver(parcela, azar);
    CompararConLaLiteral(parcela, k);
}

RC_GTEST_PROP(APACercanos, GruposYArbolesEnUnaCircunferenciaDanLosMismosBits, ()) {
    const int cuantos = *rc::gen::inRange(3, 70);
    Azar azar{*rc::gen::arbitrary<unsigned>()};
    const double k = Exponente();
    const bool enGrupos = azar.unaDeCada(2);
    ParcelaAPA parcela;
    for (int i = 0; i < cuantos; ++i) {
        if (enGrupos) {
            parcela.anadir(Escrito(10 * azar.entero(0, 3) + azar.entre(-0.5, 0.5)),
                           Escrito(10 * azar.entero(0, 3) + azar.entre(-0.5, 0.5)));
        } else {
            const double angulo = azar.entre(0, 2 * numeroPi);
            const double radio = azar.unaDeCada(3) ? azar.entre(1, 10) : 10;
            parcela.anadir(Escrito(radio * std::cos(angulo)), Escrito(radio * std::sin(angulo)));
        }
    }
    DarTamanos(parcela, azar, k);
    Envolver(parcela, azar);
    CompararConLaLiteral(parcela, k);
}

RC_GTEST_PROP(APACercanos, ArbolesDeLaMismaXODeLaMismaYDanElMismoFallo, ()) {
    const int cuantos = *rc::gen::inRange(3, 40);
    const int finura = *rc::gen::inRange(4, 4000);
    Azar azar{*rc::gen::arbitrary<unsigned>()};
    const double k = Exponente();
    ParcelaAPA parcela;
    for (int i = 0; i < cuantos; ++i) {
        parcela.anadir(i * 0.375, azar.entero(0, finura) * 0.25);
        if (azar.unaDeCada(30)) {
            parcela.x.back() = parcela.x.front() + azar.entero(0, 1) * 1E-12;
        }
    }
    DarTamanos(parcela, azar, k);
    RC_PRE(!Saltando([&] { Envolver(parcela, azar); }));
    CompararConLaLiteral(parcela, k);
}

RC_GTEST_PROP(APACercanos, CeldasQueNoSonNumerosDanElMismoFallo, ()) {
    const int cuantos = *rc::gen::inRange(3, 40);
    Azar azar{*rc::gen::arbitrary<unsigned>()};
    const double k = Exponente();
    ParcelaAPA parcela = ParcelaRepartida(azar, cuantos, 20, 20);
    DarTamanos(parcela, azar, k);
    const auto fila = static_cast<std::size_t>(azar.entero(0, cuantos - 1));
    parcela.tamano[fila] =
        *rc::gen::element<std::string>("grueso", "-0,2", "0", "1E+300", "1E-300", " ", "1E+999");
    parcela.envolver();
    CompararConLaLiteral(parcela, k);
}

/// Which trees are turned about without a look at all the others.
std::vector<bool> VanPorElCaminoCorto(const ParcelaAPA& parcela, double k) {
    const Arboles arboles = parcela.arboles();
    const PesosAPA pesos{arboles, k};
    CercanosAPA cercanos{pesos};
    VecinosAPA vecinos;
    GiroAPA giro;
    std::vector<bool> van;
    for (std::size_t i = 0; i < arboles.cuantos(); ++i) {
        Pareja pareja{i, i};
        van.push_back(cercanos.girar(pareja, vecinos, giro));
    }
    return van;
}

TEST(APACercanos, EnUnaParcelaCorrienteCasiTodosLosArbolesVanPorElCaminoCorto) {
    Azar azar{7};
    ParcelaAPA parcela = ParcelaRepartida(azar, 1500, 130, 130);
    for (auto& tamano : parcela.tamano) {
        tamano = UnTamano(azar);
    }
    parcela.envolver();
    for (const double k : {0.0, 2.0}) {
        const std::vector<bool> van = VanPorElCaminoCorto(parcela, k);
        EXPECT_GT(std::count(van.begin(), van.end(), true), 1450);
    }
}

/// A side as the column sees it: the tree behind it and its line.
using Lado = std::tuple<VecinosAPA::Fila, double, double>;

std::vector<Lado> Lados(const VecinosAPA& vecinos, const GiroAPA& giro) {
    std::vector<Lado> lados;
    for (const LadoAPA& lado : giro.lados()) {
        lados.emplace_back(vecinos.filas[lado.vecino], lado.pendiente, lado.intercepto);
    }
    return lados;
}

TEST(APACercanos, DeDosVecinosIgualDeCercanosElGiroEmpiezaPorLaPrimeraFila) {
    // Root 5 away stand the rows 1, 3 and 5, in whatever order they are handed over.
    const std::map<VecinosAPA::Fila, std::pair<double, double>> sitios{
        {1, {1, -2}}, {3, {-1, 2}}, {5, {2, 1}}, {8, {-2.25, -1}}};
    std::vector<VecinosAPA::Fila> filas{1, 3, 5, 8};
    std::vector<Lado> lados;
    do {
        VecinosAPA vecinos;
        vecinos.filas = filas;
        for (const auto fila : filas) {
            vecinos.x.push_back(sitios.at(fila).first);
            vecinos.y.push_back(sitios.at(fila).second);
        }
        Pareja pareja{0, 0};
        GiroAPA giro;
        giro.dar(vecinos, pareja);
        if (lados.empty()) {
            lados = Lados(vecinos, giro);
            ASSERT_EQ(lados.size(), 4);
            EXPECT_EQ(std::get<0>(lados.front()), 1);
        }
        EXPECT_EQ(Lados(vecinos, giro), lados);
    } while (std::next_permutation(filas.begin(), filas.end()));
}

/// Judges the short turns of a plot by the whole one, which the literal form judges on small plots.
void CompararConElGiroEntero(const ParcelaAPA& parcela, double k) {
    const Arboles arboles = parcela.arboles();
    const PesosAPA pesos{arboles, k};
    CercanosAPA cercanos{pesos};
    std::vector<VecinosAPA::Fila> todas(arboles.cuantos());
    std::iota(todas.begin(), todas.end(), VecinosAPA::Fila{0});
    VecinosAPA cerca;
    VecinosAPA enteros;
    GiroAPA corto;
    GiroAPA entero;
    std::size_t cortos = 0;
    for (std::size_t i = 0; i < arboles.cuantos(); ++i) {
        Pareja pareja{i, i};
        if (cercanos.girar(pareja, cerca, corto)) {
            ++cortos;
            ReunirVecinos(pesos, todas, pareja, enteros);
            RC_ASSERT(!Saltando([&] { entero.dar(enteros, pareja); }));
            RC_ASSERT(Lados(cerca, corto) == Lados(enteros, entero));
        }
    }
    RC_CLASSIFY(2 * cortos > arboles.cuantos(), "casi todos por el camino corto");
}

RC_GTEST_PROP(APACercanos, EnUnaParcelaGrandeElCaminoCortoDaLosLadosDelGiroEntero, ()) {
    const int cuantos = *rc::gen::inRange(150, 500);
    Azar azar{*rc::gen::arbitrary<unsigned>()};
    const double k = *rc::gen::element(0.0, 1.0, -1.0, 3.0);
    const double x0 = *rc::gen::element(0.0, 500000.0);
    const double alto = *rc::gen::element(100.0, 20.0);
    ParcelaAPA parcela = ParcelaRepartida(azar, cuantos, 100, alto, x0, 9 * x0);
    for (auto& tamano : parcela.tamano) {
        tamano = UnTamano(azar);
    }
    CompararConElGiroEntero(parcela, k);
}

RC_GTEST_PROP(APACercanos, EnUnaReticulaGrandeElCaminoCortoDaLosLadosDelGiroEntero, ()) {
    // Every line of sight meets trees that are in line, or almost.
    const int lado = *rc::gen::inRange(12, 20);
    Azar azar{*rc::gen::arbitrary<unsigned>()};
    const double k = *rc::gen::element(0.0, 0.0, 1.0);
    const double temblor = std::pow(10.0, -*rc::gen::inRange(1, 12));
    ParcelaAPA parcela;
    for (int a = 0; a < lado; ++a) {
        for (int b = 0; b < lado; ++b) {
            parcela.anadir(Escrito(23 * a + b + azar.entre(0, temblor)),
                           Escrito(23 * b - a + azar.entre(0, temblor)), UnTamano(azar));
        }
    }
    CompararConElGiroEntero(parcela, k);
}

using Sitios = std::vector<std::pair<double, double>>;

const Sitios enCruz{{2, 1}, {-1, 2}, {-2, -1}, {1, -2}};

/// A thousand trees about one whose cell has its four nearest neighbours for sides; the first tree.
ParcelaAPA ParcelaGrande(const Sitios& vecinos) {
    Azar azar{3};
    ParcelaAPA parcela;
    parcela.anadir(0, 0);
    for (const auto& [x, y] : vecinos) {
        parcela.anadir(x, y);
    }
    const auto xs = azar.repartidos(1000, 80);
    const auto ys = azar.repartidos(1000, 80);
    for (std::size_t i = 0; i < xs.size(); ++i) {
        if (std::hypot(xs[i] - 40, ys[i] - 40) > 4) {
            parcela.anadir(xs[i] - 40, ys[i] - 40);
        }
    }
    parcela.envolver();
    return parcela;
}

/// The far tree, added to a plot whose first tree had a cell, makes that very tree fault.
void EsperarFalloDelPrimero(double x, double y, const std::string& tamano, int fallo,
                            const Sitios& vecinos = enCruz) {
    ParcelaAPA parcela = ParcelaGrande(vecinos);
    ASSERT_TRUE(VanPorElCaminoCorto(parcela, 0).front());
    ASSERT_FALSE(Rapida(parcela.arboles(), parcela.contorno(), 0).trazos.empty());

    parcela.anadir(x, y, tamano);
    const literal::Columna columna = Rapida(parcela.arboles(), parcela.contorno(), 0);
    EXPECT_EQ(columna.fallo, fallo);
    EXPECT_TRUE(columna.trazos.empty());
}

TEST(APACercanos, UnArbolLejanoEnLineaConUnVecinoHaceFallarElGiro) {
    // Sixteen times as far as the neighbour at (-2; -1), on its line: it is tried right after that neighbour,
    // and the circle through both and the tree has no centre.
    EsperarFalloDelPrimero(-32, -16, "0,2", fallo::divisionPorCero);
}

TEST(APACercanos, UnArbolLejanoEnLineaConUnSoloVecinoHaceFallarElGiro) {
    // Nobody else stands on that line.
    EsperarFalloDelPrimero(32, 16, "0,2", fallo::divisionPorCero,
                           {{2, 1}, {-1.125, 2}, {-2.25, -1}, {1, -2.125}});
}

TEST(APACercanos, UnArbolLejanoDeLaMismaXHaceFallarElGiroAunqueSuTamanoSeaCero) {
    EsperarFalloDelPrimero(0, 30, "0,2", fallo::divisionPorCero);
    EsperarFalloDelPrimero(0, 30, "0", fallo::divisionPorCero);
}

TEST(APACercanos, UnArbolLejanoDeLaMismaYHaceFallarElGiro) {
    EsperarFalloDelPrimero(32, 0, "0,2", fallo::divisionPorCero);
}

TEST(APACercanos, UnArbolLejanoCasiEncimaHaceFallarElGiroSiSuSenoPasaDeUno) {
    double y = 20;
    while (y < 40 && FalloDe([&] { AnguloDireccion(0, 0, 1E-9, y); }) == 0) {
        y += 0.125;
    }
    ASSERT_LT(y, 40);
    EsperarFalloDelPrimero(1E-9, y, "0,2", fallo::funcionDeHoja);
}

} // namespace
} // namespace varo
