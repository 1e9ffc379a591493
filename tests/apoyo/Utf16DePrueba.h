// UTF-8 to UTF-16, for the writers of test files.
#pragma once

#include <string>
#include <string_view>

namespace varo::prueba {

std::u16string AUtf16(std::string_view texto);

} // namespace varo::prueba
