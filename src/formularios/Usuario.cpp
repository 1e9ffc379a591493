#include "formularios/Usuario.h"

#include "formularios/ListasDeArchivos.h"

#include <algorithm>

namespace varo {

namespace {

bool TomaElFoco(TipoControl tipo) {
    return tipo != TipoControl::Etiqueta && tipo != TipoControl::Imagen && tipo != TipoControl::Marco &&
           tipo != TipoControl::Menu;
}

std::optional<Impedimento> ImpedimentoPropio(const Control& control) {
    if (!control.Visible()) {
        return Impedimento{Impedimento::Motivo::Invisible, &control};
    }
    if (!control.Enabled()) {
        return Impedimento{Impedimento::Motivo::Inhabilitado, &control};
    }
    return std::nullopt;
}

const Control* Superior(const Control& control) {
    if (control.tipo() == TipoControl::Menu) {
        return static_cast<const Menu&>(control).padre();
    }
    return control.contenedor;
}

void ExigirUsable(const Control& control) {
    if (const auto impedimento = Usuario::impedimento(control)) {
        throw ActoImposible{control.nombreCompleto() + ": " + impedimento->texto()};
    }
}

void ExigirALaVista(const Formulario& ventana) {
    if (!ventana.Visible()) {
        throw ActoImposible{"la ventana " + ventana.nombre() + " no está a la vista"};
    }
}

/// `numero` counts from 0; `parte` says of what.
void ExigirQueTenga(const Control& control, const char* parte, int numero, int cuantas) {
    if (numero < 0 || numero >= cuantas) {
        throw ActoImposible{control.nombreCompleto() + ": no tiene la " + parte + " " +
                            std::to_string(numero)};
    }
}

} // namespace

std::string Impedimento::texto() const {
    switch (motivo) {
    case Motivo::VentanaOculta:
        return "la ventana " + causa->ventana().nombre() + " no está a la vista";
    case Motivo::Inhabilitado:
        return causa->nombreCompleto() + " está inhabilitado";
    case Motivo::Invisible:
        return causa->nombreCompleto() + " no está a la vista";
    }
    return {};
}

std::optional<Impedimento> Usuario::impedimento(const Control& control) {
    if (!control.ventana().Visible()) {
        return Impedimento{Impedimento::Motivo::VentanaOculta, &control};
    }
    for (const Control* eslabon = &control; eslabon != nullptr; eslabon = Superior(*eslabon)) {
        if (const auto impedimento = ImpedimentoPropio(*eslabon)) {
            return impedimento;
        }
    }
    return std::nullopt;
}

void Usuario::llevarActivacion(Formulario& ventana) {
    // The main window is active through its child; an act on the main window leaves the child active.
    const Formulario* const activa = ventanas_.activa();
    const bool activaPorSuHija =
        ventana.tipo() == TipoVentana::Marco && activa != nullptr && activa->tipo() == TipoVentana::Hija;
    if (!activaPorSuHija) {
        ventanas_.activar(ventana);
    }
}

void Usuario::usar(Control& control, const std::function<void()>& acto) {
    ExigirUsable(control);
    ventanas_.atender([&] {
        const bool conFoco = TomaElFoco(control.tipo());
        llevarActivacion(control.ventana());
        if (conFoco) {
            ventanas_.darFoco(control);
        }
        ExigirUsable(control); // leaving the old window or field may disable or hide this control
        if (conFoco && ventanas_.foco() != &control) {
            return; // the field that was left took the focus back
        }
        acto();
    });
}

void Usuario::clic(Control& control) {
    usar(control, [&] { control.pulsar(); });
}

void Usuario::dobleClic(Control& control) {
    usar(control, [&] { Lanzar(control.DblClick); });
}

Arrastre Usuario::empezarArrastre(Control& control) {
    if (!control.arrastrable) {
        throw ActoImposible{control.nombreCompleto() + ": no se puede arrastrar"};
    }
    usar(control, [] {});
    return {ventanas_, control};
}

void Usuario::arrastrar(Control& control, double x, double y, const std::vector<Control*>& sobre) {
    Arrastre arrastre = empezarArrastre(control);
    for (Control* const otro : sobre) {
        arrastre.sobre(otro);
    }
    arrastre.soltar(x, y);
}

void Usuario::arrastrar(Control& control, Control& destino) {
    empezarArrastre(control).soltar(destino);
}

void Usuario::escribir(CajaTexto& caja, const std::string& texto) {
    usar(caja, [&] { caja.Text = texto; });
}

void Usuario::escribir(Desplegable& caja, const std::string& texto) {
    if (!caja.editable()) {
        throw ActoImposible{caja.nombreCompleto() + ": no se puede escribir en él"};
    }
    usar(caja, [&] { caja.Text = texto; });
}

void Usuario::desplegar(Desplegable& lista) {
    usar(lista, [&] { Lanzar(lista.DropDown); });
}

void Usuario::elegir(Desplegable& lista, int linea) {
    usar(lista, [&] {
        ExigirQueTenga(lista, "línea", linea, lista.ListCount());
        lista.Text = lista.List(linea);
        Lanzar(lista.Click);
    });
}

void Usuario::elegir(Lista& lista, int linea, bool seleccionada) {
    usar(lista, [&] {
        ExigirQueTenga(lista, "línea", linea, lista.ListCount());
        lista.Selected(linea, seleccionada);
        Lanzar(lista.Click);
    });
}

void Usuario::irA(ListaCarpetas& lista, const std::string& carpeta) {
    ExigirUsable(lista);
    ventanas_.atender([&] {
        llevarActivacion(lista.ventana());
        lista.Path(carpeta);
    });
}

void Usuario::seleccionarColumna(Rejilla& rejilla, int columna) {
    usar(rejilla, [&] {
        ExigirQueTenga(rejilla, "columna", columna, rejilla.Cols());
        rejilla.ColSel = columna;
    });
}

void Usuario::mostrarFicha(Fichas& fichas, int ficha) {
    usar(fichas, [&] {
        ExigirQueTenga(fichas, "ficha", ficha, fichas.Tabs());
        fichas.Tab = ficha;
    });
}

void Usuario::dejarFoco() {
    if (Control* const actual = ventanas_.foco()) {
        ventanas_.atender([&] { ventanas_.quitarFoco(*actual); });
    }
}

void Usuario::activar(Formulario& ventana) {
    ExigirALaVista(ventana);
    ventanas_.atender([&] { llevarActivacion(ventana); });
}

void Usuario::cerrar(Formulario& ventana) {
    ExigirALaVista(ventana);
    ventanas_.atender([&] {
        llevarActivacion(ventana);
        ExigirALaVista(ventana);
        ventana.pulsarCierre();
    });
}

} // namespace varo
