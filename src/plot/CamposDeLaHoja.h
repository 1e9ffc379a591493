// The fields of the open table that the roles stand for.
#pragma once

#include <string>

namespace varo {

class Programa;

/// The name of the field of a role. A role without a column throws 9, a column that is no field 3265.
std::string CampoDePapel(Programa& programa, int papel);

/// The field of the stem size. 3265, with the cause, where no column was chosen.
std::string CampoDelTallo(Programa& programa);

} // namespace varo
