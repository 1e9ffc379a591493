// The list of shapes of a canvas as text, for tests and other programs.
#pragma once

#include "lienzo/AspectoDeEtiqueta.h"
#include "lienzo/Lienzo.h"

#include <string>

namespace varo {

/// UTF-8, one shape a line in the order of drawing after the line of the scale, fields between tabs:
///   escala izquierda arriba ancho alto
///   linea x1 y1 x2 y2 color
///   arco x y radio inicio fin aspecto color relleno
///   circulo x y radio color relleno
///   punto x y color
///   copa x y norte este sur oeste color
///   etiqueta nombre izquierda arriba color texto
/// Numbers as in a cell, angles in radians, colours 0x00BBGGRR as eight hexadecimal digits, "-" for no fill;
/// a tab or line end in a text is a blank.
std::string TextoDeLienzo(const Lienzo& lienzo, const LeerAspecto& aspecto);

} // namespace varo
