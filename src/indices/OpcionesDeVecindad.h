// The options of the families of neighbours, as plain values for the run and for the labels of the file.
#pragma once

#include "indices/archivo/Rotulos.h"
#include "indices/vecinos/Intervalo.h"
#include "options/OpcionesPrograma.h"

namespace varo {

/// The choice of competitors.
ReglaDeSeleccion ReglaElegida(const OpcionesPrograma& opciones, FamiliaConSeleccion familia);

/// The sweep typed into a member of TxtBAF1, TxtBAF2 and TxtBAF3. A text that is no number throws 13, with
/// the field in its place.
Intervalo LeerIntervalo(const OpcionesPrograma& opciones, int miembro);

/// The sweep of the selection parameter: with functions, over the lines of their list, from 0.
Intervalo IntervaloDeSeleccion(const OpcionesPrograma& opciones, FamiliaConSeleccion familia);
/// The member of TxtBAF1 under which its parameter is typed; not with functions.
int MiembroDeSeleccion(const OpcionesPrograma& opciones, FamiliaConSeleccion familia);
/// How many values it has, not rounded. A step of 0 throws 11.
double CuantosParametros(const OpcionesPrograma& opciones, FamiliaConSeleccion familia,
                         const Intervalo& intervalo);

} // namespace varo
