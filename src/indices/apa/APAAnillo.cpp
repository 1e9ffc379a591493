#include "indices/apa/APAAnillo.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstddef>
#include <limits>

namespace varo {

namespace {

// docs/apa.md derives these.
constexpr double u = std::numeric_limits<double>::epsilon() / 2; // the unit roundoff, 2^-53
constexpr double senoMinimo = 1E-6;

void PonerLados(const VecinosAPA& vecinos, const GiroAPA& giro, AnilloAPA& anillo) {
    anillo.lados.clear();
    anillo.vecinoMasCercano = std::numeric_limits<double>::infinity();
    for (const LadoAPA& lado : giro.lados()) {
        const PuntoAPA vecino = vecinos.desdeElSujeto(lado.vecino);
        const double distancia = std::sqrt(vecino.x * vecino.x + vecino.y * vecino.y);
        anillo.lados.push_back(
            {vecinos.filas[lado.vecino], vecino, distancia, std::abs(vecino.y) / distancia, 0});
        anillo.vecinoMasCercano = std::min(anillo.vecinoMasCercano, distancia);
    }
}

/// False where two sides in a row are half a turn apart or more, or in line.
bool PonerCirculos(AnilloAPA& anillo) {
    anillo.circulos.clear();
    for (std::size_t v = 0; v < anillo.lados.size(); ++v) {
        const auto& [arbolA, a, distanciaA, inclinacionA, senoA] = anillo.lados[v];
        const auto& [arbolB, b, distanciaB, inclinacionB, senoB] =
            anillo.lados[v + 1 < anillo.lados.size() ? v + 1 : 0];
        const double cruz = a.x * b.y - a.y * b.x;
        const double seno = cruz / (distanciaA * distanciaB);
        if (!(seno > senoMinimo)) {
            return false;
        }
        const double a2 = distanciaA * distanciaA;
        const double b2 = distanciaB * distanciaB;
        const PuntoAPA centro{(a2 * b.y - b2 * a.y) / (2 * cruz), (b2 * a.x - a2 * b.x) / (2 * cruz)};
        anillo.circulos.push_back({centro, std::sqrt(centro.x * centro.x + centro.y * centro.y), seno});
    }
    return true;
}

/// docs/apa.md, "Circles through a far neighbour".
void PonerMargenes(double medida, AnilloAPA& anillo) {
    const double m = anillo.vecinoMasCercano;
    anillo.tolerancia = 0;
    for (std::size_t v = 0; v < anillo.circulos.size(); ++v) {
        const auto& [centro, radio, seno] = anillo.circulos[v];
        auto& este = anillo.lados[v];
        auto& otro = anillo.lados[v + 1 < anillo.lados.size() ? v + 1 : 0];
        const double inclinacion = std::min(este.inclinacion, otro.inclinacion);
        const double alCentro = (medida + radio) / (inclinacion * seno);
        const double alCirculo = radio * radio / (m * seno);
        const double alVecino = medida * (1 + radio / m);
        anillo.tolerancia = std::max(anillo.tolerancia, 4096 * u * (alCentro + alCirculo + alVecino));
        for (auto* lado : {&este, &otro}) {
            const double margen = 1024 * u * (1 / lado->inclinacion + (2 * radio + medida) / m) / seno;
            lado->seno = std::max(lado->seno, margen);
        }
    }
}

} // namespace

bool CerrarAnillo(const VecinosAPA& vecinos, const GiroAPA& giro, double medida, AnilloAPA& anillo) {
    assert(!giro.lados().empty());
    PonerLados(vecinos, giro, anillo);
    if (!PonerCirculos(anillo)) {
        return false;
    }
    PonerMargenes(medida, anillo);
    return true;
}

} // namespace varo
