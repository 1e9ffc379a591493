// The scale of a surface: which rectangle of the plot it shows.
#pragma once

namespace varo {

/// All in user units (m in a plot), y upward.
struct Escala {
    double izquierda = 0;
    double derecha = 0;
    double abajo = 0;
    double arriba = 0;

    [[nodiscard]] double ancho() const { return derecha - izquierda; }
    /// Negative: on a surface y grows downward.
    [[nodiscard]] double alto() const { return abajo - arriba; }
    /// A scale without extent bounds nothing.
    [[nodiscard]] bool sinExtension() const { return ancho() == 0 || alto() == 0; }
    /// Whether a coordinate, or a point, lies on the surface, its border included.
    [[nodiscard]] bool contieneX(double x) const {
        return sinExtension() || (x >= izquierda && x <= derecha);
    }
    [[nodiscard]] bool contieneY(double y) const { return sinExtension() || (y >= abajo && y <= arriba); }
    [[nodiscard]] bool contiene(double x, double y) const { return contieneX(x) && contieneY(y); }

    friend bool operator==(const Escala&, const Escala&) = default;
};

} // namespace varo
