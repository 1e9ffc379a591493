// Tables written in place, for the tests of the data engine.
#pragma once

#include "motor/Tabla.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace varo::prueba {

inline Tabla TablaCon(std::string nombre, const std::vector<std::string>& campos,
                      std::vector<std::vector<Valor>> filas) {
    std::vector<Campo> cabecera;
    cabecera.reserve(campos.size());
    for (const auto& campo : campos) {
        cabecera.push_back({campo});
    }
    return {std::move(nombre), Coleccion<Campo>{std::move(cabecera)}, std::move(filas)};
}

/// The rows with a value for each field.
inline std::vector<std::vector<Valor>> FilasEnteras(const Tabla& tabla) {
    std::vector<std::vector<Valor>> filas(tabla.filas.size());
    for (std::size_t fila = 0; fila < filas.size(); ++fila) {
        for (int campo = 0; campo < tabla.Fields.Count(); ++campo) {
            filas[fila].push_back(tabla.filas[fila][static_cast<std::size_t>(campo)]);
        }
    }
    return filas;
}

/// The message of the fault that the statement meets, empty without one.
template <class Sentencia>
std::string MensajeDe(Sentencia sentencia) {
    try {
        sentencia();
    } catch (const ErrorEjecucion& error) {
        return error.what();
    }
    return {};
}

} // namespace varo::prueba
