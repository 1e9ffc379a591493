// The shapes of a canvas, as plain values in user units.
#pragma once

#include "lienzo/Color.h"
#include "lienzo/Copa.h"

#include <optional>
#include <string>
#include <variant>

namespace varo {

/// The colour inside a shape; nothing leaves the outline alone.
using Relleno = std::optional<Color>;

struct Linea {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Color color = 0;

    friend bool operator==(const Linea&, const Linea&) = default;
};

/// A sector of an ellipse whose axes are horizontal and vertical, counter-clockwise from `inicio` to `fin` in
/// radians. Angles are those of the circle before the aspect flattens it; a sector whose end is not above its
/// start passes through the direction of +x. `aspecto` is height / width: below 1 the radius is the
/// horizontal semi-axis, above 1 the vertical one. Its fill reaches to the centre.
struct Arco {
    double x = 0, y = 0;
    double radio = 0;
    double inicio = 0, fin = 0;
    double aspecto = 1;
    Color color = 0;
    Relleno relleno{};

    [[nodiscard]] double semiejeX() const { return aspecto > 1 ? radio / aspecto : radio; }
    [[nodiscard]] double semiejeY() const { return aspecto > 1 ? radio : radio * aspecto; }

    friend bool operator==(const Arco&, const Arco&) = default;
};

struct Circulo {
    double x = 0, y = 0;
    double radio = 0;
    Color color = 0;
    Relleno relleno{};

    friend bool operator==(const Circulo&, const Circulo&) = default;
};

struct Punto {
    double x = 0, y = 0;
    Color color = 0;

    friend bool operator==(const Punto&, const Punto&) = default;
};

/// A crown filled with one colour, on the surface where areas are sampled.
struct CopaLlena {
    Copa copa; ///< as it is painted
    Color color = 0;

    friend bool operator==(const CopaLlena&, const CopaLlena&) = default;
};

/// At this place in the order of drawing a label of the window is shown; what it looks like is its own.
struct EtiquetaMostrada {
    static constexpr int sinIndice = -1;

    std::string nombre;
    int indice = sinIndice; ///< of a member of an array

    friend bool operator==(const EtiquetaMostrada&, const EtiquetaMostrada&) = default;
};

using Figura = std::variant<Linea, Arco, Circulo, Punto, CopaLlena, EtiquetaMostrada>;

/// A rectangle with its sides along the axes.
struct Recuadro {
    double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
};

/// The colour that a shape gives to the points that it covers; nothing when it has no fill.
Relleno RellenoDe(const Figura& figura);
/// Whether the fill of a shape covers the point; false for a shape without fill.
bool Cubre(const Figura& figura, double x, double y);
/// A rectangle that holds every point that the shape covers; with nothing to cover, any one.
Recuadro RecuadroDe(const Figura& figura);

} // namespace varo
