// Cells as the text that spreadsheets take from the clipboard.
#pragma once

#include "formularios/Rejilla.h"

#include <string>

namespace varo {

/// One column of the grid, its header first, a line for each row.
std::string ColumnaParaHojas(const Rejilla& rejilla, int columna);

/// The header and the rows of all columns that are not hidden, with tabs between their cells.
std::string RejillaParaHojas(const Rejilla& rejilla);

} // namespace varo
