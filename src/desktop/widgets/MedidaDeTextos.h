// How wide the columns of a grid are on the screen.
#pragma once

#include "formularios/Rejilla.h"

#include <vector>

class QFontMetricsF;

namespace varo {

/// The width of each column in pixels: its widest text and a margin of 100 twips, up to what 16 bits hold in
/// twips. Column 0 takes the header of column 1, as in the grid itself.
std::vector<int> MedirColumnas(const Rejilla& rejilla, const QFontMetricsF& letra);

} // namespace varo
