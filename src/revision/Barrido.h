// The values that a sweep runs through.
#pragma once

#include "revision/ParcelaPorRevisar.h"

#include <cstddef>
#include <optional>

namespace varo {

/// What a run makes of the three texts of a sweep.
struct BarridoLeido {
    double desde = 0, hasta = 0, paso = 0;
    double caben = 0;        ///< how many values it has room for, not rounded
    std::size_t valores = 0; ///< how many a loop runs through, up to one more than a run can hold
    bool avanza = true;      ///< false for a step that is 0 or lost in rounding

    [[nodiscard]] double valor(std::size_t lugar) const { return desde + static_cast<double>(lugar) * paso; }
};

/// Nothing where one of the texts is no number.
std::optional<BarridoLeido> LeerBarrido(const BarridoPorRevisar& barrido);

} // namespace varo
