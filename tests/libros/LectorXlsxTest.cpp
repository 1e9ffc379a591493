// What a sheet of an .xlsx becomes.
#include "libros/ApoyoLibros.h"

#include "basico/Texto.h"
#include "libros/LectorDeLibros.h"
#include "motor/lectores/ApoyoLectores.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varo::prueba {
namespace {

TEST(LectorXlsx, LeeCadaClaseDeValor) {
    LibroXlsxDePrueba libro;
    libro.textos = "<si><t>cero</t></si><si><t>uno</t></si>";
    std::string cabecera;
    for (const std::string nombre : {"n", "s", "str", "propio", "b", "e", "d", "sin clase"}) {
        cabecera += "<c t=\"str\"><v>" + nombre + "</v></c>";
    }
    libro.hojas = {
        {"H", "<row>" + cabecera + "</row>" +
                  R"(<row r="2"><c r="A2" t="n"><v>0.1</v></c><c r="B2" t="s"><v>1</v></c>)"
                  R"(<c r="C2" t="str"><f>A1</f><v>año €</v></c>)"
                  R"(<c r="D2" t="inlineStr"><is><t>b&#10;c</t></is></c><c r="E2" t="b"><v>1</v></c>)"
                  R"(<c r="F2" t="e"><f>1/0</f><v>#DIV/0!</v></c>)"
                  R"(<c r="G2" t="d"><v>2020-01-01T12:00:00</v></c><c r="H2"><v> -1E-05 </v></c></row>)"}};
    EXPECT_EQ((LineasDeTablas{"[H$]", "n | s | str | propio | b | e | d | sin clase",
                              "0.1 | 'uno' | 'año €' | 'b\nc' | V | - | #43831.5 | -1e-05"}),
              LineasDelLibro(EscribirXlsx(libro)));
}

TEST(LectorXlsx, LasHojasVanEnElOrdenDelLibroTambienLasOcultasYNoLosGraficos) {
    LibroXlsxDePrueba libro;
    const std::string fila = R"(<row r="1"><c r="A1" t="str"><v>X</v></c></row>)";
    libro.hojas = {{"Zeta", fila},
                   {"Gráfico", "", "chartsheet"},
                   {"Oculta", fila, "worksheet", "veryHidden"},
                   {"Diálogo", "", "dialogsheet"},
                   {"Macro", "", "xlMacrosheet"},
                   {"It's & más", ""}};
    EXPECT_EQ((LineasDeTablas{"[Zeta$]", "X", "[Oculta$]", "X", "[It's & más$]", ""}),
              LineasDelLibro(EscribirXlsx(libro)));
}

TEST(LectorXlsx, LasTablasDelEscritorSonLasDelXls) {
    const std::vector<Hoja> hojas{
        {"Parcela", {{"Árbol", "X", "Día", "Vivo"}, {"encina", 0.1, Fecha{43831.5}, true}, {Nulo{}, -2.0}}},
        {"Oculta", {{"A&B <\"x\">", "  con blancos "}, {1e-300, "漢字 😀"}}, true}};
    EXPECT_EQ(
        (LineasDeTablas{"[Parcela$]", "Árbol | X | Día | Vivo", "'encina' | 0.1 | #43831.5 | V",
                        "- | -2 | - | -", "[Oculta$]", "A&B <\"x\"> |   con blancos ", "1e-300 | '漢字 😀'"}),
        LineasDelLibro(EscribirXlsx(hojas)));
}

TEST(LectorXlsx, LasCeldasYLasFilasQueNoDicenDondeEstanSiguenALaAnterior) {
    EXPECT_EQ((LineasDeTablas{"[H$]", "A | B | F3 | D", "1 | 2 | - | 4", "- | - | - | -", "5 | 6 | - | 7"}),
              LineasDeFilas(
                  R"(<row><c t="str"><v>A</v></c><c t="str"><v>B</v></c><c r="D1" t="str"><v>D</v></c></row>)"
                  R"(<row><c><v>1</v></c><c><v>2</v></c><c s="0"/><c><v>4</v></c></row>)"
                  R"(<row r="4"><c><v>5</v></c><c><v>6</v></c><c r="D4"><v>7</v></c></row>)"));
}

TEST(LectorXlsx, LasCeldasDesordenadasSeOrdenanYDeDosEnUnSitioCuentaLaUltima) {
    EXPECT_EQ((LineasDeTablas{"[H$]", "A | B", "1 | 9", "3 | -"}),
              LineasDeFilas(
                  R"(<row r="3"><c r="A3"><v>3</v></c></row>)"
                  R"(<row r="1"><c r="B1" t="str"><v>B</v></c><c r="A1" t="str"><v>A</v></c></row>)"
                  R"(<row r="2"><c r="B2"><v>2</v></c><c r="A2"><v>1</v></c><c r="B2"><v>9</v></c></row>)"));
}

TEST(LectorXlsx, LaHojaAcabaEnLoUltimoQueSeVe) {
    // Formatted blanks, empty texts, errors and formulas that were never computed make no sheet longer.
    EXPECT_EQ(
        (LineasDeTablas{"[H$]", "X", "1", "-", "2"}),
        LineasDeFilas(R"(<row r="3"><c r="B3" t="str"><v>X</v></c><c r="E3" s="0"/></row>)"
                      R"(<row r="4"><c r="B4"><v>1</v></c></row>)"
                      R"(<row r="6"><c r="B6"><v>2</v></c><c r="C6" t="str"><f>""</f><v></v></c></row>)"
                      R"(<row r="7"><c r="B7" t="str"><f>""</f><v/></c><c r="C7" t="e"><v>#N/A</v></c></row>)"
                      R"(<row r="8"><c r="B8"><f>A1</f></c><c r="C8" t="str"><f>A1</f></c></row>)"));
}

TEST(LectorXlsx, LosNumerosDeLasFilasSonLosDeLaHoja) {
    LibroXlsxDePrueba libro;
    libro.hojas = {{"H", R"(<row r="70000"><c r="B70000" t="str"><v>X</v></c></row>)"
                         R"(<row r="1048576"><c r="XFD1048576"><v>2</v></c></row>)"}};
    const auto tablas = LeerLibroComprimido(EscribirXlsx(libro), "libro");
    ASSERT_EQ(tablas.size(), 1U);
    const auto& tabla = tablas.front();
    EXPECT_EQ(tabla.primerNumero, 70001);
    EXPECT_EQ(tabla.filas.size(), 1'048'576U - 70'000U);
    EXPECT_EQ(tabla.Fields.Count(), 16'383);
    EXPECT_EQ(Escrito(tabla.filas[tabla.filas.size() - 1][16'382]), "2");
}

TEST(LectorXlsx, LosTextosJuntanSusTramosSinLaPronunciacion) {
    LibroXlsxDePrueba libro;
    libro.textos = R"(<si><r><rPr><b/></rPr><t>roble </t></r><r><t>albar</t></r></si>)"
                   R"(<si><t>東京</t><rPh sb="0" eb="2"><t>トウキョウ</t></rPh><phoneticPr fontId="1"/></si>)"
                   R"(<si/>)";
    libro.hojas = {
        {"H", R"(<row r="1"><c r="A1" t="s"><v>0</v></c><c r="B1" t="s"><v>1</v></c></row>)"
              R"(<row r="2"><c r="A2" t="inlineStr"><is><r><t>a</t></r><r><t xml:space="preserve"> b</t></r>)"
              R"(<rPh sb="0" eb="1"><t>x</t></rPh></is></c><c r="B2" t="s"><v>2</v></c></row>)"
              R"(<row r="3"><c r="A3"><v>1</v></c><c r="B3"><v>1</v></c></row>)"}};
    EXPECT_EQ((LineasDeTablas{"[H$]", "roble albar | 東京", "'a b' | ''", "1 | 1"}),
              LineasDelLibro(EscribirXlsx(libro)));
}

TEST(LectorXlsx, LosBlancosDeLosExtremosCuentanDondeElTextoLoDice) {
    LibroXlsxDePrueba libro;
    libro.textos = "<si><t>\n  sin blancos\t</t></si>"
                   R"(<si><t xml:space="preserve"> con blancos </t></si>)";
    libro.hojas = {
        {"H", R"(<row r="1"><c r="A1" t="str"><v>X</v></c></row>)"
              R"(<row r="2"><c r="A2" t="s"><v>0</v></c></row><row r="3"><c r="A3" t="s"><v>1</v></c></row>)"
              R"(<row r="4"><c r="A4" t="str"><f>A1</f><v> de fórmula </v></c></row>)"}};
    EXPECT_EQ((LineasDeTablas{"[H$]", "X", "'sin blancos'", "' con blancos '", "' de fórmula '"}),
              LineasDelLibro(EscribirXlsx(libro)));
}

TEST(LectorXlsx, LosEscapesDeExcelSonSusCaracteres) {
    LibroXlsxDePrueba libro;
    libro.textos = "<si><t>a_x000D_\nb</t></si><si><t>_x005F_x000D_</t></si><si><t>_xD83D__xDE00_</t></si>"
                   "<si><t>_x00ZZ_ _x00 _x</t></si>";
    libro.hojas = {
        {"H", R"(<row r="1"><c r="A1" t="str"><v>X</v></c></row>)"
              R"(<row r="2"><c r="A2" t="s"><v>0</v></c></row><row r="3"><c r="A3" t="s"><v>1</v></c></row>)"
              R"(<row r="4"><c r="A4" t="s"><v>2</v></c></row><row r="5"><c r="A5" t="s"><v>3</v></c></row>)"
              R"(<row r="6"><c r="A6" t="str"><v>_x0041_</v></c></row>)"}};
    EXPECT_EQ((LineasDeTablas{"[H$]", "X", "'a\r\nb'", "'_x000D_'", "'😀'", "'_x00ZZ_ _x00 _x'", "'A'"}),
              LineasDelLibro(EscribirXlsx(libro)));
}

/// A column of the serial 100.5, a cell for each style.
std::string FilasConEstilos(std::size_t cuantos) {
    std::string filas = R"(<row r="1"><c r="A1" t="str"><v>X</v></c></row>)";
    for (std::size_t i = 0; i < cuantos; ++i) {
        filas += "<row><c s=\"" + std::to_string(i) + "\"><v>100.5</v></c></row>";
    }
    return filas;
}

TEST(LectorXlsx, LoQueElFormatoEnsenaComoFechaLoEs) {
    const std::vector<std::pair<std::string, bool>> formatos{
        {"dd/mm/yyyy", true}, {"[h]:mm", true},      {"[$-40A]d mmmm yyyy", true},
        {"[Red]0.00", false}, {"0 \"días\"", false}, {"0.0\\h", false},
        {"General", false}};
    LibroXlsxDePrueba libro;
    std::string propios;
    std::string estilos = R"(<xf numFmtId="0"/><xf numFmtId="14"/><xf numFmtId="22"/><xf numFmtId="2"/>)"
                          R"(<xf numFmtId="49"/><xf numFmtId="15"/><xf/><xf numFmtId="nada"/>)";
    LineasDeTablas esperado{"[H$]",  "X",     "100.5", "#100.5", "#100.5",
                            "100.5", "100.5", "100.5", "100.5",  "100.5"};
    for (std::size_t i = 0; i < formatos.size(); ++i) {
        const auto numero = std::to_string(164 + i);
        propios += "<numFmt numFmtId=\"" + numero + "\" formatCode=\"" + EnXml(formatos[i].first) + "\"/>";
        estilos += "<xf numFmtId=\"" + numero + "\"/>";
        esperado.emplace_back(formatos[i].second ? "#100.5" : "100.5");
    }
    // A format that the workbook spells out counts before the built-in one of its number; those of styles
    // that cells do not have do not count.
    libro.estilos = "<numFmts>" + propios + R"(<numFmt numFmtId="15" formatCode="0.00"/></numFmts>)" +
                    R"(<cellStyleXfs><xf numFmtId="14"/></cellStyleXfs><cellXfs>)" + estilos + "</cellXfs>";
    libro.hojas = {{"H", FilasConEstilos(esperado.size() - 2)}};
    EXPECT_EQ(esperado, LineasDelLibro(EscribirXlsx(libro)));
}

LineasDeTablas LineasDeFechas(const std::string& propiedades) {
    LibroXlsxDePrueba libro;
    libro.propiedades = propiedades;
    libro.estilos = R"(<cellXfs><xf numFmtId="0"/><xf numFmtId="14"/></cellXfs>)";
    std::string filas = R"(<row><c t="str"><v>X</v></c></row>)";
    for (const std::string serie :
         {"0", "0.25", "1", "59", "60", "61", "43831.5", "2958465", "2958466", "-1"}) {
        filas += "<row><c s=\"1\"><v>" + serie + "</v></c></row>";
    }
    libro.hojas = {{"H", filas}};
    return LineasDelLibro(EscribirXlsx(libro));
}

TEST(LectorXlsx, LeeLasFechasDeLosDosCalendarios) {
    const LineasDeTablas de1900{"[H$]", "X",   "#0",       "#0.25",    "#2",      "#60",
                                "#60",  "#61", "#43831.5", "#2958465", "2958466", "-1"};
    const LineasDeTablas de1904{"[H$]",  "X",     "#0",       "#0.25",   "#1463",   "#1521",
                                "#1522", "#1523", "#45293.5", "2958465", "2958466", "-1"};
    EXPECT_EQ(de1900, LineasDeFechas(""));
    EXPECT_EQ(de1900, LineasDeFechas(R"(date1904="0")"));
    EXPECT_EQ(de1904, LineasDeFechas(R"(date1904="1")"));
    EXPECT_EQ(de1904, LineasDeFechas(R"(date1904="true")"));
}

TEST(LectorXlsx, LoQueNoEsUnNumeroFinitoEsNulo) {
    EXPECT_EQ((LineasDeTablas{"[H$]", "X", "-", "0", "1"}),
              LineasDeFilas(R"(<row><c t="str"><v>X</v></c></row><row><c><v>1e999</v></c></row>)"
                            R"(<row><c><v>1E-999</v></c></row><row><c><v>+1</v></c></row>)"));
}

/// Zeros and what is like one, of formulas and not, in a workbook that says this of its calculation.
LineasDeTablas LineasDeCeros(const std::string& calculo) {
    LibroXlsxDePrueba libro;
    libro.calculo = calculo;
    libro.hojas = {{"H", R"(<row><c t="str"><v>X</v></c></row><row><c><f>A1</f><v>0</v></c></row>)"
                         R"(<row><c t="n"><f>A1</f><v>0</v></c></row><row><c><v>0</v></c></row>)"
                         R"(<row><c><f>A1</f><v>7</v></c></row><row><c><f>A1</f><v>0.0</v></c></row>)"
                         R"(<row><c t="b"><f>A1</f><v>0</v></c></row>)"
                         R"(<row><c t="str"><f>A1</f><v>0</v></c></row>)"}};
    return LineasDelLibro(EscribirXlsx(libro));
}

TEST(LectorXlsx, ElCeroDeUnaFormulaQueEstaPorCalcularEsNulo) {
    const LineasDeTablas calculado{"[H$]", "X", "0", "0", "0", "7", "0", "F", "'0'"};
    const LineasDeTablas porCalcular{"[H$]", "X", "-", "-", "0", "7", "0", "F", "'0'"};
    EXPECT_EQ(calculado, LineasDeCeros(""));
    EXPECT_EQ(calculado, LineasDeCeros(R"(calcId="124519" fullCalcOnLoad="0")"));
    EXPECT_EQ(porCalcular, LineasDeCeros(R"(calcId="124519" fullCalcOnLoad="1")"));
    EXPECT_EQ(porCalcular, LineasDeCeros(R"(fullCalcOnLoad="true")"));
}

TEST(LectorXlsx, LosBlancosAlrededorDeUnValorNoSonSuyos) {
    LibroXlsxDePrueba libro;
    libro.textos = "<si><t>cero</t></si><si><t>uno</t></si>";
    libro.hojas = {{"H", "<row><c t=\"str\"><v>X</v></c></row><row><c t=\"s\"><v>\n  1\n</v></c></row>"
                         "<row><c t=\"b\"><v>\t1 </v></c></row><row><c><v> 2 </v></c></row>"
                         "<row><c><v>\n </v></c></row><row><c><f>A1</f><v>\n </v></c></row>"
                         "<row><c t=\"d\"><v> 2020-01-01 </v></c></row>"
                         "<row><c t=\"str\"><v> y </v></c></row>"}};
    EXPECT_EQ((LineasDeTablas{"[H$]", "X", "'uno'", "V", "2", "-", "-", "#43831", "' y '"}),
              LineasDelLibro(EscribirXlsx(libro)));
}

TEST(LectorXlsx, VerdaderoYFalsoValenEnCualquierTamanoDeLetra) {
    EXPECT_EQ((LineasDeTablas{"[H$]", "X", "V", "F", "V"}),
              LineasDeFilas(R"(<row><c t="str"><v>X</v></c></row><row><c t="b"><v>TRUE</v></c></row>)"
                            R"(<row><c t="b"><v>FALSE</v></c></row><row><c t="b"><v>True</v></c></row>)"));
}

TEST(LectorXlsx, LosNombresDelLibroSonTablasDetrasDeLasHojas) {
    LibroXlsxDePrueba libro;
    libro.hojas = {{"Uno", R"(<row r="1"><c r="A1" t="str"><v>A</v></c><c r="B1" t="str"><v>B</v></c></row>)"
                           R"(<row r="2"><c r="A2"><v>1</v></c><c r="B2"><v>2</v></c></row>)"
                           R"(<row r="3"><c r="A3"><v>3</v></c><c r="B3"><v>4</v></c></row>)"},
                   {"La d'aquí", R"(<row r="1"><c r="A1" t="str"><v>Z</v></c></row>)"}};
    libro.nombres = R"(<definedName name="Otra">'La d''aquí'!$A$1</definedName>)"
                    R"(<definedName name="Zona" hidden="1">uno!$A$2:$B$3</definedName>)"
                    R"(<definedName name="Columna">Uno!$B:$B</definedName>)"
                    R"(<definedName name="Filas">Uno!$1:$2</definedName>)"
                    R"(<definedName name="Lejos">Uno!$A$100:$B$200</definedName>)"
                    // None of these is a rectangle of the workbook.
                    R"(<definedName name="DeHoja" localSheetId="0">Uno!$A$1:$B$2</definedName>)"
                    R"(<definedName name="_xlnm.Print_Area">Uno!$A$1:$B$2</definedName>)"
                    R"(<definedName name="Movil">Uno!A1:B2</definedName>)"
                    R"(<definedName name="Mixta">Uno!$A1:$B2</definedName>)"
                    R"(<definedName name="Dos">Uno!$A$1,Uno!$B$2</definedName>)"
                    R"(<definedName name="DeOtro">[1]Uno!$A$1</definedName>)"
                    R"(<definedName name="Varias">'Uno:La d''aquí'!$A$1</definedName>)"
                    R"(<definedName name="Cinco">5</definedName>)"
                    R"(<definedName name="Reves">Uno!$B$3:$A$1</definedName>)"
                    R"(<definedName name="Rota">Uno!#REF!</definedName>)"
                    R"(<definedName name="Vacia"></definedName>)";
    EXPECT_EQ((LineasDeTablas{"[Uno$]", "A | B",   "1 | 2", "3 | 4", "[La d'aquí$]", "Z", "[Otra]",
                              "Z",      "[Zona]",  "1 | 2", "3 | 4", "[Columna]",    "B", "2",
                              "4",      "[Filas]", "A | B", "1 | 2", "[Lejos]",      ""}),
              LineasDelLibro(EscribirXlsx(libro)));
}

/// Every address changed for another in all parts.
std::vector<std::byte> ConOtro(const LibroXlsxDePrueba& libro, std::string_view antes,
                               std::string_view despues) {
    auto partes = PartesDe(libro);
    for (auto& parte : partes) {
        parte.contenido = Reemplazar(parte.contenido, antes, despues);
    }
    return EscribirZip(partes);
}

TEST(LectorXlsx, ElFormatoEstrictoYLosPrefijosSonLoMismo) {
    LibroXlsxDePrueba libro;
    libro.textos = "<si><t>X</t></si>";
    libro.hojas = {
        {"H", R"(<row r="1"><c r="A1" t="s"><v>0</v></c></row><row r="2"><c r="A2"><v>1</v></c></row>)"}};
    const LineasDeTablas esperado{"[H$]", "X", "1"};
    auto partes = PartesDe(libro);
    for (auto& [_, contenido] : partes) {
        contenido = Reemplazar(contenido, "http://schemas.openxmlformats.org/spreadsheetml/2006/main",
                               "http://purl.oclc.org/ooxml/spreadsheetml/main");
        contenido =
            Reemplazar(contenido, "http://schemas.openxmlformats.org/officeDocument/2006/relationships",
                       "http://purl.oclc.org/ooxml/officeDocument/relationships");
    }
    EXPECT_EQ(esperado, LineasDelLibro(EscribirZip(partes)));

    auto& filas = libro.hojas.front().filas;
    filas = Reemplazar(Reemplazar(filas, "<", "<x:"), "<x:/", "</x:");
    EXPECT_EQ(
        esperado,
        LineasDelLibro(ConOtro(
            libro, "<worksheet xmlns=",
            "<worksheet xmlns:x=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\" xmlns=")));
}

TEST(LectorXlsx, LasPartesSeHallanPorSusRelaciones) {
    LibroXlsxDePrueba libro;
    libro.hojas = {{"H", R"(<row r="1"><c r="A1" t="str"><v>X</v></c></row>)"}};
    const LineasDeTablas esperado{"[H$]", "X"};
    for (const std::string destino :
         {"/xl/worksheets/sheet1.xml", "./worksheets/../worksheets/sheet1.xml", "../xl/worksheets/sheet1.xml",
          "worksheets\\sheet1.xml", "Worksheets/Sheet1.XML"}) {
        EXPECT_EQ(esperado, LineasDelLibro(ConOtro(libro, "worksheets/sheet1.xml", destino))) << destino;
    }
    auto partes = PartesDe(libro);
    for (auto& [nombre, contenido] : partes) {
        nombre = Reemplazar(Reemplazar(nombre, "xl/workbook.xml", "otro/libro.xml"), "xl/_rels/workbook.xml",
                            "otro/_rels/libro.xml");
        nombre = Reemplazar(nombre, "xl/worksheets", "otro/worksheets");
        contenido = Reemplazar(contenido, "xl/workbook.xml", "/otro/libro.xml");
    }
    EXPECT_EQ(esperado, LineasDelLibro(EscribirZip(partes)));
}

TEST(LectorXlsx, LoQueOtrosVocabulariosPonenEnLaHojaNoEstorba) {
    EXPECT_EQ((LineasDeTablas{"[H$]", "X", "1"}),
              LineasDeFilas(R"(<row r="1"><c r="A1" t="str"><v>X</v></c></row><!-- nota -->)"
                            R"(<y:row xmlns:y="urn:y"><c r="A9"><v>9</v></c></y:row>)"
                            R"(<row r="2"><c r="A2" vm="1"><y:v xmlns:y="urn:y">7</y:v><v>1</v>)"
                            R"(<extLst><ext><c r="B2"><v>8</v></c></ext></extLst></c></row>)"));
}

} // namespace
} // namespace varo::prueba
