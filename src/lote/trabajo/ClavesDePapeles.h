// The keys under which a job gives the columns of the roles.
#pragma once

#include "plot/calculo/Unidades.h"

#include <string>
#include <string_view>
#include <vector>

namespace varo {

/// The key of the stem size, which is no numbered role.
inline constexpr std::string_view claveDAP = "DAP";

/// By role (data/Papeles.h); the last one is the tree code.
std::vector<std::string> ClavesDePapeles(DatosDeCopa datos);

/// Whether a job may use the key, whatever its crown data.
bool EsClaveDePapel(std::string_view clave);

} // namespace varo
