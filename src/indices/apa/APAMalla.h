// A grid over the trees that can be virtual neighbours, to find those near one of them and those
// along a line through it. Both searches may take in trees that they need not; they never leave one out.
#pragma once

#include "indices/apa/APAVecinos.h"
#include "indices/vecinos/Cuadricula.h"

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
    using Fila = Cuadricula::Fila;

    /// A size of 0 is no virtual neighbour. All cells and weights of the trees with a size must be readable.
    explicit MallaAPA(const PesosAPA& pesos);

    /// Trees in the grid.
    [[nodiscard]] std::size_t cuantos() const { return cuadricula_.cuantos(); }
    /// A distance that no two trees exceed, and the largest coordinate without its sign.
    [[nodiscard]] double extension() const { return extension_; }
    [[nodiscard]] double mayorCoordenada() const { return mayorCoordenada_; }
    /// The side of a cell.
    [[nodiscard]] double lado() const { return cuadricula_.lado(); }

    /// Adds the trees in the square of that half side about tree i, itself too.
    void cuadro(std::size_t i, double medioLado, std::vector<Fila>& halladas) const;
    /// Adds the trees whose virtual neighbour stands within a distance of tree i.
    void alAlcance(std::size_t i, double alcance, std::vector<Fila>& halladas) const;
    /// Adds the trees that are seen from tree i within an angle (its sine) of a direction or of the opposite
    /// one.
    void enfiladas(std::size_t i, const DireccionAPA& direccion, double seno,
                   std::vector<Fila>& halladas) const;

private:
    const PesosAPA& pesos_;
    Cuadricula cuadricula_;
    double extension_ = 0;
    double mayorCoordenada_ = 0;
    double mayorPeso_ = 0;
    std::vector<double> peso_; ///< by place of the grid
};

} // namespace varo
