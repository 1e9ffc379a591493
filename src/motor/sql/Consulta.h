// A SELECT as it was written, its names not yet looked for in any table.
#pragma once

#include "basico/Valor.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace varo::sql {

enum class Operacion : std::uint8_t {
    campo,     // puts the value of field `indice` on the stack
    constante, // puts constant `indice` on the stack
    negacion,
    no,
    suma,
    resta,
    producto,
    cociente,
    potencia,
    igual,
    distinto,
    menor,
    mayor,
    menorOIgual,
    mayorOIgual,
    ambos,  // AND
    alguno, // OR
};

struct Paso {
    Operacion operacion = Operacion::constante;
    std::size_t indice = 0;
};

/// An expression in postfix order: operands first, then what joins them. So a long one is no deep one, and
/// nothing recurses over it.
struct Expresion {
    std::vector<Paso> pasos;
    std::vector<std::string> campos; // each name once, in the order of writing
    std::vector<Valor> constantes;

    /// A field and nothing else.
    [[nodiscard]] bool EsCampo() const {
        return pasos.size() == 1 && pasos.front().operacion == Operacion::campo;
    }
};

enum class Agregado : std::uint8_t { suma, media, maximo, minimo, cuenta };

/// One column of the result.
struct Elemento {
    std::optional<Agregado> agregado;
    Expresion expresion;
    std::string alias; // empty without AS
};

struct Orden {
    Expresion clave;
    bool descendente = false;
};

struct Consulta {
    std::optional<std::size_t> primeras; // TOP
    std::vector<Elemento> elementos;     // either all of them aggregates or none
    std::string tabla;
    std::optional<Expresion> condicion;
    std::optional<Orden> orden; // never together with aggregates

    [[nodiscard]] bool EsResumen() const { return elementos.front().agregado.has_value(); }
};

} // namespace varo::sql
