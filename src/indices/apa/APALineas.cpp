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

constexpr std::size_t deUnaVez = 16; ///< trees that are looked at side by side
constexpr double alargo = 4; ///< a cell is so many times as wide as high; a power of 2, which rounds nothing
constexpr double porCasilla = 4; ///< a slice costs more than some trees

struct Sitios {
    const Arboles& arboles;
    bool cambiadas;
    [[nodiscard]] double x(Cuadricula::Fila i) const { return cambiadas ? arboles.y(i) : arboles.x(i); }
    [[nodiscard]] double y(Cuadricula::Fila i) const {
        return alargo * (cambiadas ? arboles.x(i) : arboles.y(i));
    }
};

/// Whether a tree at (dx, dy) is seen within an angle of a direction or of the opposite one.
bool EnLinea(const DireccionAPA& direccion, double dx, double dy, double seno2) {
    const double alejamiento = direccion.x * dy - direccion.y * dx;
    return alejamiento * alejamiento <= seno2 * (dx * dx + dy * dy);
}

} // namespace

/// A line in numbers of 32 bits, for a first look.
struct LineasAPA::Rebanadas::PrimeraMirada {
    float dx, dy, corte; ///< a point (x; y) is as far from the line as dx * y - dy * x - corte says
    float semiancho;     ///< nothing that is looked for is farther from it (m)

    [[nodiscard]] bool cerca(float x, float y) const {
        return std::abs(dx * y - dy * x - corte) <= semiancho;
    }
};

LineasAPA::Rebanadas::Rebanadas(const Arboles& arboles, std::vector<Fila> filas, bool cambiadas)
    : cuadricula_{Sitios{arboles, cambiadas}, std::move(filas), porCasilla} {
    const auto& [x0, y0, x1, y1] = cuadricula_.extremos();
    extension_ = (x1 - x0) + (y1 - y0) / alargo;
    centroX_ = x0 + (x1 - x0) / 2;
    centroY_ = (y0 + (y1 - y0) / 2) / alargo;
    // docs/apa.md, "Streets".
    redondeo_ = 3 * static_cast<double>(std::numeric_limits<float>::epsilon()) *
                std::hypot(x1 - x0, (y1 - y0) / alargo);
    const std::size_t cuantos = cuadricula_.cuantos();
    for (std::size_t lugar = 0; lugar < cuantos; ++lugar) {
        x_.push_back(static_cast<float>(cuadricula_.x(lugar) - centroX_));
        y_.push_back(static_cast<float>(y(lugar) - centroY_));
        enOrden_.push_back({cuadricula_.x(lugar), y(lugar), cuadricula_.fila(lugar)});
    }
    // Near no line.
    x_.resize(cuantos + deUnaVez, std::numeric_limits<float>::quiet_NaN());
    y_.resize(cuantos + deUnaVez, std::numeric_limits<float>::quiet_NaN());
    std::sort(enOrden_.begin(), enOrden_.end(), [](const EnOrden& a, const EnOrden& b) { return a.y < b.y; });
    puesto_.resize(arboles.cuantos());
    for (std::size_t n = 0; n < cuantos; ++n) {
        puesto_[enOrden_[n].fila] = static_cast<Fila>(n);
    }
}

double LineasAPA::Rebanadas::y(std::size_t lugar) const {
    return cuadricula_.y(lugar) / alargo;
}

template <class Visita>
void LineasAPA::Rebanadas::recorrer(const LineaDeVista& linea, double semiancho, Visita visita) const {
    const auto& [x0, y0, x1, y1] = cuadricula_.extremos();
    const double ancho = cuadricula_.lado();
    const double alto = ancho / alargo;
    const double pendiente = alargo * linea.direccion.y / linea.direccion.x; // in cells per slice
    // Measured along a slice, which the line crosses aslant, the band is wider.
    const double alLado = semiancho / std::abs(linea.direccion.x) / alto + Cuadricula::holgura;
    const double entra = (linea.y - y0 / alargo) / alto - (linea.x - x0) / ancho * pendiente;
    const double bajo = entra + std::min(pendiente, 0.0) - alLado;
    const double arriba = entra + std::max(pendiente, 0.0) + alLado;
    const auto ultima = static_cast<double>(cuadricula_.hileras() - 1);
    for (std::size_t rebanada = 0; rebanada < cuadricula_.columnas(); ++rebanada) {
        const double subida = static_cast<double>(rebanada) * pendiente;
        if (arriba + subida < -1 || bajo + subida > ultima + 2) {
            continue; // beside the grid
        }
        // What stands beyond the ends is in the cells at the ends.
        const auto casilla = [&](double posicion) {
            return static_cast<std::size_t>(static_cast<std::int64_t>(std::clamp(posicion, 0.0, ultima)));
        };
        const auto [desde, fin] =
            cuadricula_.lugares(rebanada, {casilla(bajo + subida), casilla(arriba + subida)});
        visita(desde, fin);
    }
}

