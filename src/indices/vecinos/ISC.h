// ISC, overlap of crowns: the share of a tree's crown that the crowns of the others cover. Each neighbour
// counts alone: what two of them cover counts twice. It is the competition quotient of Gerrard (1969), with
// the crowns as the circles of competition.
#pragma once

#include "basico/Reparto.h"
#include "indices/vecinos/Lado.h"
#include "indices/vecinos/Vecindad.h"

#include <vector>

namespace varo {

/// The mean crown radii of the trees in metres, 32-bit floats, from the cells of the crown.
class RadiosDeCopa {
public:
    /// `factor` is the divisor from the unit of the cells to metres.
    RadiosDeCopa(const Arboles& arboles, DatosDeCopa datos, int factor);

    /// A cell that is no number throws 13; an empty one too.
    [[nodiscard]] float de(std::size_t i) const { return std::isnan(radios_[i]) ? calcular(i) : radios_[i]; }
    /// Whether every tree with a size has a radius.
    [[nodiscard]] bool todosSinFallo() const { return todosSinFallo_; }
    [[nodiscard]] float mayor() const { return mayor_; }

private:
    [[nodiscard]] float calcular(std::size_t i) const;

    const Arboles& arboles_;
    DatosDeCopa datos_;
    int factor_;
    std::vector<float> radios_; ///< NaN where calcular faults
    bool todosSinFallo_ = true;
    float mayor_ = 0;
};

/// One variant, for crowns as circles: for every tree its index or a marker. Sums are rounded to 32 bits at
/// each addition. Faults of AreaInterseccionCirculos.
std::vector<double> CalcularISC(Vecindad& vecindad, const RadiosDeCopa& radios, Lado lado,
                                const Faena& faena = {});

} // namespace varo
