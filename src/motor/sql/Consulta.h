// A SELECT as it is written: no name is looked up in a table.
#pragma once

#include "basico/Valor.h"

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace varo::sql {

enum class Operacion : std::uint8_t {
    Campo,     // puts the value of field `indice` on the stack
    Constante, // puts constant `indice` on the stack
    Negacion,
    No,
    Suma,
    Resta,
    Producto,
    Cociente,
    Potencia,
    Igual,
    Distinto,
    Menor,
    Mayor,
    MenorOIgual,
    MayorOIgual,
    Ambos,  // AND
    Alguno, // OR
};

struct Paso {
    Operacion operacion = Operacion::Constante;
    std::size_t indice = 0;
};

/// An expression in postfix order: operands first, then what joins them. So a long one is not deep, and
/// nothing recurses over it.
struct ExpresionPostfija {
    std::vector<Paso> pasos;
    std::vector<std::string> campos; // each name once, in the order of writing
    std::vector<Valor> constantes;

    /// A field and nothing else.
    [[nodiscard]] bool esCampo() const {
        return pasos.size() == 1 && pasos.front().operacion == Operacion::Campo;
    }
};

enum class Agregado : std::uint8_t { Suma, Media, Maximo, Minimo, Cuenta };

/// One column of the result.
struct Elemento {
    std::optional<Agregado> agregado;
    ExpresionPostfija expresion;
    std::string alias; // empty without AS
};

struct Orden {
    ExpresionPostfija clave;
    bool descendente = false;
};

struct Consulta {
    std::optional<std::size_t> primeras; // TOP
    std::vector<Elemento> elementos;     // either all of them aggregates or none
    std::string tabla;
    std::optional<ExpresionPostfija> condicion;
    std::optional<Orden> orden; // never together with aggregates

    [[nodiscard]] bool esResumen() const {
        assert(!elementos.empty());
        return elementos.front().agregado.has_value();
    }
};

} // namespace varo::sql
