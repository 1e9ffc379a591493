// The plot data of a job as a file.
#pragma once

#include "lote/recorrido/PuestoDeTrabajo.h"

namespace varo {

/// Computes the plot data from the map, which is on show, and writes them, whole or not at all.
void EscribirDatos(PuestoDeTrabajo& puesto, const SalidaPedida& salida);

} // namespace varo
