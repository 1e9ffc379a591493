#include "basico/EnLugar.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace varo::prueba {
namespace {

TEST(EnLugar, EntregaLoQueDaElActoSinComponerElLugar) {
    int compuestos = 0;
    const auto lugar = [&] {
        ++compuestos;
        return std::string{"fila 1"};
    };
    EXPECT_EQ(EnLugar(lugar, [] { return 7; }), 7);
    EXPECT_EQ(compuestos, 0);
}

TEST(EnLugar, ElFalloSaleConSuClaseYElLugarPorDelanteDelQueYaTenia) {
    try {
        EnLugar("tabla", [] { EnLugar([] { return std::string{"fila 2"}; }, [] { throw ErrorMotor{94}; }); });
        FAIL() << "debía fallar";
    } catch (const ErrorMotor& error) {
        EXPECT_EQ(error.numero(), 94);
        EXPECT_EQ(error.lugar(), "tabla, fila 2");
    }
}

TEST(EnLugar, LoQueNoEsUnFalloDeEjecucionPasaSinTocar) {
    bool avisado = false;
    EXPECT_THROW(AlFallar([&](ErrorEjecucion&) { avisado = true; }, [] { throw std::logic_error{"otro"}; }),
                 std::logic_error);
    EXPECT_FALSE(avisado);
}

} // namespace
} // namespace varo::prueba
