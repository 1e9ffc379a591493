// The cells of one sheet of an .xlsx.
#pragma once

#include "basico/Avance.h"
#include "libros/ArchivoZip.h"
#include "libros/xlsx/LibroXlsx.h"
#include "motor/lectores/HojaDeCalculo.h"
#include "motor/lectores/LimitesDeLectura.h"

#include <string>

namespace varo {

/// Formulas give the results that the file keeps; one that was never computed is null, as an error is.
/// Damaged: ErrorMotor.
HojaDeCalculo LeerHojaXlsx(const ArchivoZip& archivo, const std::string& parte, const LibroXlsx& libro,
                           LimitesDeLectura& limites, const Avance& avance = {});

} // namespace varo
