// The figures of the plot data window as the lines of a text.
#pragma once

#include <string>

namespace varo {

class FrmResultados;

/// "LbFcc", a tab and its caption, a line for each figure: codes and values of the stems, then of the basal
/// area, then the summary. Captions stand as they are; tabs and line ends in them become blanks. UTF-8, LF.
std::string TextoDeDatos(const FrmResultados& ventana);

} // namespace varo
