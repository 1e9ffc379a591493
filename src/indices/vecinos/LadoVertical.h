// A vertical side of the boundary, on which PuntoEnPoligono faults.
#pragma once

#include "basico/EnLugar.h"

#include <utility>

namespace varo {

/// Runs `acto`, which asks PuntoEnPoligono; a division by zero gets its cause in words.
template <class Acto>
decltype(auto) ExplicandoElLadoVertical(Acto&& acto) {
    return Porque(
        fallo::divisionPorCero,
        [] {
            return "un lado del contorno es vertical: dos árboles seguidos del contorno tienen la misma X";
        },
        std::forward<Acto>(acto));
}

} // namespace varo
