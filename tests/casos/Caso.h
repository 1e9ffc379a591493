// What the folder of a golden plot holds.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace varo::prueba {

struct Caso {
    std::filesystem::path carpeta;
    std::string indices;                ///< the bytes of the results file, empty when a fault ends the run
    std::optional<int> fallo;           ///< the fault that leaves no results file
    std::optional<std::string> datos{}; ///< the plot data, where they are expected
    std::optional<int> falloDeDatos{};  ///< the fault that leaves none
    std::optional<std::string> mapa{};  ///< the text of the map, where it is expected

    /// Whether the job asks for plot data.
    [[nodiscard]] bool conDatos() const { return datos || falloDeDatos; }
    [[nodiscard]] std::filesystem::path trabajo() const { return carpeta / "trabajo.toml"; }
};

/// The names of the folders inside this one, in order.
std::vector<std::string> NombresDeCasos(const std::filesystem::path& carpeta);

/// A missing or unknown file, and an answer that cannot be read, throw std::runtime_error.
Caso LeerCaso(const std::filesystem::path& carpeta);

} // namespace varo::prueba
