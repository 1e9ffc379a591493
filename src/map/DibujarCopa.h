// The crown of a tree as it is drawn on the map.
#pragma once

#include "lienzo/Lienzo.h"

namespace varo {

/// Four quarter ellipses about the tree, and a point in its place, in the colours of the canvas. A radius of
/// 0 is drawn as half a metre.
void DibujarCopa(Lienzo& lienzo, const Copa& copa);

/// A circle with the mean of the four radii, and a point. Meant: a radius of 0 stays 0.
void DibujarCirculo(Lienzo& lienzo, const Copa& copa);

} // namespace varo
