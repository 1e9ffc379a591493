#include "map/Escala.h"

#include "basico/ErrorEjecucion.h"

#include <algorithm>

namespace varo {

namespace {

constexpr double margen = 15.0 / 70.0;
constexpr double proporcion = 0.7234;

} // namespace

double MaximoColumna(std::span<const double> valores) {
    if (valores.empty()) {
        throw ErrorEjecucion{fallo::fueraDeIndice};
    }
    return *std::max_element(valores.begin(), valores.end());
}

double MinimoColumna(std::span<const double> valores) {
    if (valores.empty()) {
        throw ErrorEjecucion{fallo::fueraDeIndice};
    }
    return *std::min_element(valores.begin(), valores.end());
}

Escala CalcularEscala(std::span<const double> x, std::span<const double> y) {
    const double xMax = MaximoColumna(x);
    const double xMin = MinimoColumna(x);
    const double yMax = MaximoColumna(y);
    const double yMin = MinimoColumna(y);
    const double rangoX = xMax - xMin;
    const double rangoY = yMax - yMin;
    Escala escala;
    if (rangoY < rangoX) {
        escala.izquierda = xMin - rangoX * margen;
        escala.derecha = xMax + rangoX * margen;
        const double exceso = ((100.0 / 85.0) * proporcion * (xMax - escala.izquierda) - rangoY) / 2;
        escala.abajo = yMin - exceso;
        escala.arriba = yMax + exceso;
    } else {
        escala.abajo = yMin - rangoY * margen;
        escala.arriba = yMax + rangoY * margen;
        const double exceso = ((1 / proporcion) * (100.0 / 85.0) * (yMax - escala.abajo) - rangoX) / 2;
        escala.izquierda = xMin - exceso;
        escala.derecha = xMax + exceso;
    }
    return escala;
}

Escala MarcoDe(const Escala& escala) {
    const double ancho = escala.derecha - escala.izquierda;
    const double alto = escala.arriba - escala.abajo;
    return {escala.izquierda + 0.1 * ancho, escala.izquierda + 0.9 * ancho, escala.abajo + 0.1 * alto,
            escala.abajo + 0.9 * alto};
}

} // namespace varo
