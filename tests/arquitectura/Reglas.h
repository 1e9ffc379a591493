// The rules of the architecture, each a function from the sources to the breaches found, worded for the
// person who has to mend them.
#pragma once

#include "arquitectura/Fuente.h"

#include <string>
#include <vector>

namespace varo::arquitectura {

using Infracciones = std::vector<std::string>;

/// Every source stands in a known folder, and what it includes between quotes is written from src/ and
/// exists.
Infracciones IncludesQueNoExisten(const std::vector<Fuente>& fuentes);

/// A folder includes only the folders that it may know.
Infracciones FlechasProhibidas(const std::vector<Fuente>& fuentes);

/// Outside desktop/ and lote/ only headers of the C++ standard library, and none of those whose numbers
/// follow the locale.
Infracciones CabecerasAjenas(const std::vector<Fuente>& fuentes);

/// The folders that compute (plot/calculo, indices/independientes, indices/vecinos, indices/apa) reach no
/// window, not even through another header.
Infracciones CalculoQueConoceVentanas(const std::vector<Fuente>& fuentes);

/// UTF-8 with composed letters inside, plain ASCII in the path.
Infracciones LetrasFueraDeSitio(const std::vector<Fuente>& fuentes);

/// Files of more than 600 lines.
Infracciones FuentesDemasiadoLargas(const std::vector<Fuente>& fuentes);

} // namespace varo::arquitectura
