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
    /// How many trees stand within a distance (m) of the line from tree i in a direction, both ways. A few
    /// that stand farther away may count, and one may count more than once; none is left out.
    [[nodiscard]] std::size_t cuantosCerca(std::size_t i, const DireccionAPA& direccion,
                                           double semiancho) const;
    /// A distance (m) that costs such a count next to nothing.
    [[nodiscard]] double semianchoDeBalde() const;
    /// The same as `enfiladas` for both axes at once. Tree i is one of those that are looked among.
    void enLosEjes(std::size_t i, double seno, std::vector<Fila>& halladas) const;

private:
    /// A line through a tree that is nearer to the x axis than to the other one.
    struct LineaDeVista {
        double x, y; ///< the tree (m)
        DireccionAPA direccion;
    };
    /// The trees in slices across an axis: x, or y with the coordinates exchanged. A line that is nearer to
    /// that axis than to the other rises by little in a slice.
    class Rebanadas {
    public:
        Rebanadas(const Arboles& arboles, std::vector<Fila> filas, bool cambiadas);

        /// What numbers of 32 bits may round off the distance of a tree from a line (m).
        [[nodiscard]] double redondeo() const { return redondeo_; }

        void enfiladas(const LineaDeVista& linea, double seno, std::vector<Fila>& halladas) const;
        [[nodiscard]] std::size_t cuantosCerca(const LineaDeVista& linea, double semiancho) const;
        /// Along the axis.
        void enElEje(std::size_t i, double x, double y, double seno, std::vector<Fila>& halladas) const;

    private:
        struct PrimeraMirada;
        struct EnOrden {
            double x, y; ///< m
            Fila fila;
        };

        /// Visits the places of the trees within a distance of the line, and of some round them: slice by
        /// slice, the first place and the one behind the last.
        template <class Visita>
        void recorrer(const LineaDeVista& linea, double semiancho, Visita visita) const;
        [[nodiscard]] PrimeraMirada mirarPrimero(const LineaDeVista& linea, double semiancho) const;
        [[nodiscard]] double y(std::size_t lugar) const;

        Cuadricula cuadricula_; ///< of the places with their y drawn out, for cells of little height
        double extension_ = 0;  ///< a distance that no two trees exceed (m)
        double centroX_ = 0, centroY_ = 0, redondeo_ = 0; ///< m
        std::vector<float> x_, y_;     ///< by place, from the centre of the grid; some more at the end
        std::vector<EnOrden> enOrden_; ///< by y
        std::vector<Fila> puesto_;     ///< where a row stands in that order
    };

    /// Calls with the slices that serve the line and the line as they see it.
    template <class Mirar>
    auto mirar(std::size_t i, const DireccionAPA& direccion, Mirar mirar) const;

    const Arboles& arboles_;
    Rebanadas porColumnas_, porHileras_;
};

} // namespace varo
