// The definition of a table: its columns and where its rows are.
#pragma once

#include "motor/lectores/ArchivoJet.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace varo {

/// Types of columns, by their numbers in the format.
enum class TipoJet : std::uint8_t {
    Booleano = 1,
    Byte = 2,
    Entero = 3,
    EnteroLargo = 4,
    Moneda = 5,
    Simple = 6,
    Doble = 7,
    FechaHora = 8,
    Binario = 9,
    Texto = 10,
    Ole = 11,
    Memo = 12,
    Guid = 15,
    Decimal = 16,
    Compleja = 18,
    EnteroGrande = 19,
    FechaHoraAmpliada = 20
};

struct ColumnaJet {
    std::string nombre;
    TipoJet tipo{};
    std::size_t numero = 0;   // in the rows; deleted columns keep theirs
    std::size_t orden = 0;    // as a person has ordered the columns
    bool fija = false;        // at a fixed place of the row, or among the fields of any length
    std::size_t lugar = 0;    // in bytes, or among those fields
    std::size_t longitud = 0; // in bytes
    int decimales = 0;
    bool calculada = false;
};

struct DefinicionJet {
    std::uint32_t pagina = 0;
    SitioDeFila mapa;
    /// Columns of any length, deleted ones too. Rows of tables without them are laid out otherwise.
    std::size_t columnasVariables = 0;
    /// In the order in which a person sees them.
    std::vector<ColumnaJet> columnas;
};

/// Reads the definition that begins on a page. One that does not hold throws ErrorMotor.
DefinicionJet LeerDefinicion(const ArchivoJet& archivo, std::uint32_t pagina);

} // namespace varo
