// Cuts the text of a query into words, names, numbers, texts and signs.
#pragma once

#include "basico/ErrorEjecucion.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varo::sql {

struct Pieza {
    enum class Clase : std::uint8_t {
        Palabra, // bare: a keyword, a name or a function
        Nombre,  // what stands between square brackets
        Numero,
        Texto, // without its quotes, '' already one quote
        Signo,
        Fin,
    };
    Clase clase = Clase::Fin;
    std::string texto;
    double numero = 0;
    std::size_t comienzo = 0; // its first byte in the query
};

/// The pieces of a query, the last one of the class `fin`. What cannot begin or end a piece throws ErrorMotor
/// 3075; a number beyond the range of a 64-bit float throws 6.
std::vector<Pieza> Trocear(std::string_view consulta);

/// Without regard to case.
bool EsPalabraReservada(std::string_view palabra);

/// Whether a name can stand in a query without brackets.
bool EsNombreSinCorchetes(std::string_view nombre);

/// Fault 3075 that tells what is wrong, at which character and the text near it.
ErrorMotor SintaxisRota(std::string_view consulta, std::size_t byte, const std::string& motivo);

} // namespace varo::sql
