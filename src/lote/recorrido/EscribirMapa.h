// A map of a job as a file.
#pragma once

#include "lote/recorrido/PintorDeMapas.h"
#include "lote/recorrido/PuestoDeTrabajo.h"

namespace varo {

/// Tells once for all pictures of the job which of the fonts that it names the system does not have. Those of
/// the design, and those of texts that are not seen, nobody asked for.
void AvisarDeLasFuentes(PuestoDeTrabajo& puesto, PintorDeMapas* pintor);

/// Writes the map that is up: its list of shapes for ".txt", otherwise the picture that `pintor` makes.
void EscribirMapa(PuestoDeTrabajo& puesto, const SalidaPedida& salida, PintorDeMapas* pintor);

} // namespace varo
