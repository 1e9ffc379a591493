// A folder of its own for one test, gone behind it.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace varo::prueba {

class CarpetaTemporal {
public:
    CarpetaTemporal() {
        std::random_device azar;
        do {
            carpeta_ = std::filesystem::temp_directory_path() / ("varo-prueba-" + std::to_string(azar()));
        } while (!std::filesystem::create_directory(carpeta_));
    }
    ~CarpetaTemporal() {
        std::error_code sinImportancia; // a folder left behind spoils no test
        std::filesystem::remove_all(carpeta_, sinImportancia);
    }
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

    [[nodiscard]] const std::filesystem::path& ruta() const { return carpeta_; }
    /// The path of a file in it, as text.
    [[nodiscard]] std::string archivo(const std::string& nombre) const {
        return (carpeta_ / nombre).string();
    }
    [[nodiscard]] std::filesystem::path operator/(const std::string& nombre) const {
        return carpeta_ / nombre;
    }

    std::filesystem::path Escribir(const std::string& nombre, std::string_view bytes) const {
        auto archivo = carpeta_ / nombre;
        std::ofstream salida{archivo, std::ios::binary};
        salida << bytes;
        salida.close();
        if (!salida) {
            throw std::runtime_error{"no se puede escribir " + archivo.string()};
        }
        return archivo;
    }

private:
    std::filesystem::path carpeta_;
};

} // namespace varo::prueba
