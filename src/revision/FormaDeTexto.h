// What a text in a number column is.
#pragma once

#include <cstdint>
#include <string_view>

namespace varo {

enum class FormaDeTexto : std::uint8_t {
    Corriente, ///< a number under the decimal comma
    ConPunto,  ///< points that nobody would write as groups: "12.5", "1.234"
    ConGrupos, ///< points as groups, without a doubt: "1.234,5", "1.234.567"
    EnBlanco,  ///< only blanks
    ConUnidad, ///< a number with letters behind it: "12 cm"
    OtraCosa
};

/// `esNumero` says whether the program reads it as a number.
FormaDeTexto FormaDe(std::string_view texto, bool esNumero);

} // namespace varo
