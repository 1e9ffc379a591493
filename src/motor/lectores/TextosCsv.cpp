#include "motor/lectores/TextosCsv.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Texto.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <utility>

namespace varo {
namespace {

/// What is looked at to tell a text from other bytes.
constexpr std::size_t comienzo = 4096;

bool EsControl(char letra) {
    constexpr std::string_view deTexto = "\t\n\v\f\r";
    const auto codigo = static_cast<unsigned char>(letra);
    return codigo < ' ' && deTexto.find(letra) == std::string_view::npos;
}

/// Five bytes of Windows-1252 have no letter.
bool NoEsDeWindows(char letra) {
    constexpr std::string_view sinLetra = "\x81\x8D\x8F\x90\x9D";
    return EsControl(letra) || sinLetra.find(letra) != std::string_view::npos;
}

std::string_view ComoTexto(Bytes bytes) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the letters are the bytes
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// How a text reads as UTF-8.
struct LecturaUtf8 {
    std::size_t largas = 0; ///< letters of more than one byte
    std::size_t rotas = 0;
    std::size_t primeraRota = std::string_view::npos;
};

LecturaUtf8 LeerComoUtf8(std::string_view texto) {
    constexpr std::string_view noValido = "\uFFFD";
    LecturaUtf8 lectura;
    auto resto = texto;
    while (!resto.empty()) {
        // Plain letters are most of a plot.
        if (static_cast<unsigned char>(resto.front()) < 0x80) {
            resto.remove_prefix(1);
            continue;
        }
        const auto antes = resto;
        if (SacarUtf8(resto) != U'\uFFFD' || antes.starts_with(noValido)) {
            ++lectura.largas;
        } else if (lectura.rotas++ == 0) {
            lectura.primeraRota = texto.size() - antes.size();
        }
    }
    return lectura;
}

/// UTF-16 without a mark: of the two bytes of most letters of a plot one is null, always on the same side.
std::optional<std::endian> Utf16SinMarca(Bytes bytes) {
    std::array<std::size_t, 2> nulos{};
    const auto mirados = std::min(bytes.size(), comienzo) / 2 * 2;
    for (std::size_t i = 0; i < mirados; ++i) {
        nulos.at(i % 2) += bytes[i] == std::byte{0} ? 1 : 0;
    }
    const auto sonMayoria = [mirados](std::size_t cuantos) { return cuantos > mirados / 4; };
    if (bytes.size() % 2 != 0) {
        return std::nullopt;
    }
    if (nulos[0] == 0 && sonMayoria(nulos[1])) {
        return std::endian::little;
    }
    if (nulos[1] == 0 && sonMayoria(nulos[0])) {
        return std::endian::big;
    }
    return std::nullopt;
}

std::string DeParesDeBytes(Bytes bytes, std::endian orden) {
    if (bytes.size() % 2 != 0) {
        ArchivoDanado("le falta un byte a la última letra: guárdelo de nuevo desde su programa");
    }
    std::u16string unidades;
    unidades.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i < bytes.size(); i += 2) {
        const unsigned primero = LeerU8(bytes, i);
        const unsigned segundo = LeerU8(bytes, i + 1);
        unidades += static_cast<char16_t>(orden == std::endian::little ? segundo << 8U | primero
                                                                       : primero << 8U | segundo);
    }
    while (unidades.ends_with(u'\0') || unidades.ends_with(u'\x1A')) { // what fills a file up
        unidades.pop_back();
    }
    return DeUtf16(unidades);
}

[[noreturn]] void LetraQueNoEsDeTexto(std::string_view texto, std::size_t lugar) {
    const auto fines = [antes = texto.substr(0, lugar)](char fin) { return std::ranges::count(antes, fin); };
    const auto lineas = std::max(fines('\n'), fines('\r')); // CR LF, LF or CR
    ArchivoDanado("la línea " + std::to_string(lineas + 1) +
                  " tiene un carácter que no es de un texto, el de código " +
                  std::to_string(static_cast<unsigned char>(texto[lugar])) +
                  ": guárdelo de nuevo desde la hoja de cálculo");
}

/// False when a foreign letter stands at the beginning; further on it throws ErrorMotor.
template <class Ajena>
bool EsTexto(std::string_view texto, Ajena esAjena) {
    const auto ajena = std::ranges::find_if(texto, esAjena);
    if (ajena == texto.end()) {
        return true;
    }
    const auto lugar = static_cast<std::size_t>(ajena - texto.begin());
    if (lugar >= comienzo) {
        LetraQueNoEsDeTexto(texto, lugar);
    }
    return false;
}

/// As UTF-8. Letters of more than one byte that fit each other are no chance: a text that has more of them
/// than broken ones is a damaged UTF-8. Nothing for a text in other letters.
std::optional<std::string_view> EnUtf8(std::string_view texto, bool loDiceSuMarca) {
    const auto [largas, rotas, primeraRota] = LeerComoUtf8(texto);
    if (rotas == 0) {
        return texto;
    }
    if (loDiceSuMarca || largas > rotas) {
        LetraQueNoEsDeTexto(texto, primeraRota);
    }
    return std::nullopt;
}

} // namespace

std::optional<TextoDeArchivo> LeerLetras(Bytes bytes) {
    const auto texto = ComoTexto(bytes);
    const bool conMarca = Lleva(bytes, 0, "\xEF\xBB\xBF");
    const auto sinMarca = Utf16SinMarca(bytes);
    std::optional<TextoDeArchivo> letras;
    if (Lleva(bytes, 0, "\xFF\xFE")) {
        letras.emplace(DeParesDeBytes(bytes.subspan(2), std::endian::little));
    } else if (Lleva(bytes, 0, "\xFE\xFF")) {
        letras.emplace(DeParesDeBytes(bytes.subspan(2), std::endian::big));
    } else if (sinMarca) {
        letras.emplace(DeParesDeBytes(bytes, *sinMarca));
    } else if (const auto utf8 = EnUtf8(texto.substr(conMarca ? 3 : 0), conMarca)) {
        letras.emplace(*utf8);
    } else if (EsTexto(texto, NoEsDeWindows)) {
        letras.emplace(DeWindows1252(texto));
    }
    return letras && EsTexto(letras->texto(), EsControl) ? std::move(letras) : std::nullopt;
}

} // namespace varo
