// AOI, overlap of areas of influence: the sum over the neighbours of a tree of the share of its circle of
// influence that the neighbour's circle covers, times the size ratio raised to a power (Bella 1971, "A new
// competition model for individual trees").
#pragma once

#include "basico/Reparto.h"
#include "indices/vecinos/FuncionesDeLista.h"
#include "indices/vecinos/Lado.h"
#include "indices/vecinos/Vecindad.h"

#include <vector>

namespace varo {

/// The radii of influence of the trees, in metres, from their diameters in centimetres; each one is computed
/// once.
class RadiosDeInfluencia {
public:
    RadiosDeInfluencia(const Arboles& arboles, const SumaDePotencias& funcion);

    /// Faults of the diameter and of the function.
    [[nodiscard]] double de(std::size_t i) const {
        return std::isnan(radios_[i]) ? funcion_.en(arboles_.diametro(i)) : radios_[i];
    }
    /// Whether every tree with a size has a radius.
    [[nodiscard]] bool todosSinFallo() const { return todosSinFallo_; }
    [[nodiscard]] double mayor() const { return mayor_; }

private:
    const Arboles& arboles_;
    SumaDePotencias funcion_;
    std::vector<double> radios_; ///< NaN where the function faults
    bool todosSinFallo_ = true;
    double mayor_ = 0;
};

/// One column: for every tree its index or a marker. Faults: 11 on a radius of 0 with a neighbour and on a
/// size of 0 that is not written "0"; those of AreaInterseccionCirculos.
std::vector<double> CalcularAOI(Vecindad& vecindad, const RadiosDeInfluencia& radios, Lado lado, double k,
                                const Faena& faena = {});

} // namespace varo
