// The searches of the grid against a look at every tree.
#include "indices/apa/APACuadricula.h"

#include "indices/apa/APAParcela.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace varo {
namespace {

using Filas = std::vector<CuadriculaAPA::Fila>;

/// Trees at random in a rectangle of 100 m by the height given; every seventh one has no size or size 0.
ParcelaAPA Parcela() {
    const int cuantos = *rc::gen::inRange(1, 80);
    const double alto = *rc::gen::element(100.0, 1.0, 0.0);
    std::mt19937 azar{*rc::gen::arbitrary<unsigned>()};
    std::uniform_real_distribution<double> entre{0, 1};
    ParcelaAPA parcela;
    for (int i = 0; i < cuantos; ++i) {
        const double x = 100 * entre(azar);
        const double y = alto * entre(azar);
        const bool noEsVecino = i % 7 == 6;
        parcela.anadir(x, y, noEsVecino ? (i % 2 == 0 ? "" : "0") : ATexto(0.1 + 0.3 * entre(azar)));
    }
    parcela.cuadrar(-1, 101);
    return parcela;
}

/// The trees with a size above 0 for which the condition holds.
template <class Condicion>
Filas LasQue(const Arboles& arboles, Condicion condicion) {
    Filas filas;
    for (CuadriculaAPA::Fila j = 0; j < arboles.cuantos(); ++j) {
        if (!arboles.sinTamano(j) && arboles.d(j) > 0 && condicion(j)) {
            filas.push_back(j);
        }
    }
    return filas;
}

void EsperarQueContenga(Filas halladas, const Filas& esperadas) {
    std::sort(halladas.begin(), halladas.end());
    RC_ASSERT(std::includes(halladas.begin(), halladas.end(), esperadas.begin(), esperadas.end()));
}

RC_GTEST_PROP(APACuadricula, EncuentraLosArbolesDelCuadro, ()) {
    const ParcelaAPA parcela = Parcela();
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

RC_GTEST_PROP(APACuadricula, EncuentraLosVecinosVirtualesAlAlcance, ()) {
    const ParcelaAPA parcela = Parcela();
    const double k = *rc::gen::element(0.0, 1.0, -2.0, 8.0);
    const Arboles arboles = parcela.arboles();
    const PesosAPA pesos{arboles, k};
    const CuadriculaAPA cuadricula{pesos};
    const double alcance = *rc::gen::element(0.0, 0.5, 7.0, 60.0, 300.0);
    Filas halladas;
    cuadricula.alAlcance(0, alcance, halladas);
    EsperarQueContenga(halladas, LasQue(arboles, [&](auto j) {
                           const double W = pesos.de(0) / (pesos.de(0) + pesos.de(j));
                           return 2 * W * Distancia(arboles.x(0), arboles.y(0), arboles.x(j), arboles.y(j)) <=
                                  alcance;
                       }));
}

RC_GTEST_PROP(APACuadricula, EncuentraLosArbolesEnLinea, ()) {
    const ParcelaAPA parcela = Parcela();
    const Arboles arboles = parcela.arboles();
    const PesosAPA pesos{arboles, 0};
    const CuadriculaAPA cuadricula{pesos};
    const double angulo = *rc::gen::inRange(0, 48) * numeroPi / 24;
    const DireccionAPA direccion{std::cos(angulo), std::sin(angulo)};
    const double seno = *rc::gen::element(0.0, 1E-6, 0.02, 0.1, 0.7);
    Filas halladas;
    cuadricula.enfiladas(0, direccion, seno, halladas);
    EsperarQueContenga(halladas, LasQue(arboles, [&](auto j) {
                           const double dx = arboles.x(j) - arboles.x(0);
                           const double dy = arboles.y(j) - arboles.y(0);
                           return std::abs(direccion.x * dy - direccion.y * dx) <=
                                  seno * std::hypot(dx, dy) * (1 - 1E-12);
                       }));
}

} // namespace
} // namespace varo
