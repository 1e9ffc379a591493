// Writes zipped files whose parts are stored as they are, so that a test can put anything into them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace varo::prueba {

struct ParteZip {
    std::string nombre;
    std::string contenido;
};

std::vector<std::byte> EscribirZip(const std::vector<ParteZip>& partes);

} // namespace varo::prueba
