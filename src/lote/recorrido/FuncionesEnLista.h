// Model functions of a job, typed into the fields above their list and added with its button.
#pragma once

#include "lote/recorrido/PuestoDeTrabajo.h"

namespace varo {

/// Adds a function to LstAOI (a, b, c, d, e), to LstDist (`tipo` HIP or EXP, and a to e) or to LstRich (A, k,
/// m, or A, k, a to e). Another list, and parameters that are not these, end the job.
void AnadirFuncion(PuestoDeTrabajo& puesto, const Lista& lista, const FuncionPedida& funcion,
                   const Lugar& lugar);

} // namespace varo
