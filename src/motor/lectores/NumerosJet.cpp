#include "motor/lectores/NumerosJet.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

namespace varo {
namespace {

constexpr int decimalesDeMoneda = 4;
constexpr std::size_t palabras = 4; // of 32 bits in a decimal, the highest one first

double DeLetras(std::string_view letras) {
    double numero = 0;
    std::from_chars(letras.data(), letras.data() + letras.size(), numero);
    return numero;
}

/// The 64-bit float next to a decimal number.
double DeCifras(bool negativo, const std::string& cifras, int decimales) {
    return DeLetras((negativo ? "-" : "") + cifras + "e-" + std::to_string(decimales));
}

/// Divides by ten and gives the rest.
std::uint32_t SacarCifra(std::array<std::uint32_t, palabras>& numero) {
    std::uint64_t resto = 0;
    for (auto& palabra : numero) {
        resto = resto << 32 | palabra;
        palabra = static_cast<std::uint32_t>(resto / 10);
        resto %= 10;
    }
    return static_cast<std::uint32_t>(resto);
}

void AnadirHexadecimal(std::string& texto, std::uint64_t numero, int cifras) {
    constexpr std::string_view letras = "0123456789ABCDEF";
    for (int i = cifras - 1; i >= 0; --i) {
        texto += letras[numero >> 4 * i & 0xF];
    }
}

} // namespace

double LeerMoneda(Bytes campo) {
    const auto bits = LeerU64(campo, 0);
    const bool negativo = bits >> 63 != 0;
    return DeCifras(negativo, std::to_string(negativo ? 0 - bits : bits), decimalesDeMoneda);
}

double LeerDecimal(Bytes campo, int decimales) {
    constexpr unsigned signo = 0x80;
    std::array<std::uint32_t, palabras> numero{};
    for (std::size_t i = 0; i < palabras; ++i) {
        numero[i] = LeerU32(campo, 1 + 4 * i);
    }
    std::string cifras;
    do {
        cifras += static_cast<char>('0' + SacarCifra(numero));
    } while (std::ranges::any_of(numero, [](std::uint32_t palabra) { return palabra != 0; }));
    std::ranges::reverse(cifras);
    return DeCifras((LeerU8(campo, 0) & signo) != 0, cifras, decimales);
}

double LeerSimple(Bytes campo) {
    const auto simple = std::bit_cast<float>(LeerU32(campo, 0));
    if (!std::isfinite(simple)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    std::array<char, 32> letras{};
    const auto* const fin = std::to_chars(letras.data(), letras.data() + letras.size(), simple).ptr;
    return DeLetras({letras.data(), static_cast<std::size_t>(fin - letras.data())});
}

std::string LeerGuid(Bytes campo) {
    std::string texto = "{";
    AnadirHexadecimal(texto, LeerU32(campo, 0), 8);
    for (const std::size_t lugar : {4U, 6U}) {
        texto += '-';
        AnadirHexadecimal(texto, LeerU16(campo, lugar), 4);
    }
    for (std::size_t lugar = 8; lugar < 16; ++lugar) {
        texto += lugar == 8 || lugar == 10 ? "-" : "";
        AnadirHexadecimal(texto, LeerU8(campo, lugar), 2);
    }
    return texto + '}';
}

} // namespace varo
