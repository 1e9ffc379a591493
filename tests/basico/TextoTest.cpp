#include "basico/Texto.h"
#include "apoyo/Fallos.h"
#include "basico/ErrorEjecucion.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace varo;

namespace {

/// Few different characters, of one to four bytes, so that searches find something.
rc::Gen<std::u32string> Caracteres() {
    return rc::gen::container<std::u32string>(
        rc::gen::element<char32_t>(U'a', U'b', U' ', U'ñ', U'Á', U'€', U'𐍈'));
}

std::string EnUtf8(const std::u32string& caracteres) {
    std::string texto;
    for (const char32_t c : caracteres) {
        AnadirUtf8(texto, c);
    }
    return texto;
}

TEST(Texto, EnUnaLineaCambiaPorBlancosLosTabuladoresFinesDeLineaYOtrosControles) {
    EXPECT_EQ(EnUnaLinea("Pinus\tsylvestris\r\nL.\n"), "Pinus sylvestris L. ");
    EXPECT_EQ(EnUnaLinea("Pinus\x1B[31m\x01"), "Pinus [31m ");
    EXPECT_EQ(EnUnaLinea("Roble"), "Roble");
}

} // namespace

TEST(Texto, CuentaCaracteresYNoBytes) {
    EXPECT_EQ(Longitud(""), 0U);
    EXPECT_EQ(Longitud("Añadir"), 6U);
    EXPECT_EQ(Longitud("€𐍈"), 2U);
}

TEST(Texto, IzquierdaDerechaYMedio) {
    EXPECT_EQ(Izquierda("Año 2", 3), "Año");
    EXPECT_EQ(Izquierda("Año", 9), "Año");
    EXPECT_EQ(Izquierda("Año", 0), "");
    EXPECT_EQ(Derecha("Tamaño", 2), "ño");
    EXPECT_EQ(Derecha("Año", 9), "Año");
    EXPECT_EQ(Derecha("Año", 0), "");
    EXPECT_EQ(Medio("Año 2", 3), "o 2");
    EXPECT_EQ(Medio("Año 2", 2, 2), "ño");
    EXPECT_EQ(Medio("Año", 4), "");
    EXPECT_EQ(Medio("Año", 9, 2), "");
    EXPECT_EQ(Medio("Año", 2, 99), "ño");
}

TEST(Texto, LaPosicionCeroEsUnArgumentoNoValido) {
    EXPECT_EQ(FalloDe([] { (void)Medio("a", 0); }), fallo::argumentoNoValido);
    EXPECT_EQ(FalloDe([] { (void)Medio("a", 0, 1); }), fallo::argumentoNoValido);
    EXPECT_EQ(FalloDe([] { (void)Posicion("a", "a", 0); }), fallo::argumentoNoValido);
}

TEST(Texto, Posicion) {
    EXPECT_EQ(Posicion("a: 1,0000; b: 2,0000", "b"), 12U);
    EXPECT_EQ(Posicion("ñandú ñu", "ñu"), 7U);
    EXPECT_EQ(Posicion("ñandú ñu", "ñ", 2), 7U);
    EXPECT_EQ(Posicion("abc", "C"), 0U); // letters as they are
    EXPECT_EQ(Posicion("abc", "a", 2), 0U);
    EXPECT_EQ(Posicion("abc", "", 2), 2U);
    EXPECT_EQ(Posicion("abc", "", 4), 0U);
    EXPECT_EQ(Posicion("", ""), 0U);
    EXPECT_EQ(Posicion("", "a"), 0U);
}

TEST(Texto, RecortarQuitaSoloLosBlancosDeLosExtremos) {
    EXPECT_EQ(Recortar("  a b  "), "a b");
    EXPECT_EQ(Recortar("   "), "");
    EXPECT_EQ(Recortar(""), "");
    EXPECT_EQ(Recortar("\ta\u00A0"), "\ta\u00A0");
}

TEST(Texto, ReemplazarVaDeIzquierdaADerecha) {
    EXPECT_EQ(Reemplazar("1,5;2,5", ",", "."), "1.5;2.5");
    EXPECT_EQ(Reemplazar("aaa", "aa", "b"), "ba");
    EXPECT_EQ(Reemplazar("aa", "a", "aa"), "aaaa");
    EXPECT_EQ(Reemplazar("abc", "", "x"), "abc");
    EXPECT_EQ(Reemplazar("año", "ñ", ""), "ao");
}

TEST(Texto, LasMinusculasDeLasLetrasLatinas) {
    EXPECT_EQ(Minusculas("Árbol Nº 3"), "árbol nº 3");
    EXPECT_EQ(Minusculas("ÀÉÍÑÖØÞÜ×ß÷ÿ"), "àéíñöøþü×ß÷ÿ");
    EXPECT_EQ(Minusculas("ĀāĶĹŁłŊŒŠŸŹŽžſİıĸŉ"), "āāķĺłłŋœšÿźžžſiıĸŉ");
    EXPECT_EQ(Minusculas("Ω€@[`{"), "Ω€@[`{"); // no Latin letters
}

TEST(Texto, MismoNombreNoMiraMayusculas) {
    EXPECT_TRUE(MismoNombre("ESPECIE", "Especie"));
    EXPECT_TRUE(MismoNombre("AÑO", "año"));
    EXPECT_FALSE(MismoNombre("ano", "año"));
    EXPECT_FALSE(MismoNombre("X", "X "));
}

