// Numbers of databases that are no 64-bit floats.
#pragma once

#include "motor/lectores/Bytes.h"

#include <string>

namespace varo {

/// The number of a currency, which counts ten-thousandths in 64 bits.
double LeerMoneda(Bytes campo);
/// The number of a decimal: a sign and 128 bits, of which the last `decimales` digits stand behind the comma.
double LeerDecimal(Bytes campo, int decimales);
/// The number that the shortest digits of a 32-bit float spell: 0.1 is not 0.10000000149.
double LeerSimple(Bytes campo);
/// "{3F2504E0-4F89-11D3-9A0C-0305E82C3301}"
std::string LeerGuid(Bytes campo);

} // namespace varo
