// The options of a job, set in the options dialog in the order in which a person needs them.
#pragma once

#include "lote/recorrido/PuestoDeTrabajo.h"

namespace varo {

/// Sets the options of the job in the dialog, which is on show: what describes the data (the kind of crown
/// data first, the shape of the crowns last), the switches of the families, the other checks, the exclusive
/// options of the families, the texts and the lists. An option that a person could not set so ends the job.
void AplicarOpciones(PuestoDeTrabajo& puesto);

} // namespace varo
