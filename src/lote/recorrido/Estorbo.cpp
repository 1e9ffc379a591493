#include "lote/recorrido/Estorbo.h"

#include "formularios/Usuario.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace varo {

namespace {

/// An array of controls of which each competitor selection shows `porSeleccion` members, in order, while
/// these options of the selection are on.
struct Mostrado {
    std::string_view control;
    int porSeleccion;
    std::string_view opcion;
    std::string_view otra = {};
};

constexpr std::array<Mostrado, 5> mostrados{{
    {"OptRichard", 1, "OptFunc"},
    {"OptHiper", 1, "OptFunc"},
    {"LstRich", 1, "OptFunc"},
    {"TxtRich", 3, "OptFunc", "OptRichard"},
    {"TxtHIP", 7, "OptFunc", "OptHiper"},
}};

std::string NombreDe(std::string_view opcion, int seleccion) {
    return Identidad{std::string{opcion}, seleccion}.completa();
}

std::string OpcionQueMuestraIntervalo(int miembro, int seleccion) {
    return EsDePies(miembro) ? NombreDe("OptNumFijo", seleccion)
                             : NombreDe("OptBAF", seleccion) + " u " + NombreDe("OptRadioFijo", seleccion);
}

/// The options of its competitor selection that show a control, or the empty text.
std::string OpcionQueMuestra(const Control& control) {
    const std::string& nombre = control.Name();
    const bool esIntervalo = nombre == "TxtBAF1" || nombre == "TxtBAF2" || nombre == "TxtBAF3";
    if (const auto seleccion = SeleccionDe(control.Index()); esIntervalo && seleccion) {
        return OpcionQueMuestraIntervalo(control.Index(), *seleccion);
    }
    const auto* const mostrado = std::ranges::find(mostrados, nombre, &Mostrado::control);
    if (mostrado == mostrados.end()) {
        return {};
    }
    const int seleccion = control.Index() / mostrado->porSeleccion;
    const std::string opcion = NombreDe(mostrado->opcion, seleccion);
    return mostrado->otra.empty() ? opcion : opcion + " y " + NombreDe(mostrado->otra, seleccion);
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
