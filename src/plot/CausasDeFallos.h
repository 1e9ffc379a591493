// Why the figures of a plot fail, in words.
#pragma once

#include <string>
#include <vector>

namespace varo {

class ErrorEjecucion;
class Programa;

/// A query with bare field names breaks on a header that is no single word. `calculo` is what it was for:
/// "los pies se cuentan".
void ExplicarCabecera(ErrorEjecucion& error, const std::string& calculo,
                      const std::vector<std::string>& campos);

/// What nobody nearer has explained is divided by the area of the plot, where that is 0.
void ExplicarSuperficie(ErrorEjecucion& error, Programa& programa);

} // namespace varo
