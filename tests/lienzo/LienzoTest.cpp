#include "lienzo/Lienzo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace varo::prueba {
namespace {

constexpr Color rojo = 0x000000FF;
constexpr Color azul = 0x00FF0000;
constexpr Color negro = 0;
constexpr Color fondo = 0x00C0E0FF;

/// From -10 to 10 in both axes.
Lienzo Cuadrado() {
    Lienzo lienzo;
    lienzo.BackColor = fondo;
    lienzo.escala({-10, 10, -10, 10});
    return lienzo;
}

double JustoPorEncimaDe(double numero) {
    return std::nextafter(numero, std::numeric_limits<double>::infinity());
}

TEST(Lienzo, DondeNadaCubreContestaElFondo) {
    Lienzo lienzo = Cuadrado();
    EXPECT_EQ(lienzo.Point(0, 0), fondo);
}

TEST(Lienzo, FueraDeLaSuperficieContestaMenosUnoYSuBordeEsDeElla) {
    Lienzo lienzo = Cuadrado();
    lienzo.copa({0, 0, 50, 50, 50, 50});
    EXPECT_EQ(lienzo.Point(10, -10), negro);
    EXPECT_EQ(lienzo.Point(JustoPorEncimaDe(10), 0), -1);
    EXPECT_EQ(lienzo.Point(0, JustoPorEncimaDe(10)), -1);
    EXPECT_EQ(lienzo.Point(-JustoPorEncimaDe(10), 0), -1);
    EXPECT_EQ(lienzo.Point(0, -JustoPorEncimaDe(10)), -1);
}

TEST(Lienzo, UnaSuperficieSinExtensionNoTieneLimites) {
    Lienzo lienzo;
    lienzo.escala({3, 3, 4, 4});
    EXPECT_EQ(lienzo.Point(1000, -1000), lienzo.BackColor);
    lienzo.circulo(0, 0, 1);
    lienzo.FillColor = rojo;
    lienzo.circulo(0, 0, 1);
    EXPECT_EQ(lienzo.Point(0.5, 0), rojo);
}

TEST(Lienzo, LaUltimaFiguraLlenaTapaALasDeAntes) {
    Lienzo lienzo = Cuadrado();
    lienzo.copa({0, 0, 2, 2, 2, 2});
    lienzo.ForeColor = azul;
    lienzo.copa({2, 0, 2, 2, 2, 2});
    EXPECT_EQ(lienzo.Point(-1, 0), negro);
    EXPECT_EQ(lienzo.Point(1, 0), azul);
    EXPECT_EQ(lienzo.Point(3, 0), azul);
    lienzo.ForeColor = negro;
    lienzo.copa({0, 0, 2, 2, 2, 2});
    EXPECT_EQ(lienzo.Point(1, 0), negro);
}

TEST(Lienzo, CadaCuartoDeLaCopaTieneSusDosRadios) {
    Lienzo lienzo = Cuadrado();
    lienzo.copa({1, 1, 5, 2, 3, 4}); // from -3 to 3 and from -2 to 6
    for (const auto& [x, y] : {std::pair{1.0, 6.0}, {3.0, 1.0}, {1.0, -2.0}, {-3.0, 1.0}, {1.0, 1.0}}) {
        EXPECT_EQ(lienzo.Point(x, y), negro) << x << ' ' << y;
    }
    for (const auto& [x, y] : {std::pair{1.0, 6.001}, {3.001, 1.0}, {1.0, -2.001}, {-3.001, 1.0}}) {
        EXPECT_EQ(lienzo.Point(x, y), fondo) << x << ' ' << y;
    }
    // Of each quarter, (0,6 a; 0,8 b) lies on the ellipse, and a hundredth beyond out of it.
    EXPECT_EQ(lienzo.Point(1 + 2 * 0.6, 1 + 5 * 0.79), negro);
    EXPECT_EQ(lienzo.Point(1 + 2 * 0.6, 1 + 5 * 0.81), fondo);
    EXPECT_EQ(lienzo.Point(1 + 2 * 0.6, 1 - 3 * 0.79), negro);
    EXPECT_EQ(lienzo.Point(1 + 2 * 0.6, 1 - 3 * 0.81), fondo);
    EXPECT_EQ(lienzo.Point(1 - 4 * 0.6, 1 - 3 * 0.79), negro);
    EXPECT_EQ(lienzo.Point(1 - 4 * 0.6, 1 - 3 * 0.81), fondo);
    EXPECT_EQ(lienzo.Point(1 - 4 * 0.6, 1 + 5 * 0.79), negro);
    EXPECT_EQ(lienzo.Point(1 - 4 * 0.6, 1 + 5 * 0.81), fondo);
}

TEST(Lienzo, LaVerticalDelArbolEsDelEsteYSuHorizontalDelNorte) {
    // With W = 0,25 a point straight above would be inside for any radius; with N only up to N.
    Lienzo lienzo = Cuadrado();
    lienzo.copa({0, 0, 1, 4, 2, 0.25});
    EXPECT_EQ(lienzo.Point(-0.2, 0.5), negro);
    EXPECT_EQ(lienzo.Point(0, 1), negro);
    EXPECT_EQ(lienzo.Point(0, 1.01), fondo);
    EXPECT_EQ(lienzo.Point(4, 0), negro);
    EXPECT_EQ(lienzo.Point(-0.26, 0), fondo);
}

TEST(Lienzo, UnRadioCeroSePintaComoMedioMetro) {
    Lienzo lienzo = Cuadrado();
    lienzo.copa({0, 0, 0, 2, 2, 2});
    EXPECT_EQ(lienzo.Point(0, 0.5), negro);
    EXPECT_EQ(lienzo.Point(0, JustoPorEncimaDe(0.5)), fondo);
    EXPECT_EQ(std::get<CopaLlena>(lienzo.figuras().at(0)).copa, (Copa{0, 0, 0.5, 2, 2, 2}));
}

TEST(Lienzo, UnCirculoLlenoLlegaASuRadioYElDeRadioCeroCubreSuCentro) {
    Lienzo lienzo = Cuadrado();
    lienzo.FillColor = rojo;
    lienzo.circulo(0, 0, 5);
    EXPECT_EQ(lienzo.Point(3, 4), rojo);
    EXPECT_EQ(lienzo.Point(3, 4.001), fondo);
    lienzo.circulo(8, 8, 0);
    EXPECT_EQ(lienzo.Point(8, 8), rojo);
    EXPECT_EQ(lienzo.Point(JustoPorEncimaDe(8), 8), fondo);
}

TEST(Lienzo, UnArcoLlenoCubreSuSector) {
    Lienzo lienzo = Cuadrado();
    lienzo.FillColor = rojo;
    lienzo.arco(0, 0, 4, 0, 1.57, 0.5); // 4 to the east and 2 to the north
    EXPECT_EQ(lienzo.Point(4, 0), rojo);
    EXPECT_EQ(lienzo.Point(2.4, 1.59), rojo); // (0,6; 0,795) of its axes
    EXPECT_EQ(lienzo.Point(2.4, 1.61), fondo);
    EXPECT_EQ(lienzo.Point(-1, 1), fondo);
    EXPECT_EQ(lienzo.Point(1, -1), fondo);
    lienzo.Cls();
    lienzo.arco(0, 0, 4, 4.712, 0, 2); // 2 to the east and 4 to the south
    EXPECT_EQ(lienzo.Point(1, -3), rojo);
    EXPECT_EQ(lienzo.Point(2, 0), rojo);
    EXPECT_EQ(lienzo.Point(3, -1), fondo);
    EXPECT_EQ(lienzo.Point(1, 1), fondo);
}

TEST(Lienzo, LoQueNoTieneRellenoNoDaColor) {
    Lienzo lienzo = Cuadrado();
    lienzo.linea(-10, 0, 10, 0);
    lienzo.arco(0, 0, 4, 0, 3, 1);
    lienzo.circulo(0, 0, 4);
    lienzo.punto(0, 0);
    lienzo.etiqueta("LbTitulo");
    EXPECT_EQ(lienzo.Point(0, 0), fondo);
    EXPECT_EQ(lienzo.Point(4, 0), fondo);
}

TEST(Lienzo, ClsQuitaLasFigurasYDejaEscalaYColores) {
    Lienzo lienzo = Cuadrado();
    lienzo.ForeColor = azul;
    lienzo.FillColor = rojo;
    lienzo.copa({0, 0, 2, 2, 2, 2});
    EXPECT_EQ(lienzo.Point(0, 0), azul);
    lienzo.Cls();
    EXPECT_TRUE(lienzo.figuras().empty());
    EXPECT_EQ(lienzo.Point(0, 0), fondo);
    EXPECT_EQ(lienzo.escala(), (Escala{-10, 10, -10, 10}));
    lienzo.circulo(0, 0, 1);
    EXPECT_EQ(lienzo.figuras(), (std::vector<Figura>{Circulo{0, 0, 1, azul, rojo}}));
    EXPECT_EQ(lienzo.Point(0, 0), rojo);
}

TEST(Lienzo, LasFigurasGuardanElOrdenYLosColoresDeSuMomento) {
    Lienzo lienzo;
    lienzo.ForeColor = rojo;
    lienzo.linea(1, 2, 3, 4);
    lienzo.FillColor = azul;
    lienzo.arco(1, 2, 3, 0, 1.5, 0.5);
    lienzo.ForeColor = azul;
    lienzo.punto(5, 6);
    lienzo.FillColor.reset();
    lienzo.circulo(7, 8, 9);
    lienzo.etiqueta("Lbcodigo", 3);
    EXPECT_EQ(lienzo.figuras(),
              (std::vector<Figura>{Linea{1, 2, 3, 4, rojo}, Arco{1, 2, 3, 0, 1.5, 0.5, rojo, azul},
                                   Punto{5, 6, azul}, Circulo{7, 8, 9, azul, {}},
                                   EtiquetaMostrada{"Lbcodigo", 3}}));
}

TEST(Lienzo, EnCoordenadasUtmSePintaIgualQueEnElOrigen) {
    // Distances that are whole multiples of 2^-10 are exact beside such coordinates.
    const double x = 452133;
    const double y = 4481207;
    Lienzo lejos;
    lejos.escala({x - 10, x + 10, y - 10, y + 10});
    Lienzo cerca = Cuadrado();
    cerca.BackColor = lejos.BackColor;
    lejos.copa({x, y, 2.5, 1.75, 3, 0});
    cerca.copa({0, 0, 2.5, 1.75, 3, 0});
    int dentro = 0;
    for (double dx = -4; dx <= 4; dx += 0.0625) {
        for (double dy = -4; dy <= 4; dy += 0.0625) {
            ASSERT_EQ(lejos.Point(x + dx, y + dy), cerca.Point(dx, dy)) << dx << ' ' << dy;
            dentro += cerca.Point(dx, dy) == negro ? 1 : 0;
        }
    }
    EXPECT_GT(dentro, 0);
}

} // namespace
} // namespace varo::prueba
