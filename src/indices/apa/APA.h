// APA, area potentially available: the area of the cell about a tree, whose sides are bisectors weighted by
// size between it and its neighbours (Brown 1965, "Point density in stems per acre"; weighted bisectors after
// Moore, Budelsky and Schlesinger 1973). A larger tree pushes the side away: it stands at
// W * L from the tree, W = d(i)^k / (d(i)^k + d(j)^k), d in metres.
#pragma once

#include "basico/Reparto.h"
#include "indices/apa/APACelda.h"
#include "indices/vecinos/Arboles.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace varo {

/// Gets the strokes of the cells in the order of the trees, on the thread of the caller: the tree, numbered
/// from 0, and its sides inside the plot.
using DibujoAPA = std::function<void(std::size_t, std::span<const TrazoAPA>)>;

/// One column, that of the exponent k: for every tree the area of its cell (m2) or a marker. Faults: 11 on
/// two trees of one x or one y, on neighbours in line with a tree, and on a tree without neighbours; 5 and
/// 1004 by rounding, on a direction too near to an axis; those of the cells, of the power and of
/// PuntoEnPoligono. The drawing may be left out.
///
/// Trees far from a cell are left out of its turn where that changes no bit of it (docs/apa.md).
std::vector<double> CalcularAPA(const Arboles& arboles, const ContornoXY& contorno, double k,
                                const DibujoAPA& dibujo = {}, const Faena& faena = {});

/// The last circle that such a column asks for when its turns are over all trees: one of its last tree with a
/// cell. None when no tree has two neighbours.
std::optional<CirculoCircunscrito> UltimoCirculoAPA(const Arboles& arboles, double k);

} // namespace varo
