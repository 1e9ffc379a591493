// The stream cipher RC4, with which Jet databases hide their header and encode their pages.
#pragma once

#include "motor/lectores/Bytes.h"

#include <cstddef>
#include <span>

namespace varo {

/// Turns plain bytes into ciphered ones and back. The key has at least one byte.
void CifrarRc4(std::span<std::byte> bytes, Bytes clave);

} // namespace varo
