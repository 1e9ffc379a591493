// The sheets of an .ods, which stand in one part, and the names of the workbook behind them.
#pragma once

#include "basico/Avance.h"
#include "libros/ArchivoZip.h"
#include "motor/lectores/HojaDeCalculo.h"
#include "motor/lectores/LimitesDeLectura.h"
#include "motor/lectores/TablasDeLibro.h"

#include <optional>
#include <string>
#include <vector>

namespace varo {

struct HojaOds {
    std::string nombre;
    HojaDeCalculo hoja;
    std::optional<ErrorMotor> defecto; ///< why the sheet cannot be read
};

struct LibroOds {
    std::vector<HojaOds> hojas;
    std::vector<ZonaConNombre> nombres;
};

/// Formulas give the results that the file keeps. Damaged, or no spreadsheet: ErrorMotor.
LibroOds LeerHojasOds(const ArchivoZip& archivo, LimitesDeLectura& limites, const Avance& avance);

} // namespace varo
