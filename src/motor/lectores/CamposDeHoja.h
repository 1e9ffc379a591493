// Names of the fields of a table, made from the first row of a rectangle of cells.
#pragma once

#include "basico/Valor.h"
#include "motor/Tabla.h"

#include <vector>

namespace varo {

/// One field for each cell of the row. A cell that holds nothing or blanks gives "F" and the field's number
/// from 1, any other its text, cut to 64 characters, with "." as "#", "[" "]" as "(" ")" and "!" as "_". A
/// name that an earlier field has, whatever the case of its letters, gets the first digit from 1 that makes
/// it new.
std::vector<Campo> CamposDeHoja(const std::vector<Valor>& cabecera);

} // namespace varo
