// The values that stand in place of an index, and the loop over the trees that the families of neighbours
// share.
#pragma once

#include "basico/EnLugar.h"
#include "basico/Reparto.h"
#include "indices/vecinos/Arboles.h"

#include <cstddef>
#include <vector>

namespace varo {

inline constexpr double sinArbol = -3;        ///< the row holds no tree
inline constexpr double arbolDeContorno = -1; ///< the tree stands on a vertex of the plot boundary
inline constexpr double efectoBorde = -2;     ///< what the tree needs reaches beyond the boundary

/// The pair under work, for the place of a fault.
struct Pareja {
    std::size_t sujeto = 0;
    std::size_t vecino = sujeto; ///< the subject itself while no neighbour is at work

    /// Adds both rows to a fault; to one of a cell, which has its row already, the subject's alone.
    void situar(ErrorEjecucion& error, const Padron& padron) const {
        if (!error.fila()) {
            if (vecino != sujeto) {
                error.en("con el vecino de la " + padron.breve(vecino));
            }
            padron.situar(error, sujeto);
        } else if (error.fila() != padron.fila(sujeto)) {
            error.en("al calcular la " + padron.breve(sujeto));
        }
    }
};

/// The index or the marker of every tree, in the order of the rows: `columna.indice` takes the pair and notes
/// in it which neighbour is at work. A fault gets both rows. Each tree is a step. Threads work with copies of
/// `columna`; `enOrden` as in Repartir.
template <class Columna>
std::vector<double> ParaCadaArbol(const Arboles& arboles, const Faena& faena, const Columna& columna,
                                  const Hacer& enOrden = {}) {
    std::vector<double> indices(arboles.cuantos());
    const auto crear = [&]() -> Hacer {
        return [&, suya = columna](std::size_t i) mutable {
            Pareja pareja{i, i};
            const auto situar = [&](ErrorEjecucion& error) { pareja.situar(error, arboles.padron()); };
            indices[i] = AlFallar(situar, [&] { return suya.indice(pareja); });
        };
    };
    Repartir(arboles.cuantos(), faena, crear, enOrden);
    return indices;
}

} // namespace varo
