#include "indices/vecinos/Cuadricula.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace varo {

Cuadricula::Cuadricula(const Arboles& arboles, std::vector<Fila> filas) : filas_{std::move(filas)} {
    if (!filas_.empty()) {
        medir(arboles);
        repartir(arboles);
    }
}

void Cuadricula::medir(const Arboles& arboles) {
    const Fila primera = filas_.front();
    auto& [x0, y0, x1, y1] = extremos_;
    x0 = x1 = arboles.x(primera);
    y0 = y1 = arboles.y(primera);
    for (const Fila i : filas_) {
        x0 = std::min(x0, arboles.x(i));
        x1 = std::max(x1, arboles.x(i));
        y0 = std::min(y0, arboles.y(i));
        y1 = std::max(y1, arboles.y(i));
    }
    constexpr double arbolesPorCasilla = 2;
    const double ancho = x1 - x0;
    const double alto = y1 - y0;
    const auto n = static_cast<double>(filas_.size());
    lado_ = std::max(std::sqrt(ancho * alto * arbolesPorCasilla / n), (ancho + alto) / n);
    if (!(lado_ > 0)) {
        lado_ = 1;
    }
    columnas_ = static_cast<std::size_t>(ancho / lado_) + 1;
    hileras_ = static_cast<std::size_t>(alto / lado_) + 1;
}

void Cuadricula::repartir(const Arboles& arboles) {
    const auto casillaDe = [&](Fila i) {
        return casilla(arboles.x(i) - extremos_.x0, columnas_) * hileras_ +
               casilla(arboles.y(i) - extremos_.y0, hileras_);
    };
    comienzo_.assign(columnas_ * hileras_ + 1, 0);
    for (const Fila i : filas_) {
        ++comienzo_[casillaDe(i) + 1];
    }
    for (std::size_t c = 1; c < comienzo_.size(); ++c) {
        comienzo_[c] += comienzo_[c - 1];
    }
    std::vector<std::size_t> libre(comienzo_.begin(), comienzo_.end() - 1);
    std::vector<Fila> porCasillas(filas_.size());
    for (const Fila i : filas_) {
        porCasillas[libre[casillaDe(i)]++] = i;
    }
    filas_ = std::move(porCasillas);
    x_.reserve(filas_.size());
    y_.reserve(filas_.size());
    for (const Fila i : filas_) {
        x_.push_back(arboles.x(i));
        y_.push_back(arboles.y(i));
    }
}

std::size_t Cuadricula::casilla(double distancia, std::size_t cuantas) const {
    const double posicion = distancia / lado_;
    if (!(posicion > 0)) {
        return 0;
    }
    return posicion < static_cast<double>(cuantas) ? static_cast<std::size_t>(posicion) : cuantas - 1;
}

Cuadricula::Tramo Cuadricula::tramo(double desde, double hasta, std::size_t cuantas) const {
    const double holgura = lado_ * 1E-6; // far more than the rounding of a cell's edge
    return {casilla(desde - holgura, cuantas), casilla(hasta + holgura, cuantas)};
}

} // namespace varo
