// The rows of the open sheet and the columns that play a role, as the revision of a plot reads them.
#pragma once

#include "revision/ParcelaPorRevisar.h"

namespace varo {

class Programa;

/// Whether the grid has the column of every role that the options ask for.
bool HayColumnasParaTodo(Programa& programa);

/// All but the options, the boundary and the counts. Columns have their numbers of the grid plus one; one
/// whose cells do not reach the grid is empty.
ParcelaPorRevisar ReunirColumnas(Programa& programa);

} // namespace varo
