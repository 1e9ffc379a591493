// Takes the crowns of a plot from the grid, for the figures that are computed over them.
#pragma once

#include "plot/calculo/FilasDeCopas.h"

namespace varo {

class Programa;

/// All rows of the grid, with FactorRadios as it stands in the session. For ellipses of mean radii, which no
/// option gives, the cells are those of two diameters.
FilasDeCopas ReunirCopas(Programa& programa);

} // namespace varo
