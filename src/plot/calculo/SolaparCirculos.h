// The pairs of circular crowns that overlap, and the area that they share.
#pragma once

#include "basico/Avance.h"
#include "plot/calculo/FilasDeCopas.h"
#include "plot/calculo/SolapeDeCopas.h"

namespace varo {

/// Replaces the pairs, then their sum. A tree without a size is in no pair. What faults in a row or in a pair
/// is passed over:
/// - a row without a mean radius has that of the row before, as the first tree of a pair or as the second;
/// - a pair whose area faults has that of the pair before, far ones (0) included.
/// Fault: 6 on the pair 32,769. Then the pairs before it stay, and so does the sum from before.
void SolaparCirculos(const FilasDeCopas& copas, SolapeDeCopas& solape, const Avance& avance = {});

} // namespace varo
