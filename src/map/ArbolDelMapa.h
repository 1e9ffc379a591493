// A tree as it was when the map was drawn: the rows of the grid change places afterwards.
#pragma once

#include "lienzo/Copa.h"

#include <string>

namespace varo {

/// Texts are those of the cells.
struct ArbolDelMapa {
    Copa copa; ///< as it was measured: a radius of 0 stays 0
    std::string numero;
    std::string codigo; ///< empty without tree codes
    std::string tamano; ///< of the stem; empty where no column was chosen for it
};

} // namespace varo
