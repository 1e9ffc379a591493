// Finds the trees near one of them. It serves only sane plots, where all coordinates and sizes are numbers
// and no distance overflows, so that between two trees nothing faults but for their places.
#pragma once

#include "indices/vecinos/Arboles.h"
#include "plot/calculo/Cuadricula.h"
#include "plot/calculo/FilasEnOrden.h"

#include <cassert>
#include <cstddef>
#include <vector>

namespace varo {

/// The trees that a search finds, in the order of the rows, and what it needs to find them. Each walk over
/// the trees has its own.
class ArbolesCercanos {
public:
    explicit ArbolesCercanos(const Arboles& arboles) : orden_{arboles.cuantos()} {}

    std::vector<Cuadricula::Fila> filas;

private:
    friend class BuscadorDeCercanos;
    FilasEnOrden orden_;
};

class BuscadorDeCercanos {
public:
    using Fila = Cuadricula::Fila;

    /// Takes the trees with a size. `arboles` must outlive it.
    explicit BuscadorDeCercanos(const Arboles& arboles);

    /// False when a cell of some tree with a size is no number or out of measure; then nothing below may be
    /// asked.
    [[nodiscard]] bool fiable() const { return fiable_; }

    /// Replaces the rows of `cercanas` by the trees within a distance (m) of tree i, itself left out. It may
    /// take in trees that are farther by a rounding; it never leaves one out.
    void buscar(std::size_t i, double radio, ArbolesCercanos& cercanas) const;
    /// The same with a distance for each tree: `porD` times its d, or `radio` where that is more.
    void buscarPorTamano(std::size_t i, double porD, double radio, ArbolesCercanos& cercanas) const;

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

    void marcarLosQueCompartenSitio();

    template <class Alcance>
    void buscarEn(std::size_t i, double mayorAlcance, Alcance alcanceDe, ArbolesCercanos& cercanas) const;

    const Arboles& arboles_;
    bool fiable_ = true;
    Cuadricula cuadricula_;
    double extension_ = 0;
    double mayorD_ = 0;
    std::vector<double> d_; ///< by place of the grid
    std::vector<bool> comparteSitio_;
};

} // namespace varo
