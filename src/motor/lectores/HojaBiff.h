// The cells of one sheet of a workbook.
#pragma once

#include "basico/Avance.h"
#include "motor/lectores/HojaDeCalculo.h"
#include "motor/lectores/LibroBiff.h"
#include "motor/lectores/LimitesDeLectura.h"

#include <cstddef>

namespace varo {

struct HojaBiff : HojaDeCalculo {
    /// Length of the sheet in the stream.
    std::size_t bytes = 0;
};

/// Reads the sheet that begins at `comienzo`. Formulas give the results that the file keeps.
HojaBiff LeerHoja(Bytes flujo, std::size_t comienzo, const LibroBiff& libro, LimitesDeLectura& limites,
                  const Avance& avance = {});

} // namespace varo
