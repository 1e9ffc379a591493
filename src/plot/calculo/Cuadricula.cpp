#include "plot/calculo/Cuadricula.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace varo {

void Cuadricula::medir(double porCasilla) {
    const auto [x0, x1] = std::minmax_element(x_.begin(), x_.end());
    const auto [y0, y1] = std::minmax_element(y_.begin(), y_.end());
    extremos_ = {*x0, *y0, *x1, *y1};
    const double ancho = extremos_.x1 - extremos_.x0;
    const double alto = extremos_.y1 - extremos_.y0;
    const auto n = static_cast<double>(filas_.size());
    lado_ = std::max(std::sqrt(ancho * alto * porCasilla / n), (ancho + alto) / n);
    if (!(lado_ > 0)) {
        lado_ = 1;
    }
    casillasPorMetro_ = 1 / lado_;
    columnas_ = static_cast<std::size_t>(ancho / lado_) + 1;
    hileras_ = static_cast<std::size_t>(alto / lado_) + 1;
}

void Cuadricula::repartir(double porCasilla) {
    if (filas_.empty()) {
        return;
    }
    medir(porCasilla);
    const auto casillaDe = [&](std::size_t k) {
        return casilla(x_[k] - extremos_.x0, columnas_) * hileras_ + casilla(y_[k] - extremos_.y0, hileras_);
    };
    comienzo_.assign(columnas_ * hileras_ + 1, 0);
    for (std::size_t k = 0; k < filas_.size(); ++k) {
        ++comienzo_[casillaDe(k) + 1];
    }
    for (std::size_t c = 1; c < comienzo_.size(); ++c) {
        comienzo_[c] += comienzo_[c - 1];
    }
    std::vector<std::size_t> libre(comienzo_.begin(), comienzo_.end() - 1);
    std::vector<Fila> filas(filas_.size());
    std::vector<double> x(filas_.size());
    std::vector<double> y(filas_.size());
    for (std::size_t k = 0; k < filas_.size(); ++k) {
        const std::size_t lugar = libre[casillaDe(k)]++;
        filas[lugar] = filas_[k];
        x[lugar] = x_[k];
        y[lugar] = y_[k];
    }
    filas_ = std::move(filas);
    x_ = std::move(x);
    y_ = std::move(y);
}

std::size_t Cuadricula::casilla(double distancia, std::size_t cuantas) const {
    const double posicion = distancia * casillasPorMetro_;
    if (!(posicion > 0)) {
        return 0;
    }
    return posicion < static_cast<double>(cuantas) ? static_cast<std::size_t>(posicion) : cuantas - 1;
}

Cuadricula::Tramo Cuadricula::tramo(double desde, double hasta, std::size_t cuantas) const {
    const double margen = lado_ * holgura;
    return {casilla(desde - margen, cuantas), casilla(hasta + margen, cuantas)};
}

} // namespace varo
