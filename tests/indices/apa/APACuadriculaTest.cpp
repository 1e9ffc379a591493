// The searches of the grid against a look at every tree.
#include "indices/apa/APACuadricula.h"

#include "indices/apa/BusquedasAPA.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>

namespace varo {
namespace {

Filas EnFilas(const CuadriculaAPA& cuadricula, const std::vector<LugarAPA>& lugares) {
    Filas filas;
    for (const auto lugar : lugares) {
        filas.push_back(cuadricula.filas()[lugar]);
    }
    return filas;
}

RC_GTEST_PROP(APACuadricula, ReuneLosMismosVecinosVirtualesQuePorFilas, ()) {
    const ParcelaAPA parcela = ParcelaAlAzar();
    const Arboles arboles = parcela.arboles();
    const PesosAPA pesos{arboles, *rc::gen::element(0.0, 1.0, -2.0)};
    const CuadriculaAPA cuadricula{pesos};
    const Filas filas = LasQue(arboles, [](auto) { return true; });
    std::vector<LugarAPA> lugares;
    for (const auto fila : filas) {
        lugares.push_back(cuadricula.lugar(fila));
    }
    Pareja pareja{0, 0};
    VecinosAPA porFilas;
    VecinosAPA porLugares;
    ReunirVecinos(pesos, filas, pareja, porFilas);
    cuadricula.reunirVecinos(0, lugares, porLugares);
    RC_ASSERT(porLugares.filas == porFilas.filas);
    RC_ASSERT(porLugares.x == porFilas.x);
    RC_ASSERT(porLugares.y == porFilas.y);
    RC_ASSERT(porLugares.xSujeto == arboles.x(0));
    RC_ASSERT(porLugares.ySujeto == arboles.y(0));
}

RC_GTEST_PROP(APACuadricula, EncuentraLosArbolesDelCuadro, ()) {
    const ParcelaAPA parcela = ParcelaAlAzar();
    const Arboles arboles = parcela.arboles();
    const PesosAPA pesos{arboles, 0};
    const CuadriculaAPA cuadricula{pesos};
    const double medioLado = *rc::gen::element(0.0, 0.5, 7.0, 60.0, 300.0);
    std::vector<LugarAPA> hallados;
    cuadricula.cuadro(0, medioLado, hallados);
    EsperarQueContenga(EnFilas(cuadricula, hallados), LasQue(arboles, [&](auto j) {
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
    std::vector<LugarAPA> hallados;
    cuadricula.enLosCirculos(0, anillo, hallados);
    EsperarQueContenga(
        EnFilas(cuadricula, hallados), LasQue(arboles, [&](auto j) {
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
