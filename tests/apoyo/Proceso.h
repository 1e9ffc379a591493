// Runs a program to its end and keeps what it wrote.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace varo::prueba {

struct Proceso {
    int estado = -1; ///< its exit status; -1 when a signal ended it
    std::string salida;
    std::string errores;
};

/// Standard input is empty. Throws std::runtime_error when the program cannot be started.
Proceso Ejecutar(const std::filesystem::path& programa, const std::vector<std::string>& argumentos);

/// The same with a terminal of 100 columns behind the errors. Ends of lines read there as "\r\n".
Proceso EjecutarEnTerminal(const std::filesystem::path& programa, const std::vector<std::string>& argumentos);

} // namespace varo::prueba
