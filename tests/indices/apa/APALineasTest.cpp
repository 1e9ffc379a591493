// The searches along lines against a look at every tree.
#include "indices/apa/APALineas.h"

#include "indices/apa/BusquedasAPA.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>

namespace varo {
namespace {

RC_GTEST_PROP(APALineas, EncuentraLosArbolesEnLinea, ()) {
    const ParcelaAPA parcela = ParcelaAlAzar();
    const Arboles arboles = parcela.arboles();
    const LineasAPA lineas{arboles, LasQue(arboles, [](auto) { return true; })};
    const double angulo = *rc::gen::inRange(0, 48) * numeroPi / 24;
    const DireccionAPA direccion{std::cos(angulo), std::sin(angulo)};
    const double seno = *rc::gen::element(0.0, 1E-6, 0.02, 0.1, 0.7);
    Filas halladas;
    lineas.enfiladas(0, direccion, seno, halladas);
    EsperarQueContenga(halladas, LasQue(arboles, [&](auto j) {
                           const double dx = arboles.x(j) - arboles.x(0);
                           const double dy = arboles.y(j) - arboles.y(0);
                           return std::abs(direccion.x * dy - direccion.y * dx) <=
                                  seno * std::hypot(dx, dy) * (1 - 1E-12);
                       }));
}

RC_GTEST_PROP(APALineas, CuentaTodosLosArbolesCercaDeLaLineaYPocosMas, ()) {
    const ParcelaAPA parcela = ParcelaAlAzar();
    const Arboles arboles = parcela.arboles();
    const LineasAPA lineas{arboles, LasQue(arboles, [](auto) { return true; })};
    const double angulo = *rc::gen::inRange(0, 48) * numeroPi / 24;
    const DireccionAPA direccion{std::cos(angulo), std::sin(angulo)};
    const double semiancho = *rc::gen::element(0.0, lineas.semianchoDeBalde(), 0.02, 1.0, 10.0);
    const auto aMenosDe = [&](double limite) {
        return LasQue(arboles,
                      [&](auto j) {
                          const double dx = arboles.x(j) - arboles.x(0);
                          const double dy = arboles.y(j) - arboles.y(0);
                          return std::abs(direccion.x * dy - direccion.y * dx) <= limite;
                      })
            .size();
    };
    constexpr double centimetro = 0.01;
    const std::size_t cuenta = lineas.cuantosCerca(0, direccion, semiancho);
    RC_ASSERT(cuenta >= aMenosDe(semiancho));
    constexpr std::size_t veces = 16; // in a plot one metre wide, where slices hold few trees
    RC_ASSERT(cuenta <= veces * aMenosDe(semiancho + centimetro));
}

TEST(APALineas, ElSemianchoDeBaldeNoLlegaAUnMilimetroEnUnaParcelaCorriente) {
    ParcelaAPA parcela;
    for (int i = 0; i < 50; ++i) {
        parcela.anadir(i, i * 7 % 50);
    }
    parcela.cuadrar(-1, 51);
    const Arboles arboles = parcela.arboles();
    const LineasAPA lineas{arboles, LasQue(arboles, [](auto) { return true; })};
    EXPECT_GT(lineas.semianchoDeBalde(), 0);
    EXPECT_LT(lineas.semianchoDeBalde(), 0.001);
}

RC_GTEST_PROP(APALineas, EncuentraLosArbolesEnLosEjes, ()) {
    const ParcelaAPA parcela = ParcelaAlAzar();
    const Arboles arboles = parcela.arboles();
    const LineasAPA lineas{arboles, LasQue(arboles, [](auto) { return true; })};
    const double seno = *rc::gen::element(0.0, 1E-6, 0.02, 0.1, 0.7);
    Filas halladas;
    lineas.enLosEjes(0, seno, halladas);
    EsperarQueContenga(halladas, LasQue(arboles, [&](auto j) {
                           const double dx = std::abs(arboles.x(j) - arboles.x(0));
                           const double dy = std::abs(arboles.y(j) - arboles.y(0));
                           return std::min(dx, dy) <= seno * std::hypot(dx, dy) * (1 - 1E-12);
                       }));
}

} // namespace
} // namespace varo
