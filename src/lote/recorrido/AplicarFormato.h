// The format of the map that a job asks for, set in the format window.
#pragma once

#include "lote/recorrido/PuestoDeTrabajo.h"

namespace varo {

/// Works on the window that is up, as a person does: it types the texts, and opens the choosers with prepared
/// answers. A code that the sheet does not have ends the job.
void AplicarFormato(PuestoDeTrabajo& puesto);

} // namespace varo
