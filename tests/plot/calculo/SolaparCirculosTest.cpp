#include "plot/calculo/SolaparCirculos.h"

#include "apoyo/Fallos.h"
#include "plot/calculo/SolapeLiteral.h"

#include "basico/Numeros.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace varo::prueba {
namespace {

constexpr double pi = 3.1415927; // the literal of the whole program

/// x, y, the mean radius in metres, and whether the row has a size.
struct ArbolDado {
    std::string x, y, radio;
    bool conTamano = true;
};

FilasDeCopas Copas(const std::vector<ArbolDado>& arboles) {
    FilasDeCopas copas;
    copas.datos = DatosDeCopa::RadioMedio;
    for (const ArbolDado& arbol : arboles) {
        FilaDeCopa fila;
        fila.x = CeldaLeida{arbol.x};
        fila.y = CeldaLeida{arbol.y};
        fila.sinTamano = !arbol.conTamano;
        fila.medidas[0] = CeldaLeida{arbol.radio};
        copas.filas.push_back(fila);
    }
    return copas;
}

SolapeDeCopas Solape(const FilasDeCopas& copas) {
    SolapeDeCopas solape;
    solape.NumParesCopas = 7; // what a run before left
    solape.ParesCopas = {{1, 2, 3}};
    solape.AreaIntersecCopas = 3;
    SolaparCirculos(copas, solape);
    return solape;
}

using Pares = std::vector<ParDeCopas>;

Pares ParesDe(const std::vector<ArbolDado>& arboles) {
    return Solape(Copas(arboles)).ParesCopas;
}

TEST(SolaparCirculos, LosSeparadosNoDanPar) {
    const SolapeDeCopas solape = Solape(Copas({{"0", "0", "2"}, {"3", "4", "2,5"}}));
    EXPECT_TRUE(solape.ParesCopas.empty());
    EXPECT_EQ(solape.NumParesCopas, -1);
    EXPECT_EQ(solape.AreaIntersecCopas, 0);
}

TEST(SolaparCirculos, UnaCopaDentroDeOtraDaElAreaDeLaPequena) {
    const SolapeDeCopas solape = Solape(Copas({{"50", "0", "1"}, {"0", "0", "4"}, {"1", "0", "2"}}));
    EXPECT_EQ(solape.ParesCopas, (Pares{{2, 3, 4 * pi}}));
    EXPECT_EQ(solape.NumParesCopas, 0);
    EXPECT_EQ(solape.AreaIntersecCopas, 4 * pi);
}

TEST(SolaparCirculos, DosDeRadio1ADistancia1) {
    // 2 pi / 3 - sqrt(3) / 2
    const Pares pares = ParesDe({{"0", "0", "1"}, {"1", "0", "1"}});
    ASSERT_EQ(pares.size(), 1U);
    EXPECT_NEAR(pares[0].area, 1.228369698608757, 1E-14);
}

TEST(SolaparCirculos, LoQueCompartenTresCuentaUnaVezPorPar) {
    const SolapeDeCopas solape = Solape(Copas({{"0", "0", "3"}, {"0", "0", "2"}, {"0", "0", "1"}}));
    EXPECT_EQ(solape.ParesCopas, (Pares{{1, 2, 4 * pi}, {1, 3, pi}, {2, 3, pi}}));
    EXPECT_EQ(solape.NumParesCopas, 2);
    EXPECT_EQ(solape.AreaIntersecCopas, (4 * pi + pi) + pi);
}

TEST(SolaparCirculos, UnaFilaSinTamanoNoEstaEnNingunPar) {
    EXPECT_EQ(ParesDe({{"0", "0", "3", false}, {"0", "0", "2"}, {"0", "0", "5", false}, {"0", "0", "1"}}),
              (Pares{{2, 4, pi}}));
}

TEST(SolaparCirculos, UnSoloArbolONinguno) {
    for (const auto& copas :
         {Copas({}), Copas({{"0", "0", "1"}}), Copas({{"0", "0", "1"}, {"0", "0", "2", false}})}) {
        const SolapeDeCopas solape = Solape(copas);
        EXPECT_TRUE(solape.ParesCopas.empty());
        EXPECT_EQ(solape.NumParesCopas, -1);
        EXPECT_EQ(solape.AreaIntersecCopas, 0);
    }
}

TEST(SolaparCirculos, UnParQueFallaTieneElAreaDelParAnterior) {
    // Trees 2 and 3 are equal in one place; the pair before theirs is 1 with 3: the whole of crown 3.
    EXPECT_EQ(ParesDe({{"0", "0", "4"}, {"0", "0", "2"}, {"0", "0", "2"}}),
              (Pares{{1, 2, 4 * pi}, {1, 3, 4 * pi}, {2, 3, 4 * pi}}));
    // A far tree behind them: the pair before theirs is 1 with 4, whose 0 they take.
    EXPECT_EQ(ParesDe({{"0", "0", "4"}, {"0", "0", "2"}, {"0", "0", "2"}, {"90", "0", "1"}}),
              (Pares{{1, 2, 4 * pi}, {1, 3, 4 * pi}}));
    EXPECT_EQ(ParesDe({{"0", "0", "2"}, {"0", "0", "2"}}), Pares{}) << "el primer par parte de 0";
}

TEST(SolaparCirculos, SinCoordenadaSeArrastraElAreaPorTodaLaFila) {
    const std::vector<ArbolDado> arboles{{"0", "0", "4"}, {"x", "0", "1"},  {"1", "0", "2"},
                                         {"0", "", "1"},  {"90", "0", "1"}, {"0", "x", "1"}};
    // Pairs 1-2: 0. 1-3: all of crown 3, and 1-4 with it; 1-5 is far. The rows of tree 2 have nothing to
    // keep.
    EXPECT_EQ(ParesDe(arboles), (Pares{{1, 3, 4 * pi}, {1, 4, 4 * pi}}));
    // Without the far tree the area goes on into the rows behind.
    const std::vector<ArbolDado> sinLejano{arboles[0], arboles[1], arboles[2], arboles[3]};
    EXPECT_EQ(ParesDe(sinLejano),
              (Pares{{1, 3, 4 * pi}, {1, 4, 4 * pi}, {2, 3, 4 * pi}, {2, 4, 4 * pi}, {3, 4, 4 * pi}}));
}

TEST(SolaparCirculos, SinRadioMedioValeElDeLaFilaAnteriorEnElMismoPapel) {
    // Tree 2 has no radius. As the second of pair 1-2 it has the 0 of the start: a crown of 0 inside of
    // another one. As the first of pair 2-3 it has the 3 of tree 1, and crown 3 lies inside.
    EXPECT_EQ(ParesDe({{"0", "0", "3"}, {"1", "0", ""}, {"0", "0", "1"}}), (Pares{{1, 3, pi}, {2, 3, pi}}));
    // In the walk behind tree 2, tree 3 has the radius of tree 4, the last one of the walk before.
    EXPECT_EQ(ParesDe({{"0", "0", "5"}, {"0", "0", "4"}, {"0", "0", "copa"}, {"0", "0", "1"}}),
              (Pares{{1, 2, 16 * pi}, {1, 3, 16 * pi}, {1, 4, pi}, {2, 3, pi}, {2, 4, pi}, {3, 4, pi}}))
        << "1-3 y 3-4: la fila 3 tiene el 4 de la fila 2";
}

TEST(SolaparCirculos, LosRadiosSeRedondeanA32Bits) {
    const auto decimo = static_cast<double>(0.1F);
    EXPECT_EQ(ParesDe({{"0", "0", "1"}, {"0", "0", "0,1"}}), (Pares{{1, 2, (decimo * decimo) * pi}}));
    EXPECT_EQ(ParesDe({{"0", "0", "9"}, {"0", "0", "2"}, {"0", "0", "1E+39"}}),
              (Pares{{1, 2, 4 * pi}, {1, 3, 4 * pi}, {2, 3, 4 * pi}}))
        << "1E+39 desborda: la fila 3 tiene el 2 de la fila 2, y el par 2-3 falla";
}

TEST(SolaparCirculos, CadaFormaTieneSuRadioMedio) {
    const auto areaDe = [](DatosDeCopa datos, int factor, const std::array<CeldaLeida, 4>& medidas) {
        FilasDeCopas copas = Copas({{"0", "0", ""}, {"0", "0", ""}});
        copas.datos = datos;
        copas.FactorRadios = factor;
        copas.filas[0].medidas.fill(CeldaLeida{"90000"});
        copas.filas[1].medidas = medidas;
        return Solape(copas).AreaIntersecCopas;
    };
    const std::array<CeldaLeida, 4> medidas{CeldaLeida{"100"}, CeldaLeida{"200"}, CeldaLeida{"300"},
                                            CeldaLeida{"400"}};
    EXPECT_EQ(areaDe(DatosDeCopa::CuatroRadios, 100, medidas), 6.25 * pi);
    EXPECT_EQ(areaDe(DatosDeCopa::DosDiametros, 10, medidas), 56.25 * pi); // (5 + 10) / 2
    EXPECT_EQ(areaDe(DatosDeCopa::RadioMedio, 100, medidas), pi);
}

/// 256 crowns in one place, from 1 m to 3,55 m in steps of 0,01, and one of 0,5 m to their side: 32,640 pairs
/// and those of the last one.
FilasDeCopas MuchosPares(const std::string& xDelUltimo) {
    std::vector<ArbolDado> arboles;
    for (int k = 0; k < 256; ++k) {
        arboles.push_back({"0", "0", ATexto(1 + k / 100.0)});
    }
    arboles.push_back({xDelUltimo, "0", "0,5"});
    return Copas(arboles);
}

TEST(SolaparCirculos, Caben32768Pares) {
    const SolapeDeCopas solape = Solape(MuchosPares("2,775")); // it meets those from 2,28 m on
    EXPECT_EQ(solape.NumParesCopas, 32767);
    EXPECT_EQ(solape.ParesCopas.size(), 32768U);
    EXPECT_GT(solape.AreaIntersecCopas, 3);
}

TEST(SolaparCirculos, ElPar32769TerminaSinSumarNada) {
    SolapeDeCopas solape;
    solape.AreaIntersecCopas = 12.5;
    EXPECT_EQ(FalloDe([&] { SolaparCirculos(MuchosPares("2,765"), solape); }), fallo::desbordamiento);
    EXPECT_EQ(solape.NumParesCopas, 32767);
    EXPECT_EQ(solape.ParesCopas.size(), 32768U);
    EXPECT_EQ(solape.AreaIntersecCopas, 12.5);
}

/// From 0 on, whatever the size that RapidCheck is at.
int AlAzar(int cuantos) {
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, cuantos));
}

