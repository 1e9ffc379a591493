// Files of bytes for the tests.
#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

namespace varo::prueba {

/// Throws std::runtime_error when the file cannot be written.
void EscribirBytes(const std::filesystem::path& archivo, const std::vector<std::byte>& bytes);

} // namespace varo::prueba
