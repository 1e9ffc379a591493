// The trees of the grid and where they stand in the sheet: what a message needs to name one.
#pragma once

#include "plot/calculo/Padron.h"

namespace varo {

class ErrorEjecucion;
class Programa;

/// The trees of the grid in its order. Tree numbers come from the column with that role, as far as one has
/// it.
Padron PadronDeLaRejilla(Programa& programa);

/// Adds the number of the tree to a fault of a query that names a row of the open sheet. The row may have
/// left the grid.
void PonerArbol(ErrorEjecucion& error, Programa& programa);

} // namespace varo
