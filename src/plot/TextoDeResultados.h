// The plot data window as text for a spreadsheet.
#pragma once

#include <string>

namespace varo {

class FrmResultados;

/// What the labels in sight show, as they show it: a line for each row, cells apart by tabs, codes as
/// columns. A figure of the summary stands apart from its name and its unit.
std::string TextoDeResultados(const FrmResultados& ventana);

} // namespace varo
