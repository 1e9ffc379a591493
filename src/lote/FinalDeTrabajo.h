// How a job ends, for the command that runs several.
#pragma once

#include "lote/trabajo/ErrorTrabajo.h"

#include <exception>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace varo {

/// How one job ended, and what it has to say, line by line.
struct FinalDeTrabajo {
    Estado estado = Estado::Hecho;
    std::string resumen;
    std::vector<std::string> errores; ///< warnings, and at most one error behind them
};

/// Runs a piece of a job; how it fails becomes part of its end.
template <class Acto>
void Terminar(FinalDeTrabajo& final, const std::filesystem::path& trabajo, Acto&& acto) {
    try {
        std::forward<Acto>(acto)();
    } catch (const ErrorTrabajo& error) {
        final.estado = error.estado();
        final.errores.emplace_back(error.what());
    } catch (const std::exception& error) {
        final.estado = Estado::ErrorInterno;
        final.errores.push_back(LineaDeAviso(trabajo, {}, std::string{"error interno: "} + error.what()));
    }
}

} // namespace varo
