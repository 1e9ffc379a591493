#include "indices/apa/APAGiro.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <numeric>
#include <string>
#include <utility>

namespace varo {

namespace {

/// Why no direction can be told from the subject to a neighbour that lies (dx, dy) from it: rounding is large
/// beside what parts it from the axis, or beside the distance itself.
std::string CausaSinDireccion(double dx, double dy) {
    constexpr double casiNada = 1E-3; // of the way along the axis
    if (std::abs(dx) < casiNada * std::abs(dy)) {
        return "los dos árboles tienen casi la misma X";
    }
    if (std::abs(dy) < casiNada * std::abs(dx)) {
        return dy == 0 ? "los dos árboles tienen la misma Y" : "los dos árboles tienen casi la misma Y";
    }
    return "la distancia entre los dos árboles, según su tamaño, es demasiado pequeña o demasiado grande";
}

} // namespace

void GiroAPA::dar(const VecinosAPA& vecinos, Pareja& pareja) {
    assert(vecinos.x.size() == vecinos.cuantos() && vecinos.y.size() == vecinos.cuantos());
    vecinos_ = &vecinos;
    lados_.clear();
    ultimoCirculo_.reset();

    const Vecino primero = masCercano();
    pareja.vecino = vecinos.filas[primero];
    anadirLado(primero);
    medirDirecciones(primero, pareja);
    probarLosDemas(primero, pareja);
    pareja.vecino = pareja.sujeto;
}

GiroAPA::Vecino GiroAPA::masCercano() {
    double menor = 999999; // Meant: a neighbour that far away (m), or farther, is none.
    std::optional<Vecino> cercano;
    mayorDistancia_ = 0;
    for (Vecino j = 0; j < vecinos_->cuantos(); ++j) {
        const double distancia =
            Distancia(vecinos_->xSujeto, vecinos_->ySujeto, vecinos_->x[j], vecinos_->y[j]);
        mayorDistancia_ = std::max(mayorDistancia_, distancia);
        const bool primeraFila = cercano && vecinos_->filas[j] < vecinos_->filas[*cercano];
        if (distancia < menor || (distancia == menor && primeraFila)) {
            menor = distancia;
            cercano = j;
        }
    }
    if (!cercano) {
        throw ErrorEjecucion{fallo::divisionPorCero}.porque("el árbol no tiene ningún vecino");
    }
    return *cercano;
}

/// The first one comes first, since the first fault ends the run.
void GiroAPA::medirDirecciones(Vecino primero, Pareja& pareja) {
    angulo_.resize(vecinos_->cuantos());
    const auto medir = [&](Vecino c) {
        pareja.vecino = vecinos_->filas[c];
        const double x = vecinos_->x[c];
        const double y = vecinos_->y[c];
        const auto causa = [&] { return CausaSinDireccion(x - vecinos_->xSujeto, y - vecinos_->ySujeto); };
        angulo_[c] = Porque(fallo::funcionDeHoja, causa, [&] {
            return Porque(fallo::argumentoNoValido, causa,
                          [&] { return AnguloDireccion(vecinos_->xSujeto, vecinos_->ySujeto, x, y); });
        });
    };
    medir(primero);
    for (Vecino c = 0; c < vecinos_->cuantos(); ++c) {
        if (c != primero) {
            medir(c);
        }
    }
}

void GiroAPA::probarLosDemas(Vecino primero, Pareja& pareja) {
    const auto& filas = vecinos_->filas;
    const auto& x = vecinos_->x;
    const auto& y = vecinos_->y;
    const double xi = vecinos_->xSujeto;
    const double yi = vecinos_->ySujeto;
    prueba_.resize(filas.size());
    std::iota(prueba_.begin(), prueba_.end(), Vecino{0});
    rueda_.llenar(angulo_, filas, primero);
    Vecino p = primero;
    while (!rueda_.vacia()) {
        const Vecino q = rueda_.sacar();
        pareja.vecino = filas[q];
        const CirculoCircunscrito& circulo = ultimoCirculo_.emplace(Porque(
            fallo::divisionPorCero,
            [&] {
                return y[q] == yi ? "los dos árboles tienen la misma Y"
                                  : "el árbol y dos de sus vecinos están en una línea";
            },
            [&] { return RadioCircunscrito(xi, yi, x[p], y[p], x[q], y[q]); }));
        if (vacio(circulo, p, q)) {
            anadirLado(q);
            rueda_.tomar();
            p = q;
        }
    }
}

void GiroAPA::anadirLado(Vecino vecino) {
    const double x = vecinos_->x[vecino];
    const double y = vecinos_->y[vecino];
    const double mx = (vecinos_->xSujeto + x) / 2.0;
    const double my = (vecinos_->ySujeto + y) / 2.0;
    const double s = Porque(
        fallo::divisionPorCero,
        [&] {
            return y == vecinos_->ySujeto ? "el tamaño del árbol no pesa nada junto al de su vecino"
                                          : "los dos árboles tienen casi la misma X";
        },
        [&] { return Dividir(y - vecinos_->ySujeto, x - vecinos_->xSujeto); });
    const double pendiente = Porque(
        fallo::divisionPorCero, [] { return "los dos árboles tienen la misma Y"; },
        [&] { return Dividir(-1.0, s); });
    lados_.push_back({vecino, pendiente, my - pendiente * mx});
}

bool GiroAPA::dentro(const CirculoCircunscrito& circulo, Vecino t) const {
    return Distancia(vecinos_->x[t], vecinos_->y[t], circulo.CentroCircX, circulo.CentroCircY) <
           circulo.radio;
}

/// Any order of looking gives the same answer, as no comparison can fault. One that was found in a circle is
/// looked for first in the next one. docs/apa.md, "Is a circle empty?"
bool GiroAPA::vacio(const CirculoCircunscrito& circulo, Vecino p, Vecino q) {
    constexpr double desmedido = 1E+100;
    constexpr double holgura = 1 + 1E-12;
    const auto& [radio, cx, cy] = circulo;
    if (radio > desmedido || radio < 1 / desmedido || mayorDistancia_ > desmedido) {
        return vacioPorFilas(circulo, p, q);
    }
    const double fuera = radio * radio * holgura;
    for (auto& t : prueba_) {
        const double x = cx - vecinos_->x[t];
        const double y = cy - vecinos_->y[t];
        if (x * x + y * y > fuera || t == p || t == q) {
            continue;
        }
        if (dentro(circulo, t)) {
            std::swap(t, prueba_.front());
            return false;
        }
    }
    return true;
}

bool GiroAPA::vacioPorFilas(const CirculoCircunscrito& circulo, Vecino p, Vecino q) const {
    for (Vecino t = 0; t < vecinos_->cuantos(); ++t) {
        if (t != p && t != q && dentro(circulo, t)) {
            return false;
        }
    }
    return true;
}

} // namespace varo
