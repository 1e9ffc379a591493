// What a person did with a widget or a window, on its way to the model.
#pragma once

#include "formularios/Usuario.h"

#include <QtGlobal>

namespace varo {

/// Runs an act. An act that a person could not do comes to nothing: the model refused it.
template <class Acto>
void Intentar(const Acto& acto) {
    try {
        acto();
    } catch (const ActoImposible& imposible) {
        qWarning("%s", imposible.what());
    }
}

} // namespace varo
