// Texts of one byte a letter in the code pages of Windows.
#pragma once

#include <string>
#include <string_view>

namespace varo {

/// As UTF-8. Known are those of Europe, 1250 to 1254 and 1257; a text in another one that has more than plain
/// letters throws ErrorMotor.
std::string DePaginaDeCodigos(std::string_view bytes, int numero);

} // namespace varo
