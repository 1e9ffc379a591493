#include "indices/apa/APAVecinos.h"

#include "basico/Saltando.h"

#include <cmath>
#include <limits>

namespace varo {

namespace {

struct Punto {
    double x = 0;
    double y = 0;
};

Punto ColocarVecino(const PesosAPA& pesos, std::size_t i, std::size_t j) {
    const Arboles& arboles = pesos.arboles();
    const double xi = arboles.x(i);
    const double yi = arboles.y(i);
    const double xj = arboles.x(j);
    const double yj = arboles.y(j);
    const double L = Distancia(xi, yi, xj, yj);
    const double pesoI = pesos.de(i);
    const double W = Dividir(pesoI, ExigirFinito(pesoI + pesos.de(j)));
    const double Lw = 2.0 * W * L;
    const double s = Dividir(yj - yi, xj - xi);
    const double dx = Lw * Raiz(Dividir(1.0, s * s + 1.0));
    const double dy = Lw * Raiz(Dividir(s * s, s * s + 1.0));
    if (xj < xi && yj > yi) {
        return {xi - dx, yi + dy};
    }
    if (xj < xi && yj < yi) {
        return {xi - dx, yi - dy};
    }
    if (xj > xi && yj < yi) {
        return {xi + dx, yi - dy};
    }
    // A tree straight to the left lands to the right; published values have been worked out so.
    return {xi + dx, yi + dy};
}

} // namespace

PesosAPA::PesosAPA(const Arboles& arboles, double k)
    : arboles_{arboles}, k_{k}, pesos_(arboles.cuantos(), std::numeric_limits<double>::quiet_NaN()) {
    for (std::size_t i = 0; i < pesos_.size(); ++i) {
        if (!arboles.sinTamano(i)) {
            // The fault is kept for who asks for the weight.
            saltando([&] { pesos_[i] = Potencia(arboles.d(i), k); });
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
        const Punto punto = ColocarVecino(pesos, i, j);
        if (dj != 0) {
            vecinos.filas.push_back(j);
            vecinos.x.push_back(punto.x);
            vecinos.y.push_back(punto.y);
        }
    }
    pareja.vecino = i;
}

} // namespace varo
