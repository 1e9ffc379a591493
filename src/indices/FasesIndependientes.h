// The phases of the distance-independent families, from the controls and the grid to the arrays of the
// results.
#pragma once

namespace varo {

class Programa;

/// Computes the families whose checks are on, under the hourglass of the map. A fault gets the family in its
/// place.
void CorrerFasesIndependientes(Programa& programa);

} // namespace varo
