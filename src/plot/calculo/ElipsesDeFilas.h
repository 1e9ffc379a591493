// The crowns of the grid as ellipses of four radii, in a run that passes over what fails.
#pragma once

#include "lienzo/Copa.h"
#include "plot/calculo/FilasDeCopas.h"

#include <array>
#include <cstddef>
#include <vector>

namespace varo {

/// A row with a size. Each radius is one statement: where its cell is no number, empty or not, it keeps the
/// value of the row before, and of no row 0.
struct ElipseDeFila {
    std::size_t fila = 0; ///< row of the grid, from 1
    Copa copa;
    std::array<std::size_t, 4> filaDelRadio{}; ///< whose cell gave N, E, S and W; 0 for none

    [[nodiscard]] double radioMayor() const;
    /// The same crown in a walk that started behind this row.
    [[nodiscard]] ElipseDeFila trasLaFila(std::size_t primera) const;
};

/// In the order of the grid. Rows without a size, or with coordinates that are no numbers, are passed over.
/// Whatever is no four radii counts as two diameters.
std::vector<ElipseDeFila> ElipsesDeFilas(const FilasDeCopas& filas);

} // namespace varo
