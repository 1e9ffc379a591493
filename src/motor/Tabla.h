// A table of a plot file, whole in memory.
#pragma once

#include "basico/ErrorEjecucion.h"
#include "basico/Texto.h"
#include "motor/FilasDeTabla.h"

#include <cstddef>
#include <optional>
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

/// One table: its fields in order and its rows, each with a value for each field.
struct Tabla {
    std::string Name;
    Coleccion<Campo> Fields;
    FilasDeTabla filas;
    int primerNumero = 1;          ///< of the first row in its sheet; a table of no sheet counts from 1
    std::vector<int> numeros = {}; ///< of the rows in their sheet where they do not follow each other
    /// Why the table cannot be read, although its name is known; then it has neither fields nor rows.
    std::optional<ErrorMotor> defecto = {};

    /// The number of a row, counted from 0, as the spreadsheet shows it.
    [[nodiscard]] int numeroDeFila(std::size_t fila) const {
        return fila < numeros.size() ? numeros[fila] : primerNumero + static_cast<int>(fila);
    }
    /// The row, counted from 0, with that number, of a table whose rows follow each other.
    [[nodiscard]] std::optional<std::size_t> filaConNumero(int numero) const {
        const int fila = numero - primerNumero;
        return fila >= 0 && static_cast<std::size_t>(fila) < filas.size()
                   ? std::optional{static_cast<std::size_t>(fila)}
                   : std::nullopt;
    }
    /// "fila 12 de «Parcela1$»"
    [[nodiscard]] std::string lugarDeFila(std::size_t fila) const {
        return "fila " + std::to_string(numeroDeFila(fila)) + " de «" + Name + "»";
    }
};

} // namespace varo
