#include "plot/calculo/AreaInterseccionCirculos.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

constexpr double pi = 3.1415927; // the literal of the whole program

/// The last bits of arc cosine and sine belong to the mathematics library.
constexpr double redondeo = 1E-14;

TEST(AreaInterseccionCirculos, DosCirculosDeRadio1ADistancia1) {
    // 2 pi / 3 - sqrt(3) / 2
    EXPECT_NEAR(AreaInterseccionCirculos(0, 0, 1, 0, 1, 1), 1.228369698608757, redondeo);
    EXPECT_NEAR(AreaInterseccionCirculos(5, 7, 5, 8, 1, 1), 1.228369698608757, redondeo);
}

TEST(AreaInterseccionCirculos, SeparadosNoCompartenNada) {
    EXPECT_EQ(AreaInterseccionCirculos(0, 0, 3, 4, 2, 2.5), 0);
}

TEST(AreaInterseccionCirculos, UnoDentroDeOtroEsElPequenoConElPiDelPrograma) {
    EXPECT_EQ(AreaInterseccionCirculos(0, 0, 1, 0, 4, 2), 4 * pi);
    EXPECT_EQ(AreaInterseccionCirculos(0, 0, 1, 0, 2, 4), 4 * pi);
    EXPECT_EQ(AreaInterseccionCirculos(3, 3, 3, 3, 2, 1), pi);
}

TEST(AreaInterseccionCirculos, LosTangentesPasanPorLosArcos) {
    // Outside: both cosines are 1. Inside: 1 and -1, so the whole small circle but for the rounding of pi.
    EXPECT_EQ(AreaInterseccionCirculos(0, 0, 3, 0, 1, 2), 0);
    EXPECT_NEAR(AreaInterseccionCirculos(0, 0, 1, 0, 2, 1), 3.141592653589793, redondeo);
}

TEST(AreaInterseccionCirculos, UnRadioNuloPasaPorLasMismasPruebas) {
    EXPECT_EQ(AreaInterseccionCirculos(0, 0, 1, 0, 2, 0), 0);
    EXPECT_EQ(AreaInterseccionCirculos(0, 0, 3, 0, 2, 0), 0);
    EXPECT_EQ(FalloDe([] { AreaInterseccionCirculos(0, 0, 2, 0, 2, 0); }), 11);
}

TEST(AreaInterseccionCirculos, IgualesEnUnSitioDividenPorCero) {
    EXPECT_EQ(FalloDe([] { AreaInterseccionCirculos(1, 1, 1, 1, 2, 2); }), 11);
}

} // namespace
} // namespace varo
