#include "map/DibujarCopa.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

constexpr Color verde = 0x0037781B;
// 1,57, 3,14 and 4,712 in 32 bits.
constexpr double norte = 1.57000005245208740234375;
constexpr double oeste = 3.1400001049041748046875;
constexpr double sur = 4.711999893188476562500;

TEST(DibujarCopa, SonCuatroArcosYElPuntoDelArbol) {
    Lienzo lienzo;
    lienzo.ForeColor = verde;
    DibujarCopa(lienzo, {10, 20, 4, 2, 1, 8});
    EXPECT_EQ(
        lienzo.figuras(),
        (std::vector<Figura>{Arco{10, 20, 4, 0, norte, 2, verde, {}}, Arco{10, 20, 2, sur, 0, 0.5, verde, {}},
                             Arco{10, 20, 8, oeste, sur, 0.125, verde, {}},
                             Arco{10, 20, 8, norte, oeste, 0.5, verde, {}}, Punto{10, 20, verde}}));
}

TEST(DibujarCopa, UnRadioCeroSeDibujaComoMedioMetro) {
    // Radii 3, 2, 0, 1 in dm: the zero turns into 0,5 m after the conversion.
    Lienzo lienzo;
    DibujarCopa(lienzo, {0, 0, 0.3, 0.2, 0, 0.1});
    EXPECT_EQ(lienzo.figuras(),
              (std::vector<Figura>{Arco{0, 0, 0.3, 0, norte, 0.3 / 0.2, 0, {}},
                                   Arco{0, 0, 0.5, sur, 0, 2.5, 0, {}}, Arco{0, 0, 0.5, oeste, sur, 5, 0, {}},
                                   Arco{0, 0, 0.3, norte, oeste, 0.3 / 0.1, 0, {}}, Punto{0, 0, 0}}));
}

TEST(DibujarCopa, TomaElRellenoDelLienzo) {
    Lienzo lienzo;
    lienzo.FillColor = verde;
    DibujarCopa(lienzo, {0, 0, 2, 1, 2, 1});
    // North-east, south-east, south-west and north-west of the tree; beyond the outline nothing.
    for (const auto& [x, y] : {std::pair{0.5, 1.5}, {0.5, -1.5}, {-0.5, -1.5}, {-0.5, 1.5}, {0.0, 0.0}}) {
        EXPECT_EQ(lienzo.Point(x, y), verde) << x << ' ' << y;
    }
    EXPECT_EQ(lienzo.Point(0.9, 1), lienzo.BackColor);
}

TEST(DibujarCirculo, EsElDeLaMediaDeLosRadios) {
    Lienzo lienzo;
    lienzo.ForeColor = verde;
    DibujarCirculo(lienzo, {1, 2, 1, 2, 3, 5});
    EXPECT_EQ(lienzo.figuras(), (std::vector<Figura>{Circulo{1, 2, 2.75, verde, {}}, Punto{1, 2, verde}}));
}

TEST(DibujarCirculo, ElRadioCeroSeQuedaEnCero) {
    Lienzo lienzo;
    DibujarCirculo(lienzo, {1, 2, 0, 0, 0, 0});
    EXPECT_EQ(lienzo.figuras(), (std::vector<Figura>{Circulo{1, 2, 0, 0, {}}, Punto{1, 2, 0}}));
}

} // namespace
} // namespace varo::prueba
