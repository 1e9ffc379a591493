// What the tests of the searches of APA share: plots at random, and a look at every tree.
#pragma once

#include "indices/apa/APAParcela.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace varo {

using Filas = std::vector<Cuadricula::Fila>;

/// Trees at random in a rectangle of 100 m by the height given; every seventh one has no size or size 0.
inline ParcelaAPA ParcelaAlAzar() {
    const int cuantos = *rc::gen::inRange(1, *rc::gen::element(80, 800));
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
    for (Cuadricula::Fila j = 0; j < arboles.cuantos(); ++j) {
        if (!arboles.sinTamano(j) && arboles.d(j) > 0 && condicion(j)) {
            filas.push_back(j);
        }
    }
    return filas;
}

inline void EsperarQueContenga(Filas halladas, const Filas& esperadas) {
    std::sort(halladas.begin(), halladas.end());
    RC_ASSERT(std::includes(halladas.begin(), halladas.end(), esperadas.begin(), esperadas.end()));
}

} // namespace varo
