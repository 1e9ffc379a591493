// Which pages belong to a table.
#pragma once

#include "motor/lectores/ArchivoJet.h"

#include <cstdint>
#include <vector>

namespace varo {

/// The pages that the map in this row names, upwards. One beyond the end of the file throws ErrorMotor: a
/// table cut short would look like one with fewer rows.
std::vector<std::uint32_t> PaginasDelMapa(const ArchivoJet& archivo, SitioDeFila mapa);

} // namespace varo
