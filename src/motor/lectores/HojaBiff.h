// The cells of one sheet of a workbook.
#pragma once

#include "basico/Avance.h"
#include "motor/lectores/HojaDeCalculo.h"
#include "motor/lectores/LibroBiff.h"
#include "motor/lectores/LimitesDeLectura.h"
#include "motor/lectores/RegistrosBiff.h"

namespace varo {

/// Reads the sheet whose records these are. Formulas give the results that the file keeps.
HojaDeCalculo LeerHoja(Subflujo& registros, const LibroBiff& libro, LimitesDeLectura& limites,
                       const Avance& avance = {});

} // namespace varo
