// Guards the files of the jobs from their outputs.
#pragma once

#include "lote/trabajo/Trabajo.h"

#include <vector>

namespace varo {

/// Jobs that would write over a plot or a job file, and two that would write to one file, throw ErrorTrabajo.
void RechazarSalidasEnConflicto(const std::vector<Trabajo>& trabajos);

} // namespace varo
