// The tree codes of a table, as the format window lists them.
#pragma once

#include "motor/Tabla.h"

#include <string>
#include <vector>

namespace varo {

/// The distinct texts of a field: numbers by value, then texts. A text equal to the header is left out, as
/// the window may leave it out.
std::vector<std::string> CodigosDeTabla(const Tabla& tabla, const std::string& campo);

} // namespace varo
