// Plane geometry on tree positions, in any unit of length. The procedures guard nothing: each formula keeps
// its order of operations, because results are compared with thresholds and printed.
#pragma once

#include "basico/Aritmetica.h"
#include "basico/Avance.h"
#include "lienzo/Color.h"

#include <functional>
#include <span>

namespace varo {

/// From radians to degrees.
inline constexpr double gradosPorRadian = 180.0 / numeroPi;

/// Distance between two points.
inline double Distancia(double x1, double y1, double x2, double y2) {
    return Raiz((x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1));
}

/// The larger of the two; the first when they are equal.
double Maximo(double a, double b);

/// Area of a triangle by Heron's formula, from its corners and from its sides. A negative value under the
/// root (collinear points, by rounding) throws 5.
inline double AreaTrianguloLados(double a, double b, double c) {
    const double s = ((a + b) + c) / 2.0;
    return Raiz(((s * (s - a)) * (s - b)) * (s - c)); // In another order the last digits change.
}
double AreaTrianguloPuntos(double x1, double y1, double x2, double y2, double x3, double y3);

/// Height from point 1 over the base from point 2 to point 3. Points 2 and 3 in one place throw 11.
double AlturaTriangulo(double x1, double y1, double x2, double y2, double x3, double y3);

/// Interior angle at point 1, in radians. Faults: 11 on equal points, y1 = y2, x2 = x3 or parallel lines;
/// 1004 when rounding takes the sine above 1.
double AnguloVertice(double x1, double y1, double x2, double y2, double x3, double y3);

/// Direction from point 1 to point 2 in degrees, counter-clockwise from the +x axis. Meant: straight down is
/// 90 and straight left is 0. Equal points throw 11; a right angle may throw 1004 by rounding.
double AnguloDireccion(double x1, double y1, double x2, double y2);

/// The circle through three points.
struct CirculoCircunscrito {
    double radio = 0;
    double CentroCircX = 0;
    double CentroCircY = 0;
};
/// y1 = y2, y1 = y3 or points on one line throw 11.
CirculoCircunscrito RadioCircunscrito(double x1, double y1, double x2, double y2, double x3, double y3);

/// A closed polygon: x and y of its rows, the last of which repeats the first.
struct ContornoXY {
    std::span<const double> x;
    std::span<const double> y;
};

/// Area of the first n rows of a convex polygon, fanned from row 0; 0 with three rows or less.
double AreaPoligono(const ContornoXY& contorno, int n);

/// Whether a point lies inside a polygon whose upper chain runs to the right and whose lower chain runs back.
/// A point on an edge is outside. A vertical edge anywhere throws 11, even one far from the point.
bool PuntoEnPoligono(const ContornoXY& contorno, double x, double y);

/// The extent of the polygon. A polygon without rows throws 9.
double MaximoXPoligono(const ContornoXY& contorno);
double MaximoYPoligono(const ContornoXY& contorno);
double MinimoYPoligono(const ContornoXY& contorno);

/// Canopy cover: the fraction of the sample points inside the polygon whose colour is 0 (black). The points
/// stand 1 apart, from the x of row 0 and from the lowest y on; `color` answers the colour at a point. No
/// point inside throws 11; more than 10,000 million points, or a step that is lost in rounding, throw 6. Each
/// point is a step.
float CalcularFcc(const ContornoXY& contorno, const std::function<Color(double, double)>& color,
                  const Avance& avance = {});

} // namespace varo
