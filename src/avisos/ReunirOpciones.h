// The options of the program as the revision of a plot reads them.
#pragma once

#include "avisos/AvisosDeLaHoja.h"
#include "options/OpcionesPrograma.h"
#include "revision/ParcelaPorRevisar.h"

namespace varo {

/// Families are on only where the indices are asked for.
OpcionesPorRevisar ReunirOpciones(const OpcionesPrograma& opciones, const LoPedido& pedido);

} // namespace varo
