// The rules of the names of the project, each a function from the sources to the breaches found.
#pragma once

#include "arquitectura/Reglas.h"

namespace varo::arquitectura {

/// Types, enumerators and free functions are CamelCase; methods, constants and private members camelCase, the
/// last ones with a trailing underscore. Established names and handlers `<Control>_<Event>` stay as they are.
Infracciones NombresFueraDeEstilo(const std::vector<Fuente>& fuentes);

/// A type outside of other types has its name alone: no other one has it, not even one inside a type. Types
/// inside different types may share theirs.
Infracciones NombresDeDosTipos(const std::vector<Fuente>& fuentes);

} // namespace varo::arquitectura
