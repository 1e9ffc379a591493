#include "indices/apa/APARueda.h"

#include <algorithm>
#include <cassert>

namespace varo {

void RuedaAPA::llenar(const std::vector<double>& angulos, Vecino primero) {
    assert(primero < angulos.size());
    angulos_ = &angulos;
    ultimoLado_ = angulos[primero];
    porAngulo_.clear();
    for (Vecino v = 0; v < angulos.size(); ++v) {
        if (v != primero) {
            porAngulo_.push_back({angulos[v], v});
        }
    }
    std::sort(porAngulo_.begin(), porAngulo_.end(), [](const Direccion& a, const Direccion& b) {
        return a.angulo < b.angulo || (a.angulo == b.angulo && a.vecino < b.vecino);
    });
    orden_.clear();
    for (const auto& direccion : porAngulo_) {
        orden_.push_back(direccion.vecino);
    }
    enlazar();
    const auto desde = std::lower_bound(orden_.begin(), orden_.end(), ultimoLado_,
                                        [&](Vecino v, double angulo) { return angulos[v] < angulo; });
    cabeza_ = desde == orden_.end() ? 0 : static_cast<LugarEnRueda>(desde - orden_.begin());
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
        if (orden_[lugar] < orden_[elegido]) {
            elegido = lugar;
        }
    }
    return elegido;
}

} // namespace varo
