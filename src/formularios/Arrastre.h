// A control on its way over its window, from the press of the mouse to its release.
#pragma once

#include "formularios/Control.h"
#include "formularios/Ventanas.h"

namespace varo {

/// Usuario::empezarArrastre makes it. It ends with one of the two releases, or without one when something
/// takes the mouse away. The controls live longer than the drag.
class Arrastre {
public:
    /// The pointer has come over a control of the window, or over its free surface (null).
    void sobre(Control* debajo);
    /// Released on the free surface, at a point in the units of the window.
    void soltar(double x, double y);
    /// Released on a control: nothing takes it there, and nothing moves.
    void soltar(Control& destino) { sobre(&destino); }

private:
    friend class Usuario;

    Arrastre(Ventanas& ventanas, Control& control);

    Ventanas& ventanas_;
    Control& control_;
    Control* debajo_ = nullptr;
};

} // namespace varo
