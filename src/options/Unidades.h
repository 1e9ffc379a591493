// The options that say what the columns of the sheet mean, as plain values for the computations.
#pragma once

#include "options/OpcionesPrograma.h"
#include "plot/calculo/Unidades.h"

namespace varo {

inline UnidadesTallo UnidadesDelTallo(const OpcionesPrograma& opciones) {
    UnidadesTallo unidades{opciones.OptCAP.Value, UnidadLongitud::Metros};
    if (opciones.OptCMDIA.Value) {
        unidades.unidad = UnidadLongitud::Centimetros;
    } else if (opciones.OptDMDIA.Value) {
        unidades.unidad = UnidadLongitud::Decimetros;
    }
    return unidades;
}

/// Divisor from the unit of the crown radii to metres.
inline int FactorDeRadios(const OpcionesPrograma& opciones) {
    if (opciones.Optmetro.Value) {
        return 1;
    }
    return opciones.Optdecim.Value ? 10 : 100;
}

inline DatosDeCopa DatosDeLaCopa(const OpcionesPrograma& opciones) {
    if (opciones.Opt4R.Value) {
        return DatosDeCopa::CuatroRadios;
    }
    return opciones.Opt2D.Value ? DatosDeCopa::DosDiametros : DatosDeCopa::RadioMedio;
}

} // namespace varo
