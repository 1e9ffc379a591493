// The revision of a job: what looks wrong in its plot, before its numbers are trusted.
#pragma once

#include "lote/recorrido/PuestoDeTrabajo.h"
#include "revision/Hallazgo.h"

#include <vector>

namespace varo {

/// What looks wrong for the outputs that the job asks for; the format window is on show.
std::vector<Hallazgo> HallazgosDe(PuestoDeTrabajo& puesto);

/// Adds that the map cannot be drawn, where no finding says that the job ends in a fault.
void AnadirFalloDelDibujo(std::vector<Hallazgo>& hallazgos, const ErrorTrabajo& error);

/// Does a job up to its map and writes nothing. A fault of the drawing is a finding; what ends a job before
/// is an ErrorTrabajo.
std::vector<Hallazgo> RevisarTrabajo(const Trabajo& trabajo, const Seguimiento& seguimiento = {});

} // namespace varo
