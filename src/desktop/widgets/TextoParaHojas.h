// Cells as the text that spreadsheets take from the clipboard.
#pragma once

#include "formularios/Rejilla.h"

#include <string>
#include <vector>

namespace varo {

/// Cells of one line, with tabs between them and without an end of the line.
std::string LineaParaHojas(const std::vector<std::string>& celdas);

/// One column of the grid, its header first, a line for each row.
std::string ColumnaParaHojas(const Rejilla& rejilla, int columna);

/// The header and the rows of all columns that are not hidden, with tabs between their cells.
std::string RejillaParaHojas(const Rejilla& rejilla);

} // namespace varo
