// The crown map out of the screen: on paper and in a file.
#pragma once

#include "pintura/Pintor.h"

#include <string>

class QWidget;

namespace varo {

/// Asks for a file, .svg, .pdf or .png, and writes the whole map into it. What cannot be written is told, and
/// the former file stays.
void GuardarMapa(QWidget& padre, const Dibujo& dibujo, const std::string& titulo);

/// Asks for a printer, and prints the whole map on one page, as large as it has room.
void ImprimirMapa(QWidget& padre, const Dibujo& dibujo, const std::string& titulo);

} // namespace varo
