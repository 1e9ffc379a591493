// The ring that the sides of a cell make about its tree, and what it says about the trees beyond it: how far
// away a tree can still matter to the cell. docs/apa.md, "The ring".
#pragma once

#include "indices/apa/APAGiro.h"

#include <optional>

namespace varo {

struct AnilloAPA {
    /// A circle that comes out this many times larger than R is larger than R, whatever was rounded.
    static constexpr double masAllaDelRadio = 1.025;

    double radio = 0;            ///< R: the largest circle through the tree and two neighbours in a row (m)
    double vecinoMasCercano = 0; ///< m: the distance of the nearest neighbour (m)
};

/// The ring of a turn that has ended. Nothing where the sides do not close about the tree, or where a
/// neighbour was taken by a circle beyond R.
std::optional<AnilloAPA> CerrarAnillo(const VecinosAPA& vecinos, const GiroAPA& giro);

} // namespace varo
