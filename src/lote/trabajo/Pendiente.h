// What a job may ask for and the program cannot do yet.
#pragma once

#include "lote/trabajo/Trabajo.h"

namespace varo {

/// Refuses with ErrorTrabajo what is still to come, and pictures where there is nobody to paint them.
void RechazarLoPendiente(const Trabajo& trabajo, bool conPintor);

} // namespace varo
