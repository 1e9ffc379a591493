// Finds the trees along lines through a whole plot.
#pragma once

#include "indices/vecinos/Arboles.h"
#include "plot/calculo/Cuadricula.h"

#include <cstddef>
#include <vector>

namespace varo {

/// A direction as a vector of length 1.
struct DireccionAPA {
    double x = 0;
    double y = 0;
};

/// Lines start from a tree and go both ways. A search may add trees that it need not; it never leaves one
/// out.
class LineasAPA {
public:
    using Fila = Cuadricula::Fila;

    /// Looks among these trees; their cells must be readable.
    LineasAPA(const Arboles& arboles, const std::vector<Fila>& filas);

    /// Adds the trees that tree i sees within an angle (its sine) of a direction or of the opposite one.
    void enfiladas(std::size_t i, const DireccionAPA& direccion, double seno,
                   std::vector<Fila>& halladas) const;
    /// The same for both axes at once. Tree i is one of those that are looked among.
    void enLosEjes(std::size_t i, double seno, std::vector<Fila>& halladas) const;

private:
    /// The trees in slices across an axis: x, or y with the coordinates exchanged. A line that is nearer to
    /// that axis than to the other rises by at most one cell in a slice.
    class Rebanadas {
    public:
        Rebanadas(const Arboles& arboles, std::vector<Fila> filas, bool cambiadas);

        void enfiladas(double x, double y, const DireccionAPA& direccion, double seno,
                       std::vector<Fila>& halladas) const;
        /// Along the axis.
        void enElEje(std::size_t i, double x, double y, double seno, std::vector<Fila>& halladas) const;

    private:
        struct LineaDeVista;
        void examinar(std::size_t desde, std::size_t fin, const LineaDeVista& linea,
                      std::vector<Fila>& halladas) const;

        Cuadricula cuadricula_;
        double extension_ = 0;      ///< a distance that no two trees exceed (m)
        std::vector<float> x_, y_;  ///< by place, from the corner of the grid; some more at the end
        std::vector<Fila> enOrden_; ///< the places by y
        std::vector<Fila> puesto_;  ///< where a row stands in that order
    };

    const Arboles& arboles_;
    Rebanadas porColumnas_, porHileras_;
};

} // namespace varo
