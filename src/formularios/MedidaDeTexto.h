// How large a text is, by a rule that needs no screen.
#pragma once

#include "formularios/Servicios.h"

#include <string_view>

namespace varo {

/// In twips.
struct MedidaDeTexto {
    double ancho = 0;
    double alto = 0;

    friend bool operator==(const MedidaDeTexto&, const MedidaDeTexto&) = default;
};

/// With s the size of the font in points, a character is 75 s / 8 wide and a line 24 s high. An empty text is
/// 300 wide.
MedidaDeTexto MedirTexto(std::string_view texto, const Fuente& fuente);

} // namespace varo
