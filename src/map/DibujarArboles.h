// The trees of the map: the crown, the point and the label of each row of the grid.
#pragma once

namespace varo {

class Programa;

/// Draws them on FrmMapa in the order of the grid. A coordinate or a radius that is no number throws 13; the
/// trees before it stay.
void DibujarArboles(Programa& programa);

} // namespace varo
