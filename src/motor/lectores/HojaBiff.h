// The cells of one sheet of a workbook.
#pragma once

#include "basico/Avance.h"
#include "basico/Valor.h"
#include "motor/lectores/LibroBiff.h"
#include "motor/lectores/LimitesDeLectura.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace varo {

struct CeldaDeHoja {
    std::uint16_t fila = 0;
    std::uint16_t columna = 0;
    Valor valor;
};

struct HojaBiff {
    /// The cells that hold something, by rows and within a row by columns. A formatted cell without content
    /// is not one of them; one that holds an error is, with a null. Of two in one place the last one counts.
    std::vector<CeldaDeHoja> celdas;
    /// From the first of them, by rows and by columns, to the last that a person sees: nulls and empty texts
    /// make no sheet longer. Nothing where there is none to see.
    std::optional<ZonaDeHoja> zonaUsada;
    /// Length of the sheet in the stream.
    std::size_t bytes = 0;
};

/// Reads the sheet that begins at `comienzo`. Formulas give the results that the file keeps.
HojaBiff LeerHoja(Bytes flujo, std::size_t comienzo, const LibroBiff& libro, LimitesDeLectura& limites,
                  const Avance& avance = {});

} // namespace varo
