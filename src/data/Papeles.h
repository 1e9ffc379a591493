// The roles of the columns of a plot: the index of Sesion::Columnas and of the buttons Command1.
#pragma once

#include "plot/calculo/Unidades.h"

namespace varo {

inline constexpr int papelX = 0;
inline constexpr int papelY = 1;

/// Measures count from 0: radii to the north, east, south and west; diameters north-south and east-west.
constexpr int PapelDeCopa(int medida) {
    return papelY + 1 + medida;
}

/// The number of the tree.
constexpr int PapelIndice(DatosDeCopa datos) {
    return PapelDeCopa(MedidasDeCopa(datos));
}

/// The code of the tree, the last role of all.
constexpr int PapelCodigo(DatosDeCopa datos) {
    return PapelIndice(datos) + 1;
}

} // namespace varo
