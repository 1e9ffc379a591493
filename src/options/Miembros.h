// The members of the control arrays of OpcionesPrograma, by name.
#pragma once

#include <optional>

namespace varo {

/// The families that choose their competitors: the index of OptBAF, OptNumFijo, OptRadioFijo, OptFunc,
/// LstRich...
enum FamiliaConSeleccion : int {
    seleccionIDP = 0, ///< point density
    seleccionDR = 1   ///< size ratios weighted by distance
};

/// The fields of an interval: the index of TxtBAF1 (first value), TxtBAF2 (last value) and TxtBAF3 (step).
enum MiembroDeIntervalo : int {
    parametroIDP = 0, ///< basal area factor (m2/ha) or distance (m) that selects competitors
    piesIDP = 1,      ///< number of stems that selects them
    parametroDR = 2,
    piesDR = 3,
    exponenteDR = 4, ///< k
    exponenteAOI = 6,
    exponenteAPA = 8
};

constexpr int ParametroDe(int familia) {
    return familia == seleccionIDP ? parametroIDP : parametroDR;
}

constexpr int PiesDe(int familia) {
    return familia == seleccionIDP ? piesIDP : piesDR;
}

/// The family whose competitors a member selects; nothing for an exponent.
constexpr std::optional<FamiliaConSeleccion> SeleccionDe(int miembro) {
    if (miembro == parametroIDP || miembro == piesIDP) {
        return seleccionIDP;
    }
    return miembro == parametroDR || miembro == piesDR ? std::optional{seleccionDR} : std::nullopt;
}

/// Numbers of stems are natural; what the other members hold may have decimals.
constexpr bool EsDePies(int miembro) {
    return miembro == piesIDP || miembro == piesDR;
}

} // namespace varo
