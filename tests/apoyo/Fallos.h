// Which fault a statement ends in.
#pragma once

#include "basico/ErrorEjecucion.h"

namespace varo {

/// The number of the run-time fault that the statement throws, 0 if it throws none.
template <class Sentencia>
int FalloDe(Sentencia&& sentencia) {
    try {
        sentencia();
    } catch (const ErrorEjecucion& error) {
        return error.numero();
    }
    return 0;
}

} // namespace varo
