#include "arquitectura/Fuente.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>

namespace varo::arquitectura {

namespace {

std::string Leer(const std::filesystem::path& archivo) {
    std::ifstream entrada{archivo, std::ios::binary};
    if (!entrada) {
        throw std::runtime_error{"No se puede leer " + archivo.string()};
    }
    return {std::istreambuf_iterator<char>{entrada}, {}};
}

/// What stands behind `inicio` when the line begins with it, blanks aside.
std::optional<std::string_view> Tras(std::string_view linea, std::string_view inicio) {
    linea.remove_prefix(std::min(linea.find_first_not_of(" \t"), linea.size()));
    if (!linea.starts_with(inicio)) {
        return std::nullopt;
    }
    linea.remove_prefix(inicio.size());
    return linea;
}

std::vector<std::string> Includes(std::string_view texto, std::string_view abre, char cierra) {
    std::vector<std::string> hallados;
    while (!texto.empty()) {
        const auto fin = std::min(texto.find('\n'), texto.size() - 1);
        auto resto = Tras(texto.substr(0, fin), "#");
        for (const auto inicio : {std::string_view{"include"}, abre}) {
            resto = resto ? Tras(*resto, inicio) : std::nullopt;
        }
        if (resto) {
            hallados.emplace_back(resto->substr(0, resto->find(cierra)));
        }
        texto.remove_prefix(fin + 1);
    }
    return hallados;
}

} // namespace

std::vector<Fuente> LeerFuentes(const std::filesystem::path& carpeta) {
    std::vector<Fuente> fuentes;
    for (const auto& entrada : std::filesystem::recursive_directory_iterator{carpeta}) {
        const auto extension = entrada.path().extension();
        if (extension == ".h" || extension == ".cpp") {
            fuentes.push_back(
                {entrada.path().lexically_relative(carpeta).generic_string(), Leer(entrada.path())});
        }
    }
    std::ranges::sort(fuentes, {}, &Fuente::ruta);
    return fuentes;
}

std::string Sala(std::string_view ruta) {
    const auto barra = ruta.find('/');
    return std::string{barra == std::string_view::npos ? "" : ruta.substr(0, barra)};
}

std::vector<std::string> IncludesPropios(std::string_view texto) {
    return Includes(texto, "\"", '"');
}

std::vector<std::string> IncludesDeSistema(std::string_view texto) {
    return Includes(texto, "<", '>');
}

bool EsUtf8Compuesto(std::string_view texto) {
    std::size_t posicion = 0;
    while (posicion < texto.size()) {
        const auto primero = static_cast<unsigned char>(texto[posicion++]);
        if (primero < 0x80) {
            continue;
        }
        const auto siguientes = primero >= 0xF0 ? 3U : primero >= 0xE0 ? 2U : 1U;
        if (primero < 0xC2 || primero > 0xF4 || posicion + siguientes > texto.size()) {
            return false;
        }
        char32_t caracter = primero & (0x3FU >> siguientes);
        for (unsigned i = 0; i < siguientes; ++i) {
            const auto byte = static_cast<unsigned char>(texto[posicion++]);
            if ((byte & 0xC0U) != 0x80U) {
                return false;
            }
            caracter = caracter << 6U | (byte & 0x3FU);
        }
        if (caracter >= 0x300 && caracter <= 0x36F) {
            return false;
        }
    }
    return true;
}

} // namespace varo::arquitectura
