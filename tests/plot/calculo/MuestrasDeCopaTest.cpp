#include "plot/calculo/MuestrasDeCopa.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

TEST(MuestrasDeCopa, SonLasDeLaCajaQueLaCopaPintadaCubre) {
    // Columns and rows at -0,25, -0,15, -0,05, 0,05 and 0,15 of the tree, those at 0,25 or not. The four
    // corners at 0,15 are in, (0,6)^2 + (0,6)^2 = 0,72; with 0,25 in one axis nothing is left for the other.
    MuestrasDeCopa muestras{{10, 10, 0.25, 0.25, 0.25, 0.25}, {}};
    EXPECT_EQ(muestras.cuantas(), 16);
    EXPECT_EQ(muestras.tapadasPor({10.3, 10, 0.25, 0.25, 0.25, 0.25}), 4);
    EXPECT_EQ(muestras.tapadasPor({10.4, 10, 0.25, 0.25, 0.25, 0.25}), 0);
    EXPECT_EQ(muestras.tapadasPor({10, 10, 9, 9, 9, 9}), 16);
}

TEST(MuestrasDeCopa, ConLosCuatroRadiosCeroEsElArbol) {
    MuestrasDeCopa muestras{{10, 10, 0, 0, 0, 0}, {}};
    EXPECT_EQ(muestras.cuantas(), 1);
    EXPECT_EQ(muestras.tapadasPor({10.5, 10, 0, 0, 0, 0}), 1) << "se pinta con medio metro";
}

TEST(MuestrasDeCopa, LoQueCaeFueraDeLaSuperficieNoCuenta) {
    EXPECT_EQ((MuestrasDeCopa{{10, 10, 0.25, 0.25, 0.25, 0.25}, {0, 10, 0, 20}}.cuantas()), 8);
    EXPECT_EQ((MuestrasDeCopa{{10, 10, 0.25, 0.25, 0.25, 0.25}, {0, 9, 0, 20}}.cuantas()), 0);
}

TEST(MuestrasDeCopa, UnaCopaQueNoSePuedeRecorrerDesborda) {
    EXPECT_EQ(FalloDe([] { MuestrasDeCopa{{0, 0, 1, 1E+9, 1, 1}, {}}; }), 6);
    EXPECT_EQ(FalloDe([] { MuestrasDeCopa{{1E+17, 0, 1, 1, 1, 1}, {}}; }), 6);
}

TEST(CajasCruzadas, ComparanLosLadosEnfrentados) {
    const Copa centro{0, 0, 1, 2, 3, 4};
    // To the east 2 of the first and 0,5 of the other; to the west 4 and 0,5, and so on.
    const auto cruza = [&](double x, double y) { return CajasCruzadas(centro, {x, y, 0.5, 0.5, 0.5, 0.5}); };
    for (const double norte : {1.0, -1.0}) {
        EXPECT_TRUE(cruza(2.25, norte));
        EXPECT_FALSE(cruza(2.5, norte));
        EXPECT_TRUE(cruza(-4.25, norte));
        EXPECT_FALSE(cruza(-4.5, norte));
    }
    for (const double este : {1.0, -1.0}) {
        EXPECT_TRUE(cruza(este, 1.25));
        EXPECT_FALSE(cruza(este, 1.5));
        EXPECT_TRUE(cruza(este, -3.25));
        EXPECT_FALSE(cruza(este, -3.5));
    }
}

TEST(CajasCruzadas, ConUnaMismaXOYSoloMiranAlOesteYAlNorte) {
    const Copa centro{0, 0, 1, 1, 1, 1};
    EXPECT_TRUE(CajasCruzadas(centro, {50, 0, 1, 1, 1, 1}));
    EXPECT_FALSE(CajasCruzadas(centro, {-50, 0, 1, 1, 1, 1}));
    EXPECT_TRUE(CajasCruzadas(centro, {0, -50, 1, 1, 1, 1}));
    EXPECT_FALSE(CajasCruzadas(centro, {0, 50, 1, 1, 1, 1}));
}

} // namespace
} // namespace varo
