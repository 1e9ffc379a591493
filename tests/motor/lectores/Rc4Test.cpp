// The expected bytes are published test vectors of the cipher.
#include "motor/lectores/Rc4.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>
#include <vector>

namespace varo {
namespace {

std::vector<std::byte> EnBytes(std::string_view letras) {
    const auto bytes = std::as_bytes(std::span{letras});
    return {bytes.begin(), bytes.end()};
}

std::vector<std::byte> Cifrado(std::string_view clave, std::string_view letras) {
    auto bytes = EnBytes(letras);
    CifrarRc4(bytes, EnBytes(clave));
    return bytes;
}

TEST(Rc4, DaLosBytesPublicados) {
    EXPECT_EQ(EnBytes("\xBB\xF3\x16\xE8\xD9\x40\xAF\x0A\xD3"), Cifrado("Key", "Plaintext"));
    EXPECT_EQ(EnBytes("\x10\x21\xBF\x04\x20"), Cifrado("Wiki", "pedia"));
    EXPECT_EQ(EnBytes("\x45\xA0\x1F\x64\x5F\xC3\x5B\x38\x35\x52\x54\x4B\x9B\xF5"),
              Cifrado("Secret", "Attack at dawn"));
}

TEST(Rc4, DosVecesDejaLosBytesComoEstaban) {
    auto bytes = EnBytes("abeto");
    CifrarRc4(bytes, EnBytes("clave"));
    EXPECT_NE(EnBytes("abeto"), bytes);
    CifrarRc4(bytes, EnBytes("clave"));
    EXPECT_EQ(EnBytes("abeto"), bytes);
}

} // namespace
} // namespace varo
