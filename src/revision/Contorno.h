// Heights over the sides of the boundary.
#pragma once

#include "revision/ParcelaPorRevisar.h"

#include <cstddef>
#include <optional>

namespace varo {

/// The least distance (m) of a point to the lines of the sides; sides without length are passed over.
double AlturaMinima(const ContornoPorRevisar& contorno, double x, double y);

/// The first side whose two vertices have one x. The side that closes the walk, the last one, may be left
/// out: a point within the breadth of the plot is decided before it is asked.
std::optional<std::size_t> LadoVertical(const ContornoPorRevisar& contorno, bool conElUltimo);

/// Whether the height over one of the sides that pass so near (m) to a point faults by rounding, as the run
/// works it out.
bool FallaLaAltura(const ContornoPorRevisar& contorno, double x, double y, double cerca);

/// Whether the walk stops twice in a row at a point: two trees stand there, and the side between them has no
/// length.
bool SeDetieneEn(const ContornoPorRevisar& contorno, double x, double y);

} // namespace varo
