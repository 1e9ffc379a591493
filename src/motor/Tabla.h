// A table of a plot file, whole in memory.
#pragma once

#include "basico/ErrorEjecucion.h"
#include "basico/Texto.h"
#include "basico/Valor.h"

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
};

} // namespace varo
