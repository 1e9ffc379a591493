// The run of the indices: its phases in order, from the controls and the grid to the arrays of the results.
#pragma once

namespace varo {

class Programa;

/// Computes the families whose checks are on and shows FrmCrearArchivo. A fault ends the run, with the family
/// and the tree row in its place; what later phases would have computed keeps the values of an earlier run.
/// One that is cancelled leaves all values as they were.
void CorrerIndices(Programa& programa);

} // namespace varo