/// Where trees stand: on few places, anywhere, far from the origin, or beyond all measure.
std::string CoordenadaAlAzar(int lugares) {
    switch (lugares) {
    case 0:
        return ATexto(AlAzar(4));
    case 1:
        return ATexto(AlAzar(41) * 0.5);
    case 2:
        return ATexto(AlAzar(2000001) * 1E-5);
    default:
        return ATexto(4600000 + AlAzar(2001) * 0.01);
    }
}

FilasDeCopas CopasAlAzar() {
    FilasDeCopas copas;
    copas.datos =
        *rc::gen::element(DatosDeCopa::CuatroRadios, DatosDeCopa::DosDiametros, DatosDeCopa::RadioMedio);
    copas.FactorRadios = *rc::gen::element(1, 10, 100);
    const int lugares = AlAzar(4);
    const int percances = *rc::gen::element(1 << 20, 30, 4); // one cell in so many is wrong
    const auto celda = [&](const std::vector<std::string>& raras, auto corriente) {
        return CeldaLeida{AlAzar(percances) == 0 ? *rc::gen::elementOf(raras) : corriente()};
    };
    const int filas = *rc::gen::inRange(0, 50);
    for (int i = 0; i < filas; ++i) {
        FilaDeCopa fila;
        fila.x = celda({"", "x", "x", "1E+200"}, [&] { return CoordenadaAlAzar(lugares); });
        fila.y = celda({"", "y"}, [&] { return CoordenadaAlAzar(lugares); });
        fila.sinTamano = AlAzar(10) == 0;
        for (CeldaLeida& medida : fila.medidas) {
            medida = celda({"", "copa", "-4", "1E+60"}, [&] {
                return ATexto(*rc::gen::element(1.0, 1.0, 1.5, 2.0, 0.5, 0.0, 1.33) * copas.FactorRadios);
            });
        }
        copas.filas.push_back(fila);
    }
    return copas;
}

RC_GTEST_PROP(SolaparCirculos, LosParesYLaSumaSonLosDelProcedimientoLiteral, ()) {
    const FilasDeCopas copas = CopasAlAzar();
    SolapeDeCopas esperado;
    SolapeLiteral{copas, esperado}.AreaTotalIntersCopas();
    const SolapeDeCopas solape = Solape(copas);
    RC_ASSERT(solape.ParesCopas == esperado.ParesCopas);
    RC_ASSERT(solape.NumParesCopas == esperado.NumParesCopas);
    RC_ASSERT(solape.AreaIntersecCopas == esperado.AreaIntersecCopas);
    RC_CLASSIFY(!esperado.ParesCopas.empty());
}

} // namespace
} // namespace varo::prueba
