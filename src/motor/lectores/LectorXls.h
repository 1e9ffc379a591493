// Reads a BIFF5 or BIFF8 workbook from its bytes: sheets as tables.
#pragma once

#include "basico/Avance.h"
#include "motor/Tabla.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace varo {

/// True when the bytes begin as a compound file or as a bare BIFF stream of any version, so that LeerXls is
/// the one to say what is wrong with them.
bool PareceXls(std::span<const std::byte> bytes);

/// Every worksheet, hidden ones too, as a table named with a trailing "$", in the workbook's order, then
/// every workbook-level name that covers a rectangle of cells. Formula cells give their cached values.
/// `archivo` is the name that the faults tell; the steps are bytes. Damaged, truncated, encrypted or foreign
/// bytes throw ErrorMotor.
std::vector<Tabla> LeerXls(std::span<const std::byte> bytes, const std::string& archivo,
                           const Avance& avance = {});

} // namespace varo
