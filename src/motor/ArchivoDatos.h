// The door of a plot file: its bytes are read, recognised by what they are and handed to their reader.
#pragma once

#include "motor/Tabla.h"

#include <filesystem>
#include <vector>

namespace varo {

/// The tables of the file, in the order that its reader gives. A file that is not there (53), that is no file
/// (75), that may not be read (70) or only in part (75), and a content that no reader knows (3343) throw
/// ErrorMotor with its name; so do the readers.
std::vector<Tabla> LeerArchivoDatos(const std::filesystem::path& archivo);

} // namespace varo
