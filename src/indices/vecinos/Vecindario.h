// A grid over the trees with a size, to find those near one of them. It holds only plots on which no
// step between two trees can fault but for their places: all coordinates and sizes are numbers, and
// none is so large that a distance overflows.
#pragma once

#include "indices/vecinos/Cuadricula.h"

#include <cstddef>
#include <vector>

namespace varo {

class Vecindario {
public:
    using Fila = Cuadricula::Fila;

    /// The trees have to outlive it.
    explicit Vecindario(const Arboles& arboles);

    /// False when a cell of some tree with a size is no number or out of measure; there is no grid then, and
    /// nothing below may be asked.
    [[nodiscard]] bool fiable() const { return fiable_; }

    /// Replaces `cercanas` by the trees within a distance of tree i, itself left out, in the order of the
    /// rows. It may take in trees that are farther by a rounding; it never leaves one out.
    void buscar(std::size_t i, double radio, std::vector<Fila>& cercanas) const;
    /// The same with a distance for each tree: `porD` times its d, or `radio` where that is more.
    void buscarPorTamano(std::size_t i, double porD, double radio, std::vector<Fila>& cercanas) const;

    /// Whether another tree stands at distance 0.
    [[nodiscard]] bool comparteSitio(std::size_t i) const { return comparteSitio_[i]; }

    /// Trees with a size.
    [[nodiscard]] std::size_t cuantos() const { return cuadricula_.cuantos(); }
    /// A distance that no two trees exceed.
    [[nodiscard]] double extension() const { return extension_; }
    /// The side of a cell, which has few trees on average.
    [[nodiscard]] double lado() const { return cuadricula_.lado(); }
    /// The largest d of all, in metres.
    [[nodiscard]] double mayorD() const { return mayorD_; }

private:
    template <class Alcance>
    void buscarEn(std::size_t i, double mayorAlcance, Alcance alcanceDe, std::vector<Fila>& cercanas) const;

    const Arboles& arboles_;
    bool fiable_ = true;
    Cuadricula cuadricula_;
    double extension_ = 0;
    double mayorD_ = 0;
    std::vector<double> d_; ///< by place of the grid
    std::vector<bool> comparteSitio_;
};

} // namespace varo
