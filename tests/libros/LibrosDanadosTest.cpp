// Zipped files that are no workbook, or not whole: what they are, where they broke, what to do.
#include "libros/ApoyoLibros.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Texto.h"
#include "libros/LectorDeLibros.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varo::prueba {
namespace {

const std::string hojaUno = "xl/worksheets/sheet1.xml";

/// Two sheets with a shared text each, and a name over each.
std::vector<ParteZip> DosHojas() {
    LibroXlsxDePrueba libro;
    const std::string filas =
        R"(<row r="1"><c r="A1" t="s"><v>0</v></c></row><row r="2"><c r="A2"><v>1</v></c></row>)";
    libro.hojas = {{"Uno", filas}, {"Dos", filas}};
    libro.textos = "<si><t>X</t></si>";
    libro.estilos = R"(<cellXfs><xf numFmtId="0"/></cellXfs>)";
    libro.nombres = R"(<definedName name="DeUno">Uno!$A$1:$A$2</definedName>)"
                    R"(<definedName name="DeDos">Dos!$A$1:$A$2</definedName>)";
    return PartesDe(libro);
}

std::vector<ParteZip> Sin(std::vector<ParteZip> partes, const std::string& nombre) {
    std::erase_if(partes, [&](const ParteZip& parte) { return parte.nombre == nombre; });
    return partes;
}

std::string Contenido(const std::vector<ParteZip>& partes, const std::string& nombre) {
    return std::ranges::find(partes, nombre, &ParteZip::nombre)->contenido;
}

TEST(LibrosDanados, UnaHojaDanadaNoSeLlevaALasDemas) {
    const auto entera = Contenido(DosHojas(), hojaUno);
    const auto cortada = EscribirZip(Cambiada(DosHojas(), hojaUno, entera.substr(0, entera.size() / 2)));
    EXPECT_TRUE(
        TieneDefecto(cortada, "Uno$", fallo::archivoDanado,
                     "No se puede leer la hoja «Uno» de «libro.xyz»: el archivo está dañado (su parte "
                     "«xl/worksheets/sheet1.xml» no está bien escrita, línea 1, carácter"));
    EXPECT_TRUE(TieneDefecto(cortada, "Uno$", fallo::archivoDanado,
                             "ábralo en la hoja de cálculo y guárdelo de nuevo, o tome otra copia"));
    EXPECT_TRUE(TieneDefecto(cortada, "DeUno", fallo::archivoDanado, "la hoja «Uno»"));
    const auto tablas = LeerLibroComprimido(cortada, "libro.xyz");
    ASSERT_EQ(tablas.size(), 4U);
    EXPECT_EQ(tablas[1].Name, "Dos$");
    EXPECT_EQ(tablas[1].filas.size(), 1U);
    EXPECT_FALSE(tablas[1].defecto);
    EXPECT_EQ(tablas[3].Name, "DeDos");
    EXPECT_FALSE(tablas[3].defecto);
}

TEST(LibrosDanados, UnaHojaQueFaltaTieneDefecto) {
    EXPECT_TRUE(TieneDefecto(EscribirZip(Sin(DosHojas(), hojaUno)), "Uno$", fallo::archivoDanado,
                             "le falta su parte «xl/worksheets/sheet1.xml»"));
    const auto relaciones = Contenido(DosHojas(), "xl/_rels/workbook.xml.rels");
    EXPECT_TRUE(TieneDefecto(EscribirZip(Cambiada(DosHojas(), "xl/_rels/workbook.xml.rels",
                                                  Reemplazar(relaciones, "rId1", "rId9"))),
                             "Uno$", fallo::archivoDanado, "el libro no dice dónde está la hoja"));
}

/// The sheet with these rows has a defect that says this.
testing::AssertionResult FilaMala(const std::string& filas, std::string_view texto) {
    auto hoja = Contenido(DosHojas(), hojaUno);
    const auto comienzo = hoja.find("<row");
    hoja.replace(comienzo, hoja.find("</sheetData>") - comienzo, filas);
    return TieneDefecto(EscribirZip(Cambiada(DosHojas(), hojaUno, hoja)), "Uno$", fallo::archivoDanado,
                        texto);
}

TEST(LibrosDanados, UnaCeldaQueNoSeEntiendeSeDiceDondeEsta) {
    EXPECT_TRUE(
        FilaMala(R"(<row r="7"><c r="AB7"><v>doce</v></c></row>)", "su celda AB7 no lleva un número: doce"));
    EXPECT_TRUE(FilaMala(R"(<row><c t="s"><v>1</v></c></row>)", "su celda A1 pide un texto que no hay"));
    EXPECT_TRUE(FilaMala(R"(<row><c t="s"><v>-1</v></c></row>)", "su celda A1 pide un texto que no hay"));
    EXPECT_TRUE(
        FilaMala(R"(<row><c t="b"><v>2</v></c></row>)", "su celda A1 no es ni verdadera ni falsa: 2"));
    EXPECT_TRUE(FilaMala(R"(<row><c t="d"><v>ayer</v></c></row>)", "su celda A1 no lleva una fecha: ayer"));
    EXPECT_TRUE(FilaMala(R"(<row><c t="x"/></row>)", "su celda A1 es de una clase que no hay: x"));
    EXPECT_TRUE(FilaMala(R"(<row r="7"><c t="x" r="C7"/></row>)", "su celda C7 es de una clase que no hay"));
    EXPECT_TRUE(FilaMala(R"(<row r="0"/>)", "una fila no dice bien cuál es: 0"));
    EXPECT_TRUE(FilaMala(R"(<row r="uno"/>)", "una fila no dice bien cuál es: uno"));
    EXPECT_TRUE(FilaMala(R"(<row><c r="7A"/></row>)", "una celda no dice bien cuál es: 7A"));
    EXPECT_TRUE(FilaMala(R"(<row r="1"><c r="XFE1"/></row>)", "su celda XFE1 está fuera de la hoja"));
    EXPECT_TRUE(FilaMala(R"(<row r="1048577"><c/></row>)", "su celda A1048577 está fuera de la hoja"));
    EXPECT_TRUE(FilaMala(R"(<row r="99999999999999999999"><c/></row>)", "una fila no dice bien cuál es"));
}

TEST(LibrosDanados, LoQueValeParaTodasLasHojasEsDelLibro) {
    for (const std::string parte : {"_rels/.rels", "xl/workbook.xml", "xl/_rels/workbook.xml.rels",
                                    "xl/sharedStrings.xml", "xl/styles.xml"}) {
        const auto entera = Contenido(DosHojas(), parte);
        EXPECT_TRUE(NoSeLee(EscribirZip(Cambiada(DosHojas(), parte, entera.substr(0, entera.size() - 1))),
                            fallo::archivoDanado, "su parte «" + parte + "» no está bien escrita"));
    }
    for (const std::string parte : {"xl/workbook.xml", "xl/sharedStrings.xml", "xl/styles.xml"}) {
        EXPECT_TRUE(NoSeLee(EscribirZip(Sin(DosHojas(), parte)), fallo::archivoDanado,
                            "le falta su parte «" + parte + "»"));
    }
    const auto relaciones = Contenido(DosHojas(), "xl/_rels/workbook.xml.rels");
    EXPECT_TRUE(NoSeLee(EscribirZip(Cambiada(DosHojas(), "xl/_rels/workbook.xml.rels",
                                             Reemplazar(relaciones, "sheet2", "sheet1"))),
                        fallo::archivoDanado, "unas hojas pisan a otras"));
}

TEST(LibrosDanados, UnArchivoSinSuFinalSeDice) {
    auto bytes = EscribirZip(DosHojas());
    bytes.resize(bytes.size() - 30);
    EXPECT_TRUE(NoSeLee(bytes, fallo::archivoDanado, "falta el índice de sus partes, que está al final"));
}

TEST(LibrosDanados, UnByteCambiadoDeUnaParteSeNota) {
    auto bytes = EscribirZip(DosHojas());
    const std::string marca = "<c r=\"A2\">";
    const auto celda = std::search(bytes.begin(), bytes.end(), marca.begin(), marca.end(),
                                   [](std::byte byte, char c) { return byte == static_cast<std::byte>(c); });
    ASSERT_NE(celda, bytes.end());
    *(celda + 7) = std::byte{'3'}; // a well-formed sheet, but not the one that was written
    EXPECT_TRUE(TieneDefecto(bytes, "Uno$", fallo::archivoDanado,
                             "su parte «xl/worksheets/sheet1.xml» no se puede descomprimir"));
}

TEST(LibrosDanados, LosComprimidosQueNoSonLibrosDicenQueSon) {
    const auto no = fallo::formatoNoReconocido;
    const auto de = [](const std::string& nombre, const std::string& contenido) {
        return EscribirZip({{nombre, contenido}});
    };
    const std::string odf = "application/vnd.oasis.opendocument.";
    EXPECT_TRUE(NoSeLee(de("mimetype", odf + "text"), no, "es un documento de texto (.odt): guarde la hoja"));
    EXPECT_TRUE(NoSeLee(de("mimetype", odf + "presentation"), no, "es una presentación (.odp)"));
    EXPECT_TRUE(NoSeLee(de("mimetype", odf + "graphics"), no, "es un dibujo (.odg)"));
    EXPECT_TRUE(NoSeLee(de("mimetype", odf + "base"), no, "es un documento de OpenDocument sin hojas"));
    EXPECT_TRUE(NoSeLee(de("mimetype", "application/vnd.sun.xml.calc"), no, "OpenOffice 1 (.sxc)"));
    EXPECT_TRUE(NoSeLee(de("mimetype", "application/epub+zip"), no, "es un libro electrónico (.epub)"));
    EXPECT_TRUE(
        NoSeLee(de("a/Parcela 1.XLS", "x"), no,
                "es un archivo comprimido (.zip): extraiga «a/Parcela 1.XLS», que va dentro, y ábralo"));
    EXPECT_TRUE(NoSeLee(EscribirZip({{"__MACOSX/._Parcela.xls", "x"}, {"Parcela.xls", "x"}}), no,
                        "extraiga «Parcela.xls», que va dentro"));
    EXPECT_TRUE(NoSeLee(de("__MACOSX/._Parcela.xls", "x"), no, "no lleva dentro ninguna hoja de cálculo"));
    EXPECT_TRUE(NoSeLee(de("Index/Document.iwa", "x"), no, "es un documento de Numbers (.numbers): guarde"));
    EXPECT_TRUE(NoSeLee(de("foto.jpg", "x"), no, "(.zip), y no lleva dentro ninguna hoja de cálculo"));
    EXPECT_TRUE(NoSeLee(EscribirZip({}), no, "(.zip), y no lleva dentro ninguna hoja de cálculo"));
}

/// A package of Office whose document is another.
std::vector<std::byte> Paquete(const std::string& parte, const std::string& contenido) {
    auto partes = DosHojas();
    partes.front().contenido = Reemplazar(partes.front().contenido, "xl/workbook.xml", parte);
    partes.push_back({parte, contenido});
    return EscribirZip(partes);
}

TEST(LibrosDanados, LosDocumentosDeOfficeQueNoSonLibrosDicenQueSon) {
    const auto no = fallo::formatoNoReconocido;
    EXPECT_TRUE(NoSeLee(Paquete("word/document.xml", "<document xmlns=\"urn:w\"/>"), no,
                        "es un documento de Word (.docx): guarde la hoja"));
    EXPECT_TRUE(NoSeLee(Paquete("ppt/presentation.xml", "<p/>"), no, "es una presentación de PowerPoint"));
    EXPECT_TRUE(NoSeLee(Paquete("xl/workbook.bin", "\1\2\3"), no, "es un libro binario de Excel (.xlsb)"));
}

TEST(LibrosDanados, LasDeclaracionesDeTiposYDeEntidadesSeRechazan) {
    const auto libro = Contenido(DosHojas(), "xl/workbook.xml");
    const auto con = [&](const std::string& declaracion) {
        return EscribirZip(Cambiada(DosHojas(), "xl/workbook.xml",
                                    Reemplazar(libro, "<workbook ", declaracion + "<workbook ")));
    };
    std::string risas = R"(<!DOCTYPE r [<!ENTITY a0 "ja">)";
    for (int i = 1; i < 30; ++i) {
        const auto antes = "&a" + std::to_string(i - 1) + ";";
        risas += "<!ENTITY a" + std::to_string(i) + " \"" + antes + antes + "\">";
    }
    const std::string dicho = "su parte «xl/workbook.xml» declara un tipo de documento (DOCTYPE), línea 1";
    EXPECT_TRUE(NoSeLee(con(risas + "]>"), fallo::archivoDanado, dicho));
    EXPECT_TRUE(NoSeLee(con(R"(<!DOCTYPE r SYSTEM "file:///etc/passwd">)"), fallo::archivoDanado, dicho));
    EXPECT_TRUE(NoSeLee(EscribirZip(Cambiada(DosHojas(), "xl/workbook.xml", Reemplazar(libro, "Uno", "&x;"))),
                        fallo::archivoDanado, "no está bien escrita"));
}

TEST(LibrosDanados, UnaCodificacionQueNadieUsaSeRechaza) {
    EXPECT_TRUE(NoSeLee(EscribirZip(Cambiada(DosHojas(), "xl/workbook.xml",
                                             R"(<?xml version="1.0" encoding="EBCDIC"?><workbook/>)")),
                        fallo::archivoDanado, "no está bien escrita"));
}

} // namespace
} // namespace varo::prueba
