#include "lienzo/Reticula.h"

#include <cmath>

namespace varo {

void Reticula::ponerAlDia() {
    if (recuadros_.size() > 2 * medidos_) {
        medir();
    }
    for (; repartidos_ < recuadros_.size(); ++repartidos_) {
        repartir(static_cast<Numero>(repartidos_));
    }
}

void Reticula::medir() {
    extremos_ = recuadros_.front();
    auto& [x0, y0, x1, y1] = extremos_;
    double lados = 0;
    double superficies = 0;
    for (const auto& recuadro : recuadros_) {
        x0 = std::min(x0, recuadro.x0);
        y0 = std::min(y0, recuadro.y0);
        x1 = std::max(x1, recuadro.x1);
        y1 = std::max(y1, recuadro.y1);
        const double ancho = recuadro.x1 - recuadro.x0;
        const double alto = recuadro.y1 - recuadro.y0;
        lados += std::max(ancho, alto);
        superficies += ancho * alto;
    }
    const auto n = static_cast<double>(recuadros_.size());
    const double ancho = x1 - x0;
    const double alto = y1 - y0;
    lado_ =
        std::max({lados / n, std::sqrt(superficies / n), std::sqrt(ancho * alto / n), (ancho + alto) / n});
    const bool enUnaSola = !(lado_ > 0) || !std::isfinite(lado_);
    columnas_ = enUnaSola ? 1 : static_cast<std::size_t>(ancho / lado_) + 1;
    hileras_ = enUnaSola ? 1 : static_cast<std::size_t>(alto / lado_) + 1;
    casillas_.assign(columnas_ * hileras_, {});
    medidos_ = recuadros_.size();
    repartidos_ = 0;
}

void Reticula::repartir(Numero numero) {
    const Recuadro& recuadro = recuadros_[numero];
    const std::size_t ultimaColumna = columna(recuadro.x1);
    const std::size_t ultimaHilera = hilera(recuadro.y1);
    for (std::size_t c = columna(recuadro.x0); c <= ultimaColumna; ++c) {
        for (std::size_t h = hilera(recuadro.y0); h <= ultimaHilera; ++h) {
            casillas_[c * hileras_ + h].push_back(numero);
        }
    }
}

std::size_t Reticula::casilla(double distancia, std::size_t cuantas) const {
    const double posicion = distancia / lado_;
    if (!(posicion > 0)) {
        return 0;
    }
    return posicion < static_cast<double>(cuantas) ? static_cast<std::size_t>(posicion) : cuantas - 1;
}

} // namespace varo
