// The cell of APA: its vertices from its sides, whether the plot boundary cuts it, its area and its drawing.
#pragma once

#include "indices/apa/APAGiro.h"
#include "plot/calculo/Module1.h"

#include <span>
#include <vector>

namespace varo {

/// A stroke of a drawing, from one point to another (m).
struct TrazoAPA {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    bool operator==(const TrazoAPA&) const = default;
};

/// The area of the cell with those sides (m2), at least one, fanned from its first vertex; efectoBorde when a
/// side of it goes from the inside of the boundary to the outside. Meant: a cell with all its vertices
/// outside keeps its area. `trazos`, where there is one, becomes the sides that lie inside and the inner part
/// of those that are cut. Faults: 11 on two sides in a row that are parallel, and those of PuntoEnPoligono
/// and AreaTrianguloPuntos.
double MedirCelda(std::span<const LadoAPA> lados, const ContornoXY& contorno, std::vector<TrazoAPA>* trazos);

} // namespace varo
