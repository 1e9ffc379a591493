// Builds the plot boundary from the trees of the grid.
#pragma once

#include "plot/calculo/Module1.h"

namespace varo {

class Programa;

/// Walks the convex hull of the trees and fills the boundary of the session: Poligono, NumPuntosPoligono,
/// AnguloLado, AnguloInterior and FactorRadios. The grid is sorted by x on the way and left sorted by its
/// first field. A cell that is no number throws 13 with its place; then the boundary ends there, and
/// AnguloInterior is still that of the walk before.
void ConstruirPoligono(Programa& programa);

/// The area of the first n rows of a boundary, in squared units of the coordinates. Where rounding leaves it
/// none, 5 with the cause.
double SuperficieDelContorno(const ContornoXY& contorno, int n);

} // namespace varo
