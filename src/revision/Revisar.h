// The revision of a plot: what looks wrong in it, before its numbers are trusted. It changes nothing and
// computes no index.
#pragma once

#include "revision/Hallazgo.h"
#include "revision/ParcelaPorRevisar.h"

#include <cstddef>
#include <vector>

namespace varo {

/// All findings, the gravest first and then by row. Of one kind in one column the first `porClase` rows have
/// a finding each, and one more tells the other rows. It throws for no plot.
std::vector<Hallazgo> Revisar(const ParcelaPorRevisar& parcela, std::size_t porClase = 20);

} // namespace varo
