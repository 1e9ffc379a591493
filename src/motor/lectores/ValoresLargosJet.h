// Memos, which lie outside of their row as soon as they are not short.
#pragma once

#include "motor/lectores/ArchivoJet.h"
#include "motor/lectores/LimitesDeLectura.h"

#include <cstddef>
#include <vector>

namespace varo {

/// The bytes of the memo that a field stands for: in the field itself, in a row of another page, or in a
/// chain of such rows. They are counted before they are gathered.
std::vector<std::byte> LeerValorLargo(const ArchivoJet& archivo, Bytes campo, LimitesDeLectura& limites);

} // namespace varo
