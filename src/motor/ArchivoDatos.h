// The door of a plot file: its bytes are read, recognised by what they are and handed to their reader.
#pragma once

#include "basico/Avance.h"
#include "motor/Tabla.h"

#include <filesystem>
#include <vector>

namespace varo {

/// The tables of the file, in the order that its reader gives. Throws ErrorMotor with its name: 53 when it is
/// not there, 75 when it is no file or cannot be read whole, 70 when it may not be read, 3343 when no reader
/// knows its content, and what the readers throw.
std::vector<Tabla> LeerArchivoDatos(const std::filesystem::path& archivo, const Avance& avance = {});

} // namespace varo
