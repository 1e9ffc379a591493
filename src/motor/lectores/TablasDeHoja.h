// Rectangles of cells of a sheet as tables.
#pragma once

#include "motor/Tabla.h"
#include "motor/lectores/HojaDeCalculo.h"
#include "motor/lectores/LimitesDeLectura.h"

#include <string>

namespace varo {

/// The used rectangle of a sheet: its first row names the fields, the others are the rows, blank ones too,
/// under their numbers in the sheet. A sheet without content has no fields and no rows.
Tabla TablaDeHoja(const HojaDeCalculo& hoja, const std::string& nombre, LimitesDeLectura& limites);

/// A rectangle of a sheet, as far down and to the right as the sheet has content.
Tabla TablaDeZona(const HojaDeCalculo& hoja, const ZonaDeHoja& zona, const std::string& nombre,
                  LimitesDeLectura& limites);

} // namespace varo
