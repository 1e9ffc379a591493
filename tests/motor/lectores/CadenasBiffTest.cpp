#include "motor/lectores/CadenasBiff.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

#include <string_view>

namespace varo {
namespace {

using prueba::FallaCon;
using Fragmentos = std::vector<std::string_view>;
using namespace std::string_view_literals;

LectorContinuo Lector(const Fragmentos& fragmentos) {
    std::vector<Bytes> bytes;
    for (const auto fragmento : fragmentos) {
        bytes.push_back(std::as_bytes(std::span{fragmento}));
    }
    return LectorContinuo{bytes};
}

std::string Unicode(const Fragmentos& fragmentos) {
    auto lector = Lector(fragmentos);
    return CadenasBiff{true}.leerLarga(lector);
}

std::string EnPagina(int pagina, std::string_view bytes) {
    auto lector = Lector({bytes});
    CadenasBiff cadenas{false};
    cadenas.ponerPagina(pagina);
    return cadenas.leerCorta(lector);
}

testing::AssertionResult Cortado(const Fragmentos& fragmentos) {
    return FallaCon(fallo::archivoDanado, "un texto está cortado", [&] { Unicode(fragmentos); });
}

TEST(CadenasBiff, LeeTextosEstrechosYAnchos) {
    EXPECT_EQ("añb", Unicode({"\3\0\0a\xF1"
                              "b"sv}));
    EXPECT_EQ("a€", Unicode({"\2\0\1a\0\xAC\x20"sv}));
    EXPECT_EQ("", Unicode({"\0\0\0"sv}));
}

TEST(CadenasBiff, UnTextoVacioPuedeNoTenerBanderas) {
    EXPECT_EQ("", Unicode({"\0\0"sv}));
}

TEST(CadenasBiff, JuntaLosParesYMarcaLosSueltos) {
    EXPECT_EQ("😀", Unicode({"\2\0\1\x3D\xD8\x00\xDE"sv}));
    EXPECT_EQ("\uFFFDa", Unicode({"\2\0\1\x3D\xD8"
                                  "a\0"sv}));
    EXPECT_EQ("\uFFFD", Unicode({"\1\0\1\x00\xDE"sv}));
}

TEST(CadenasBiff, CadaContinuacionDiceSuAnchura) {
    EXPECT_EQ("ab€d", Unicode({"\4\0\0ab"sv, "\1\xAC\x20"
                                             "d\0"sv}));
    EXPECT_EQ("€b", Unicode({"\2\0\1\xAC\x20"sv, "\0b"sv}));
    EXPECT_EQ("abc", Unicode({"\3\0\0a"sv, "\0b"sv, "\0c"sv}));
    EXPECT_EQ("ab", Unicode({"\2\0\0"sv, "\0ab"sv}));
}

TEST(CadenasBiff, UnCaracterPartidoEntreDosRegistrosEstaDanado) {
    EXPECT_TRUE(Cortado({"\2\0\1a\0b"sv, "\1\0"sv}));
}

TEST(CadenasBiff, UnTextoQueNoAcabaEstaDanado) {
    EXPECT_TRUE(Cortado({"\5\0\0abc"sv}));
    EXPECT_TRUE(Cortado({"\5\0\0abc"sv, "\0d"sv}));
    EXPECT_TRUE(Cortado({"\5\0"sv}));
    EXPECT_TRUE(Cortado({"\5"sv}));
}

TEST(CadenasBiff, SaltaFormatosYDatosFoneticos) {
    auto lector = Lector({"\2\0\x0C\1\0\3\0\0\0ab"
                          "FFFF"sv,
                          "xyz\1\0\0c"sv});
    const CadenasBiff cadenas{true};
    EXPECT_EQ("ab", cadenas.leerLarga(lector));
    EXPECT_EQ("c", cadenas.leerLarga(lector));
    EXPECT_TRUE(lector.acabado());
}

TEST(CadenasBiff, UnosFormatosQueFaltanEstanDanados) {
    EXPECT_TRUE(Cortado({"\2\0\x08\1\0ab"
                         "FFF"sv}));
    EXPECT_TRUE(Cortado({"\2\0\x04\xFF\xFF\xFF\xFF"
                         "ab"sv}));
}

TEST(CadenasBiff, LosBytesSiguenLaPaginaDeCodigos) {
    EXPECT_EQ("A\xC3\xB1o €", EnPagina(1252, "\5A\xF1o \x80"sv));
    EXPECT_EQ("ñ", EnPagina(1200, "\2\xF1\0"sv));
    EXPECT_EQ("ñ", EnPagina(0x8001, "\1\xF1"sv));
}

TEST(CadenasBiff, EnLaPaginaUtf16CadaTextoDiceSuAnchura) {
    EXPECT_EQ("Arbol", EnPagina(1200, "\5Arbol"sv));
    EXPECT_EQ("Rm", EnPagina(1200, "\2Rm"sv));
    EXPECT_EQ("pi\u00F1", EnPagina(1200, "\3pi\xF1"sv)) << "una longitud impar no es de dos en dos";
    EXPECT_EQ("Año", EnPagina(1200, "\6A\0\xF1\0o\0"sv)) << "la longitud cuenta bytes";
    EXPECT_EQ("Año", EnPagina(1200, "\3A\0\xF1\0o\0"sv)) << "la longitud cuenta letras";
    EXPECT_EQ("Añoj", EnPagina(1200, "\4A\0\xF1\0o\0j\0"sv));
    EXPECT_EQ("中央", EnPagina(1200, "\2\x2D\x4E\x2E\x59"sv));
    EXPECT_EQ("", EnPagina(1200, "\0"sv));
}

TEST(CadenasBiff, EnLaPaginaUtf16UnTextoQuePuedeSerDosCosasSeRechaza) {
    EXPECT_TRUE(
        FallaCon(fallo::formatoNoReconocido, "el texto «año1»", [] { EnPagina(1200, "\4a\xF1o1"sv); }));
}

TEST(CadenasBiff, EnLaPaginaUtf16UnTextoCortadoEstaDanado) {
    EXPECT_TRUE(
        FallaCon(fallo::archivoDanado, "un texto está cortado", [] { EnPagina(1200, "\3A\0\xF1"sv); }));
}

TEST(CadenasBiff, EnLaPaginaUtf16LoQueSigueAUnNombreNoCuenta) {
    auto lector = Lector({"AreaZona"sv});
    CadenasBiff cadenas{false};
    cadenas.ponerPagina(1200);
    EXPECT_EQ("Area", cadenas.leer(lector, 4));
    EXPECT_EQ("Zona", cadenas.leer(lector, 4));
}

TEST(CadenasBiff, UnosBytesQueFaltanEstanDanados) {
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "un texto está cortado", [] { EnPagina(1252, "\5abc"sv); }));
}

} // namespace
} // namespace varo
