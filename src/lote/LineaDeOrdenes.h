// The command line of varo-lote.
#pragma once

#include "lote/trabajo/Trabajo.h"

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace varo {

/// A wrong command line; `what()` tells a person what is wrong with it.
class ErrorDeOrden : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct Ordenes {
    std::vector<std::filesystem::path> trabajos;
    Cambios cambios;
    int aLaVez = 1;           ///< jobs that run at once
    std::optional<int> hilos; ///< on which each of them computes; by default they share the cores
    bool revisar = false;     ///< says what looks wrong with the plots, and computes nothing
    bool tsv = false;         ///< says it to another program
    std::optional<std::filesystem::path> tablas;
    std::optional<std::filesystem::path> plantilla;
    /// The answer to --help or --version; nothing else is done then.
    std::optional<std::string> texto;
};

/// `argumentos` without the name of the program. Throws ErrorDeOrden.
Ordenes LeerOrdenes(const std::vector<std::string>& argumentos);

} // namespace varo
