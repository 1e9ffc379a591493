// The door of zipped workbooks: .xlsx and .ods.
#pragma once

#include "basico/Avance.h"
#include "motor/Tabla.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace varo {

/// True for every zipped file, so that LeerLibroComprimido is the one to say what is wrong with it.
bool PareceLibroComprimido(std::span<const std::byte> bytes);

/// The tables of the workbook, as those of an .xls. `archivo` is the name that the faults tell; the steps are
/// bytes. Damaged, truncated, encrypted or foreign bytes throw ErrorMotor; a damaged sheet beside others is a
/// table with a defect.
std::vector<Tabla> LeerLibroComprimido(std::span<const std::byte> bytes, const std::string& archivo,
                                       const Avance& avance = {});

} // namespace varo
