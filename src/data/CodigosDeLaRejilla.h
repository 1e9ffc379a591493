// The codes of the trees in the grid.
#pragma once

#include <string>
#include <vector>

namespace varo {

class Rejilla;

/// The texts of a column, each once, in its ascending order; the empty one is no code.
std::vector<std::string> CodigosDeLaRejilla(const Rejilla& rejilla, int columna);

} // namespace varo
