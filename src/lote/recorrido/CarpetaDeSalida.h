// The folder into which a job writes, and files that appear in it whole.
#pragma once

#include <filesystem>
#include <string>

namespace varo {

/// Makes the folder of the file when it is missing, and hands it back. One that cannot be made is a fault.
std::filesystem::path CrearCarpetaDe(const std::filesystem::path& ruta);

/// Makes the folder and writes the file, whole or not at all.
void EscribirEntero(const std::filesystem::path& ruta, const std::string& bytes);

} // namespace varo
