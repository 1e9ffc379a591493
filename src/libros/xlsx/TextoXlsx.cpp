#include "libros/xlsx/TextoXlsx.h"

#include "basico/Texto.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace varo {
namespace {

constexpr std::string_view comienzo = "_x";
constexpr std::size_t longitudDeEscape = 7; // _x000D_

std::optional<char16_t> EscapeEn(std::string_view texto) {
    if (texto.size() < longitudDeEscape || !texto.starts_with(comienzo) ||
        texto[longitudDeEscape - 1] != '_') {
        return std::nullopt;
    }
    constexpr int hexadecimal = 16;
    std::uint16_t unidad = 0;
    const auto* const fin = texto.data() + longitudDeEscape - 1;
    const auto leido = std::from_chars(texto.data() + comienzo.size(), fin, unidad, hexadecimal);
    return leido.ptr == fin ? std::optional{static_cast<char16_t>(unidad)} : std::nullopt;
}

} // namespace

std::string SinEscapes(std::string_view texto) {
    std::string limpio;
    std::u16string unidades; // of escapes that follow each other: two may be one character
    while (!texto.empty()) {
        if (const auto unidad = EscapeEn(texto)) {
            unidades += *unidad;
            texto.remove_prefix(longitudDeEscape);
            continue;
        }
        limpio += DeUtf16(unidades);
        unidades.clear();
        const auto hasta = std::min(texto.find(comienzo, 1), texto.size());
        limpio += texto.substr(0, hasta);
        texto.remove_prefix(hasta);
    }
    return limpio + DeUtf16(unidades);
}

void TextoXlsx::empezar() {
    escrito_.clear();
    hayTramos_ = false;
}

void TextoXlsx::abrirTramo(const ElementoXml& tramo) {
    blancosDetras_ = tramo.atributo({EspacioXml::Xml, "space"}) == "preserve";
    if (!hayTramos_) {
        blancosDelante_ = blancosDetras_;
    }
    hayTramos_ = true;
}

std::string TextoXlsx::texto() const {
    constexpr std::string_view blancos = " \t\r\n";
    std::string_view texto = escrito_;
    if (!blancosDelante_) {
        texto.remove_prefix(std::min(texto.find_first_not_of(blancos), texto.size()));
    }
    if (!blancosDetras_) {
        texto = texto.substr(0, texto.find_last_not_of(blancos) + 1);
    }
    return SinEscapes(texto);
}

} // namespace varo
