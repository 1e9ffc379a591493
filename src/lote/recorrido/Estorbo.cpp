#include "lote/recorrido/Estorbo.h"

#include "formularios/Usuario.h"

#include <algorithm>
#include <array>

namespace varo {

namespace {

/// The option of its selection of competitors that shows a control, or the empty text.
std::string OpcionQueMuestra(const Control& control) {
    const std::string& nombre = control.Name();
    const auto con = [](const char* opcion, int seleccion) {
        return Identidad{opcion, seleccion}.completa();
    };
    const bool esIntervalo = nombre == "TxtBAF1" || nombre == "TxtBAF2" || nombre == "TxtBAF3";
    if (const auto seleccion = SeleccionDe(control.Index()); esIntervalo && seleccion) {
        return EsDePies(control.Index())
                   ? con("OptNumFijo", *seleccion)
                   : con("OptBAF", *seleccion) + " u " + con("OptRadioFijo", *seleccion);
    }
    if (nombre == "TxtRich") {
        return con("OptFunc", control.Index() / 3) + " y " + con("OptRichard", control.Index() / 3);
    }
    if (nombre == "TxtHIP") {
        return con("OptFunc", control.Index() / 7) + " y " + con("OptHiper", control.Index() / 7);
    }
    if (nombre == "LstRich" || nombre == "OptRichard" || nombre == "OptHiper") {
        return con("OptFunc", control.Index());
    }
    return {};
}

} // namespace

int FichaDe(const OpcionesPrograma& opciones, const Control& control) {
    const Control* superior = &control;
    while (superior->contenedor != nullptr) {
        superior = superior->contenedor;
    }
    for (int ficha = 0; ficha < opciones.SSTab1.Tabs(); ++ficha) {
        const auto& contenido = opciones.SSTab1.contenido(ficha);
        if (std::find(contenido.begin(), contenido.end(), superior) != contenido.end()) {
            return ficha;
        }
    }
    return -1;
}

const Casilla* InterruptorDe(const OpcionesPrograma& opciones, const Control& control) {
    const std::array<const Casilla*, 7> interruptores{nullptr,
                                                      nullptr,
                                                      &opciones.ChSupCopa,
                                                      &opciones.ChAOIActivar,
                                                      &opciones.ChIDPActivar,
                                                      &opciones.ChDRActivar,
                                                      &opciones.ChAPA};
    const int ficha = FichaDe(opciones, control);
    const Casilla* const interruptor =
        ficha < 0 ? nullptr : interruptores.at(static_cast<std::size_t>(ficha));
    return interruptor == &control ? nullptr : interruptor;
}

std::optional<std::string> Estorbo(const OpcionesPrograma& opciones, const Control& control) {
    const Casilla* const interruptor = InterruptorDe(opciones, control);
    if (interruptor != nullptr && interruptor->Value() == 0) {
        return "su familia de índices está apagada: falta " + interruptor->Name() + " = 1";
    }
    const auto impedimento = Usuario::impedimento(control);
    if (!impedimento) {
        return std::nullopt;
    }
    if (!OpcionQueMuestra(control).empty()) {
        const bool oculto = impedimento->motivo == Impedimento::Motivo::Invisible;
        return std::string{oculto ? "no está a la vista" : "está inhabilitado"} + ": falta " +
               OpcionQueMuestra(control) + " = true";
    }
    if (&control == &opciones.OptElipse && opciones.OptRM.Value()) {
        return "está inhabilitado: con OptRM las copas son círculos";
    }
    return impedimento->texto();
}

} // namespace varo
