#include "revision/Contorno.h"

#include "basico/Saltando.h"
#include "plot/calculo/Module1.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace varo {

namespace {

std::size_t Lados(const ContornoPorRevisar& contorno) {
    const std::size_t puntos = std::min(contorno.x.size(), contorno.y.size());
    return puntos == 0 ? 0 : puntos - 1;
}

/// Of a point to the line of a side (m); a side without length is far from everything.
double DistanciaALaRecta(const ContornoPorRevisar& contorno, std::size_t k, double x, double y) {
    const double dx = contorno.x[k + 1] - contorno.x[k];
    const double dy = contorno.y[k + 1] - contorno.y[k];
    const double largo = std::hypot(dx, dy);
    return largo > 0 ? std::abs(dx * (y - contorno.y[k]) - dy * (x - contorno.x[k])) / largo
                     : std::numeric_limits<double>::infinity();
}

} // namespace

double AlturaMinima(const ContornoPorRevisar& contorno, double x, double y) {
    double minima = std::numeric_limits<double>::infinity();
    for (std::size_t k = 0; k < Lados(contorno); ++k) {
        minima = std::min(minima, DistanciaALaRecta(contorno, k, x, y));
    }
    return minima;
}

std::optional<std::size_t> LadoVertical(const ContornoPorRevisar& contorno, bool conElUltimo) {
    for (std::size_t k = 0; k + (conElUltimo ? 0 : 1) < Lados(contorno); ++k) {
        if (contorno.x[k] == contorno.x[k + 1] && contorno.y[k] != contorno.y[k + 1]) {
            return k;
        }
    }
    return std::nullopt;
}

bool FallaLaAltura(const ContornoPorRevisar& contorno, double x, double y, double cerca) {
    const auto falla = [&](std::size_t k) {
        return Saltando([&] {
                   AlturaTriangulo(x, y, contorno.x[k], contorno.y[k], contorno.x[k + 1], contorno.y[k + 1]);
               })
            .has_value();
    };
    for (std::size_t k = 0; k < Lados(contorno); ++k) {
        if (DistanciaALaRecta(contorno, k, x, y) <= cerca && falla(k)) {
            return true;
        }
    }
    return false;
}

bool SeDetieneEn(const ContornoPorRevisar& contorno, double x, double y) {
    for (std::size_t k = 0; k < Lados(contorno); ++k) {
        if (contorno.x[k] == x && contorno.y[k] == y && contorno.x[k + 1] == x && contorno.y[k + 1] == y) {
            return true;
        }
    }
    return false;
}

} // namespace varo
