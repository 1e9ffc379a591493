// Reads a text of cells between commas, semicolons or tabulators (.csv) from its bytes.
#pragma once

#include "basico/Avance.h"
#include "motor/Tabla.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace varo {

/// One table, which has this name with a trailing "$" and brackets made round. Its first row that holds
/// something names the fields, as in a sheet; the others are the rows, blank ones too, as far as the last
/// that holds something. Letters, separator and decimal mark are found out from the content. `archivo` is the
/// name that the faults tell; the steps are bytes. Bytes that are no text, and a text in which no table is to
/// be seen, throw ErrorMotor.
std::vector<Tabla> LeerCsv(std::span<const std::byte> bytes, const std::string& archivo,
                           const std::string& nombre, const Avance& avance = {});

} // namespace varo
