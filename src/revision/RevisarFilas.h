// Rows of the sheet: those that only the queries see, trees without a code, stems per hectare.
#pragma once

#include "revision/Cuaderno.h"
#include "revision/Lectura.h"

namespace varo {

void RevisarFilas(const Lectura& lectura, Cuaderno& cuaderno);

} // namespace varo
