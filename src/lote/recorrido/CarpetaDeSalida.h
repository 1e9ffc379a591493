// The folder into which a job writes.
#pragma once

#include <filesystem>

namespace varo {

/// Makes the folder of the file when it is missing, and hands it back. One that cannot be made is a fault.
std::filesystem::path CrearCarpetaDe(const std::filesystem::path& ruta);

} // namespace varo
