#include "motor/lectores/TextosJet.h"

#include "apoyo/Fallos.h"
#include "apoyo/PaginasMdb.h"

#include <gtest/gtest.h>

#include <string_view>

namespace varo {
namespace {

using namespace std::string_view_literals;

std::string Leido(int version, std::string_view bytes) {
    const auto archivo = prueba::PaginasMdb{version}.cerrar();
    return TextosJet{ArchivoJet{archivo}}.leer(std::as_bytes(std::span{bytes}));
}

TEST(TextosJet, SinComprimirSonUtf16) {
    EXPECT_EQ("a€", Leido(1, "a\0\xAC\x20"sv));
    EXPECT_EQ("😀", Leido(1, "\x3D\xD8\x00\xDE"sv));
    EXPECT_EQ("", Leido(1, ""));
}

TEST(TextosJet, ComprimidosTienenUnByteCadaLetra) {
    EXPECT_EQ("añb", Leido(1, "\xFF\xFE"
                              "a\xF1"
                              "b"sv));
    EXPECT_EQ("", Leido(1, "\xFF\xFE"sv));
}

TEST(TextosJet, UnNuloCambiaDeAnchura) {
    EXPECT_EQ("ab€cd", Leido(1, "\xFF\xFE"
                                "ab\0\xAC\x20"
                                "c\0\0d"sv));
    EXPECT_EQ("漢字", Leido(1, "\xFF\xFE\0\x22\x6F\x57\x5B"sv));
}

TEST(TextosJet, AntesDeAccess2000SonDeLaPaginaDeCodigos) {
    EXPECT_EQ("ÿþañ", Leido(0, "\xFF\xFE"
                               "a\xF1"sv));
}

TEST(TextosJet, UnaLetraCortadaEstaDanada) {
    EXPECT_TRUE(prueba::FallaCon(fallo::archivoDanado, "un texto está cortado", [] { Leido(1, "a\0b"sv); }));
    EXPECT_TRUE(prueba::FallaCon(fallo::archivoDanado, "faltan bytes", [] { Leido(1, "\xFF\xFE\0a"sv); }));
}

} // namespace
} // namespace varo
