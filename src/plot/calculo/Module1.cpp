#include "plot/calculo/Module1.h"

#include "basico/ErrorEjecucion.h"
#include <cmath>

#include <cstddef>

namespace varo {

namespace {

/// A straight line y = m * x + b.
struct Recta {
    double m = 0;
    double b = 0;
    [[nodiscard]] double en(double x) const { return m * x + b; }
};

Recta RectaConPendiente(double m, double x, double y) {
    return {m, y - m * x};
}

/// The slope of a perpendicular to the segment from point 1 to point 2.
double PendientePerpendicular(double x1, double y1, double x2, double y2) {
    return Dividir(x2 - x1, y1 - y2);
}

Recta Mediatriz(double x1, double y1, double x2, double y2) {
    const double m = PendientePerpendicular(x1, y1, x2, y2);
    return RectaConPendiente(m, (x1 + x2) / 2.0, (y1 + y2) / 2.0);
}

/// The x where two lines meet; parallel ones throw 11.
double Corte(const Recta& r1, const Recta& r2) {
    return Dividir(r2.b - r1.b, r1.m - r2.m);
}

/// The value that beats all others in the rows of a polygon; the closing row only repeats the first.
template <class Supera>
double Extremo(std::span<const double> filas, Supera supera) {
    if (filas.empty()) {
        throw ErrorEjecucion{fallo::fueraDeIndice};
    }
    double extremo = filas[0];
    for (std::size_t i = 1; i + 1 < filas.size(); ++i) {
        if (supera(filas[i], extremo)) {
            extremo = filas[i];
        }
    }
    return extremo;
}

/// Visits desde, desde + 1, ... up to and including hasta.
template <class Visita>
void DeUnoEnUno(double desde, double hasta, Visita visita) {
    double valor = desde;
    while (valor <= hasta) {
        visita(valor);
        valor += 1.0;
    }
}

/// How many points such a walk visits in a box. One that would not end is an overflow.
std::size_t PuntosDeUnoEnUno(double xDesde, double xHasta, double yDesde, double yHasta) {
    constexpr double demasiados = 1E+10; // some ten minutes
    const bool sePierdeUnPaso =
        xHasta + 1.0 == xHasta || yHasta + 1.0 == yHasta || xDesde + 1.0 == xDesde || yDesde + 1.0 == yDesde;
    const double puntos = (std::floor(xHasta - xDesde) + 1.0) * (std::floor(yHasta - yDesde) + 1.0);
    if (sePierdeUnPaso || puntos > demasiados) {
        throw ErrorEjecucion{fallo::desbordamiento};
    }
    return static_cast<std::size_t>(puntos);
}

} // namespace

double Maximo(double a, double b) {
    return b > a ? b : a;
}

double AreaTrianguloPuntos(double x1, double y1, double x2, double y2, double x3, double y3) {
    const double a = Distancia(x1, y1, x2, y2);
    const double b = Distancia(x2, y2, x3, y3);
    const double c = Distancia(x3, y3, x1, y1);
    return AreaTrianguloLados(a, b, c);
}

double AlturaTriangulo(double x1, double y1, double x2, double y2, double x3, double y3) {
    const double A = AreaTrianguloPuntos(x1, y1, x2, y2, x3, y3);
    return Dividir(A + A, Distancia(x2, y2, x3, y3));
}

double AnguloVertice(double x1, double y1, double x2, double y2, double x3, double y3) {
    // Meant: the acute angle from the area, then a construction that tells whether the true one is obtuse.
    const double A = AreaTrianguloPuntos(x1, y1, x2, y2, x3, y3);
    const double d13 = Distancia(x1, y1, x3, y3);
    const double d12 = Distancia(x1, y1, x2, y2);
    const double t = Asin(Dividir(A * 2.0, d12 * d13));

    const Recta perpendicular = RectaConPendiente(PendientePerpendicular(x1, y1, x2, y2), x1, y1);
    const Recta lado = RectaConPendiente(Dividir(y3 - y2, x3 - x2), x3, y3);
    const double qx = Corte(perpendicular, lado);
    const double qy = perpendicular.en(qx);

    // The perpendicular at point 1 meets the opposite side itself only when the angle is a right one or
    // wider.
    const double mx = (x2 + x3) / 2.0;
    const double my = (y2 + y3) / 2.0;
    const bool sobreElLado = Distancia(mx, my, qx, qy) <= Distancia(mx, my, x2, y2);
    return sobreElLado ? numeroPi - t : t;
}

double AnguloDireccion(double x1, double y1, double x2, double y2) {
    const double L = Distancia(x1, y1, x2, y2);
    const double A = AreaTrianguloLados(Distancia(x1, y1, x1 + 1.0, y1), Distancia(x1 + 1.0, y1, x2, y2), L);
    const double t = Asin(Dividir(A * 2.0, L)) * gradosPorRadian;

    // Meant: 1 is taken off before comparing, so that a difference too small to survive it counts as none.
    const double ux1 = x1 - 1.0;
    const double uy1 = y1 - 1.0;
    const double ux2 = x2 - 1.0;
    const double uy2 = y2 - 1.0;
    if (ux2 < ux1 && uy2 > uy1) {
        return 180.0 - t;
    }
    if (ux2 < ux1 && uy2 < uy1) {
        return t + 180.0;
    }
    if (ux2 > ux1 && uy2 < uy1) {
        return 360.0 - t;
    }
    // Meant: the axes fall through; straight down is 90 and straight left is 0.
    return t;
}

CirculoCircunscrito RadioCircunscrito(double x1, double y1, double x2, double y2, double x3, double y3) {
    const Recta mediatriz12 = Mediatriz(x1, y1, x2, y2);
    const Recta mediatriz13 = Mediatriz(x1, y1, x3, y3);
    CirculoCircunscrito circulo;
    circulo.CentroCircX = Corte(mediatriz12, mediatriz13);
    circulo.CentroCircY = mediatriz12.en(circulo.CentroCircX);
    circulo.radio = Distancia(x1, y1, circulo.CentroCircX, circulo.CentroCircY);
    return circulo;
}

double AreaPoligono(const ContornoXY& contorno, int n) {
    const auto& [x, y] = contorno;
    double total = 0;
    for (int i = 1; i <= n - 3; ++i) {
        const auto fila = static_cast<std::size_t>(i);
        total += AreaTrianguloPuntos(x[0], y[0], x[fila], y[fila], x[fila + 1], y[fila + 1]);
    }
    return total;
}

bool PuntoEnPoligono(const ContornoXY& contorno, double x, double y) {
    const auto& [px, py] = contorno;
    for (std::size_t i = 0; i + 1 < px.size(); ++i) {
        // Meant: before any test, so a vertical edge faults even when the point is far from it.
        const double pendiente = Dividir(py[i + 1] - py[i], px[i + 1] - px[i]);
        const Recta lado = RectaConPendiente(pendiente, px[i + 1], py[i + 1]);
        if (px[i] < px[i + 1]) {
            if (x >= px[i] && x <= px[i + 1] && lado.en(x) <= y) {
                return false;
            }
        } else if (x >= px[i + 1] && x <= px[i]) {
            // The first edge of the lower chain that spans x decides.
            return lado.en(x) < y;
        }
    }
    return false;
}

double MaximoXPoligono(const ContornoXY& contorno) {
    return Extremo(contorno.x, std::greater<>{});
}

double MaximoYPoligono(const ContornoXY& contorno) {
    return Extremo(contorno.y, std::greater<>{});
}

double MinimoYPoligono(const ContornoXY& contorno) {
    return Extremo(contorno.y, std::less<>{});
}

float CalcularFcc(const ContornoXY& contorno, const std::function<Color(double, double)>& color,
                  const Avance& avance) {
    const double XMaxPoligono = MaximoXPoligono(contorno);
    const double YMaxPoligono = MaximoYPoligono(contorno);
    const double YMinPoligono = MinimoYPoligono(contorno);
    const std::size_t puntos = PuntosDeUnoEnUno(contorno.x[0], XMaxPoligono, YMinPoligono, YMaxPoligono);
    double dentro = 0;
    double cubierto = 0;
    avance.empezar(puntos);
    DeUnoEnUno(contorno.x[0], XMaxPoligono, [&](double x) {
        DeUnoEnUno(YMinPoligono, YMaxPoligono, [&](double y) {
            avance.paso();
            if (!PuntoEnPoligono(contorno, x, y)) {
                return;
            }
            dentro += 1;
            if (color(x, y) == 0) {
                cubierto += 1;
            }
        });
    });
    return static_cast<float>(Dividir(cubierto, dentro));
}

} // namespace varo
