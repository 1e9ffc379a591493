#include "apoyo/ArchivoDePrueba.h"

#include <fstream>
#include <stdexcept>

namespace varo::prueba {

void EscribirBytes(const std::filesystem::path& archivo, const std::vector<std::byte>& bytes) {
    std::ofstream salida{archivo, std::ios::binary};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes to the stream's characters
    salida.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    salida.close();
    if (!salida) {
        throw std::runtime_error{"no se puede escribir " + archivo.string()};
    }
}

} // namespace varo::prueba
