// A map of a job as a file.
#pragma once

#include "lote/recorrido/PintorDeMapas.h"
#include "lote/recorrido/PuestoDeTrabajo.h"

namespace varo {

/// Writes the map that is up: its list of shapes for ".txt", otherwise the picture that `pintor` makes.
void EscribirMapa(PuestoDeTrabajo& puesto, const SalidaPedida& salida, PintorDeMapas* pintor);

} // namespace varo
