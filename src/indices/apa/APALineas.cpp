#include "indices/apa/APALineas.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numeric>
#include <utility>

namespace varo {

namespace {

constexpr std::size_t deUnaVez = 4; ///< trees that are looked at side by side
constexpr double porCasilla = 16;   ///< a slice costs more than the trees of a cell

struct Sitios {
    const Arboles& arboles;
    bool cambiadas;
    [[nodiscard]] double x(Cuadricula::Fila i) const { return cambiadas ? arboles.y(i) : arboles.x(i); }
    [[nodiscard]] double y(Cuadricula::Fila i) const { return cambiadas ? arboles.x(i) : arboles.y(i); }
};

/// Whether a tree at (dx, dy) is seen within an angle of a direction or of the opposite one.
bool EnLinea(const DireccionAPA& direccion, double dx, double dy, double seno2) {
    const double alejamiento = direccion.x * dy - direccion.y * dx;
    return alejamiento * alejamiento <= seno2 * (dx * dx + dy * dy);
}

/// A line in numbers of 32 bits, for a first look.
struct PrimeraMirada {
    float dx, dy, corte; ///< a point (x; y) is as far from the line as dx * y - dy * x - corte says
    float semiancho;     ///< nothing that is looked for is farther from it (m)
};

/// Whether any point of so many blocks is near a line. A loop of vectors while it stands apart and its
/// numbers are copies.
[[gnu::noinline]] bool AlgunoCerca(const PrimeraMirada& linea, const float* xs, const float* ys,
                                   std::size_t bloques) {
    const auto [dx, dy, corte, semiancho] = linea;
    std::uint32_t cerca = 0;
    for (std::size_t k = 0; k < bloques * deUnaVez; ++k) {
        cerca |= std::abs(dx * ys[k] - dy * xs[k] - corte) <= semiancho ? 1U : 0U;
    }
    return cerca != 0;
}

} // namespace

/// A line through a tree.
struct LineasAPA::Rebanadas::LineaDeVista {
    double x, y; ///< the tree (m)
    DireccionAPA direccion;
    double seno2;
    PrimeraMirada primera;
};

LineasAPA::Rebanadas::Rebanadas(const Arboles& arboles, std::vector<Fila> filas, bool cambiadas)
    : cuadricula_{Sitios{arboles, cambiadas}, std::move(filas), porCasilla} {
    const auto& [x0, y0, x1, y1] = cuadricula_.extremos();
    extension_ = (x1 - x0) + (y1 - y0);
    const std::size_t cuantos = cuadricula_.cuantos();
    for (std::size_t lugar = 0; lugar < cuantos; ++lugar) {
        x_.push_back(static_cast<float>(cuadricula_.x(lugar) - x0));
        y_.push_back(static_cast<float>(cuadricula_.y(lugar) - y0));
    }
    x_.resize(cuantos + deUnaVez);
    y_.resize(cuantos + deUnaVez);
    enOrden_.resize(cuantos);
    std::iota(enOrden_.begin(), enOrden_.end(), Fila{0});
    std::sort(enOrden_.begin(), enOrden_.end(),
              [&](Fila a, Fila b) { return cuadricula_.y(a) < cuadricula_.y(b); });
    puesto_.resize(arboles.cuantos());
    for (std::size_t n = 0; n < cuantos; ++n) {
        puesto_[cuadricula_.fila(enOrden_[n])] = static_cast<Fila>(n);
    }
}

void LineasAPA::Rebanadas::enfiladas(double x, double y, const DireccionAPA& direccion, double seno,
                                     std::vector<Fila>& halladas) const {
    // What a coordinate of 32 bits rounds, several times over.
    const double redondeo = 16 * static_cast<double>(std::numeric_limits<float>::epsilon()) * extension_;
    const double lado = cuadricula_.lado();
    const double xEsquina = x - cuadricula_.extremos().x0;
    const double yEsquina = y - cuadricula_.extremos().y0;
    // A tree at a distance L within that angle stands within seno * L of the line, L at most the extension.
    const double semiancho = seno * extension_;
    const LineaDeVista linea{x,
                             y,
                             direccion,
                             seno * seno,
                             {static_cast<float>(direccion.x), static_cast<float>(direccion.y),
                              static_cast<float>(direccion.x * yEsquina - direccion.y * xEsquina),
                              static_cast<float>(semiancho + redondeo)}};
    const double pendiente = direccion.y / direccion.x; // in cells per slice, -1 to 1
    // Measured along a slice, which the line crosses aslant, the band is wider.
    const double alLado = semiancho / std::abs(direccion.x) / lado + Cuadricula::holgura;
    const double entra = (yEsquina - xEsquina * pendiente) / lado;
    const double bajo = entra + std::min(pendiente, 0.0) - alLado;
    const double alto = entra + std::max(pendiente, 0.0) + alLado;
    const auto ultima = static_cast<double>(cuadricula_.hileras() - 1);
    for (std::size_t rebanada = 0; rebanada < cuadricula_.columnas(); ++rebanada) {
        const double subida = static_cast<double>(rebanada) * pendiente;
        if (alto + subida < -1 || bajo + subida > ultima + 2) {
            continue; // beside the grid
        }
        // What stands beyond the ends is in the cells at the ends.
        const auto casilla = [&](double posicion) {
            return static_cast<std::size_t>(std::clamp(posicion, 0.0, ultima));
        };
        const auto [desde, fin] =
            cuadricula_.lugares(rebanada, {casilla(bajo + subida), casilla(alto + subida)});
        examinar(desde, fin, linea, halladas);
    }
}

/// Nearly no tree is near a line, so those of a slice are looked at together, without a branch, and even some
/// that stand behind the last one.
void LineasAPA::Rebanadas::examinar(std::size_t desde, std::size_t fin, const LineaDeVista& linea,
                                    std::vector<Fila>& halladas) const {
    const std::size_t bloques = (fin - desde + deUnaVez - 1) / deUnaVez;
    if (!AlgunoCerca(linea.primera, x_.data() + desde, y_.data() + desde, bloques)) {
        return;
    }
    for (std::size_t lugar = desde; lugar < fin; ++lugar) {
        if (EnLinea(linea.direccion, cuadricula_.x(lugar) - linea.x, cuadricula_.y(lugar) - linea.y,
                    linea.seno2)) {
            halladas.push_back(cuadricula_.fila(lugar));
        }
    }
}

void LineasAPA::Rebanadas::enElEje(std::size_t i, double x, double y, double seno,
                                   std::vector<Fila>& halladas) const {
    const double semiancho = seno * extension_;
    const auto mirar = [&](Fila lugar) {
        const double dy = cuadricula_.y(lugar) - y;
        if (std::abs(dy) > semiancho) {
            return false;
        }
        if (EnLinea({1, 0}, cuadricula_.x(lugar) - x, dy, seno * seno)) {
            halladas.push_back(cuadricula_.fila(lugar));
        }
        return true;
    };
    for (std::size_t n = puesto_[i]; n < enOrden_.size() && mirar(enOrden_[n]); ++n) {
    }
    for (std::size_t n = puesto_[i]; n > 0 && mirar(enOrden_[n - 1]); --n) {
    }
}

LineasAPA::LineasAPA(const Arboles& arboles, const std::vector<Fila>& filas)
    : arboles_{arboles}, porColumnas_{arboles, filas, false}, porHileras_{arboles, filas, true} {}

void LineasAPA::enfiladas(std::size_t i, const DireccionAPA& direccion, double seno,
                          std::vector<Fila>& halladas) const {
    assert(seno >= 0 && std::abs(std::hypot(direccion.x, direccion.y) - 1) < 1E-9);
    const double x = arboles_.x(i);
    const double y = arboles_.y(i);
    if (std::abs(direccion.x) >= std::abs(direccion.y)) {
        porColumnas_.enfiladas(x, y, direccion, seno, halladas);
    } else {
        porHileras_.enfiladas(y, x, {direccion.y, direccion.x}, seno, halladas);
    }
}

void LineasAPA::enLosEjes(std::size_t i, double seno, std::vector<Fila>& halladas) const {
    assert(seno >= 0);
    porColumnas_.enElEje(i, arboles_.x(i), arboles_.y(i), seno, halladas);
    porHileras_.enElEje(i, arboles_.y(i), arboles_.x(i), seno, halladas);
}

} // namespace varo
