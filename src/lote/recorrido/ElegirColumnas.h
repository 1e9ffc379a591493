// The columns of a job, chosen in the grid and given their roles in the column dialog.
#pragma once

#include "lote/recorrido/PuestoDeTrabajo.h"

namespace varo {

/// Asks for the map, gives each role of the job its column and presses "Dibujar". A role that the kind of
/// crown data does not have, one that is missing, and a column that is not in the grid end the job; a column
/// without data in the grid is a warning.
void ElegirColumnas(PuestoDeTrabajo& puesto);

} // namespace varo
