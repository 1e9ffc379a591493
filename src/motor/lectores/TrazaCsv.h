// What a first reading of a text of cells finds out, before the second one fills the table.
#pragma once

#include "basico/Avance.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace varo {

/// Where the table lies in the text, and how its cells are written. Rows count from 1, as in a spreadsheet.
struct TrazaDeTabla {
    std::size_t filaDeNombres = 0;
    std::size_t primeraColumna = 0;
    std::size_t columnas = 0;   ///< up to the last one that holds something, those before the first one too
    std::vector<char> marcas;   ///< the decimal mark of each of them
    bool diaAntesQueMes = true; ///< in dates that end in their year
};

/// Throws ErrorMotor for a text in which no table is to be seen. The steps are bytes.
TrazaDeTabla Trazar(std::string_view texto, char separador, const Avance& avance);

/// Throws ErrorMotor that says so.
[[noreturn]] void NoEsUnaTabla(const std::string& motivo);

} // namespace varo
