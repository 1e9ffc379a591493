// Finds the trees near one of them. It serves only sane plots, where all coordinates and sizes are numbers
// and no distance overflows, so that between two trees nothing faults but for their places.
#pragma once

#include "indices/vecinos/Arboles.h"
#include "plot/calculo/Cuadricula.h"

#include <cassert>
#include <cstddef>
#include <vector>

namespace varo {

class BuscadorDeCercanos {
public:
    using Fila = Cuadricula::Fila;

    /// Takes the trees with a size. `arboles` must outlive it.
    explicit BuscadorDeCercanos(const Arboles& arboles);

    /// False when a cell of some tree with a size is no number or out of measure; then nothing below may be
    /// asked.
    [[nodiscard]] bool fiable() const { return fiable_; }

    /// Replaces `cercanas` by the trees within a distance (m) of tree i, itself left out, in the order of the
    /// rows. It may take in trees that are farther by a rounding; it never leaves one out.
    void buscar(std::size_t i, double radio, std::vector<Fila>& cercanas) const;
    /// The same with a distance for each tree: `porD` times its d, or `radio` where that is more.
    void buscarPorTamano(std::size_t i, double porD, double radio, std::vector<Fila>& cercanas) const;

    /// Whether another tree stands at distance 0.
    [[nodiscard]] bool comparteSitio(std::size_t i) const {
        assert(fiable_ && i < comparteSitio_.size());
        return comparteSitio_[i];
    }

    /// Trees with a size.
    [[nodiscard]] std::size_t cuantos() const { return cuadricula().cuantos(); }
    /// A distance (m) that no two trees exceed.
    [[nodiscard]] double extension() const {
        assert(fiable_);
        return extension_;
    }
    /// The side of a cell (m), which has few trees on average.
    [[nodiscard]] double lado() const { return cuadricula().lado(); }
    /// The largest d of all (m).
    [[nodiscard]] double mayorD() const {
        assert(fiable_);
        return mayorD_;
    }

private:
    [[nodiscard]] const Cuadricula& cuadricula() const {
        assert(fiable_);
        return cuadricula_;
    }

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
