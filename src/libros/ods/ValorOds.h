// The value of a cell of an .ods.
#pragma once

#include "libros/LectorXml.h"
#include "motor/ValorDeCelda.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace varo {

/// A cell as the attributes of its element tell it.
struct CeldaOds {
    std::string clase;                ///< "float", "date", ...; empty where there is none
    std::string valor;                ///< in the notation of its class
    std::optional<std::string> texto; ///< where it is not what the paragraphs inside say
    bool conFormula = false;
    bool esError = false;  ///< LibreOffice says so
    std::size_t veces = 1; ///< in as many columns
};

/// How many times a row or a cell stands there: once at least, and no more often than the sheet has places.
std::size_t VecesEscritas(std::string_view escritas, std::size_t maximo);

CeldaOds CeldaEscritaEnOds(const ElementoXml& elemento);

/// The value of a cell with these paragraphs, if it has any; nothing where it holds nothing. Its text is that
/// of `celda` or of `parrafos`. A value that is none of its class throws ErrorMotor.
std::optional<ValorDeCelda> ValorDe(const CeldaOds& celda, const std::optional<std::string_view>& parrafos);

} // namespace varo