void LineasAPA::Rebanadas::enfiladas(const LineaDeVista& linea, double seno,
                                     std::vector<Fila>& halladas) const {
    // A tree at a distance L within that angle stands within seno * L of the line, L at most the extension.
    const double semiancho = seno * extension_;
    const PrimeraMirada primera = mirarPrimero(linea, semiancho);
    recorrer(linea, semiancho, [&](std::size_t desde, std::size_t fin) {
        for (std::size_t lugar = desde; lugar < fin; ++lugar) {
            if (primera.cerca(x_[lugar], y_[lugar]) &&
                EnLinea(linea.direccion, cuadricula_.x(lugar) - linea.x, y(lugar) - linea.y, seno * seno)) {
                halladas.push_back(cuadricula_.fila(lugar));
            }
        }
    });
}

LineasAPA::Rebanadas::PrimeraMirada LineasAPA::Rebanadas::mirarPrimero(const LineaDeVista& linea,
                                                                       double semiancho) const {
    const auto& [x, y, direccion] = linea;
    return {static_cast<float>(direccion.x), static_cast<float>(direccion.y),
            static_cast<float>(direccion.x * (y - centroY_) - direccion.y * (x - centroX_)),
            static_cast<float>(semiancho + redondeo_)};
}

/// Nearly no tree is near a line, so many are looked at together, in numbers of 32 bits and without a branch,
/// and even some that stand behind the last one of a slice.
std::size_t LineasAPA::Rebanadas::cuantosCerca(const LineaDeVista& linea, double semiancho) const {
    const PrimeraMirada primera = mirarPrimero(linea, semiancho);
    std::array<std::uint32_t, deUnaVez> cuantos{};
    recorrer(linea, semiancho, [&](std::size_t desde, std::size_t fin) {
        for (std::size_t lugar = desde; lugar < fin; lugar += deUnaVez) {
            for (std::size_t k = 0; k < deUnaVez; ++k) {
                cuantos[k] += primera.cerca(x_[lugar + k], y_[lugar + k]) ? 1U : 0U;
            }
        }
    });
    return std::accumulate(cuantos.begin(), cuantos.end(), std::size_t{0});
}

void LineasAPA::Rebanadas::enElEje(std::size_t i, double x, double y, double seno,
                                   std::vector<Fila>& halladas) const {
    const double semiancho = seno * extension_;
    const auto mirar = [&](const EnOrden& otro) {
        const double dy = otro.y - y;
        if (std::abs(dy) > semiancho) {
            return false;
        }
        if (EnLinea({1, 0}, otro.x - x, dy, seno * seno)) {
            halladas.push_back(otro.fila);
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

template <class Mirar>
auto LineasAPA::mirar(std::size_t i, const DireccionAPA& direccion, Mirar mirar) const {
    assert(std::abs(std::hypot(direccion.x, direccion.y) - 1) < 1E-9);
    const double x = arboles_.x(i);
    const double y = arboles_.y(i);
    return std::abs(direccion.x) >= std::abs(direccion.y)
               ? mirar(porColumnas_, LineaDeVista{x, y, direccion})
               : mirar(porHileras_, LineaDeVista{y, x, {direccion.y, direccion.x}});
}

void LineasAPA::enfiladas(std::size_t i, const DireccionAPA& direccion, double seno,
                          std::vector<Fila>& halladas) const {
    assert(seno >= 0);
    mirar(i, direccion, [&](const Rebanadas& rebanadas, const LineaDeVista& linea) {
        rebanadas.enfiladas(linea, seno, halladas);
    });
}

std::size_t LineasAPA::cuantosCerca(std::size_t i, const DireccionAPA& direccion, double semiancho) const {
    assert(semiancho >= 0);
    return mirar(i, direccion, [&](const Rebanadas& rebanadas, const LineaDeVista& linea) {
        return rebanadas.cuantosCerca(linea, semiancho);
    });
}

double LineasAPA::semianchoDeBalde() const {
    return porColumnas_.redondeo();
}

void LineasAPA::enLosEjes(std::size_t i, double seno, std::vector<Fila>& halladas) const {
    assert(seno >= 0);
    porColumnas_.enElEje(i, arboles_.x(i), arboles_.y(i), seno, halladas);
    porHileras_.enElEje(i, arboles_.y(i), arboles_.x(i), seno, halladas);
}

} // namespace varo
