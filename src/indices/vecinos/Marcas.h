// The values that stand in place of an index, and who gets them: what the families of neighbours share.
#pragma once

#include "basico/ErrorEjecucion.h"

#include <cstddef>
#include <string>
#include <vector>

namespace varo {

inline constexpr double SinArbol = -3;        ///< the row holds no tree
inline constexpr double ArbolDeContorno = -1; ///< the tree stands on a vertex of the plot boundary
inline constexpr double EfectoBorde = -2;     ///< what the tree needs reaches beyond the boundary

/// The pair under work, for the place of a fault.
struct Pareja {
    std::size_t sujeto = 0;
    std::size_t vecino = sujeto; ///< the subject itself while no neighbour is at work
};

/// The index or the marker of every tree, in the order of the rows: `indice` takes the pair, in which it
/// notes the neighbour it is at. A fault gets both rows.
template <class Indice>
std::vector<double> ParaCadaArbol(std::size_t arboles, Indice&& indice) {
    std::vector<double> indices;
    indices.reserve(arboles);
    for (std::size_t i = 0; i < arboles; ++i) {
        Pareja pareja{i, i};
        try {
            indices.push_back(indice(pareja));
        } catch (ErrorEjecucion& error) {
            if (pareja.vecino != i) {
                error.en("vecino de la fila " + std::to_string(pareja.vecino + 1));
            }
            error.en("fila " + std::to_string(i + 1));
            throw;
        }
    }
    return indices;
}

} // namespace varo
