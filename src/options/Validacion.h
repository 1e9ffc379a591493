// What the numeric fields of the options admit. The decimal separator is the comma; a full stop anywhere in a
// number is refused.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varo {

/// What a message box tells a person.
struct Aviso {
    std::string texto;
    std::string titulo;

    friend bool operator==(const Aviso&, const Aviso&) = default;
};

// Each rule gives its objection to a text, or nothing.

/// Any number; the empty text is none.
std::optional<Aviso> ReparoACoeficiente(std::string_view texto);

/// A number without a minus sign, the exponent's included.
std::optional<Aviso> ReparoACoeficienteNoNegativo(std::string_view texto);

/// Only the characters of an interval's field: natural numbers or decimals, as its member holds (Miembros.h).
std::optional<Aviso> ReparoACaracteres(std::string_view texto, int miembro);

/// A field of an interval when it is left: a number, of the characters of its member.
std::optional<Aviso> ReparoAExtremo(std::string_view texto, int miembro);

/// A field of an interval while a person types: the empty text passes too.
std::optional<Aviso> ReparoAlTeclear(std::string_view texto, int miembro);

} // namespace varo
