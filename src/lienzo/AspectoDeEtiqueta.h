// What a label of a canvas looks like.
#pragma once

#include "lienzo/Color.h"
#include "lienzo/Figuras.h"
#include "lienzo/Fuente.h"

#include <functional>
#include <string>

namespace varo {

/// The list of shapes does not hold it. Place and size are in user units.
struct AspectoDeEtiqueta {
    double izquierda = 0;
    double arriba = 0;
    Color color = 0; ///< of its letters
    std::string texto;
    double ancho = 0;
    Relleno fondo{};
    Fuente fuente{};
    bool centrada = false; ///< its text stands on the middle of the label, not at its left
};

/// Looks up a label that the list shows.
using LeerAspecto = std::function<AspectoDeEtiqueta(const EtiquetaMostrada&)>;

} // namespace varo
