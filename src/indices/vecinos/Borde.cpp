#include "indices/vecinos/Borde.h"

#include "basico/EnLugar.h"
#include "basico/Saltando.h"

#include <algorithm>
#include <cassert>

namespace varo {

Borde::Borde(const Arboles& arboles, const ContornoXY& contorno)
    : arboles_{arboles}, contorno_{contorno}, porArbol_(arboles.cuantos()) {
    assert(contorno.x.size() == contorno.y.size());
    for (std::size_t k = 0; k + 1 < contorno.x.size(); ++k) {
        lados_.push_back(Distancia(contorno.x[k], contorno.y[k], contorno.x[k + 1], contorno.y[k + 1]));
    }
}

bool Borde::algunaAlturaMenor(std::size_t i, double limite) {
    const Alturas& suyas = alturas(i);
    if (suyas.minima < limite) {
        return true;
    }
    exigirSinFallo(i, suyas);
    return false;
}

bool Borde::algunaAlturaMenorOIgual(std::size_t i, double limite) {
    const Alturas& suyas = alturas(i);
    if (!lados_.empty() && suyas.minima <= limite) {
        return true;
    }
    exigirSinFallo(i, suyas);
    return false;
}

const Borde::Alturas& Borde::alturas(std::size_t i) {
    assert(i < porArbol_.size());
    Alturas& suyas = porArbol_[i];
    if (!suyas.calculadas) {
        suyas = calcular(i);
        suyas.calculadas = true;
    }
    return suyas;
}

/// AlturaTriangulo over each side; what neighbouring sides share is computed once.
Borde::Alturas Borde::calcular(std::size_t i) const {
    Alturas suyas;
    if (lados_.empty()) {
        return suyas;
    }
    const double x = arboles_.x(i);
    const double y = arboles_.y(i);
    std::size_t k = 0;
    const auto fallado = Saltando([&] {
        double hastaVertice = Distancia(x, y, contorno_.x[0], contorno_.y[0]);
        for (; k < lados_.size(); ++k) {
            const double hastaSiguiente = Distancia(x, y, contorno_.x[k + 1], contorno_.y[k + 1]);
            const double area = AreaTrianguloLados(hastaVertice, lados_[k], hastaSiguiente);
            suyas.minima = std::min(suyas.minima, Dividir(area + area, lados_[k]));
            hastaVertice = hastaSiguiente;
        }
    });
    if (fallado) {
        suyas.ladoConFallo = k;
    }
    return suyas;
}

void Borde::exigirSinFallo(std::size_t i, const Alturas& alturas) const {
    assert(alturas.calculadas);
    if (alturas.ladoConFallo == ninguno) {
        return;
    }
    const std::size_t k = alturas.ladoConFallo;
    EnLugar([k] { return "lado " + std::to_string(k + 1) + " del contorno"; },
            [&] {
                AlturaTriangulo(arboles_.x(i), arboles_.y(i), contorno_.x[k], contorno_.y[k],
                                contorno_.x[k + 1], contorno_.y[k + 1]);
            });
}

} // namespace varo
