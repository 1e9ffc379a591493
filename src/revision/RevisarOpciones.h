// The options of a run: columns, sweeps and functions.
#pragma once

#include "revision/Cuaderno.h"
#include "revision/Lectura.h"

namespace varo {

void RevisarOpciones(const Lectura& lectura, Cuaderno& cuaderno);

/// The lines of the lists of functions, and what comes of them for the trees of the plot.
void RevisarFunciones(const Lectura& lectura, Cuaderno& cuaderno);

} // namespace varo
