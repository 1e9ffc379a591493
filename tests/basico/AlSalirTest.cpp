#include "basico/AlSalir.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace varo::prueba {
namespace {

TEST(AlSalir, CorreAlFinalDelAmbitoYUnaSolaVez) {
    int veces = 0;
    {
        const AlSalir contar{[&] { ++veces; }};
        EXPECT_EQ(veces, 0);
    }
    EXPECT_EQ(veces, 1);
}

TEST(AlSalir, CorreTambienCuandoElAmbitoFalla) {
    int veces = 0;
    const auto fallar = [&] {
        const AlSalir contar{[&] { ++veces; }};
        throw std::logic_error{"fallo"};
    };
    EXPECT_THROW(fallar(), std::logic_error);
    EXPECT_EQ(veces, 1);
}

} // namespace
} // namespace varo::prueba
