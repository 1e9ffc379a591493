// Crowns of ellipse in the figures of a plot: the area that pairs of them share, and what lies outside of the
// boundary, counted on samples 0.1 m apart. The run that they belong to passes over what fails.
#pragma once

#include "basico/Avance.h"
#include "basico/Valor.h"
#include "lienzo/Lienzo.h"
#include "plot/calculo/FilasDeCopas.h"
#include "plot/calculo/Module1.h"
#include "plot/calculo/SolapeDeCopas.h"

#include <vector>

namespace varo {

/// Of each pair the part of the first crown that the second one covers; near the boundary, what lies in it
/// alone. Samples beyond the surface do not count. Meant: of the pairs past the 32,768th the last one stays,
/// in the last row. What is counted follows from the crowns and the surface's scale: nothing is painted on
/// it.
void SolaparElipses(const FilasDeCopas& filas, const ContornoXY& contorno, const Lienzo& superficie,
                    SolapeDeCopas& solape, const Avance& avance = {});

/// SupFuera, in the unit of `areas`: the area of each crown by the part of its samples that lies outside. Row
/// t of the grid takes element t - 1; where it is missing or no number, and where the crown has no samples,
/// nothing is added.
double RecortarElipses(const FilasDeCopas& filas, const ContornoXY& contorno, const Lienzo& superficie,
                       const std::vector<Valor>& areas, const Avance& avance = {});

} // namespace varo
