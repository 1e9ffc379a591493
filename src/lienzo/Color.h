// The colours of the program.
#pragma once

#include <cstdint>

namespace varo {

/// A colour in the layout 0x00BBGGRR.
using Color = std::int32_t;

} // namespace varo
