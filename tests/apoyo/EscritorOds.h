// Writes minimal .ods workbooks: whole tables, or any XML in the place of the sheets.
#pragma once

#include "apoyo/EscritorXls.h"
#include "apoyo/EscritorZip.h"

#include <cstddef>
#include <string>
#include <vector>

namespace varo::prueba {

/// `tablas` stands inside <office:spreadsheet>.
std::vector<ParteZip> PartesDeOds(const std::string& tablas);

std::vector<std::byte> EscribirOds(const std::string& tablas);

/// The same tables as EscribirXls writes.
std::vector<std::byte> EscribirOds(const std::vector<Hoja>& hojas);

} // namespace varo::prueba
