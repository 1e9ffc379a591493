// What a job asks for that needs the stem size.
#pragma once

#include "lote/trabajo/Trabajo.h"
#include "options/OpcionesPrograma.h"

#include <string>
#include <vector>

namespace varo {

/// The keys that need a column DAP, in the order of the results file: the checks of all families but the
/// stems per hectare, when results are to be written, and the output of plot data.
std::vector<std::string> PidenDAP(const Trabajo& trabajo, const OpcionesPrograma& opciones);

} // namespace varo
