// A source file of the project as the architecture tests see it: where it stands, its text, what it includes.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace varo::arquitectura {

struct Fuente {
    std::string ruta; ///< written from src/, with slashes: "plot/Module1.h"
    std::string texto;
};

/// Every .h and .cpp below a folder, in the order of their paths.
std::vector<Fuente> LeerFuentes(const std::filesystem::path& carpeta);

/// The first folder of a path: "motor" of "motor/lectores/LectorXls.h", empty when there is none.
std::string Sala(std::string_view ruta);

/// What the text includes between quotes, and what between angle brackets.
std::vector<std::string> IncludesPropios(std::string_view texto);
std::vector<std::string> IncludesDeSistema(std::string_view texto);

/// Well-formed UTF-8 in which accents are part of their letter: no combining mark (U+0300 to U+036F) stands.
bool EsUtf8Compuesto(std::string_view texto);

} // namespace varo::arquitectura
