// The dynamic value of a table field: null, number, text, date or truth value.
#pragma once

#include <string>
#include <variant>

namespace varo {

/// A date and time as the serial number of days since 30 December 1899.
struct Fecha {
    double serie = 0;
    friend bool operator==(const Fecha&, const Fecha&) = default;
};

using Nulo = std::monostate;
using Valor = std::variant<Nulo, double, std::string, Fecha, bool>;

inline bool EsNulo(const Valor& valor) {
    return std::holds_alternative<Nulo>(valor);
}

/// The value as a number: a text as ANumero reads it (13 when it is none), a date as its serial, a truth
/// value as -1 or 0. Null throws 94.
double ANumero(const Valor& valor);

/// The value as text: numbers as ATexto writes them, a date as "dd/mm/aaaa" with " H:mm:ss" behind it when it
/// has a time of day (the time alone for serials below 1), a truth value as "Verdadero" or "Falso". Null
/// throws 94.
std::string ATexto(const Valor& valor);

} // namespace varo
