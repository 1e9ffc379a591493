// A table of a plot file, whole in memory.
#pragma once

#include "basico/ErrorEjecucion.h"
#include "basico/Texto.h"
#include "basico/Valor.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace varo {

/// An ordered collection reached by position from 0 or by name, without regard to case. What is not there
/// throws ErrorMotor 3265.
template <class Elemento>
class Coleccion {
public:
    Coleccion() = default;
    explicit Coleccion(std::vector<Elemento> elementos) : elementos_{std::move(elementos)} {}

    [[nodiscard]] int Count() const { return static_cast<int>(elementos_.size()); }

    const Elemento& operator()(int posicion) const {
        if (posicion < 0 || posicion >= Count()) {
            throw ErrorMotor{fallo::elementoNoEncontrado,
                             "No hay elemento número " + std::to_string(posicion) + " en esta colección"};
        }
        return elementos_[static_cast<std::size_t>(posicion)];
    }

    const Elemento& operator()(const std::string& nombre) const {
        for (const auto& elemento : elementos_) {
            if (MismoNombre(elemento.Name, nombre)) {
                return elemento;
            }
        }
        throw ErrorMotor{fallo::elementoNoEncontrado, "No se encuentra «" + nombre + "» en esta colección"};
    }

    [[nodiscard]] auto begin() const { return elementos_.begin(); }
    [[nodiscard]] auto end() const { return elementos_.end(); }

private:
    std::vector<Elemento> elementos_;
};

struct Campo {
    std::string Name;
};

/// One table: its fields in order and its rows, each with one value per field.
struct Tabla {
    std::string Name;
    Coleccion<Campo> Fields;
    std::vector<std::vector<Valor>> filas;
    std::vector<int> numeros = {}; ///< of the rows in their sheet; empty for a table of no sheet

    /// The number of a row, counted from 0, as the spreadsheet shows it. A row of no sheet counts from 1.
    [[nodiscard]] int numeroDeFila(std::size_t fila) const {
        return fila < numeros.size() ? numeros[fila] : static_cast<int>(fila) + 1;
    }
    /// "fila 12 de «Parcela1$»"
    [[nodiscard]] std::string lugarDeFila(std::size_t fila) const {
        return "fila " + std::to_string(numeroDeFila(fila)) + " de «" + Name + "»";
    }
};

} // namespace varo
