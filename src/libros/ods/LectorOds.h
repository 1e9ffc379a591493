// Reads the sheets of an .ods as tables.
#pragma once

#include "basico/Avance.h"
#include "libros/ArchivoZip.h"
#include "motor/Tabla.h"

#include <string>
#include <vector>

namespace varo {

/// True for a spreadsheet of OpenDocument, a template too.
bool EsOds(const ArchivoZip& comprimido);

/// Every sheet, hidden ones too, as a table named with a trailing "$", in the workbook's order, then every
/// name of the workbook that covers a rectangle of cells. `archivo` is the name that the faults of single
/// sheets tell. The steps are bytes. Damaged or encrypted: ErrorMotor; a sheet with a cell that cannot be
/// understood is a table with a defect.
std::vector<Tabla> LeerOds(const ArchivoZip& comprimido, const std::string& archivo,
                           const Avance& avance = {});

} // namespace varo
