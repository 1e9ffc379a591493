// The hourglass pointer of a window for as long as something takes.
#pragma once

#include "formularios/Formulario.h"

namespace varo {

/// Shows the hourglass until the end of its scope, a fault included.
class Reloj {
public:
    explicit Reloj(Formulario& ventana) : ventana_{ventana} {
        ventana_.MousePointer = Formulario::relojDeArena;
    }
    Reloj(const Reloj&) = delete;
    Reloj& operator=(const Reloj&) = delete;
    ~Reloj() { ventana_.MousePointer = Formulario::punteroNormal; }

private:
    Formulario& ventana_;
};

} // namespace varo
