// The boundary of the plot and the stems within it, worked out without a map.
#pragma once

#include "revision/ParcelaPorRevisar.h"

namespace varo {

class Programa;

/// Adds to a plot, whose columns and options are those of the program, the boundary that the next map will
/// have, and the stems per hectare where a calculation asks for them. A fault stands in the place of its
/// figure. Coordinates that are no numbers leave the plot without a boundary.
void Cercar(ParcelaPorRevisar& parcela, Programa& programa);

} // namespace varo
