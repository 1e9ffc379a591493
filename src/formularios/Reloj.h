// The hourglass pointer of a window for as long as something takes.
#pragma once

#include "basico/AlSalir.h"
#include "formularios/Formulario.h"

namespace varo {

/// Shows the hourglass until the end of the scope that keeps the result.
[[nodiscard]] inline auto PonerReloj(Formulario& ventana) {
    ventana.MousePointer = Formulario::relojDeArena;
    return AlSalir{[&ventana] { ventana.MousePointer = Formulario::punteroNormal; }};
}

} // namespace varo
