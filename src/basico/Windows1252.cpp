// The 8-bit code page Windows-1252.
#include "basico/Texto.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace varo {

namespace {

// Bytes 80 to 9F. Five of them have no character and stand for the control character of that number. All
// other bytes are the character of their number.
constexpr unsigned char primeroPropio = 0x80;
// clang-format off
constexpr std::array<char32_t, 32> propios = {
    U'€',   0x81, U'‚', U'ƒ', U'„', U'…', U'†', U'‡', U'ˆ', U'‰', U'Š', U'‹', U'Œ',   0x8D, U'Ž',   0x8F,
      0x90, U'‘', U'’', U'“', U'”', U'•', U'–', U'—', U'˜', U'™', U'š', U'›', U'œ',   0x9D, U'ž', U'Ÿ'};
// clang-format on
constexpr unsigned char ultimoPropio = primeroPropio + propios.size() - 1;

char32_t DeByte(unsigned char byte) {
    const bool propio = byte >= primeroPropio && byte <= ultimoPropio;
    return propio ? propios[static_cast<std::size_t>(byte - primeroPropio)] : byte;
}

char AByte(char32_t caracter) {
    const auto* const propio = std::ranges::find(propios, caracter);
    if (propio != propios.end()) {
        return static_cast<char>(primeroPropio + (propio - propios.begin()));
    }
    const bool mismoNumero = caracter < primeroPropio || (caracter > ultimoPropio && caracter <= 0xFF);
    return mismoNumero ? static_cast<char>(caracter) : '?';
}

} // namespace

std::string AWindows1252(std::string_view texto) {
    std::string bytes;
    while (!texto.empty()) {
        bytes += AByte(SacarUtf8(texto));
    }
    return bytes;
}

std::string DeWindows1252(std::string_view bytes) {
    std::string texto;
    for (const char byte : bytes) {
        AnadirUtf8(texto, DeByte(static_cast<unsigned char>(byte)));
    }
    return texto;
}

} // namespace varo
