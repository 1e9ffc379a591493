#include "formularios/Arrastre.h"

#include "formularios/Formulario.h"

namespace varo {

namespace {

void Avisar(const Control& debajo, Control& origen, PasoDeArrastre paso) {
    if (debajo.DragOver) {
        debajo.DragOver(origen, paso);
    }
}

} // namespace

Arrastre::Arrastre(Ventanas& ventanas, Control& control) : ventanas_{ventanas}, control_{control} {
    sobre(&control); // a drag begins over the control itself
}

void Arrastre::sobre(Control* debajo) {
    if (debajo == debajo_) {
        return;
    }
    Control* const antes = std::exchange(debajo_, debajo);
    ventanas_.atender([&] {
        if (antes != nullptr) {
            Avisar(*antes, control_, PasoDeArrastre::Sale);
        }
        if (debajo != nullptr) {
            Avisar(*debajo, control_, PasoDeArrastre::Entra);
        }
    });
}

void Arrastre::soltar(double x, double y) {
    sobre(nullptr);
    ventanas_.atender([&] { control_.ventana().Form_DragDrop(control_, x, y); });
}

} // namespace varo
