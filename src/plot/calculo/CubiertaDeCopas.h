// The crowns that the canopy cover is counted on.
#pragma once

#include "basico/Avance.h"
#include "lienzo/Lienzo.h"
#include "plot/calculo/FilasDeCopas.h"

namespace varo {

/// Paints the crowns of all rows black on a surface that is cleared before, those of rows without a size too:
/// as ellipses of four radii, as circles of the mean of the four, or as circles of the mean radius that the
/// sheet has, whatever the form asked for. An empty cell counts as 0. The cells of a row are one statement:
/// where one is no number the row keeps the radii of the row before, and of no row 0. A row with coordinates
/// that are no numbers is passed over.
void PintarCopas(const FilasDeCopas& filas, bool elipses, Lienzo& superficie, const Avance& avance = {});

} // namespace varo
