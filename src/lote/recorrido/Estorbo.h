// What keeps a person from an option, told by the switch that would open the way.
#pragma once

#include "options/OpcionesPrograma.h"

#include <optional>
#include <string>

namespace varo {

/// Why a control of the options dialog cannot be used now; nothing when it can.
std::optional<std::string> Estorbo(const OpcionesPrograma& opciones, const Control& control);

/// The tab on which a control lies, in a frame or not; -1 for the controls outside the tabs.
int FichaDe(const OpcionesPrograma& opciones, const Control& control);

/// The switch of the family to which a control belongs: null when it belongs to none or is the switch itself.
const Casilla* InterruptorDe(const OpcionesPrograma& opciones, const Control& control);

} // namespace varo
