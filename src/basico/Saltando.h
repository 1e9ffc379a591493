// Runs one statement and hands back the run-time fault that it meets.
#pragma once

#include "basico/ErrorEjecucion.h"

#include <optional>
#include <utility>

namespace varo {

/// Runs one statement. A run-time fault ends the statement and is handed back; other exceptions pass through.
template <class Sentencia>
std::optional<ErrorEjecucion> Saltando(Sentencia&& sentencia) {
    try {
        std::forward<Sentencia>(sentencia)();
    } catch (const ErrorEjecucion& error) {
        return error;
    }
    return std::nullopt;
}

} // namespace varo
