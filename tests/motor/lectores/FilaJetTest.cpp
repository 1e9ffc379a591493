// Rows written out byte by byte.
#include "motor/lectores/FilaJet.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace varo {
namespace {

using prueba::FallaCon;
using namespace std::string_view_literals;
using namespace std::string_literals;

constexpr const char* sinSusCampos = "una fila no tiene los campos que dice";

const ColumnaJet edad{.nombre = "edad", .tipo = TipoJet::Entero, .numero = 0, .fija = true, .lugar = 0};
const ColumnaJet viva{.nombre = "viva", .tipo = TipoJet::Booleano, .numero = 1, .fija = true, .lugar = 2};
const ColumnaJet especie{.nombre = "especie", .tipo = TipoJet::Texto, .numero = 2, .lugar = 0};
const ColumnaJet nota{.nombre = "nota", .tipo = TipoJet::Texto, .numero = 3, .lugar = 1};
const DefinicionJet conVariables{
    .pagina = 3, .mapa = {}, .columnasVariables = 2, .columnas = {edad, viva, especie, nota}};
const DefinicionJet soloFijas{.pagina = 3, .mapa = {}, .columnasVariables = 0, .columnas = {edad, viva}};

std::string Letras(Bytes bytes) {
    std::string letras;
    for (const auto byte : bytes) {
        letras += static_cast<char>(byte);
    }
    return letras;
}

/// The row's bytes must outlive it.
FilaJet Fila(std::string_view bytes, bool jet3 = false, const DefinicionJet& definicion = conVariables) {
    return {std::as_bytes(std::span{bytes}), definicion, jet3};
}

TEST(FilaJet, Jet4TieneLosFijosDelanteYLosDemasDetras) {
    const auto fila = Fila("\4\0"
                           "\x11\x22"
                           "picea"
                           "ok"
                           "\x0B\0\x09\0\4\0"
                           "\2\0"
                           "\x0F"sv);
    EXPECT_TRUE(fila.marcado(edad));
    EXPECT_TRUE(fila.marcado(viva));
    EXPECT_EQ("\x11\x22", Letras(fila.campo(edad)));
    EXPECT_EQ("picea", Letras(fila.campo(especie)));
    EXPECT_EQ("ok", Letras(fila.campo(nota)));
}

TEST(FilaJet, Jet3TieneLosLugaresEnUnByte) {
    const auto fila = Fila("\4"
                           "\x11\x22"
                           "picea"
                           "ok"
                           "\x0A\x08\x03"
                           "\2"
                           "\x0D"sv,
                           true);
    EXPECT_FALSE(fila.marcado(viva));
    EXPECT_EQ("\x11\x22", Letras(fila.campo(edad)));
    EXPECT_EQ("picea", Letras(fila.campo(especie)));
    EXPECT_EQ("ok", Letras(fila.campo(nota)));
}

/// A species of so many letters and the note "ok". The jumps say at which field, counted from 0, each further
/// 256 bytes begin; the places are what is left of them.
std::string LargaJet3(std::size_t letras, std::string_view saltos) {
    const std::size_t detras = 3 + letras;
    std::string fila = "\4\x11\x22" + std::string(letras, 'p') + "ok";
    for (const std::size_t lugar : {detras + 2, detras, std::size_t{3}}) {
        fila += static_cast<char>(lugar % 256);
    }
    return fila + std::string{saltos} + "\2\x0F";
}

TEST(FilaJet, Jet3SaltaCada256Bytes) {
    for (const auto& [letras, saltos] : {std::pair<std::size_t, std::string_view>{300, "\1"},
                                         {600, "\1\1"},
                                         {252, "\2"},   // the second field begins at 255 and ends beyond
                                         {249, "\xFF"}, // no field of it begins or ends beyond
                                         {253, "\1"}}) {
        const auto bytes = LargaJet3(letras, saltos);
        const auto fila = Fila(bytes, true);
        EXPECT_EQ(std::string(letras, 'p'), Letras(fila.campo(especie))) << letras;
        EXPECT_EQ("ok", Letras(fila.campo(nota))) << letras;
    }
}

TEST(FilaJet, UnaTablaSinCamposDeLongitudVariableNoTieneSusLugares) {
    const auto cuatro = Fila("\2\0\x11\x22\3"sv, false, soloFijas);
    EXPECT_EQ("\x11\x22", Letras(cuatro.campo(edad)));
    EXPECT_TRUE(cuatro.marcado(viva));
    EXPECT_EQ("\x11\x22", Letras(Fila("\2\x11\x22\1"sv, true, soloFijas).campo(edad)));
}

TEST(FilaJet, UnaColumnaPosteriorALaFilaNoEstaMarcada) {
    const auto fila = Fila("\2\0\x11\x22\4\0\0\0\xFF"sv);
    EXPECT_TRUE(fila.marcado(viva));
    EXPECT_FALSE(fila.marcado(especie));
    EXPECT_FALSE(fila.marcado(nota));
}

TEST(FilaJet, UnaFilaDemasiadoCortaEstaDanada) {
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "faltan bytes", [] { Fila(""); }));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, sinSusCampos, [] { Fila("\x20\0\0"sv); }));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, sinSusCampos, [] { Fila("\4\0\x0F"sv); }));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, sinSusCampos, [] { Fila("\4\0\x09\0\x0F"sv); }));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, sinSusCampos, [] { Fila("\4\x09\x0F"sv, true); }));
}

TEST(FilaJet, UnosLugaresQueNoCuadranEstanDanados) {
    const auto conLugares = [](std::string_view lugares) {
        const auto bytes = "\4\0\x11\x22picea"s + std::string{lugares} + "\2\0\x0F"s;
        return FallaCon(fallo::archivoDanado, sinSusCampos, [&] { Fila(bytes); });
    };
    EXPECT_TRUE(conLugares("\x09\0\x03\0\4\0"sv)) << "el segundo antes que el primero";
    EXPECT_TRUE(conLugares("\x0A\0\x09\0\4\0"sv)) << "acaba tras los bytes";
    EXPECT_TRUE(conLugares("\x09\0\x09\0\1\0"sv)) << "empieza en la cuenta de columnas";
    EXPECT_FALSE(conLugares("\x09\0\x09\0\4\0"sv));
}

TEST(FilaJet, UnCampoMarcadoQueNoEstaEnLaFilaEstaDanado) {
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, sinSusCampos, [] {
        (void)Fila("\4\0\x11\x22"
                   "p\5\0\4\0\1\0\x0F"sv)
            .campo(nota);
    })) << "la fila tiene un campo";
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, sinSusCampos, [] {
        (void)Fila("\4\0\x11\3\0\3\0\3\0\2\0\x0F"sv).campo(edad);
    })) << "los fijos acaban antes";
}

} // namespace
} // namespace varo
