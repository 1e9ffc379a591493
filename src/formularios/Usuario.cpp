#include "formularios/Usuario.h"

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

void ExigirLinea(const ConLineas& lista, int linea) {
    if (linea < 0 || linea >= lista.ListCount()) {
        throw ActoImposible{lista.nombreCompleto() + ": no tiene la línea " + std::to_string(linea)};
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
    // The main window is active through its child: what a person does to it leaves the child active.
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
        ExigirUsable(control); // leaving the old window or field may have disabled or hidden this control
        if (conFoco && ventanas_.foco() != &control) {
            return; // the field that was left took the focus back: the act does not reach the control
        }
        acto();
    });
}

void Usuario::clic(Control& control) {
    usar(control, [&] {
        if (control.tipo() == TipoControl::Casilla) {
            auto& casilla = static_cast<Casilla&>(control);
            casilla.Value = casilla.Value() == 0 ? 1 : 0;
        } else if (control.tipo() == TipoControl::Opcion) {
            static_cast<Opcion&>(control).Value = true;
        } else if (control.Click) {
            control.Click();
        }
    });
}

void Usuario::dobleClic(Control& control) {
    usar(control, [&] {
        if (control.DblClick) {
            control.DblClick();
        }
    });
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
    usar(lista, [&] {
        if (lista.DropDown) {
            lista.DropDown();
        }
    });
}

void Usuario::elegir(Desplegable& lista, int linea) {
    usar(lista, [&] {
        ExigirLinea(lista, linea);
        lista.Text = lista.List(linea);
        if (lista.Click) {
            lista.Click();
        }
    });
}

void Usuario::elegir(Lista& lista, int linea, bool seleccionada) {
    usar(lista, [&] {
        ExigirLinea(lista, linea);
        lista.Selected(linea, seleccionada);
        if (lista.Click) {
            lista.Click();
        }
    });
}

void Usuario::seleccionarColumna(Rejilla& rejilla, int columna) {
    usar(rejilla, [&] {
        if (columna < 0 || columna >= rejilla.Cols()) {
            throw ActoImposible{rejilla.nombreCompleto() + ": no tiene la columna " +
                                std::to_string(columna)};
        }
        rejilla.ColSel = columna;
    });
}

void Usuario::mostrarFicha(Fichas& fichas, int ficha) {
    usar(fichas, [&] {
        if (ficha < 0 || ficha >= fichas.Tabs()) {
            throw ActoImposible{fichas.nombreCompleto() + ": no tiene la ficha " + std::to_string(ficha)};
        }
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
