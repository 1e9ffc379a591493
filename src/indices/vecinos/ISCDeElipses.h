// ISC for crowns of four quarter ellipses: crowns are painted on a surface, and of the samples of a tree's
// crown, 0.1 m apart, those are counted that the crowns of the others cover.
#pragma once

#include "basico/Avance.h"
#include "indices/vecinos/CopasDeArboles.h"
#include "indices/vecinos/Lado.h"
#include "indices/vecinos/Vecindad.h"
#include "lienzo/Lienzo.h"

#include <vector>

namespace varo {

/// One variant: for every tree its index or a marker. Samples outside of the surface do not count. The
/// surface keeps what was painted for the last tree. A crown without samples throws 11; near a vertical side
/// of the boundary a crown throws 11 too.
std::vector<double> CalcularISCDeElipses(Vecindad& vecindad, const CopasDeArboles& copas, Lado lado,
                                         Lienzo& superficie, const Avance& avance = {});

} // namespace varo
