// The phases of the families of neighbours: ISC, AOI, IDP, DR and APA, from the options and the grid to the
// arrays of the results.
#pragma once

namespace varo {

class Programa;

/// Computes, in that order, the families whose switches are on. A fault gets the family and the column in its
/// place, and takes away the hourglass of the map. Meant: the hourglass stays when a family ends well.
void CorrerFasesDeVecindad(Programa& programa);

} // namespace varo
