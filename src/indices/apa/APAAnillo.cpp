#include "indices/apa/APAAnillo.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <limits>

namespace varo {

std::optional<AnilloAPA> CerrarAnillo(const VecinosAPA& vecinos, const GiroAPA& giro) {
    constexpr double senoMinimo = 1E-6;  // docs/apa.md, "The ring as it is computed"
    constexpr double holgura = 1 + 1E-6; // the same
    const auto& lados = giro.lados();
    assert(!lados.empty());
    AnilloAPA anillo{0, std::numeric_limits<double>::infinity()};
    for (std::size_t v = 0; v < lados.size(); ++v) {
        const PuntoAPA a = vecinos.desdeElSujeto(lados[v].vecino);
        const PuntoAPA b = vecinos.desdeElSujeto(lados[v + 1 < lados.size() ? v + 1 : 0].vecino);
        const double distanciaA = std::hypot(a.x, a.y);
        const double distancias = distanciaA * std::hypot(b.x, b.y);
        const double cruz = a.x * b.y - a.y * b.x;
        if (!(cruz > senoMinimo * distancias)) {
            return std::nullopt; // half a turn or more, or two in line
        }
        const double radio = distancias * std::hypot(b.x - a.x, b.y - a.y) / (2 * cruz);
        anillo.radio = std::max(anillo.radio, radio * holgura);
        anillo.vecinoMasCercano = std::min(anillo.vecinoMasCercano, distanciaA);
    }
    if (giro.mayorRadio() > anillo.radio * AnilloAPA::masAllaDelRadio) {
        return std::nullopt;
    }
    return anillo;
}

} // namespace varo
