// Characters to UTF-8 and back.
#include "basico/Texto.h"

#include <cassert>
#include <optional>

namespace varo {

namespace {

constexpr char32_t caracterNoValido = 0xFFFD;

bool EsEscalar(char32_t c) {
    return c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
}

/// What the first byte of a character says: how many bytes follow, its own bits, and the least character that
/// needs so many bytes.
struct Cabecera {
    std::size_t continuaciones;
    char32_t bits;
    char32_t menor;
};

std::optional<Cabecera> LeerCabecera(unsigned char byte) {
    if (byte < 0x80) {
        return Cabecera{0, byte, 0};
    }
    if ((byte & 0xE0U) == 0xC0) {
        return Cabecera{1, byte & 0x1FU, 0x80};
    }
    if ((byte & 0xF0U) == 0xE0) {
        return Cabecera{2, byte & 0x0FU, 0x800};
    }
    if ((byte & 0xF8U) == 0xF0) {
        return Cabecera{3, byte & 0x07U, 0x10000};
    }
    return std::nullopt;
}

/// The character at the front of the text, nothing if the bytes there are no UTF-8.
std::optional<char32_t> Decodificar(std::string_view texto, const Cabecera& cabecera) {
    if (texto.size() <= cabecera.continuaciones) {
        return std::nullopt;
    }
    char32_t caracter = cabecera.bits;
    for (std::size_t i = 1; i <= cabecera.continuaciones; ++i) {
        const auto byte = static_cast<unsigned char>(texto[i]);
        if ((byte & 0xC0U) != 0x80) {
            return std::nullopt;
        }
        caracter = (caracter << 6U) | (byte & 0x3FU);
    }
    return caracter >= cabecera.menor && EsEscalar(caracter) ? std::optional{caracter} : std::nullopt;
}

} // namespace

void AnadirUtf8(std::string& texto, char32_t caracter) {
    if (!EsEscalar(caracter)) {
        caracter = caracterNoValido;
    }
    const auto continuacion = [&](unsigned desplazamiento) {
        texto += static_cast<char>(0x80U | ((caracter >> desplazamiento) & 0x3FU));
    };
    if (caracter < 0x80) {
        texto += static_cast<char>(caracter);
    } else if (caracter < 0x800) {
        texto += static_cast<char>(0xC0U | (caracter >> 6U));
        continuacion(0);
    } else if (caracter < 0x10000) {
        texto += static_cast<char>(0xE0U | (caracter >> 12U));
        continuacion(6);
        continuacion(0);
    } else {
        texto += static_cast<char>(0xF0U | (caracter >> 18U));
        continuacion(12);
        continuacion(6);
        continuacion(0);
    }
}

std::string DeUtf16(std::u16string_view unidades) {
    std::string texto;
    texto.reserve(unidades.size());
    for (std::size_t i = 0; i < unidades.size(); ++i) {
        char32_t caracter = unidades[i];
        const bool alto = caracter >= 0xD800 && caracter < 0xDC00;
        if (alto && i + 1 < unidades.size() && (unidades[i + 1] & 0xFC00) == 0xDC00) {
            caracter = 0x10000 + ((caracter - 0xD800) << 10) + (unidades[++i] - 0xDC00U);
        }
        AnadirUtf8(texto, caracter);
    }
    return texto;
}

char32_t SacarUtf8(std::string_view& texto) {
    assert(!texto.empty());
    const auto cabecera = LeerCabecera(static_cast<unsigned char>(texto.front()));
    const auto caracter = cabecera ? Decodificar(texto, *cabecera) : std::nullopt;
    // A broken sequence takes one byte, so that the characters behind it survive.
    texto.remove_prefix(caracter ? cabecera->continuaciones + 1 : 1);
    return caracter.value_or(caracterNoValido);
}

} // namespace varo
