#include "apoyo/Utf16DePrueba.h"

#include <cstddef>

namespace varo::prueba {

std::u16string AUtf16(std::string_view texto) {
    std::u16string resultado;
    for (std::size_t i = 0; i < texto.size();) {
        const auto cabeza = static_cast<unsigned char>(texto[i++]);
        const int siguientes = cabeza < 0x80 ? 0 : cabeza < 0xE0 ? 1 : cabeza < 0xF0 ? 2 : 3;
        auto caracter = static_cast<char32_t>(siguientes == 0 ? cabeza : cabeza & (0x3F >> siguientes));
        for (int k = 0; k < siguientes && i < texto.size(); ++k) {
            caracter = (caracter << 6) | (static_cast<unsigned char>(texto[i++]) & 0x3F);
        }
        if (caracter < 0x10000) {
            resultado.push_back(static_cast<char16_t>(caracter));
        } else {
            resultado.push_back(static_cast<char16_t>(0xD800 + ((caracter - 0x10000) >> 10)));
            resultado.push_back(static_cast<char16_t>(0xDC00 + ((caracter - 0x10000) & 0x3FF)));
        }
    }
    return resultado;
}

} // namespace varo::prueba
