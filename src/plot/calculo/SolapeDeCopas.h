// The pairs of crowns that overlap, and the area that they share.
#pragma once

#include "basico/Entero16.h"

#include <vector>

namespace varo {

/// Two crowns that overlap: their rows of the grid, and the area that they share in m2.
struct ParDeCopas {
    double primera = 0, segunda = 0;
    double area = 0;

    friend bool operator==(const ParDeCopas&, const ParDeCopas&) = default;
};

/// Areas that three crowns share count once for each pair.
struct SolapeDeCopas {
    std::vector<ParDeCopas> ParesCopas;
    Entero16 NumParesCopas;       ///< index of the last pair, -1 without pairs
    double AreaIntersecCopas = 0; ///< sum of their areas, in m2
};

} // namespace varo
