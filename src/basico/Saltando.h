// Runs one statement, or one test, and passes over the run-time fault that it meets.
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

/// Whether the block behind a test runs. Meant: a test that faults lets it run, as the run goes on with the
/// next statement, which is the first one of the block.
template <class Prueba>
bool PruebaSaltando(Prueba&& prueba) {
    bool pasa = true;
    Saltando([&] { pasa = std::forward<Prueba>(prueba)(); });
    return pasa;
}

} // namespace varo
