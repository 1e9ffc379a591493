#include "indices/apa/APAGiro.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace varo {

void GiroAPA::dar(const VecinosAPA& vecinos, Pareja& pareja) {
    vecinos_ = &vecinos;
    lados_.clear();
    mayorRadio_ = 0;
    const auto& [xi, yi, filas, x, y] = vecinos;

    Indice p = masCercano();
    pareja.vecino = filas[p];
    anadirLado(p);
    angulo_.resize(vecinos.cuantos());
    angulo_[p] = AnguloDireccion(xi, yi, x[p], y[p]);
    for (Indice c = 0; c < vecinos.cuantos(); ++c) {
        pareja.vecino = filas[c];
        if (c != p) {
            angulo_[c] = AnguloDireccion(xi, yi, x[c], y[c]);
        }
    }
    ordenar(p);

    for (std::size_t quedan = orden_.size(); quedan > 0; --quedan) {
        const Indice lugar = tomarSiguiente(angulo_[p]);
        const Indice q = orden_[lugar];
        pareja.vecino = filas[q];
        const CirculoCircunscrito circulo = RadioCircunscrito(xi, yi, x[p], y[p], x[q], y[q]);
        if (vacio(circulo, p, q)) {
            anadirLado(q);
            mayorRadio_ = std::max(mayorRadio_, circulo.radio);
            p = q;
            cabeza_ = siguiente_[lugar];
        }
    }
    pareja.vecino = pareja.sujeto;
}

/// A neighbour 999999 away or farther is none.
GiroAPA::Indice GiroAPA::masCercano() {
    double mejor = 999999;
    Indice cercano = 0;
    bool hay = false;
    mayorDistancia_ = 0;
    for (Indice j = 0; j < vecinos_->cuantos(); ++j) {
        const double distancia =
            Distancia(vecinos_->xSujeto, vecinos_->ySujeto, vecinos_->x[j], vecinos_->y[j]);
        mayorDistancia_ = std::max(mayorDistancia_, distancia);
        if (distancia < mejor) {
            mejor = distancia;
            cercano = j;
            hay = true;
        }
    }
    if (!hay) {
        throw ErrorEjecucion{fallo::divisionPorCero};
    }
    return cercano;
}

void GiroAPA::ordenar(Indice primero) {
    const auto cuantos = static_cast<Indice>(vecinos_->cuantos());
    prueba_.resize(cuantos);
    std::iota(prueba_.begin(), prueba_.end(), Indice{0});
    orden_.clear();
    std::copy_if(prueba_.begin(), prueba_.end(), std::back_inserter(orden_),
                 [&](Indice c) { return c != primero; });
    std::sort(orden_.begin(), orden_.end(), [&](Indice a, Indice b) {
        return std::pair{angulo_[a], a} < std::pair{angulo_[b], b};
    });

    const auto ultimo = static_cast<Indice>(orden_.size());
    siguiente_.resize(ultimo);
    anterior_.resize(ultimo);
    for (Indice lugar = 0; lugar < ultimo; ++lugar) {
        siguiente_[lugar] = lugar + 1 < ultimo ? lugar + 1 : 0;
        anterior_[lugar] = lugar > 0 ? lugar - 1 : ultimo - 1;
    }
    const auto desde = std::lower_bound(orden_.begin(), orden_.end(), angulo_[primero],
                                        [&](Indice c, double angulo) { return angulo_[c] < angulo; });
    cabeza_ = desde == orden_.end() ? 0 : static_cast<std::size_t>(desde - orden_.begin());
}

/// Takes the neighbour at the smallest turn from the direction a0 off the ring and tells its place. From the
/// head of the ring on, the turn never falls: both branches keep the order of the angles through rounding.
GiroAPA::Indice GiroAPA::tomarSiguiente(double a0) {
    const auto giro = [&](std::size_t lugar) {
        const double angulo = angulo_[orden_[lugar]];
        return angulo < a0 ? 360.0 - (a0 - angulo) : angulo - a0;
    };
    const double menor = giro(cabeza_);
    std::size_t elegido = cabeza_;
    for (std::size_t lugar = siguiente_[cabeza_]; lugar != cabeza_ && giro(lugar) == menor;
         lugar = siguiente_[lugar]) {
        if (orden_[lugar] < orden_[elegido]) {
            elegido = lugar;
        }
    }
    siguiente_[anterior_[elegido]] = siguiente_[elegido];
    anterior_[siguiente_[elegido]] = anterior_[elegido];
    if (elegido == cabeza_) {
        cabeza_ = siguiente_[elegido];
    }
    return static_cast<Indice>(elegido);
}

void GiroAPA::anadirLado(Indice vecino) {
    const double x = vecinos_->x[vecino];
    const double y = vecinos_->y[vecino];
    const double mx = (vecinos_->xSujeto + x) / 2.0;
    const double my = (vecinos_->ySujeto + y) / 2.0;
    const double s = Dividir(y - vecinos_->ySujeto, x - vecinos_->xSujeto);
    const double pendiente = Dividir(-1.0, s);
    lados_.push_back({vecino, pendiente, my - pendiente * mx});
}

/// Any order of looking gives the same answer, as no comparison can fault. One that was found in a circle is
/// looked for first in the next one.
bool GiroAPA::vacio(const CirculoCircunscrito& circulo, Indice p, Indice q) {
    constexpr double desmedido = 1E+100;
    const auto& [radio, cx, cy] = circulo;
    if (radio > desmedido || radio < 1 / desmedido || mayorDistancia_ > desmedido) {
        return vacioPorFilas(circulo, p, q);
    }
    const double fuera = radio * radio * (1 + 1E-12); // surely no root below the radius
    for (auto& t : prueba_) {
        const double x = cx - vecinos_->x[t];
        const double y = cy - vecinos_->y[t];
        if (x * x + y * y > fuera || t == p || t == q) {
            continue;
        }
        if (Distancia(vecinos_->x[t], vecinos_->y[t], cx, cy) < radio) {
            std::swap(t, prueba_.front());
            return false;
        }
    }
    return true;
}

bool GiroAPA::vacioPorFilas(const CirculoCircunscrito& circulo, Indice p, Indice q) const {
    for (Indice t = 0; t < vecinos_->cuantos(); ++t) {
        if (t != p && t != q &&
            Distancia(vecinos_->x[t], vecinos_->y[t], circulo.CentroCircX, circulo.CentroCircY) <
                circulo.radio) {
            return false;
        }
    }
    return true;
}

} // namespace varo
