#include "plot/calculo/FilasDeCopas.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

TEST(CeldaLeida, UnNumeroConComaDecimal) {
    const CeldaLeida celda{"2,5"};
    EXPECT_TRUE(celda.esNumero());
    EXPECT_EQ(celda.numero(), 2.5);
    EXPECT_EQ(celda.texto(), "2,5");
    EXPECT_FALSE(celda.vacia());
}

TEST(CeldaLeida, UnaVaciaYUnaPalabraNoSonNumeros) {
    EXPECT_TRUE(CeldaLeida{}.vacia());
    EXPECT_FALSE(CeldaLeida{}.esNumero());
    EXPECT_FALSE(CeldaLeida{"ancha"}.vacia());
    for (const char* const texto : {"", "ancha", " "}) {
        EXPECT_EQ(FalloDe([&] { static_cast<void>(CeldaLeida{texto}.numero()); }), fallo::tiposDistintos)
            << texto;
    }
}

} // namespace
} // namespace varo
