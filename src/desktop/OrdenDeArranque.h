// The command line of the desktop program.
#pragma once

#include <string>
#include <vector>

namespace varo {

/// What the command line asks for, once Qt has taken out its own options.
struct OrdenDeArranque {
    enum class Clase { Abrir, Decir, Rechazar };

    Clase clase = Clase::Abrir;
    std::string texto; ///< the file to open, empty for none; or what is told
};

/// `argumentos` come behind the name of the program.
OrdenDeArranque LeerOrden(const std::vector<std::string>& argumentos);

/// True where the answer needs no window, and so no display: help and version.
bool SoloPregunta(const std::vector<std::string>& argumentos);

std::string VersionDelPrograma();

} // namespace varo
