// The crowns of the trees of a run with their four radii, for the overlap of ellipses.
#pragma once

#include "indices/vecinos/Arboles.h"
#include "lienzo/Copa.h"

#include <cmath>
#include <cstddef>
#include <vector>

namespace varo {

/// In metres. A radius of 0 stays 0.
class CopasDeArboles {
public:
    /// From four radii or two diameters; `factor` is the divisor from the unit of the cells to metres.
    CopasDeArboles(const Arboles& arboles, DatosDeCopa datos, int factor);

    /// A cell that is no number throws 13; an empty one too.
    [[nodiscard]] const Copa& de(std::size_t i) const {
        if (std::isnan(copas_[i].x)) {
            static_cast<void>(calcular(i));
        }
        return copas_[i];
    }

private:
    [[nodiscard]] Copa calcular(std::size_t i) const;

    const Arboles& arboles_;
    DatosDeCopa datos_;
    int factor_;
    std::vector<Copa> copas_; ///< without a number for x where calcular faults
};

} // namespace varo
