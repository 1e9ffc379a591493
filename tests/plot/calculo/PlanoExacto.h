// Exact geometry on whole coordinates: the judge of the geometry under test.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <rapidcheck.h>
#include <utility>
#include <vector>

namespace varo::prueba {

using PuntoEntero = std::pair<std::int64_t, std::int64_t>;

/// Twice the signed area of the triangle: positive when c lies to the left of the way from a to b.
inline std::int64_t Orientacion(const PuntoEntero& a, const PuntoEntero& b, const PuntoEntero& c) {
    return (b.first - a.first) * (c.second - a.second) - (b.second - a.second) * (c.first - a.first);
}

/// The corners of the convex hull, clockwise from the leftmost one (the lowest of several), by monotone
/// chains. Points on an edge are no corners; at least three points that are not on one line.
inline std::vector<PuntoEntero> EsquinasDeLaEnvolvente(std::vector<PuntoEntero> puntos) {
    std::ranges::sort(puntos);
    std::vector<PuntoEntero> esquinas;
    const auto anadirCadena = [&esquinas](auto desde, auto hasta) {
        const std::size_t base = esquinas.size() + 1;
        for (auto punto = desde; punto != hasta; ++punto) {
            while (esquinas.size() > base &&
                   Orientacion(esquinas[esquinas.size() - 2], esquinas.back(), *punto) >= 0) {
                esquinas.pop_back();
            }
            esquinas.push_back(*punto);
        }
        esquinas.pop_back(); // The other chain begins with it.
    };
    anadirCadena(puntos.begin(), puntos.end());
    anadirCadena(puntos.rbegin(), puntos.rend());
    return esquinas;
}

/// Different points between -limite and limite, whatever the size that RapidCheck is at.
inline rc::Gen<std::vector<PuntoEntero>> PuntosDistintos(std::size_t cuantos, std::int64_t limite) {
    const auto coordenada =
        rc::gen::resize(rc::kNominalSize, rc::gen::inRange<std::int64_t>(-limite, limite + 1));
    return rc::gen::unique<std::vector<PuntoEntero>>(cuantos, rc::gen::pair(coordenada, coordenada));
}

/// The points without those that stand on one line with two others before them.
inline std::vector<PuntoEntero> EnPosicionGeneral(const std::vector<PuntoEntero>& puntos) {
    std::vector<PuntoEntero> elegidos;
    const auto alineado = [&elegidos](const PuntoEntero& punto) {
        for (std::size_t i = 0; i < elegidos.size(); ++i) {
            for (std::size_t j = i + 1; j < elegidos.size(); ++j) {
                if (Orientacion(elegidos[i], elegidos[j], punto) == 0) {
                    return true;
                }
            }
        }
        return false;
    };
    for (const PuntoEntero& punto : puntos) {
        if (!alineado(punto)) {
            elegidos.push_back(punto);
        }
    }
    return elegidos;
}

/// Coordinates apart, as the geometry takes them.
struct Coordenadas {
    std::vector<double> x;
    std::vector<double> y;
};

inline Coordenadas Separar(const std::vector<PuntoEntero>& puntos) {
    Coordenadas coordenadas;
    for (const auto& [x, y] : puntos) {
        coordenadas.x.push_back(static_cast<double>(x));
        coordenadas.y.push_back(static_cast<double>(y));
    }
    return coordenadas;
}

} // namespace varo::prueba
