// A uniform grid over the trees of a plot: it finds the trees of one part without looking at the others.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace varo {

/// Cells are ordered column by column, upwards; a place is a tree's position in that order. Few trees per
/// cell, on average as many as its owner asks for; the number of cells stays proportional to the number of
/// trees, however narrow the plot.
class Cuadricula {
public:
    using Fila = std::uint32_t; ///< a tree, numbered as its owner numbers it

    static constexpr double holgura = 1E-6; ///< in cells: far more than the rounding of a cell's edge

    /// Cells in a row of them, both ends included.
    struct Tramo {
        std::size_t desde = 0, hasta = 0;
    };
    /// The smallest and the largest coordinates, in metres.
    struct Extremos {
        double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
    };

    /// An empty one.
    Cuadricula() = default;
    /// Takes these trees. `sitios` gives their coordinates by x(fila) and y(fila); they must be numbers.
    template <class Sitios>
    Cuadricula(const Sitios& sitios, std::vector<Fila> filas, double porCasilla = 2)
        : filas_{std::move(filas)} {
        x_.reserve(filas_.size());
        y_.reserve(filas_.size());
        for (const Fila i : filas_) {
            x_.push_back(sitios.x(i));
            y_.push_back(sitios.y(i));
        }
        repartir(porCasilla);
    }

    [[nodiscard]] std::size_t cuantos() const { return filas_.size(); }
    [[nodiscard]] const Extremos& extremos() const { return extremos_; }
    /// The side of a cell, in metres.
    [[nodiscard]] double lado() const { return lado_; }
    [[nodiscard]] std::size_t columnas() const { return columnas_; }
    [[nodiscard]] std::size_t hileras() const { return hileras_; }

    /// What stands in a place.
    [[nodiscard]] Fila fila(std::size_t lugar) const { return filas_[lugar]; }
    [[nodiscard]] double x(std::size_t lugar) const { return x_[lugar]; }
    [[nodiscard]] double y(std::size_t lugar) const { return y_[lugar]; }
    [[nodiscard]] const std::vector<Fila>& filas() const { return filas_; }

    /// Of a row of `cuantas` cells, those between two distances (m) from its beginning, with some slack for
    /// rounding.
    [[nodiscard]] Tramo tramo(double desde, double hasta, std::size_t cuantas) const;

    /// The first place of some cells of a column, and the one behind their last.
    [[nodiscard]] std::pair<std::size_t, std::size_t> lugares(std::size_t columna,
                                                              const Tramo& hileras) const {
        return {comienzo_[columna * hileras_ + hileras.desde],
                comienzo_[columna * hileras_ + hileras.hasta + 1]};
    }

    /// Visits the places of some cells of a column.
    template <class Visita>
    void recorrer(std::size_t columna, const Tramo& hileras, Visita visita) const {
        const auto [desde, fin] = lugares(columna, hileras);
        for (std::size_t lugar = desde; lugar < fin; ++lugar) {
            visita(lugar);
        }
    }

    /// Visits the places of all the trees in the square of half side `medioLado` (m) about a point, and of
    /// some round it.
    template <class Visita>
    void recorrerCuadro(double x, double y, double medioLado, Visita visita) const {
        recorrerCaja(x, y, {-medioLado, -medioLado, medioLado, medioLado}, visita);
    }

    /// The same for a rectangle, whose ends are measured from the point.
    template <class Visita>
    void recorrerCaja(double x, double y, const Extremos& caja, Visita visita) const {
        const double dx = x - extremos_.x0;
        const double dy = y - extremos_.y0;
        const Tramo enX = tramo(dx + caja.x0, dx + caja.x1, columnas_);
        const Tramo enY = tramo(dy + caja.y0, dy + caja.y1, hileras_);
        for (std::size_t columna = enX.desde; columna <= enX.hasta; ++columna) {
            recorrer(columna, enY, visita);
        }
    }

    /// Visits the places of every two trees that are in one cell.
    template <class Visita>
    void recorrerParejasDeCasilla(Visita visita) const {
        for (std::size_t casilla = 0; casilla + 1 < comienzo_.size(); ++casilla) {
            const std::size_t fin = comienzo_[casilla + 1];
            for (std::size_t uno = comienzo_[casilla]; uno < fin; ++uno) {
                for (std::size_t otro = uno + 1; otro < fin; ++otro) {
                    visita(uno, otro);
                }
            }
        }
    }

private:
    void repartir(double porCasilla);
    void medir(double porCasilla);
    [[nodiscard]] std::size_t casilla(double distancia, std::size_t cuantas) const;

    Extremos extremos_;
    double lado_ = 1, casillasPorMetro_ = 1;
    std::size_t columnas_ = 1, hileras_ = 1;
    std::vector<std::size_t> comienzo_{0, 0}; ///< the first place of each cell; one more at the end
    std::vector<Fila> filas_;
    std::vector<double> x_, y_;
};

} // namespace varo
