#include "plot/calculo/CubiertaDeCopas.h"

#include "plot/calculo/CopasDePrueba.h"
#include "plot/calculo/Module1.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

Lienzo Pintado(const FilasDeCopas& filas, bool elipses = true) {
    Lienzo superficie;
    superficie.ForeColor = superficie.FillColor.emplace(0x00FF0000);
    superficie.circulo(0, 0, 100);
    PintarCopas(filas, elipses, superficie);
    return superficie;
}

std::vector<Figura> Figuras(const FilasDeCopas& filas, bool elipses = true) {
    return Pintado(filas, elipses).figuras();
}

TEST(PintarCopas, CuatroRadiosDanUnaElipseOElCirculoDeSuMedia) {
    const FilasDeCopas filas = FilasDe({{{"3", "4", "20", "5", "0", "15"}}}, DatosDeCopa::CuatroRadios, 10);
    EXPECT_EQ(Figuras(filas), (std::vector<Figura>{CopaLlena{{3, 4, 2, 0.5, 0.5, 1.5}, 0}}))
        << "el radio 0 se pinta con medio metro";
    EXPECT_EQ(Figuras(filas, false), (std::vector<Figura>{Circulo{3, 4, 1, 0, 0}}));
}

TEST(PintarCopas, DosDiametrosSeParten) {
    const FilasDeCopas filas = FilasDe({{{"3", "4", "300", "200"}}}, DatosDeCopa::DosDiametros, 100);
    EXPECT_EQ(Figuras(filas), (std::vector<Figura>{CopaLlena{{3, 4, 1.5, 1, 1.5, 1}, 0}}));
    EXPECT_EQ(Figuras(filas, false), (std::vector<Figura>{Circulo{3, 4, 1.25, 0, 0}}));
}

TEST(PintarCopas, ElRadioMedioEsUnCirculoConCualquierForma) {
    // The second cell belongs to no crown.
    const FilasDeCopas filas = FilasDe({{{"3", "4", "2,5", "x"}}}, DatosDeCopa::RadioMedio);
    for (const bool elipses : {true, false}) {
        EXPECT_EQ(Figuras(filas, elipses), (std::vector<Figura>{Circulo{3, 4, 2.5, 0, 0}}));
    }
}

TEST(PintarCopas, SinTamanoTambienSePintan) {
    EXPECT_EQ(Figuras(FilasDe({{{"3", "4", "1", "1", "1", "1"}, true}})),
              (std::vector<Figura>{CopaLlena{{3, 4, 1, 1, 1, 1}, 0}}));
}

TEST(PintarCopas, UnaCeldaVaciaCuentaCero) {
    EXPECT_EQ(Figuras(FilasDe({{{"3", "4", "1", "", "2", "1"}}}), false),
              (std::vector<Figura>{Circulo{3, 4, 1, 0, 0}}));
}

TEST(PintarCopas, UnaPalabraDejaLosCuatroRadiosDelArbolAnterior) {
    EXPECT_EQ(Figuras(FilasDe({{{"1", "1", "3", "3", "ancha", "3"}},
                               {{"2", "2", "1", "2", "3", "4"}},
                               {{"3", "3", "5", "5", "5", "ancha"}},
                               {{"4", "4", "", "6", "6", "6"}}})),
              (std::vector<Figura>{CopaLlena{{1, 1, 0.5, 0.5, 0.5, 0.5}, 0}, CopaLlena{{2, 2, 1, 2, 3, 4}, 0},
                                   CopaLlena{{3, 3, 1, 2, 3, 4}, 0}, CopaLlena{{4, 4, 0.5, 6, 6, 6}, 0}}))
        << "los primeros son 0";
}

TEST(PintarCopas, UnaCoordenadaQueNoEsUnNumeroDejaPasarLaFila) {
    EXPECT_EQ(Figuras(FilasDe({{{"x", "1", "1", "1", "1", "1"}}, {{"1", "", "1", "1", "1", "1"}}})),
              std::vector<Figura>{});
}

TEST(PintarCopas, LosRadiosSonDe64Bits) {
    EXPECT_EQ(Figuras(FilasDe({{{"3", "4", "0,1"}}}, DatosDeCopa::RadioMedio)),
              (std::vector<Figura>{Circulo{3, 4, 0.1, 0, 0}}));
}

/// The cover of a diamond with five sample points inside: its centre and the four about it.
float Fcc(const FilasDeCopas& filas, bool elipses = true) {
    const std::vector<double> x{0, 2, 4, 2, 0};
    const std::vector<double> y{2, 4, 2, 0, 2};
    Lienzo superficie = Pintado(filas, elipses);
    return CalcularFcc({x, y}, [&](double px, double py) { return superficie.Point(px, py); });
}

TEST(PintarCopas, LaCubiertaCuentaLosPuntosNegros) {
    EXPECT_EQ(Fcc({}), 0.0F);
    EXPECT_EQ(Fcc(FilasDe({{{"2", "2", "1", "1", "1", "1"}}})), 1.0F);
    EXPECT_EQ(Fcc(FilasDe({{{"2", "2", "1", "0", "0", "0"}}})), 0.4F) << "el centro y el del norte";
    EXPECT_EQ(Fcc(FilasDe({{{"2", "2", "1", "0", "0", "0"}}}), false), 0.2F) << "un cuarto de metro";
    EXPECT_EQ(Fcc(FilasDe({{{"1", "1,5", "0,5"}}, {{"3", "2", "0"}}}, DatosDeCopa::RadioMedio)), 0.4F)
        << "el contorno de una copa, y el centro de la otra";
}

TEST(PintarCopas, LosRadiosCeroCubrenSuCentro) {
    const FilasDeCopas filas = FilasDe({{{"2", "2", "0", "0", "0", "0"}}});
    for (const bool elipses : {true, false}) {
        EXPECT_EQ(Fcc(filas, elipses), 0.2F);
    }
    EXPECT_EQ(Fcc(FilasDe({{{"2", "2", "", "", "", ""}}}), false), 0.2F);
    // Half a metre reaches a point half a metre away, where a circle of 0 does not.
    EXPECT_EQ(Fcc(FilasDe({{{"2,5", "2", "0", "0", "0", "0"}}}), true), 0.4F);
    EXPECT_EQ(Fcc(FilasDe({{{"2,5", "2", "0", "0", "0", "0"}}}), false), 0.0F);
}

TEST(PintarCopas, EnCoordenadasUTMSePintaIgual) {
    const std::vector<double> x{500000, 500002, 500004, 500002, 500000};
    const std::vector<double> y{4500002, 4500004, 4500002, 4500000, 4500002};
    Lienzo superficie = Pintado(FilasDe({{{"500002", "4500002", "1", "0", "0", "0"}}}));
    EXPECT_EQ(CalcularFcc({x, y}, [&](double px, double py) { return superficie.Point(px, py); }), 0.4F);
}

} // namespace
} // namespace varo::prueba
