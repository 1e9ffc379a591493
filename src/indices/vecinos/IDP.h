// IDP, the point density of a tree (Spurr 1962, "A measure of point density"): competitors are ranked by the
// angle under which the tree sees them; each one gives an estimate of the basal area per hectare about the
// tree, and the index is the mean of the estimates.
#pragma once

#include "basico/Reparto.h"
#include "indices/vecinos/Seleccion.h"

#include <vector>

namespace varo {

/// The two forms of the estimate from the tree of rank n.
enum class FormaIDP {
    ConArbolCentral, ///< n + 1/2
    SinArbolCentral  ///< n - 1/2
};

/// One column, in m2/ha: for every tree its index, 0 where it has no competitor, or a marker. The selection
/// has its parameter and ranks by angle. Faults of the selection; 11 on a competitor at distance 0.
std::vector<double> CalcularIDP(const Arboles& arboles, const Seleccion& seleccion, Lado lado, FormaIDP forma,
                                const Faena& faena = {});

} // namespace varo
