#include "indices/apa/APAVecinos.h"

#include "basico/EnLugar.h"
#include "basico/Saltando.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <functional>
#include <limits>

namespace varo {

namespace {

PuntoAPA ColocarVecino(const PesosAPA& pesos, std::size_t i, std::size_t j) {
    const Arboles& arboles = pesos.arboles();
    const PuntoAPA arbol{arboles.x(i), arboles.y(i)};
    const PuntoAPA otro{arboles.x(j), arboles.y(j)};
    const double L = Distancia(arbol.x, arbol.y, otro.x, otro.y);
    const double pesoI = pesos.de(i);
    const double W = Porque(
        fallo::divisionPorCero, [] { return "los tamaños de los dos árboles pesan 0"; },
        [&] { return Dividir(pesoI, ExigirFinito(pesoI + pesos.de(j))); });
    return ColocarVecino(arbol, otro, L, W);
}

} // namespace

PuntoAPA ColocarVecino(const PuntoAPA& arbol, const PuntoAPA& otro, double L, double W) {
    const double xi = arbol.x;
    const double yi = arbol.y;
    const double xj = otro.x;
    const double yj = otro.y;
    const double Lw = 2.0 * W * L;
    const double s = Porque(
        fallo::divisionPorCero, [] { return "los dos árboles tienen la misma X"; },
        [&] { return Dividir(yj - yi, xj - xi); });
    const double dx = Lw * Raiz(Dividir(1.0, s * s + 1.0));
    const double dy = Lw * Raiz(Dividir(s * s, s * s + 1.0));
    // Meant: a tree straight to the left lands to the right.
    const bool alaIzquierda = xj < xi && yj != yi;
    return {alaIzquierda ? xi - dx : xi + dx, yj < yi ? yi - dy : yi + dy};
}

PesosAPA::PesosAPA(const Arboles& arboles, double k)
    : arboles_{arboles}, k_{k}, pesos_(arboles.cuantos(), std::numeric_limits<double>::quiet_NaN()) {
    for (std::size_t i = 0; i < pesos_.size(); ++i) {
        if (!arboles.sinTamano(i)) {
            // A weight that faults stays NaN: `de` faults when it is asked for.
            Saltando([&] { pesos_[i] = Potencia(arboles.d(i), k); });
        }
    }
}

double PesosAPA::de(std::size_t i) const {
    return std::isnan(pesos_[i]) ? Potencia(arboles_.d(i), k_) : pesos_[i];
}

void ReunirVecinos(const PesosAPA& pesos, std::span<const VecinosAPA::Fila> filas, Pareja& pareja,
                   VecinosAPA& vecinos) {
    const Arboles& arboles = pesos.arboles();
    const std::size_t i = pareja.sujeto;
    assert(std::adjacent_find(filas.begin(), filas.end(), std::greater_equal<>{}) == filas.end());
    assert(std::binary_search(filas.begin(), filas.end(), i));
    vecinos.filas.clear();
    vecinos.x.clear();
    vecinos.y.clear();
    for (const auto j : filas) {
        pareja.vecino = j;
        const double dj = arboles.d(j);
        if (j == i) {
            vecinos.xSujeto = arboles.x(i);
            vecinos.ySujeto = arboles.y(i);
            continue;
        }
        const PuntoAPA punto = ColocarVecino(pesos, i, j);
        if (dj != 0) {
            vecinos.filas.push_back(j);
            vecinos.x.push_back(punto.x);
            vecinos.y.push_back(punto.y);
        }
    }
    pareja.vecino = i;
}

} // namespace varo
