// What surrounds the trees of the map: the frame, the boundary, the title and the legend.
#pragma once

#include "lienzo/Lienzo.h"
#include "plot/calculo/Module1.h"

namespace varo {

class Programa;

/// The four lines of the frame, in the colour of the canvas.
void DibujarMarco(Lienzo& lienzo);

/// The sides of the plot boundary, in the colour of the canvas.
void DibujarContorno(Lienzo& lienzo, const ContornoXY& contorno);

/// The label of the title, midway between the frame and the top. Format values that nobody has chosen are
/// taken from the format window.
void PonerTitulo(Programa& programa);

/// A label and a bullet for each code, along the lower line of the frame. The canvas is left with the colour
/// of the last one.
void PonerLeyenda(Programa& programa);

} // namespace varo
