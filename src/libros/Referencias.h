// Cells, rectangles and sheets as workbooks spell them.
#pragma once

#include "motor/lectores/TablasDeLibro.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace varo {

constexpr std::size_t filasDeUnLibro = 1'048'576;
constexpr std::size_t columnasDeUnLibro = 16'384;

/// Row and column, counted from 0.
struct SitioDeCelda {
    std::size_t fila = 0;
    std::size_t columna = 0;
};

/// "B7". Nothing for what is no cell; one beyond the sheet is one all the same.
std::optional<SitioDeCelda> CeldaEscrita(std::string_view texto);

std::string NombreDeCelda(const SitioDeCelda& celda);

/// "Hoja1!$A$1:$C$9", "'La hoja'!$B$2", whole columns "Hoja1!$A:$C" and whole rows. Nothing for what moves
/// with the cell that uses it, for other workbooks and for anything else.
std::optional<ZonaEscrita> ZonaDeXlsx(std::string_view formula);

/// "$Hoja1.$A$1:.$C$9", "$'La hoja'.$B$2", "$Hoja1.$A:.$C", with the sheet once more behind the colon or not.
std::optional<ZonaEscrita> ZonaDeOds(std::string_view direccion);

} // namespace varo
