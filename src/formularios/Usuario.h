// Acts of a person, without a screen.
#pragma once

#include "formularios/Arrastre.h"
#include "formularios/Control.h"
#include "formularios/Formulario.h"
#include "formularios/Rejilla.h"
#include "formularios/Ventanas.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace varo {

class ListaCarpetas;

/// A person could not do this: the control is disabled or invisible, or its window is not there.
class ActoImposible : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Why a control cannot be used: the control, frame or menu that stands in the way, and what is wrong with
/// it.
struct Impedimento {
    enum class Motivo { VentanaOculta, Inhabilitado, Invisible };

    Motivo motivo = Motivo::VentanaOculta;
    const Control* causa = nullptr; ///< the control itself, or a frame or menu above it

    [[nodiscard]] std::string texto() const;
};

/// Does what a person does with the mouse and the keyboard, and refuses with ActoImposible what a person
/// could not do. Each act first moves the activation and the focus, as a real one does. If that puts the
/// control out of reach, the act is refused; if the field that was left takes the focus back, the act comes
/// to nothing.
class Usuario {
public:
    explicit Usuario(Ventanas& ventanas) : ventanas_{ventanas} {}

    /// What keeps a person from using the control now; nothing when they can.
    [[nodiscard]] static std::optional<Impedimento> impedimento(const Control& control);

    /// Clicks a button, a check, an option, a menu entry or any other control that listens to clicks.
    void clic(Control& control);
    void dobleClic(Control& control);

    /// Drags a control over others, one after the other, and drops it at a point of the free surface of its
    /// window, in the window's units.
    void arrastrar(Control& control, double x, double y, const std::vector<Control*>& sobre = {});
    /// Drops a control on another one, or on itself: it is released where it was pressed.
    void arrastrar(Control& control, Control& destino);
    /// The same in its steps, as a mouse does it: this is the press.
    Arrastre empezarArrastre(Control& control);

    /// Replaces the text by another one.
    void escribir(CajaTexto& caja, const std::string& texto);
    void escribir(Desplegable& caja, const std::string& texto);

    /// Opens a drop-down list.
    void desplegar(Desplegable& lista);
    /// Picks line `linea`, from 0.
    void elegir(Desplegable& lista, int linea);
    /// Selects or deselects a line of a list.
    void elegir(Lista& lista, int linea, bool seleccionada = true);

    /// Goes to a folder by whatever steps lead there.
    void irA(ListaCarpetas& lista, const std::string& carpeta);

    /// Clicks a column of the grid.
    void seleccionarColumna(Rejilla& rejilla, int columna);

    /// Shows a tab of a tabbed dialog.
    void mostrarFicha(Fichas& fichas, int ficha);

    /// Leaves the control that has the focus, as the Tab key does.
    void dejarFoco();

    /// Clicks on the window's title.
    void activar(Formulario& ventana);
    /// Presses the close box of the window.
    void cerrar(Formulario& ventana);

private:
    void usar(Control& control, const std::function<void()>& acto);
    void llevarActivacion(Formulario& ventana);

    Ventanas& ventanas_;
};

} // namespace varo
