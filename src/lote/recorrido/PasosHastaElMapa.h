// The first steps of every job: what a person does up to the map.
#pragma once

#include "lote/recorrido/PuestoDeTrabajo.h"

namespace varo {

/// Opens the plot and its sheet, sets the options, chooses the columns and fills the format window, which is
/// on show then. What stands in the way ends the job.
void LlegarAlFormato(PuestoDeTrabajo& puesto);

/// Draws the map from the format window. A fault ends the job.
void DibujarMapa(PuestoDeTrabajo& puesto);

} // namespace varo
