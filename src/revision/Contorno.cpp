#include "revision/Contorno.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace varo {

namespace {

std::size_t Lados(const ContornoPorRevisar& contorno) {
    const std::size_t puntos = std::min(contorno.x.size(), contorno.y.size());
    return puntos == 0 ? 0 : puntos - 1;
}

} // namespace

double AlturaMinima(const ContornoPorRevisar& contorno, double x, double y) {
    double minima = std::numeric_limits<double>::infinity();
    for (std::size_t k = 0; k < Lados(contorno); ++k) {
        const double dx = contorno.x[k + 1] - contorno.x[k];
        const double dy = contorno.y[k + 1] - contorno.y[k];
        const double largo = std::hypot(dx, dy);
        if (largo > 0) {
            minima = std::min(minima, std::abs(dx * (y - contorno.y[k]) - dy * (x - contorno.x[k])) / largo);
        }
    }
    return minima;
}

bool TieneLadoVertical(const ContornoPorRevisar& contorno) {
    for (std::size_t k = 0; k < Lados(contorno); ++k) {
        if (contorno.x[k] == contorno.x[k + 1] && contorno.y[k] != contorno.y[k + 1]) {
            return true;
        }
    }
    return false;
}

} // namespace varo
