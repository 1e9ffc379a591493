#include "indices/vecinos/Intervalo.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

TEST(Intervalo, SusValoresSonSumasDelPaso) {
    EXPECT_EQ(ValoresDe({0.5, 1.5, 0.5}), (std::vector<double>{0.5, 1, 1.5}));
    EXPECT_EQ(ValoresDe({0, 1, 0.4}), (std::vector<double>{0, 0.4, 0.8}));
}

TEST(Intervalo, ElUltimoPuedePerderseAlRedondearAunqueTengaSitio) {
    EXPECT_EQ(ValoresDe({0.1, 0.3, 0.1}), (std::vector<double>{0.1, 0.2}));
    EXPECT_EQ(CuantosCaben({0.1, 0.3, 0.1}), (0.3 - 0.1) / 0.1 + 1);
    EXPECT_GT(CuantosCaben({0.1, 0.3, 0.1}), 2.5);
}

TEST(Intervalo, ElDegeneradoTieneUnSoloValor) {
    const Intervalo uno = SinDegenerar({2, 2, 0});
    EXPECT_EQ(ValoresDe(uno), std::vector<double>{2});
    EXPECT_EQ(CuantosCaben(uno), 1);
    EXPECT_EQ(SinDegenerar({2, 2, 5}).Paso, 5);
}

TEST(Intervalo, UnPasoNuloEntreExtremosDistintosDividePorCero) {
    EXPECT_EQ(FalloDe([] { CuantosCaben(SinDegenerar({1, 2, 0})); }), 11);
}

TEST(Intervalo, HaciaAtrasNoTieneValores) {
    EXPECT_TRUE(ValoresDe({2, 1, 1}).empty());
    EXPECT_EQ(CuantosCaben({2, 1, 1}), 0);
    EXPECT_EQ(ValoresDe({2, 1, -0.5}), (std::vector<double>{2, 1.5, 1}));
}

TEST(Intervalo, UnPasoQueNoMueveElValorAcabaSinColumnas) {
    EXPECT_EQ(FalloDe([] { ValoresDe({1E+16, 1E+16 + 4, 0.5}); }), 9);
    EXPECT_EQ(FalloDe([] { ValoresDe({}); }), 9);
}

} // namespace
} // namespace varo
