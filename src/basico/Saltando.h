// "Skip failing statements": runs one statement and swallows its run-time fault.
#pragma once

#include "basico/ErrorEjecucion.h"

#include <optional>
#include <utility>

namespace varo {

/// Runs one statement. A run-time fault abandons it and is handed back, so that the caller may look at it or
/// keep a record; anything that is no run-time fault of the program goes on its way.
template <class Sentencia>
std::optional<ErrorEjecucion> saltando(Sentencia&& sentencia) {
    try {
        std::forward<Sentencia>(sentencia)();
    } catch (const ErrorEjecucion& error) {
        return error;
    }
    return std::nullopt;
}

} // namespace varo
