// Reads the sheets of an .xlsx as tables.
#pragma once

#include "basico/Avance.h"
#include "libros/ArchivoZip.h"
#include "motor/Tabla.h"

#include <string>
#include <vector>

namespace varo {

/// Every worksheet, hidden ones too, as a table named with a trailing "$", in the workbook's order, then
/// every workbook-level name that covers a rectangle of cells. `parte` is the main part of the package,
/// `archivo` the name that the faults of single sheets tell. The steps are bytes of sheets. A workbook that
/// is damaged throws ErrorMotor; a sheet that is damaged is a table with a defect.
std::vector<Tabla> LeerXlsx(const ArchivoZip& comprimido, const std::string& parte,
                            const std::string& archivo, const Avance& avance = {});

} // namespace varo
