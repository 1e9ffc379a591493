#include "plot/calculo/FilasEnOrden.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace varo {
namespace {

using Filas = std::vector<FilasEnOrden::Fila>;

RC_GTEST_PROP(FilasEnOrden, DaLasQueEntranDeMenorAMayorYOtraVezDesdeElPrincipio, ()) {
    // Several words, and several words of words.
    const auto cuantas = *rc::gen::element<std::size_t>(1, 63, 64, 65, 500, 4096, 9000);
    FilasEnOrden orden{cuantas};
    for (int vez = 0; vez < 3; ++vez) {
        const auto filas = *rc::gen::unique<Filas>(
            rc::gen::inRange<FilasEnOrden::Fila>(0, static_cast<FilasEnOrden::Fila>(cuantas)));
        const auto menosEsta =
            *rc::gen::inRange<FilasEnOrden::Fila>(0, static_cast<FilasEnOrden::Fila>(cuantas));
        Filas esperadas;
        for (const auto fila : filas) {
            const bool entra = *rc::gen::arbitrary<bool>();
            orden.tomarSi(entra, fila);
            if (entra && fila != menosEsta) {
                esperadas.push_back(fila);
            }
        }
        std::sort(esperadas.begin(), esperadas.end());
        Filas halladas{7, 7, 7};
        orden.vaciarEn(halladas, menosEsta);
        RC_ASSERT(halladas == esperadas);
    }
}

TEST(FilasEnOrden, CabenTodasLasFilas) {
    constexpr std::size_t cuantas = 4097;
    FilasEnOrden orden{cuantas};
    for (std::size_t fila = cuantas; fila-- > 0;) {
        orden.tomarSi(true, static_cast<FilasEnOrden::Fila>(fila));
    }
    Filas halladas;
    orden.vaciarEn(halladas, 0);
    ASSERT_EQ(halladas.size(), cuantas - 1);
    EXPECT_EQ(halladas.front(), 1U);
    EXPECT_EQ(halladas.back(), cuantas - 1);
    EXPECT_TRUE(std::is_sorted(halladas.begin(), halladas.end()));
}

} // namespace
} // namespace varo
