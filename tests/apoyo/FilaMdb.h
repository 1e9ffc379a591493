// Rows and values of a Jet database as a test writes them.
#pragma once

#include "apoyo/PaginasMdb.h"
#include "basico/Valor.h"

#include <cstddef>
#include <string>
#include <vector>

namespace varo::prueba {

/// By their numbers in the format.
enum class TipoMdb : std::uint8_t {
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
    EnteroGrande = 19
};

struct CampoMdb {
    std::string nombre;
    TipoMdb tipo = TipoMdb::Texto;
    int decimales = 0;
    /// The columns that were made before it, if any of those has been deleted since.
    std::size_t borradosDelante = 0;
    bool calculado = false;
    int orden = -1; ///< as a person has put it; where it stands by default
};

/// False for the types that lie among the fields of any length.
bool EsFijo(TipoMdb tipo);
/// In the row; 0 for a truth value, which is its null bit, and for what is not fixed.
std::size_t TamanoFijo(TipoMdb tipo);
/// The number of a column in the rows: those deleted before it count.
std::size_t NumeroDeCampo(const std::vector<CampoMdb>& campos, std::size_t campo);

/// The bytes of a row. Numbers of each type come from doubles and truth values, binary ones from texts; memos
/// are laid down in pages of their own when they are long. The row has the first `conocidos` columns only.
std::vector<std::byte> FilaMdb(PaginasMdb& paginas, const std::vector<CampoMdb>& campos,
                               const std::vector<Valor>& valores, std::size_t conocidos);

/// The bytes of a text, compressed where each letter fits in a byte.
std::vector<std::byte> TextoMdb(const std::string& texto, bool jet3);

} // namespace varo::prueba
