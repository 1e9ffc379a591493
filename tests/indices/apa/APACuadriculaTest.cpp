// The searches of the grid against a look at every tree.
#include "indices/apa/APACuadricula.h"

#include "indices/apa/BusquedasAPA.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>

namespace varo {
namespace {

RC_GTEST_PROP(APACuadricula, EncuentraLosArbolesDelCuadro, ()) {
    const ParcelaAPA parcela = ParcelaAlAzar();
    const Arboles arboles = parcela.arboles();
    const PesosAPA pesos{arboles, 0};
    const CuadriculaAPA cuadricula{pesos};
    const double medioLado = *rc::gen::element(0.0, 0.5, 7.0, 60.0, 300.0);
    Filas halladas;
    cuadricula.cuadro(0, medioLado, halladas);
    EsperarQueContenga(halladas, LasQue(arboles, [&](auto j) {
                           return std::abs(arboles.x(j) - arboles.x(0)) <= medioLado &&
                                  std::abs(arboles.y(j) - arboles.y(0)) <= medioLado;
                       }));
}

RC_GTEST_PROP(APACuadricula, EncuentraLosVecinosVirtualesEnLosCirculos, ()) {
    const ParcelaAPA parcela = ParcelaAlAzar();
    const double k = *rc::gen::element(0.0, 1.0, -2.0, 8.0);
    const Arboles arboles = parcela.arboles();
    const PesosAPA pesos{arboles, k};
    const CuadriculaAPA cuadricula{pesos};
    AnilloAPA anillo;
    anillo.tolerancia = *rc::gen::element(0.0, 1E-6, 2.0, 300.0);
    const int circulos = *rc::gen::inRange(1, 8);
    for (int c = 0; c < circulos; ++c) {
        const double angulo = *rc::gen::inRange(0, 48) * numeroPi / 24;
        const double radio = *rc::gen::element(0.0, 0.5, 7.0, 60.0, 3000.0);
        anillo.circulos.push_back({{radio * std::cos(angulo), radio * std::sin(angulo)}, radio, 0.5});
    }
    Filas halladas;
    cuadricula.enLosCirculos(0, anillo, halladas);
    EsperarQueContenga(
        halladas, LasQue(arboles, [&](auto j) {
            const double W = pesos.de(0) / (pesos.de(0) + pesos.de(j));
            const double x = 2 * W * (arboles.x(j) - arboles.x(0));
            const double y = 2 * W * (arboles.y(j) - arboles.y(0));
            const auto enUno = [&](const AnilloAPA::CirculoDelAnillo& circulo) {
                const double hacia = 2 * (circulo.centro.x * x + circulo.centro.y * y);
                const double distancia = std::hypot(x, y);
                return distancia * distancia < (hacia + anillo.tolerancia * distancia) * (1 - 1E-12);
            };
            return j != 0 && std::any_of(anillo.circulos.begin(), anillo.circulos.end(), enUno);
        }));
}

} // namespace
} // namespace varo
