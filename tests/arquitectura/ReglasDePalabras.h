// The rules of the words in comments, each a function from the sources to the breaches found.
#pragma once

#include "arquitectura/Reglas.h"

namespace varo::arquitectura {

/// The word that marks a step that looks wrong and is right stands only as the tag `Meant:`.
Infracciones EtiquetasMalEscritas(const std::vector<Fuente>& fuentes);

/// The comments of desktop/ call Qt by its name, not by what it is.
Infracciones ComentariosSinElNombreDeQt(const std::vector<Fuente>& fuentes);

} // namespace varo::arquitectura
