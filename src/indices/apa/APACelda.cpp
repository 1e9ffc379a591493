#include "indices/apa/APACelda.h"

#include "basico/EnLugar.h"
#include "basico/Saltando.h"
#include "indices/vecinos/LadoVertical.h"

#include <algorithm>
#include <cassert>
#include <functional>
#include <optional>

namespace varo {

namespace {

/// Vertex v lies where sides v and v + 1 meet; the last row repeats the first.
std::vector<PuntoAPA> Vertices(std::span<const LadoAPA> lados) {
    std::vector<PuntoAPA> vertices;
    vertices.reserve(lados.size() + 1);
    for (std::size_t v = 0; v < lados.size(); ++v) {
        const LadoAPA& este = lados[v];
        const LadoAPA& otro = lados[v + 1 < lados.size() ? v + 1 : 0];
        const double x = Porque(
            fallo::divisionPorCero, [] { return "dos lados seguidos de la celda son paralelos"; },
            [&] { return Dividir(otro.intercepto - este.intercepto, este.pendiente - otro.pendiente); });
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
std::optional<PuntoAPA> CorteConLado(const ContornoXY& contorno, std::size_t k, const PuntoAPA& desde,
                                     const PuntoAPA& hacia) {
    const auto& [px, py] = contorno;
    const double m = Dividir(hacia.y - desde.y, hacia.x - desde.x);
    const double b = desde.y - m * desde.x;
    const double mLado = Dividir(py[k + 1] - py[k], px[k + 1] - px[k]);
    const double bLado = py[k + 1] - mLado * px[k + 1];
    const double x = Dividir(bLado - b, m - mLado);
    const double y = m * x + b;
    const bool enElLado = EstrictamenteEntre(x, px[k], px[k + 1]) || EstrictamenteEntre(y, py[k], py[k + 1]);
    const bool deCamino = (x - desde.x) * (hacia.x - desde.x) > 0 || (y - desde.y) * (hacia.y - desde.y) > 0;
    return enElLado && deCamino ? std::optional{PuntoAPA{x, y}} : std::nullopt;
}

/// Passes over a side of the boundary that cannot be crossed: the crossing serves the drawing alone.
std::optional<PuntoAPA> CorteConElContorno(const ContornoXY& contorno, const PuntoAPA& desde,
                                           const PuntoAPA& hacia) {
    std::optional<PuntoAPA> corte;
    for (std::size_t k = 0; k + 1 < contorno.x.size() && !corte; ++k) {
        Saltando([&] { corte = CorteConLado(contorno, k, desde, hacia); });
    }
    return corte;
}

void TrazarHastaElContorno(const ContornoXY& contorno, const PuntoAPA& dentro, const PuntoAPA& fuera,
                           std::vector<TrazoAPA>& trazos) {
    if (const auto corte = CorteConElContorno(contorno, dentro, fuera)) {
        trazos.push_back({dentro.x, dentro.y, corte->x, corte->y});
    }
}

/// Which vertices lie inside the boundary.
std::vector<bool> Dentro(std::span<const PuntoAPA> vertices, const ContornoXY& contorno) {
    std::vector<bool> dentro;
    dentro.reserve(vertices.size());
    ExplicandoElLadoVertical([&] {
        for (const auto& [x, y] : vertices) {
            dentro.push_back(PuntoEnPoligono(contorno, x, y));
        }
    });
    return dentro;
}

std::vector<TrazoAPA> Dibujar(std::span<const PuntoAPA> vertices, const std::vector<bool>& dentro,
                              const ContornoXY& contorno) {
    std::vector<TrazoAPA> trazos;
    for (std::size_t v = 0; v + 1 < vertices.size(); ++v) {
        const PuntoAPA& este = vertices[v];
        const PuntoAPA& otro = vertices[v + 1];
        if (dentro[v] && dentro[v + 1]) {
            trazos.push_back({este.x, este.y, otro.x, otro.y});
        } else if (dentro[v]) {
            TrazarHastaElContorno(contorno, este, otro, trazos);
        } else if (dentro[v + 1]) {
            TrazarHastaElContorno(contorno, otro, este, trazos);
        }
    }
    return trazos;
}

} // namespace

double MedirCelda(std::span<const LadoAPA> lados, const ContornoXY& contorno, std::vector<TrazoAPA>* trazos) {
    assert(!lados.empty());
    assert(contorno.x.size() == contorno.y.size());
    const std::vector<PuntoAPA> vertices = Vertices(lados);
    const std::vector<bool> dentro = Dentro(vertices, contorno);
    if (trazos != nullptr) {
        *trazos = Dibujar(vertices, dentro, contorno);
    }
    // Meant: a side with both ends outside does not count as cut, so a cell wholly outside keeps its area.
    const bool cortada =
        std::adjacent_find(dentro.begin(), dentro.end(), std::not_equal_to<>{}) != dentro.end();
    if (cortada) {
        return efectoBorde;
    }
    double area = 0;
    for (std::size_t v = 1; v + 2 < vertices.size(); ++v) {
        area += AreaTrianguloPuntos(vertices[0].x, vertices[0].y, vertices[v].x, vertices[v].y,
                                    vertices[v + 1].x, vertices[v + 1].y);
    }
    return area;
}

} // namespace varo
