// The scale of the map: which rectangle of the plot a surface shows, and the frame inside it.
#pragma once

#include <span>

namespace varo {

/// All in plot units (m), y upward.
struct Escala {
    double izquierda = 0;
    double derecha = 0;
    double abajo = 0;
    double arriba = 0;

    [[nodiscard]] double ancho() const { return derecha - izquierda; }
    /// Negative: on a surface y grows downward.
    [[nodiscard]] double alto() const { return abajo - arriba; }

    friend bool operator==(const Escala&, const Escala&) = default;
};

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
