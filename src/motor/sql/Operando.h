// A value inside a query: what operators, comparisons and the order of the rows make of it.
#pragma once

#include "basico/Valor.h"
#include "motor/ValorDeCelda.h"
#include "motor/sql/Consulta.h"

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varo::sql {

/// A value that refers to its text, which stays in the table or in the query.
struct Operando {
    enum class Clase : std::uint8_t { Nulo, Numero, Verdad, Texto };
    Clase clase = Clase::Nulo;
    double numero = 0; // a date is its serial, a truth value -1 or 0
    std::string_view texto{};
    const std::string* campo = nullptr; // the field of a text, for the faults

    [[nodiscard]] bool esNulo() const { return clase == Clase::Nulo; }
};

Operando DeNumero(double numero);
Operando DeCelda(const ValorDeCelda& valor, const std::string* campo = nullptr);
Valor AValor(const Operando& operando);

/// The number that it counts as: a text where it reads as one in Spanish notation. Nothing for other texts
/// and for Null.
std::optional<double> ComoNumero(const Operando& operando);

/// The same, but a text that is no number throws ErrorMotor 3464 with its field. Not for Null.
double NumeroExigido(const Operando& operando);

/// Its truth: a number other than 0 is true, Null is neither. A text that is no number throws 3464.
std::optional<bool> Verdad(const Operando& operando);

/// `negacion` and `no`. Null stays Null.
Operando Calcular(Operacion operacion, const Operando& a);

/// The operations of two operands. Null spreads through all but AND and OR, which follow three-valued logic.
/// Throws 3464 for a text that is no number, and 5, 6 and 11 as the arithmetic of the program does.
Operando Calcular(Operacion operacion, const Operando& a, const Operando& b);

/// Two texts by their code points, a number and a text as numbers; unordered where that text is no number.
/// Not for Null.
std::partial_ordering Comparar(const Operando& a, const Operando& b);

/// Order among the rows: Null, then numbers and texts that read as one by value, then texts by code point.
class ClaveDeOrden {
public:
    explicit ClaveDeOrden(const Operando& operando);
    friend std::weak_ordering operator<=>(const ClaveDeOrden& a, const ClaveDeOrden& b);
    friend bool operator==(const ClaveDeOrden& a, const ClaveDeOrden& b) { return std::is_eq(a <=> b); }

private:
    enum class Rango : std::uint8_t { Nulo, Numero, Texto };
    Rango rango_ = Rango::Nulo;
    double numero_ = 0;
    std::string_view texto_;
};

} // namespace varo::sql
