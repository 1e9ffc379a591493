// Heights over the sides of the boundary.
#pragma once

#include "revision/ParcelaPorRevisar.h"

#include <cstddef>

namespace varo {

/// The least distance (m) of a point to the lines of the sides; sides without length are passed over.
double AlturaMinima(const ContornoPorRevisar& contorno, double x, double y);

/// Two vertices in a row with one x.
[[nodiscard]] bool TieneLadoVertical(const ContornoPorRevisar& contorno);

} // namespace varo
