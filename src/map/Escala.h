// The scale of the map, computed from its trees, and the frame inside it.
#pragma once

#include "lienzo/Escala.h"

#include <span>

namespace varo {

/// The largest and the smallest value of a column; no value at all throws 9.
double MaximoColumna(std::span<const double> valores);
double MinimoColumna(std::span<const double> valores);

/// The scale for trees at these coordinates: the plot takes 70 % of the width, or of the height when it is
/// taller than wide, and the canvas is 0.7234 times as high as wide. All trees on one point give a scale
/// without extent.
Escala CalcularEscala(std::span<const double> x, std::span<const double> y);

/// The frame of the map, at 10 % and 90 % of the canvas.
Escala MarcoDe(const Escala& escala);

} // namespace varo
