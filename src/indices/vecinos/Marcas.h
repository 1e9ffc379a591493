// The values that stand in place of an index, and the loop over the trees that the families of neighbours
// share.
#pragma once

#include "basico/EnLugar.h"

#include <cstddef>
#include <string>
#include <vector>

namespace varo {

inline constexpr double sinArbol = -3;        ///< the row holds no tree
inline constexpr double arbolDeContorno = -1; ///< the tree stands on a vertex of the plot boundary
inline constexpr double efectoBorde = -2;     ///< what the tree needs reaches beyond the boundary

/// The pair under work, for the place of a fault.
struct Pareja {
    std::size_t sujeto = 0;
    std::size_t vecino = sujeto; ///< the subject itself while no neighbour is at work

    [[nodiscard]] std::string lugar() const {
        const std::string fila = "fila " + std::to_string(sujeto + 1);
        return vecino == sujeto ? fila : fila + ", vecino de la fila " + std::to_string(vecino + 1);
    }
};

/// The index or the marker of every tree, in the order of the rows: `indice` takes the pair and
/// notes in it which neighbour is at work. A fault gets both rows.
template <class Indice>
std::vector<double> ParaCadaArbol(std::size_t arboles, Indice&& indice) {
    std::vector<double> indices;
    indices.reserve(arboles);
    for (std::size_t i = 0; i < arboles; ++i) {
        Pareja pareja{i, i};
        indices.push_back(EnLugar([&] { return pareja.lugar(); }, [&] { return indice(pareja); }));
    }
    return indices;
}

} // namespace varo
