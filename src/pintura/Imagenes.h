// A drawing as a picture file.
#pragma once

#include "pintura/Pintor.h"

#include <optional>
#include <string>
#include <string_view>

namespace varo {

enum class FormatoDeImagen { Svg, Pdf, Png };

/// By the extension of a file, whatever its capitals; nothing for another one.
std::optional<FormatoDeImagen> FormatoDe(std::string_view archivo);

/// Fills a paper of that size with the whole canvas.
void PintarEntero(QPainter& pintor, const Dibujo& dibujo, QSizeF papel);

/// The bytes of the picture of the whole canvas: 29.7 cm wide as .svg and .pdf, 3,508 pixels as .png. Needs
/// the application object of QtGui.
std::string ImagenDe(const Dibujo& dibujo, FormatoDeImagen formato);

/// Whether the system has the font, and does not put another one in its place.
bool EstaInstalada(const std::string& fuente);

} // namespace varo
