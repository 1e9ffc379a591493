#include "basico/Saltando.h"
#include "basico/Aritmetica.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace varo;

TEST(Saltando, UnaSentenciaSinFalloHaceSuEfecto) {
    int n = 1;
    EXPECT_FALSE(Saltando([&] { n = 2; }).has_value());
    EXPECT_EQ(n, 2);
}

TEST(Saltando, UnFalloAbandonaLaSentenciaYVuelveContado) {
    double x = 1;
    const auto error = Saltando([&] {
        x = Dividir(x, 0);
        x = 3;
    });
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->numero(), fallo::divisionPorCero);
    EXPECT_EQ(x, 1);
}

TEST(Saltando, TambienSaltaLosFallosDelMotor) {
    const auto error = Saltando([] { throw ErrorMotor{fallo::nombreDesconocido, "DAP"}; });
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->descripcion(), "DAP");
}

TEST(Saltando, LoQueNoEsFalloDelProgramaSigueSuCamino) {
    EXPECT_THROW(Saltando([] { throw std::logic_error{"defecto"}; }), std::logic_error);
}

TEST(Saltando, UnaPruebaQueFallaDejaPasarAlBloque) {
    EXPECT_TRUE(PruebaSaltando([] { return Dividir(1, 0) < 1; }));
    EXPECT_TRUE(PruebaSaltando([] { return Dividir(1, 2) < 1; }));
    EXPECT_FALSE(PruebaSaltando([] { return Dividir(1, 2) > 1; }));
}