RC_GTEST_PROP(Texto, HaceLoMismoQueConUnaFilaDeCaracteres, ()) {
    const std::u32string caracteres = *Caracteres();
    const std::u32string buscado = *rc::gen::resize(2, Caracteres());
    const std::size_t desde = *rc::gen::inRange<std::size_t>(1, 12);
    const std::size_t cuantos = *rc::gen::inRange<std::size_t>(0, 12);
    const std::string texto = EnUtf8(caracteres);
    const std::size_t corte = std::min(desde - 1, caracteres.size());

    RC_ASSERT(Longitud(texto) == caracteres.size());
    RC_ASSERT(Izquierda(texto, cuantos) == EnUtf8(caracteres.substr(0, cuantos)));
    RC_ASSERT(Derecha(texto, cuantos) ==
              EnUtf8(caracteres.substr(caracteres.size() - std::min(cuantos, caracteres.size()))));
    RC_ASSERT(Medio(texto, desde) == EnUtf8(caracteres.substr(corte)));
    RC_ASSERT(Medio(texto, desde, cuantos) == EnUtf8(caracteres.substr(corte, cuantos)));

    const std::size_t hallado =
        desde <= caracteres.size() ? caracteres.find(buscado, desde - 1) : std::u32string::npos;
    RC_ASSERT(Posicion(texto, EnUtf8(buscado), desde) == (hallado == std::u32string::npos ? 0 : hallado + 1));
}

TEST(Utf8, CadaCaracterVuelveComoFue) {
    // All of them: 1,112,064 characters that are no surrogates.
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        if (c == 0xD800) {
            c = 0xE000;
        }
        std::string texto;
        AnadirUtf8(texto, c);
        const std::size_t bytes = c < 0x80 ? 1 : c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
        ASSERT_EQ(texto.size(), bytes);
        texto += 'z';
        std::string_view resto = texto;
        ASSERT_EQ(SacarUtf8(resto), c);
        ASSERT_EQ(resto, "z");
    }
}

TEST(Utf8, LosBytesSonLosDeLaNorma) {
    EXPECT_EQ(EnUtf8(U"ñ"), "\xC3\xB1");
    EXPECT_EQ(EnUtf8(U"€"), "\xE2\x82\xAC");
    EXPECT_EQ(EnUtf8(U"𐍈"), "\xF0\x90\x8D\x88");
}

TEST(Utf8, DeUtf16JuntaLosParesYMarcaLosSueltos) {
    EXPECT_EQ(DeUtf16(u"añ€𐍈"), "añ€𐍈");
    EXPECT_EQ(DeUtf16(u""), "");
    constexpr char16_t alta = 0xD800;
    constexpr char16_t baja = 0xDC00;
    EXPECT_EQ(DeUtf16(std::u16string{alta, u'a'}), "\uFFFDa");
    EXPECT_EQ(DeUtf16(std::u16string{baja, alta}), "\uFFFD\uFFFD");
}

TEST(Utf8, UnCaracterNoValidoEsElDeSustitucion) {
    for (const char32_t c : {char32_t{0xD800}, char32_t{0xDFFF}, char32_t{0x110000}, char32_t{0xFFFFFFFF}}) {
        std::string texto;
        AnadirUtf8(texto, c);
        EXPECT_EQ(texto, "\uFFFD");
    }
}

TEST(Utf8, LosBytesQueNoSonUtf8SalenDeUnoEnUno) {
    const struct {
        std::string bytes;
        std::size_t sustituidos;
    } casos[] = {
        {"\x80", 1}, // a continuation alone
        {"\xFF", 1}, // never a byte of UTF-8
        {"\xC3", 1}, // cut short
        {"\xE2\x82", 2},
        {"\xF0\x90\x8D", 3},
        {"\xC0\xAF", 2}, // more bytes than needed
        {"\xE0\x80\xAF", 3},
        {"\xF0\x80\x80\xAF", 4},
        {"\xED\xA0\x80", 3},     // a surrogate
        {"\xF4\x90\x80\x80", 4}, // beyond U+10FFFF
        {"\xF8\x88\x80\x80\x80", 5},
    };
    for (const auto& [bytes, sustituidos] : casos) {
        const std::string texto = bytes + "a";
        std::string_view resto = texto;
        std::u32string caracteres;
        while (!resto.empty()) {
            caracteres += SacarUtf8(resto);
        }
        EXPECT_EQ(caracteres, std::u32string(sustituidos, U'\uFFFD') + U"a");
    }
}

RC_GTEST_PROP(Texto, AguantaBytesCualesquiera, ()) {
    const auto bytes = *rc::gen::container<std::string>(rc::gen::arbitrary<char>());
    const std::size_t n = *rc::gen::inRange<std::size_t>(0, 10);
    RC_ASSERT(Izquierda(bytes, n) + Medio(bytes, n + 1) == bytes);
    RC_ASSERT(Derecha(bytes, n).size() <= bytes.size());
    RC_ASSERT(AWindows1252(bytes).size() <= bytes.size());
    RC_ASSERT(Minusculas(Minusculas(bytes)) == Minusculas(bytes));
}

TEST(Texto, UnaCitaLargaSeCorta) {
    EXPECT_EQ(Cita(""), "«»");
    const std::string cuarenta = "ñ" + std::string(39, 'a');
    EXPECT_EQ(Cita(cuarenta), "«" + cuarenta + "»");
    EXPECT_EQ(Cita(cuarenta + "b"), "«" + cuarenta + "…»");
}
