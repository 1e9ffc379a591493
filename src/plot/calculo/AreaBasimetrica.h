// Basal area: of one tree, and as a sum that the data engine computes.
#pragma once

#include "plot/calculo/Unidades.h"

#include <string>

namespace varo {

/// Basal area of one tree in m2, from its stem size in the units of the sheet.
double AreaBasimetrica(double tamano, const UnidadesTallo& unidades);

/// "SELECT Sum ( [campo]^2... ) as [AB] FROM [hoja": the basal area of a table's trees in m2, up to the
/// table's name without its closing bracket.
std::string ConsultaAreaBasimetrica(const std::string& campo, const std::string& hoja,
                                    const UnidadesTallo& unidades);
/// The same, whole, for the rows that meet a condition.
std::string ConsultaAreaBasimetrica(const std::string& campo, const std::string& hoja,
                                    const UnidadesTallo& unidades, const std::string& condicion);

/// One term of that sum, as the engine evaluates it.
double TerminoAreaBasimetrica(double tamano, const UnidadesTallo& unidades);

} // namespace varo
