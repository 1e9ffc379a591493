// What a cell of a text file holds: the value that a sheet would have there.
#pragma once

#include "motor/ValorDeCelda.h"

#include <string_view>

namespace varo {

/// A number, a date (dd/mm/aaaa, dd-mm-aaaa or aaaa-mm-dd from 1900 on, also with H:mm or H:mm:ss behind it),
/// a time of day (H:mm:ss), a truth value in Spanish or English, or a text. A cell without letters is null,
/// and so is what a spreadsheet shows for an error. Without the day before the month, dates that end in their
/// year stay texts. A text is the cell, which must outlive it.
ValorDeCelda LeerValorCsv(std::string_view celda, char marcaDecimal, bool diaAntesQueMes);

/// True exactly where LeerValorCsv gives no null.
bool TieneValor(std::string_view celda);

/// True for a date like 12/31/2025, which can have its month in front alone.
bool LlevaElMesDelante(std::string_view celda);

} // namespace varo
