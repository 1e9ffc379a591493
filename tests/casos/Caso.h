// What the folder of a golden plot holds.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace varo::prueba {

struct Caso {
    std::filesystem::path carpeta;
    std::string indices;               ///< the bytes of the results file, empty when a fault ends the run
    std::optional<int> fallo;          ///< the fault that leaves no results file
    bool conDatos = false;             ///< it expects the plot data too
    std::optional<std::string> mapa{}; ///< the text of the map, where it is expected

    [[nodiscard]] std::filesystem::path trabajo() const { return carpeta / "trabajo.toml"; }
};

/// The names of the folders inside this one, in order.
std::vector<std::string> NombresDeCasos(const std::filesystem::path& carpeta);

/// A missing or unknown file, and an answer that cannot be read, throw std::runtime_error.
Caso LeerCaso(const std::filesystem::path& carpeta);

} // namespace varo::prueba
