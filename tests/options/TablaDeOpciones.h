// What a person finds in the options window when the program starts: every control with its state.
#pragma once

#include "formularios/Control.h"

#include <span>
#include <string>

namespace varo::prueba {

struct ControlEsperado {
    const char* nombre;
    int indice; ///< Identidad::sinIndice for a control that is no member of an array
    TipoControl tipo;
    const char* leyenda;
    const char* valor; ///< a check: 0 or 1; an option: no or sí; a field: its text; nothing for the rest
    bool habilitado;
    bool visible;
    const char* lugar; ///< the frame, or the tab, that holds it; nothing for the window itself
};

/// "TxtBAF1(6)", or the name alone.
std::string NombreCompleto(const ControlEsperado& esperado);

std::span<const ControlEsperado> TablaDeOpciones();

} // namespace varo::prueba
