#include "indices/vecinos/BuscadorDeCercanos.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

namespace varo {

namespace {

bool EsMesurado(const Arboles& arboles, std::size_t i) {
    constexpr double desmedido = 1E+100;
    const auto& celdas = arboles.celdas();
    return celdas.x.legible(i) && celdas.y.legible(i) && celdas.tamano.legible(i) &&
           std::abs(arboles.x(i)) < desmedido && std::abs(arboles.y(i)) < desmedido &&
           std::abs(arboles.tamano(i)) < desmedido;
}

/// Beyond what rounding can move a distance.
double ConHolgura(double distancia) {
    return distancia * (1 + 1E-9);
}

} // namespace

BuscadorDeCercanos::BuscadorDeCercanos(const Arboles& arboles) : arboles_{arboles} {
    std::vector<Fila> conTamano;
    for (std::size_t i = 0; i < arboles.cuantos(); ++i) {
        if (arboles.sinTamano(i)) {
            continue;
        }
        if (!EsMesurado(arboles, i)) {
            fiable_ = false;
            return;
        }
        conTamano.push_back(static_cast<Fila>(i));
    }
    if (conTamano.empty()) {
        return;
    }
    cuadricula_ = Cuadricula{arboles, std::move(conTamano)};
    const auto& [x0, y0, x1, y1] = cuadricula_.extremos();
    extension_ = ConHolgura(Distancia(x0, y0, x1, y1));
    d_.reserve(cuadricula_.cuantos());
    for (const Fila i : cuadricula_.filas()) {
        d_.push_back(arboles.d(i));
    }
    mayorD_ = *std::max_element(d_.begin(), d_.end());
    marcarLosQueCompartenSitio();
}

/// Two trees at distance 0 are in one cell. Their coordinates may differ where the square of the difference
/// is 0: by less than 1E-161, so that both are next to 0, and the distances to the corner of a grid whose
/// cells are not as small as that are the same number, or less than a cell's side.
void BuscadorDeCercanos::marcarLosQueCompartenSitio() {
    comparteSitio_.resize(arboles_.cuantos());
    constexpr double minusculo = 1E-100;
    if (cuadricula_.lado() < minusculo) {
        ArbolesCercanos enElSitio{arboles_};
        for (const Fila i : cuadricula_.filas()) {
            buscar(i, 0, enElSitio);
            comparteSitio_[i] = !enElSitio.filas.empty();
        }
        return;
    }
    const auto& filas = cuadricula_.filas();
    cuadricula_.recorrerParejasDeCasilla([&](std::size_t uno, std::size_t otro) {
        const double dx = cuadricula_.x(uno) - cuadricula_.x(otro);
        const double dy = cuadricula_.y(uno) - cuadricula_.y(otro);
        if (dx * dx + dy * dy == 0) {
            comparteSitio_[filas[uno]] = true;
            comparteSitio_[filas[otro]] = true;
        }
    });
}

/// `alcanceDe` gives the reach (m) of the tree in a place of the grid, `mayorAlcance` at the most.
template <class Alcance>
void BuscadorDeCercanos::buscarEn(std::size_t i, double mayorAlcance, Alcance alcanceDe,
                                  ArbolesCercanos& cercanas) const {
    assert(fiable_);
    const double x = arboles_.x(i);
    const double y = arboles_.y(i);
    cuadricula_.recorrerCuadro(x, y, mayorAlcance, [&](std::size_t lugar) {
        const double dx = cuadricula_.x(lugar) - x;
        const double dy = cuadricula_.y(lugar) - y;
        const double alcance = alcanceDe(lugar);
        cercanas.orden_.tomarSi(dx * dx + dy * dy <= alcance * alcance, cuadricula_.fila(lugar));
    });
    cercanas.orden_.vaciarEn(cercanas.filas, static_cast<Fila>(i));
}

void BuscadorDeCercanos::buscar(std::size_t i, double radio, ArbolesCercanos& cercanas) const {
    const double alcance = ConHolgura(std::max(radio, 0.0));
    buscarEn(
        i, alcance, [&](std::size_t) { return alcance; }, cercanas);
}

void BuscadorDeCercanos::buscarPorTamano(std::size_t i, double porD, double radio,
                                         ArbolesCercanos& cercanas) const {
    const auto alcanceDe = [&](double d) { return ConHolgura(std::max(porD * d, radio)); };
    buscarEn(
        i, alcanceDe(mayorD_), [&](std::size_t lugar) { return alcanceDe(d_[lugar]); }, cercanas);
}

} // namespace varo
