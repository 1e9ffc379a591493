// Cells of the number columns: texts, units, points, empty cells, sizes that are none.
#pragma once

#include "revision/Cuaderno.h"
#include "revision/Lectura.h"

namespace varo {

/// Texts and dates where numbers are expected, and columns without data.
void RevisarNumeros(const Lectura& lectura, Cuaderno& cuaderno);

/// Empty, zero and negative sizes and crown measures.
void RevisarFaltas(const Lectura& lectura, Cuaderno& cuaderno);

} // namespace varo
