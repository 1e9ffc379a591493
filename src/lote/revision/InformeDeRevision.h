// What the revision of a job found, as texts: a table for a person, lines with tabs for other programs, and
// the few lines of an ordinary run.
#pragma once

#include "lote/trabajo/ErrorTrabajo.h"
#include "revision/Hallazgo.h"

#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace varo {

/// The count in a first line, then the findings: the places of those that say the same, and their three
/// sentences.
std::string TablaDeHallazgos(const std::filesystem::path& trabajo, std::span<const Hallazgo> hallazgos);

/// The names of the fields that `LineasDeHallazgos` writes.
std::string CabeceraDeHallazgos();
/// A line for each finding, its fields separated by tabs. A field holds no tab and no end of a line.
std::string LineasDeHallazgos(const std::filesystem::path& trabajo, std::span<const Hallazgo> hallazgos);

/// What an ordinary run says: how many there are, and of those graver than worth a look the first five.
std::vector<std::string> AvisosDeHallazgos(const std::filesystem::path& trabajo,
                                           std::span<const Hallazgo> hallazgos);

/// How a revision ends: Hecho where no finding is graver than worth a look.
Estado EstadoDeRevision(std::span<const Hallazgo> hallazgos);

} // namespace varo
