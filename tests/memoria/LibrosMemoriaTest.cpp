// What it costs at most to read a zipped workbook: ten times what it unpacks to and 64 MB, whatever it says.
#include "apoyo/EscritorOds.h"
#include "apoyo/EscritorXlsx.h"
#include "libros/LectorDeLibros.h"
#include "memoria/MemoriaPermitida.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace varo::prueba {
namespace {

/// The parts are stored as they are, so that the file is as long as what it unpacks to.
testing::AssertionResult Cabe(const std::vector<std::byte>& libro) {
    return CabeEnLaMemoria(libro.size(), [&] { return LeerLibroComprimido(libro, "libro"); });
}

testing::AssertionResult FilasCaben(const std::string& filas) {
    return Cabe(EscribirXlsx(LibroXlsxDePrueba{.hojas = {{"H", filas}}}));
}

TEST(MemoriaDeLibros, MuchasCeldasPequenas) {
    const auto fila = "<row>" + Repetido("<c><v>1</v></c>", 100) + "</row>";
    EXPECT_TRUE(FilasCaben(Repetido(fila, 10'000)));
    EXPECT_TRUE(FilasCaben(Repetido("<row><c t=\"e\"/></row>", 1'000'000)));
    EXPECT_TRUE(FilasCaben(Repetido("<row/>", 3'000'000)));
    EXPECT_TRUE(FilasCaben(Repetido("<row><c t=\"str\"><v>nueve let</v></c></row>", 500'000)));
}

TEST(MemoriaDeLibros, MuchosTextosYEstilos) {
    const std::string celda = "<row><c><v>1</v></c></row>";
    EXPECT_TRUE(Cabe(
        EscribirXlsx(LibroXlsxDePrueba{.hojas = {{"H", celda}}, .textos = Repetido("<si/>", 3'000'000)})));
    EXPECT_TRUE(Cabe(EscribirXlsx(
        LibroXlsxDePrueba{.hojas = {{"H", celda}},
                          .textos = Repetido("<si><t>" + std::string(25, 'x') + "</t></si>", 500'000)})));
    EXPECT_TRUE(Cabe(EscribirXlsx(LibroXlsxDePrueba{
        .hojas = {{"H", celda}}, .estilos = "<cellXfs>" + Repetido("<xf/>", 3'000'000) + "</cellXfs>"})));
}

TEST(MemoriaDeLibros, MuchosNombresYMuchasHojas) {
    const std::string celda = "<row><c><v>1</v></c></row>";
    EXPECT_TRUE(Cabe(EscribirXlsx(
        LibroXlsxDePrueba{.hojas = {{"H", celda}},
                          .nombres = Repetido("<definedName name=\"a\">H!$A$1</definedName>", 300'000)})));
    EXPECT_TRUE(Cabe(EscribirOds(Repetido("<table:table/>", 40'000))));
    EXPECT_TRUE(Cabe(EscribirOds(Repetido("<table:table/>", 300'000))));
    auto partes = PartesDe({.hojas = {{"H", celda}}});
    partes[0].contenido.insert(partes[0].contenido.find("<Relationship "),
                               Repetido("<Relationship Id=\"a\" Target=\"b\"/>", 500'000));
    EXPECT_TRUE(Cabe(EscribirZip(partes)));
}

TEST(MemoriaDeLibros, LoQueUnOdsRepite) {
    const std::string celda = R"(<table:table-cell office:value-type="float" office:value="1" )"
                              R"(table:number-columns-repeated="16384"/>)";
    const auto hoja = [&](const std::string& veces) {
        return "<table:table table:name=\"H\"><table:table-row table:number-rows-repeated=\"" + veces +
               "\">" + celda + "</table:table-row></table:table>";
    };
    EXPECT_TRUE(Cabe(EscribirOds(hoja("1048576"))));
    EXPECT_TRUE(Cabe(EscribirOds(hoja("60"))));
    EXPECT_TRUE(Cabe(EscribirOds(Repetido(hoja("60"), 50))));
    EXPECT_TRUE(
        Cabe(EscribirOds(R"(<table:table table:name="H"><table:table-row><table:table-cell><text:p>)" +
                         Repetido(R"(<text:s text:c="1000000"/>)", 100) +
                         "</text:p></table:table-cell></table:table-row></table:table>")));
}

} // namespace
} // namespace varo::prueba
