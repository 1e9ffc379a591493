// The phases of the families of neighbours: ISC, AOI, IDP, DR and APA, from the options and the grid to the
// arrays of the results.
#pragma once

namespace varo {

class Programa;
class OpcionesPrograma;

/// Computes, in that order, the families whose switches are on. The hourglass that they put on the map stays
/// when they end well, which is meant. A fault gets the family and the column in its place.
void CorrerFasesDeVecindad(Programa& programa);

/// What cannot be computed yet is refused with a fault that names it.
void RechazarVecindadPendiente(const OpcionesPrograma& opciones);

} // namespace varo
