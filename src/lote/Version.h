// The version that the program tells a person.
#pragma once

namespace varo {

inline constexpr const char* version = "0.1.0";

} // namespace varo
