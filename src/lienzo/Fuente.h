// The font of a text.
#pragma once

#include <string>

namespace varo {

struct Fuente {
    std::string nombre = "MS Sans Serif";
    float tamano = 8; ///< points
    bool negrita = false;
    bool cursiva = false;
    bool tachado = false;
    bool subrayado = false;

    friend bool operator==(const Fuente&, const Fuente&) = default;
};

} // namespace varo
