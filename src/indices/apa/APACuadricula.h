// The grid of APA: finds the trees near one of them. A search may add trees that it need not; it never leaves
// one out.
#pragma once

#include "indices/apa/APAAnillo.h"
#include "indices/apa/APAVecinos.h"
#include "indices/vecinos/Arboles.h"
#include "plot/calculo/Cuadricula.h"

#include <cstddef>
#include <span>
#include <vector>

namespace varo {

/// A place of the grid. Trees near each other have places near each other.
using LugarAPA = Cuadricula::Fila;

/// Holds the trees that can be virtual neighbours: all with a size but those of size 0. Each search starts
/// from one of them, tree i.
class CuadriculaAPA {
public:
    using Fila = VecinosAPA::Fila;

    /// All cells and weights of the trees with a size must be readable.
    explicit CuadriculaAPA(const PesosAPA& pesos);

    /// Trees in the grid.
    [[nodiscard]] std::size_t cuantos() const { return cuadricula_.cuantos(); }
    /// The trees in it, by place.
    [[nodiscard]] const std::vector<Fila>& filas() const { return cuadricula_.filas(); }
    /// The place of a tree in it.
    [[nodiscard]] LugarAPA lugar(Fila fila) const { return lugares_[fila]; }
    /// A distance that no two trees exceed (m).
    [[nodiscard]] double extension() const { return extension_; }
    /// The largest coordinate without its sign (m).
    [[nodiscard]] double mayorCoordenada() const { return mayorCoordenada_; }
    /// The side of a cell (m).
    [[nodiscard]] double lado() const { return cuadricula_.lado(); }

    /// Adds the trees in the square of that half side (m) about tree i, itself too.
    void cuadro(std::size_t i, double medioLado, std::vector<LugarAPA>& hallados) const;
    /// Adds the trees whose virtual neighbour stands in a circle of the ring about tree i, or too near to
    /// one.
    void enLosCirculos(std::size_t i, const AnilloAPA& anillo, std::vector<LugarAPA>& hallados) const;
    /// Places the virtual neighbours of tree i that stand in those places, in that order; its own may be one
    /// of them. Faults: 11 on a tree of the same x; those of a sum of weights.
    void reunirVecinos(std::size_t i, std::span<const LugarAPA> lugares, VecinosAPA& vecinos) const;

private:
    /// Whether tree i is in the grid.
    [[nodiscard]] bool tiene(std::size_t i) const;

    const PesosAPA& pesos_;
    Cuadricula cuadricula_;
    double extension_ = 0;
    double mayorCoordenada_ = 0;
    double mayorPeso_ = 0;
    std::vector<double> peso_;      ///< by place
    std::vector<LugarAPA> lugares_; ///< by row
};

} // namespace varo
