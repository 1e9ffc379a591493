// The command varo-lote --revisar.
#pragma once

#include "lote/LineaDeOrdenes.h"
#include "lote/Lote.h"

namespace varo {

/// Says what looks wrong in the plot of each job. It ends as the job that ends worst: one that cannot be done
/// at all, then a fault, then wrong numbers.
Estado RevisarTrabajos(const Ordenes& ordenes, const Consola& consola);

} // namespace varo
