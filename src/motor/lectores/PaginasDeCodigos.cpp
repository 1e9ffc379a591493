#include "motor/lectores/PaginasDeCodigos.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Texto.h"

#include <algorithm>
#include <array>

namespace varo {
namespace {

/// The characters of the bytes from 80 to FF. One that the page leaves free is U+FFFD.
struct PaginaDeCodigos {
    int numero;
    std::u32string_view caracteres;
};

// clang-format off
constexpr std::array<PaginaDeCodigos, 5> paginas{{
    {1250,
     U"€\uFFFD‚\uFFFD„…†‡\uFFFD‰Š‹ŚŤŽŹ\uFFFD‘’“”•–—\uFFFD™š›śťžź"
     U"\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľż"
     U"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
     U"ŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙"},
    {1251,
     U"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏђ‘’“”•–—\uFFFD™љ›њќћџ"
     U"\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї°±Ііґµ¶·ё№є»јЅѕї"
     U"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"
     U"абвгдежзийклмнопрстуфхцчшщъыьэюя"},
    {1253,
     U"€\uFFFD‚ƒ„…†‡\uFFFD‰\uFFFD‹\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD‘’“”•–—\uFFFD™\uFFFD›\uFFFD\uFFFD\uFFFD\uFFFD"
     U"\u00A0΅Ά£¤¥¦§¨©\uFFFD«¬\u00AD®―°±²³΄µ¶·ΈΉΊ»Ό½ΎΏ"
     U"ΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡ\uFFFDΣΤΥΦΧΨΩΪΫάέήί"
     U"ΰαβγδεζηθικλμνξοπρςστυφχψωϊϋόύώ\uFFFD"},
    {1254,
     U"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFD\uFFFD\uFFFD\uFFFD‘’“”•–—˜™š›œ\uFFFD\uFFFDŸ"
     U"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
     U"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏĞÑÒÓÔÕÖ×ØÙÚÛÜİŞß"
     U"àáâãäåæçèéêëìíîïğñòóôõö÷øùúûüışÿ"},
    {1257,
     U"€\uFFFD‚\uFFFD„…†‡\uFFFD‰\uFFFD‹\uFFFD¨ˇ¸\uFFFD‘’“”•–—\uFFFD™\uFFFD›\uFFFD¯˛\uFFFD"
     U"\u00A0\uFFFD¢£¤\uFFFD¦§Ø©Ŗ«¬\u00AD®Æ°±²³´µ¶·ø¹ŗ»¼½¾æ"
     U"ĄĮĀĆÄÅĘĒČÉŹĖĢĶĪĻŠŃŅÓŌÕÖ×ŲŁŚŪÜŻŽß"
     U"ąįāćäåęēčéźėģķīļšńņóōõö÷ųłśūüżž˙"}}};
// clang-format on

static_assert(std::ranges::all_of(paginas, [](const PaginaDeCodigos& pagina) {
    return pagina.caracteres.size() == 128;
}));

constexpr unsigned char primeroPropio = 0x80;
constexpr int paginaOccidental = 1252;

std::string DePagina(std::string_view bytes, std::u32string_view caracteres) {
    std::string texto;
    for (const char letra : bytes) {
        const auto byte = static_cast<unsigned char>(letra);
        AnadirUtf8(texto, byte < primeroPropio ? byte : caracteres[byte - primeroPropio]);
    }
    return texto;
}

} // namespace

std::string DePaginaDeCodigos(std::string_view bytes, int numero) {
    const bool esAscii = std::ranges::all_of(
        bytes, [](char letra) { return static_cast<unsigned char>(letra) < primeroPropio; });
    if (esAscii) {
        return std::string{bytes};
    }
    if (numero == paginaOccidental) {
        return DeWindows1252(bytes);
    }
    const auto* const pagina = std::ranges::find(paginas, numero, &PaginaDeCodigos::numero);
    if (pagina == paginas.end()) {
        throw ErrorMotor{fallo::formatoNoReconocido,
                         "sus textos están en la página de códigos " + std::to_string(numero) +
                             ", que no se lee: guárdela en el formato de Access 2002-2003"};
    }
    return DePagina(bytes, pagina->caracteres);
}

} // namespace varo
