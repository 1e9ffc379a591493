// Writes a compound file around named streams, so that tests can hold any workbook stream, right or wrong.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace varo::prueba {

struct FlujoConNombre {
    std::string nombre; // ASCII
    std::vector<std::byte> bytes;
};

/// A compound file with these streams in its root. Streams under 4,096 bytes go to the mini stream, as the
/// format asks. `tamanoSector` is 512 or 4096.
std::vector<std::byte> EscribirCompuesto(const std::vector<FlujoConNombre>& flujos,
                                         std::size_t tamanoSector = 512);

} // namespace varo::prueba
