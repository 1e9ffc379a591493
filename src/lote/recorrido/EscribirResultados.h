// The index run of a job and its results file.
#pragma once

#include "lote/recorrido/PuestoDeTrabajo.h"

namespace varo {

/// Runs the indices from the map, which is on show, and writes them to the results file of the job, whole or
/// not at all. Hands back the number of columns of the file.
int EscribirResultados(PuestoDeTrabajo& puesto, const SalidaPedida& salida);

} // namespace varo
