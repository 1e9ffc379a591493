// Basal area per hectare of the trees larger than each tree (BAL; Wykoff, Crookston and Stage 1982).
#pragma once

#include "basico/Avance.h"
#include "motor/BaseDatos.h"
#include "plot/calculo/Padron.h"
#include "plot/calculo/Unidades.h"

#include <span>
#include <string>
#include <vector>

namespace varo {

/// "... WHERE [campo] > tamano": the sum (m2) over the trees strictly larger than a size. The text of the
/// size enters the query unchanged.
std::string ConsultaMayores(const std::string& campo, const std::string& tabla, const UnidadesTallo& unidades,
                            const std::string& tamano);

/// For the text of each stem size cell, the basal area per hectare (m2/ha) of the larger trees of the table;
/// 0 for a cell that is empty or no number, for the size 0 and where no tree is larger. `supPoligono` in m2;
/// an area of 0 throws 11.
///
/// `padron` says where the trees stand in the sheet, for the places of faults.
/// The sums are added in the order of the table's rows, as the engine adds them, several trees side by side.
std::vector<double> CalcularABj(const BaseDatos& base, const std::string& campo, const std::string& tabla,
                                const UnidadesTallo& unidades, std::span<const std::string> celdas,
                                double supPoligono, const Padron& padron = {}, const Avance& avance = {});

} // namespace varo
