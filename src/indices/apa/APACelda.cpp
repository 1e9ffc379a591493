#include "indices/apa/APACelda.h"

#include "basico/Saltando.h"

#include <algorithm>
#include <optional>

namespace varo {

namespace {

struct Punto {
    double x = 0;
    double y = 0;
};

/// Vertex v lies where sides v and v + 1 meet; the last row repeats the first.
std::vector<Punto> Vertices(std::span<const LadoAPA> lados) {
    std::vector<Punto> vertices;
    vertices.reserve(lados.size() + 1);
    for (std::size_t v = 0; v < lados.size(); ++v) {
        const LadoAPA& este = lados[v];
        const LadoAPA& otro = lados[v + 1 < lados.size() ? v + 1 : 0];
        const double x = Dividir(otro.intercepto - este.intercepto, este.pendiente - otro.pendiente);
        vertices.push_back({x, este.pendiente * x + este.intercepto});
    }
    vertices.push_back(vertices.front());
    return vertices;
}

bool EstrictamenteEntre(double valor, double a, double b) {
    return std::min(a, b) < valor && valor < std::max(a, b);
}

/// Where the line from one point towards another meets side k of the boundary, if it does so between the ends
/// of the side and on the way. A vertical line and parallel ones throw 11.
std::optional<Punto> CorteConLado(const ContornoXY& contorno, std::size_t k, const Punto& desde,
                                  const Punto& hacia) {
    const auto& [px, py] = contorno;
    const double m = Dividir(hacia.y - desde.y, hacia.x - desde.x);
    const double b = desde.y - m * desde.x;
    const double mLado = Dividir(py[k + 1] - py[k], px[k + 1] - px[k]);
    const double bLado = py[k + 1] - mLado * px[k + 1];
    const double x = Dividir(bLado - b, m - mLado);
    const double y = m * x + b;
    const bool enElLado = EstrictamenteEntre(x, px[k], px[k + 1]) || EstrictamenteEntre(y, py[k], py[k + 1]);
    const bool deCamino = (x - desde.x) * (hacia.x - desde.x) > 0 || (y - desde.y) * (hacia.y - desde.y) > 0;
    return enElLado && deCamino ? std::optional{Punto{x, y}} : std::nullopt;
}

/// The crossing serves the drawing alone: a side of the boundary that cannot be crossed is passed over.
std::optional<Punto> CorteConElContorno(const ContornoXY& contorno, const Punto& desde, const Punto& hacia) {
    std::optional<Punto> corte;
    for (std::size_t k = 0; k + 1 < contorno.x.size() && !corte; ++k) {
        saltando([&] { corte = CorteConLado(contorno, k, desde, hacia); });
    }
    return corte;
}

void Trazar(const ContornoXY& contorno, const Punto& dentro, const Punto& otro, bool otroDentro,
            std::vector<TrazoAPA>& trazos) {
    if (otroDentro) {
        trazos.push_back({dentro.x, dentro.y, otro.x, otro.y});
    } else if (const auto corte = CorteConElContorno(contorno, dentro, otro)) {
        trazos.push_back({dentro.x, dentro.y, corte->x, corte->y});
    }
}

/// Whether a side goes from the inside to the outside. A side with both ends outside says nothing, so a cell
/// that lies wholly outside counts as whole; published values have been worked out so.
bool LaCortaElContorno(std::span<const Punto> vertices, const ContornoXY& contorno,
                       std::vector<TrazoAPA>* trazos) {
    bool cortada = false;
    bool dentro = PuntoEnPoligono(contorno, vertices[0].x, vertices[0].y);
    for (std::size_t v = 0; v + 1 < vertices.size(); ++v) {
        const bool siguienteDentro = PuntoEnPoligono(contorno, vertices[v + 1].x, vertices[v + 1].y);
        cortada = cortada || dentro != siguienteDentro;
        if (trazos != nullptr && (dentro || siguienteDentro)) {
            const bool alReves = !dentro;
            Trazar(contorno, vertices[alReves ? v + 1 : v], vertices[alReves ? v : v + 1],
                   dentro && siguienteDentro, *trazos);
        }
        dentro = siguienteDentro;
    }
    return cortada;
}

} // namespace

double MedirCelda(std::span<const LadoAPA> lados, const ContornoXY& contorno, std::vector<TrazoAPA>* trazos) {
    const std::vector<Punto> vertices = Vertices(lados);
    if (LaCortaElContorno(vertices, contorno, trazos)) {
        return EfectoBorde;
    }
    double area = 0;
    for (std::size_t v = 1; v + 2 < vertices.size(); ++v) {
        area += AreaTrianguloPuntos(vertices[0].x, vertices[0].y, vertices[v].x, vertices[v].y,
                                    vertices[v + 1].x, vertices[v + 1].y);
    }
    return area;
}

} // namespace varo
