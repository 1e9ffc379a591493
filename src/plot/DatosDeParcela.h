// The plot data: stems and basal area per hectare, crowns, overlap and cover.
#pragma once

namespace varo {

class Programa;

/// Computes the figures of the plot from the open sheet and the boundary, and shows them in FrmResultados. Up
/// to the sum of the crown areas a fault ends the run; from there on a statement that fails is passed over.
void CalcularDatosDeParcela(Programa& programa);

} // namespace varo
