#include "plot/calculo/AreaInterseccionCirculos.h"

#include "basico/Aritmetica.h"
#include "plot/calculo/Module1.h"

#include <cmath>

namespace varo {

namespace {

/// The part of a circle beyond a chord; the centre sees the chord under the angle 2a.
struct Segmento {
    double sector = 0;
    double triangulo = 0;
};

Segmento SegmentoDe(double a, double r) {
    return {a * (r * r), (0.5 * (r * r)) * std::sin(2 * a)};
}

} // namespace

double AreaInterseccionCirculos(double x1, double y1, double x2, double y2, double r1, double r2) {
    // Meant: radius 0 is not special-cased.
    const double d = Distancia(x1, y1, x2, y2);
    const double grande = r1 >= r2 ? r1 : r2;
    const double pequeno = r1 >= r2 ? r2 : r1;
    if (grande + pequeno < d) {
        return 0;
    }
    if (grande - pequeno > d) {
        return ExigirFinito((pequeno * pequeno) * numeroPi);
    }
    const double c1 = Dividir((r1 * r1 + d * d) - r2 * r2, (2 * r1) * d);
    const double c2 = Dividir((r2 * r2 + d * d) - r1 * r1, (2 * r2) * d);
    const Segmento uno = SegmentoDe(Acos(c1), r1);
    const Segmento otro = SegmentoDe(Acos(c2), r2);
    return ExigirFinito(((uno.sector - uno.triangulo) + otro.sector) - otro.triangulo);
}

} // namespace varo
