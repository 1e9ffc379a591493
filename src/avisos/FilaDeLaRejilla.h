// Where a row of the sheet stands in the grid.
#pragma once

#include <optional>

namespace varo {

class Programa;

/// The row of the grid that holds the row of the open sheet with that number, as the spreadsheet shows it.
/// Nothing for a row that is not in the grid: one without data, or one without coordinates once the map was
/// drawn.
std::optional<int> FilaDeLaRejilla(Programa& programa, int filaDeLaHoja);

} // namespace varo
