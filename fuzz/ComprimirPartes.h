// Workbooks written as text, so that what is changed in them still passes for a sound archive.
#pragma once

#include "apoyo/EscritorZip.h"
#include "libros/LectorDeLibros.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varo::prueba {

/// A zipped file as it is, or one made of parts, each behind a line "=== name".
inline std::vector<std::byte> LibroEscrito(std::span<const std::byte> bytes) {
    std::string texto(bytes.size(), '\0');
    std::ranges::transform(bytes, texto.begin(), [](std::byte byte) { return static_cast<char>(byte); });
    constexpr std::string_view marca = "=== ";
    if (!texto.starts_with(marca)) {
        return {bytes.begin(), bytes.end()};
    }
    std::vector<ParteZip> partes;
    for (std::size_t lugar = 0; lugar != std::string::npos;) {
        const auto siguiente = texto.find("\n=== ", lugar);
        const auto parte = texto.substr(lugar + marca.size(), siguiente - lugar - marca.size());
        const auto fin = std::min(parte.find('\n'), parte.size());
        partes.push_back({parte.substr(0, fin), parte.substr(std::min(fin + 1, parte.size()))});
        lugar = siguiente == std::string::npos ? siguiente : siguiente + 1;
    }
    return EscribirZip(partes);
}

/// Tables, each one whole or with a defect, or ErrorMotor.
inline int LeerLibroEscrito(std::span<const std::byte> bytes) {
    try {
        for (const auto& tabla : LeerLibroComprimido(LibroEscrito(bytes), "fuzz")) {
            if (tabla.defecto && tabla.Fields.Count() > 0) {
                std::abort();
            }
            for (std::size_t fila = 0; fila < tabla.filas.size(); ++fila) {
                const auto celdas = tabla.filas[fila];
                if (celdas.celdas() > 0 && celdas.ultima().columna >= tabla.Fields.Count()) {
                    std::abort();
                }
            }
        }
    } catch (const ErrorMotor&) { // NOLINT(bugprone-empty-catch): the answer to bytes that are no workbook
    }
    return 0;
}

} // namespace varo::prueba
