#include "indices/apa/APARueda.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <numeric>

namespace varo {

void RuedaAPA::llenar(const std::vector<double>& angulos, const std::vector<Fila>& filas, Vecino primero) {
    assert(primero < angulos.size() && filas.size() == angulos.size());
    angulos_ = &angulos;
    filas_ = &filas;
    ultimoLado_ = angulos[primero];
    ordenar(primero);
    enlazar();
    const auto desde = std::lower_bound(orden_.begin(), orden_.end(), ultimoLado_,
                                        [&](Vecino v, double angulo) { return angulos[v] < angulo; });
    cabeza_ = desde == orden_.end() ? 0 : static_cast<LugarEnRueda>(desde - orden_.begin());
}

void RuedaAPA::ordenar(Vecino primero) {
    constexpr std::size_t muchas = 64;
    porAngulo_.clear();
    for (Vecino v = 0; v < angulos_->size(); ++v) {
        if (v != primero) {
            porAngulo_.push_back({(*angulos_)[v], (*filas_)[v], v});
        }
    }
    const auto ordenarDe = [&](std::size_t desde, std::size_t fin) {
        const auto comienzo = porAngulo_.begin();
        std::sort(comienzo + static_cast<std::ptrdiff_t>(desde), comienzo + static_cast<std::ptrdiff_t>(fin),
                  [](const Direccion& a, const Direccion& b) {
                      return a.angulo < b.angulo || (a.angulo == b.angulo && a.fila < b.fila);
                  });
    };
    if (porAngulo_.size() < muchas) {
        ordenarDe(0, porAngulo_.size());
    } else {
        repartirEnGajos();
        for (std::size_t gajo = 0; gajo + 1 < comienzoDeGajo_.size(); ++gajo) {
            if (comienzoDeGajo_[gajo + 1] > comienzoDeGajo_[gajo] + 1) {
                ordenarDe(comienzoDeGajo_[gajo], comienzoDeGajo_[gajo + 1]);
            }
        }
    }
    orden_.clear();
    for (const auto& direccion : porAngulo_) {
        orden_.push_back(direccion.vecino);
    }
}

/// Deals the directions into as many slices of the turn as there are: a larger angle is never in an earlier
/// slice, so that what is left to sort stands in one of them.
void RuedaAPA::repartirEnGajos() {
    const std::size_t gajos = porAngulo_.size();
    const auto ultimo = static_cast<double>(gajos - 1);
    const double porGrado = static_cast<double>(gajos) / 360;
    const auto gajoDe = [&](const Direccion& direccion) {
        return static_cast<std::size_t>(std::clamp(direccion.angulo * porGrado, 0.0, ultimo));
    };
    comienzoDeGajo_.assign(gajos + 1, 0);
    for (const Direccion& direccion : porAngulo_) {
        ++comienzoDeGajo_[gajoDe(direccion) + 1];
    }
    std::partial_sum(comienzoDeGajo_.begin(), comienzoDeGajo_.end(), comienzoDeGajo_.begin());
    repartidas_.resize(gajos);
    lleno_.assign(comienzoDeGajo_.begin(), comienzoDeGajo_.end() - 1);
    for (const Direccion& direccion : porAngulo_) {
        repartidas_[lleno_[gajoDe(direccion)]++] = direccion;
    }
    porAngulo_.swap(repartidas_);
}

void RuedaAPA::enlazar() {
    const auto cuantos = static_cast<LugarEnRueda>(orden_.size());
    siguiente_.resize(cuantos);
    anterior_.resize(cuantos);
    for (LugarEnRueda lugar = 0; lugar < cuantos; ++lugar) {
        siguiente_[lugar] = lugar + 1 < cuantos ? lugar + 1 : 0;
        anterior_[lugar] = lugar > 0 ? lugar - 1 : cuantos - 1;
    }
    quedan_ = cuantos;
    sacado_ = cuantos; // none
}

RuedaAPA::Vecino RuedaAPA::sacar() {
    assert(!vacia());
    sacado_ = buscarElSiguiente();
    siguiente_[anterior_[sacado_]] = siguiente_[sacado_];
    anterior_[siguiente_[sacado_]] = anterior_[sacado_];
    if (cabeza_ == sacado_) {
        cabeza_ = siguiente_[sacado_];
    }
    --quedan_;
    return orden_[sacado_];
}

void RuedaAPA::tomar() {
    assert(sacado_ < orden_.size()); // after a `sacar`
    ultimoLado_ = (*angulos_)[orden_[sacado_]];
    cabeza_ = siguiente_[sacado_];
}

double RuedaAPA::giro(LugarEnRueda lugar) const {
    const double angulo = (*angulos_)[orden_[lugar]];
    return angulo < ultimoLado_ ? 360.0 - (ultimoLado_ - angulo) : angulo - ultimoLado_;
}

/// From the head on, the turn never falls: both branches of `giro` keep the order of the angles through
/// rounding. So those that tie with the head stand right behind it.
RuedaAPA::LugarEnRueda RuedaAPA::buscarElSiguiente() const {
    const double menor = giro(cabeza_);
    LugarEnRueda elegido = cabeza_;
    for (LugarEnRueda lugar = siguiente_[cabeza_]; lugar != cabeza_ && giro(lugar) == menor;
         lugar = siguiente_[lugar]) {
        if ((*filas_)[orden_[lugar]] < (*filas_)[orden_[elegido]]) {
            elegido = lugar;
        }
    }
    return elegido;
}

} // namespace varo
