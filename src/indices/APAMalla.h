// A uniform grid over the trees that can be virtual neighbours, to find those near one of them and those
// along a line through it. Both searches may take in trees that they need not; they never leave one out.
#pragma once

#include "indices/APAVecinos.h"

#include <cstddef>
#include <vector>

namespace varo {

/// A direction as a vector of length 1.
struct DireccionAPA {
    double x = 0;
    double y = 0;
};

class MallaAPA {
public:
    using Fila = VecinosAPA::Fila;

    /// A size of 0 is no virtual neighbour. All cells and weights of the trees with a size must be readable.
    explicit MallaAPA(const PesosAPA& pesos);

    /// Trees in the grid.
    [[nodiscard]] std::size_t cuantos() const { return filas_.size(); }
    /// A distance that no two trees exceed, and the largest coordinate without its sign.
    [[nodiscard]] double extension() const { return extension_; }
    [[nodiscard]] double mayorCoordenada() const { return mayorCoordenada_; }
    /// The side of a cell, which holds two trees on average.
    [[nodiscard]] double lado() const { return lado_; }

    /// Adds the trees in the square of that half side about tree i, itself too.
    void cuadro(std::size_t i, double medioLado, std::vector<Fila>& halladas) const;
    /// Adds the trees whose virtual neighbour stands within a distance of tree i.
    void alAlcance(std::size_t i, double alcance, std::vector<Fila>& halladas) const;
    /// Adds the trees that are seen from tree i within an angle (its sine) of a direction or of the opposite
    /// one.
    void enfiladas(std::size_t i, const DireccionAPA& direccion, double seno,
                   std::vector<Fila>& halladas) const;

private:
    struct Tramo {
        std::size_t desde = 0, hasta = 0; ///< cells, both ends included
    };

    void medir();
    void repartir();
    [[nodiscard]] std::size_t casilla(double desplazamiento, std::size_t cuantas) const;
    [[nodiscard]] Tramo casillas(double centro, double menos, double mas, std::size_t cuantas) const;
    /// Visits the places of the trees of a square.
    template <class Visita>
    void recorrer(std::size_t i, double medioLado, Visita visita) const;

    const PesosAPA& pesos_;
    double x0_ = 0, y0_ = 0;
    double lado_ = 1;
    std::size_t columnas_ = 1, hileras_ = 1;
    double extension_ = 0;
    double mayorCoordenada_ = 0;
    double mayorPeso_ = 0;

    std::vector<std::size_t>
        comienzo_; ///< of each cell in the four below, column by column; one more at the end
    std::vector<Fila> filas_;
    std::vector<double> x_, y_, peso_;
};

} // namespace varo
