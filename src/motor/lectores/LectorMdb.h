// Reads a Jet or ACE database (.mdb, .accdb) from its bytes.
#pragma once

#include "basico/Avance.h"
#include "motor/Tabla.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace varo {

/// True when the bytes begin as a database of Access, so that LeerMdb is the one to say what is wrong with
/// them.
bool PareceMdb(std::span<const std::byte> bytes);

/// The tables under their own names, in the order in which the file holds them; those of the system are left
/// out. A table that cannot be read, because it is damaged, linked or has columns of a kind that is not read,
/// says so in its defect, and the others stay whole. `archivo` is the name that the faults tell; the steps
/// are bytes. A file that is damaged as a whole, has a password or is encrypted throws ErrorMotor.
std::vector<Tabla> LeerMdb(std::span<const std::byte> bytes, const std::string& archivo,
                           const Avance& avance = {});

} // namespace varo
