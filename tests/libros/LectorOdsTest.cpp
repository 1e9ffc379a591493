// What a sheet of an .ods becomes.
#include "apoyo/EscritorOds.h"
#include "libros/ApoyoLibros.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Texto.h"
#include "libros/LectorDeLibros.h"
#include "motor/lectores/ApoyoLectores.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

std::string Tabla1(const std::string& filas) {
    return "<table:table table:name=\"H\">" + filas + "</table:table>";
}

std::string Fila(const std::string& celdas) {
    return "<table:table-row>" + celdas + "</table:table-row>";
}

/// A cell with a text and nothing else.
std::string Letras(const std::string& parrafos) {
    return "<table:table-cell office:value-type=\"string\">" + parrafos + "</table:table-cell>";
}

std::string Celda(const std::string& atributos, const std::string& muestra = "") {
    return "<table:table-cell " + atributos + "><text:p>" + muestra + "</text:p></table:table-cell>";
}

const std::string cabecera = Fila(Letras("<text:p>X</text:p>"));
const std::string uno = R"(office:value-type="float" office:value="1")";

/// The lines of the rows below a header "X".
LineasDeTablas DebajoDeX(const std::string& filas) {
    auto lineas = LineasDelLibro(EscribirOds(Tabla1(cabecera + filas)));
    lineas.erase(lineas.begin(), lineas.begin() + 2);
    return lineas;
}

TEST(LectorOds, LeeCadaClaseDeValor) {
    EXPECT_EQ(
        (LineasDeTablas{"0.1", "0.5", "12.5", "#43831", "#43831.5", "#0.25", "#0.5", "V", "F", "'texto'",
                        "'de atributo'", "''", "'sin clase'"}),
        DebajoDeX(Fila(Celda(R"(office:value-type="float" office:value="0.1")", "0,10")) +
                  Fila(Celda(R"(office:value-type="percentage" office:value="0.5")", "50 %")) +
                  Fila(Celda(R"(office:value-type="currency" office:currency="EUR" office:value="12.5")")) +
                  Fila(Celda(R"(office:value-type="date" office:date-value="2020-01-01")")) +
                  Fila(Celda(R"(office:value-type="date" office:date-value="2020-01-01T12:00:00")")) +
                  Fila(Celda(R"(office:value-type="time" office:time-value="PT06H00M00S")", "6:00")) +
                  Fila(Celda(R"(office:value-type="time" office:time-value="PT12H")")) +
                  Fila(Celda(R"(office:value-type="boolean" office:boolean-value="true")", "VERDADERO")) +
                  Fila(Celda(R"(office:value-type="boolean" office:boolean-value="false")")) +
                  Fila(Celda(R"(office:value-type="string")", "texto")) +
                  Fila(Celda(R"(office:value-type="string" office:string-value="de atributo")", "otro")) +
                  Fila(Celda(R"(table:formula="of:=&quot;&quot;")")) + Fila(Celda("", "sin clase"))));
}

TEST(LectorOds, LasTablasDelEscritorSonLasDelXls) {
    const std::vector<Hoja> hojas{
        {"Parcela", {{"Árbol", "X", "Día", "Vivo"}, {"encina", 0.1, Fecha{43831.5}, true}, {Nulo{}, -2.0}}},
        {"It's & más", {{"A&B <\"x\">", "  con blancos "}, {1e-300, "漢字 😀\notra línea"}}}};
    EXPECT_EQ((LineasDeTablas{"[Parcela$]", "Árbol | X | Día | Vivo", "'encina' | 0.1 | #43831.5 | V",
                              "- | -2 | - | -", "[It's & más$]", "A&B <\"x\"> |   con blancos ",
                              "1e-300 | '漢字 😀\notra línea'"}),
              LineasDelLibro(EscribirOds(hojas)));
}

TEST(LectorOds, LosTextosSonLosDeSusParrafos) {
    EXPECT_EQ(
        (LineasDeTablas{"'dos líneas \n y otra'", "'a   b'", "' a '", "'tab\ty\nsalto'",
                        "'negrita  y enlace'", "'solo el texto'", "'base'", "'\n'"}),
        DebajoDeX(Fila(Letras("<text:p>dos\n \t líneas </text:p><text:p> y otra</text:p>")) +
                  Fila(Letras("<text:p>a <text:s text:c=\"2\"/>b</text:p>")) +
                  Fila(Letras("<text:p><text:s/>a<text:s/></text:p>")) +
                  Fila(Letras("<text:p>tab<text:tab/>y<text:line-break/>salto</text:p>")) +
                  Fila(Letras("<text:p><text:span>negrita</text:span> <text:span> y </text:span>"
                              "<text:a>enlace</text:a></text:p>")) +
                  Fila(Letras("<office:annotation><text:p>una nota</text:p></office:annotation>"
                              "<text:p>solo <text:note><text:p>pie</text:p></text:note>el texto</text:p>")) +
                  Fila(Letras("<text:p><text:ruby><text:ruby-base>base</text:ruby-base>"
                              "<text:ruby-text>encima</text:ruby-text></text:ruby></text:p>")) +
                  Fila(Letras("<text:p/><text:p/>"))));
}

TEST(LectorOds, LosBlancosDeUnParrafoCuentanYLosDelXmlSonUno) {
    EXPECT_EQ(
        (LineasDeTablas{"'Pp '", "' Pp'", "'a  b'", "'a b c'", "'a b'", "'a b'", "'a  b '", "''", "' '"}),
        DebajoDeX(Fila(Letras("<text:p>Pp </text:p>")) + Fila(Letras("<text:p> Pp</text:p>")) +
                  Fila(Letras("<text:p>a  b</text:p>")) +
                  Fila(Letras("<text:p>\n    a\n    b\tc\n  </text:p>")) +
                  Fila(Letras("<text:p>\n <text:span>a</text:span>\n <text:span>b</text:span>\n</text:p>")) +
                  Fila(Letras("<text:p>a<text:span> \n</text:span> b</text:p>")) +
                  Fila(Letras("<text:p>\na\n <text:s/>b<text:s/>\n</text:p>")) +
                  Fila(Letras("<text:p> \n </text:p>")) + Fila(Letras("<text:p> </text:p>"))));
}

TEST(LectorOds, UnaFormulaSinResultadoEsNula) {
    const std::string formula = R"(<table:table-cell table:formula="of:=1+1")";
    EXPECT_EQ((LineasDeTablas{"-", "-", "-", "''", "1"}),
              DebajoDeX(Fila(formula + R"( office:value-type="float"/>)") + Fila(formula + "/>") +
                        Fila(formula + R"( office:value-type="boolean"></table:table-cell>)") +
                        Fila(formula + R"( office:value-type="string"/>)") + Fila(Celda(uno))));
    // What was never a formula is damaged all the same.
    EXPECT_TRUE(TieneDefecto(EscribirOds(Tabla1(Fila(R"(<table:table-cell office:value-type="float"/>)"))),
                             "H$", fallo::archivoDanado, "celda A1"));
}

TEST(LectorOds, UnaHoraSinFinEsNula) {
    const std::string cifras(400, '9');
    const auto hora = [](const std::string& cuanto) {
        return Fila(Celda(R"(office:value-type="time" office:time-value=")" + cuanto + "\""));
    };
    EXPECT_EQ((LineasDeTablas{"-", "-", "#0.25"}),
              DebajoDeX(hora("PT" + cifras + "H") + hora("-P" + cifras + "D") + hora("PT6H")));
}

TEST(LectorOds, LosErroresSonNulos) {
    const auto fila = [](const std::string& atributos, const std::string& muestra) {
        return "<table:table-row>" + Celda(atributos, muestra) + Celda(uno) + "</table:table-row>";
    };
    const std::string formula = R"(table:formula="of:=1/0" office:value-type="string" office:string-value=")";
    auto lineas = LineasDelLibro(EscribirOds(
        Tabla1(Fila(Letras("<text:p>X</text:p>") + Letras("<text:p>Y</text:p>")) +
               fila(formula + R"(" calcext:value-type="error")", "#DIV/0!") +
               fila(formula + "#¡VALOR!\"", "#¡VALOR!") + fila(formula + "\"", "Err:502") +
               fila(R"(table:formula="of:=A" office:value-type="float" office:value="0")", "#NAME?") +
               fila(R"(office:value-type="string")", "#N/A") +
               fila(R"(office:value-type="float" office:value="1e999")", ""))));
    lineas.erase(lineas.begin(), lineas.begin() + 2);
    EXPECT_EQ((LineasDeTablas{"- | 1", "- | 1", "- | 1", "- | 1", "'#N/A' | 1", "- | 1"}), lineas);
}

TEST(LectorOds, LasCeldasYLasFilasRepetidasEstanTantasVeces) {
    EXPECT_EQ(
        (LineasDeTablas{"[H$]", "A | F2 | F3 | B", "1 | 1 | 1 | -", "1 | 1 | 1 | -", "- | - | - | -",
                        "- | - | - | -", "- | - | - | 'z'"}),
        LineasDelLibro(EscribirOds(Tabla1(
            Fila(Letras("<text:p>A</text:p>") + "<table:table-cell table:number-columns-repeated=\"2\"/>" +
                 Letras("<text:p>B</text:p>")) +
            "<table:table-row table:number-rows-repeated=\"2\">" +
            Celda(uno + R"( table:number-columns-repeated="3")") +
            "<table:table-cell table:number-columns-repeated=\"16381\"/></table:table-row>"
            "<table:table-row table:number-rows-repeated=\"2\"><table:table-cell/></table:table-row>" +
            Fila("<table:covered-table-cell table:number-columns-repeated=\"3\"/>" +
                 Letras("<text:p>z</text:p>")) +
            "<table:table-row table:number-rows-repeated=\"1048570\"><table:table-cell "
            "table:number-columns-repeated=\"16384\"/></table:table-row>"))));
}

TEST(LectorOds, LasFilasEnGruposYDeCabeceraSonFilas) {
    EXPECT_EQ((LineasDeTablas{"[H$]", "X", "1", "1", "1"}),
              LineasDelLibro(EscribirOds(Tabla1(
                  "<table:table-column table:number-columns-repeated=\"4\"/><table:table-header-rows>" +
                  cabecera + "</table:table-header-rows><table:table-row-group><table:table-row-group>" +
                  Fila(Celda(uno)) + "</table:table-row-group>" + Fila(Celda(uno)) +
                  "</table:table-row-group><table:table-rows>" + Fila(Celda(uno)) + "</table:table-rows>"))));
}

TEST(LectorOds, LoTapadoPorUnaCeldaGrandeGuardaSuSitioYSuValor) {
    EXPECT_EQ((LineasDeTablas{"[H$]", "X | F2 | Y", "1 | 7 | 1"}),
              LineasDelLibro(EscribirOds(
                  Tabla1(Fila(Letras("<text:p>X</text:p>") + "<table:covered-table-cell/>" +
                              Letras("<text:p>Y</text:p>")) +
                         Fila(Celda(uno + R"( table:number-columns-spanned="2")") +
                              R"(<table:covered-table-cell office:value-type="float" office:value="7"/>)" +
                              Celda(uno))))));
}

TEST(LectorOds, LasTablasQueNoSonHojasNoCuentan) {
    const std::string otra = "<table:table table:name=\"Otra\">" + cabecera + "</table:table>";
    EXPECT_EQ((LineasDeTablas{"[H$]", "X", "1"}),
              LineasDelLibro(
                  EscribirOds("<table:tracked-changes>" + otra + "</table:tracked-changes>" +
                              Tabla1("<table:shapes>" + otra + "</table:shapes>" + cabecera +
                                     Fila("<table:table-cell " + uno + ">" + otra + "</table:table-cell>")) +
                              "<table:dde-links>" + otra + "</table:dde-links>")));
}

TEST(LectorOds, LoGuardadoDeOtrosLibrosNoSonHojas) {
    EXPECT_EQ((LineasDeTablas{"[H$]", "X", "[It's #1$]", "X"}),
              LineasDelLibro(EscribirOds(Tabla1(cabecera) +
                                         "<table:table table:name=\"'file:///home/x/otra.ods'#Hoja1\">" +
                                         cabecera + "</table:table><table:table table:name=\"It's #1\">" +
                                         cabecera + "</table:table>")));
}

TEST(LectorOds, LosNombresDelLibroSonTablasDetrasDeLasHojas) {
    const auto nombre = [](const std::string& cual, const std::string& donde) {
        return "<table:named-range table:name=\"" + cual +
               "\" table:base-cell-address=\"$H.$A$1\" table:cell-range-address=\"" + donde + "\"/>";
    };
    EXPECT_EQ(
        (LineasDeTablas{"[H$]", "X", "1", "[La d'aquí$]", "X", "[Segunda]", "X", "[Zona]", "X", "1",
                        "[Columna]", "X", "1"}),
        LineasDelLibro(EscribirOds(
            Tabla1(cabecera + Fila(Celda(uno)) + "<table:named-expressions>" + nombre("DeHoja", "$H.$A$1") +
                   "</table:named-expressions>") +
            "<table:table table:name=\"La d'aquí\">" + cabecera + "</table:table><table:named-expressions>" +
            nombre("Segunda", "$'La d''aquí'.$A$1") + nombre("Zona", "$h.$A$1:.$A$2") +
            nombre("Columna", "$H.$A:.$A") + nombre("Movil", "$H.A1:.B2") +
            nombre("DosHojas", "$H.$A$1:$'La d''aquí'.$A$1") +
            R"(<table:named-expression table:name="Cinco" table:expression="5"/></table:named-expressions>)"
            R"(<table:database-ranges><table:database-range table:name="Base" )"
            R"(table:target-range-address="H.A1:H.A2"/></table:database-ranges>)")));
}

TEST(LectorOds, LasFechasSonElDiaQueDicen) {
    EXPECT_EQ((LineasDeTablas{"#2", "#-18140", "#-2.25", "2958466", "-719526", "-", "1"}),
              DebajoDeX(Fila(Celda(R"(office:value-type="date" office:date-value="1900-01-01")")) +
                        Fila(Celda(R"(office:value-type="date" office:date-value="1850-05-01")")) +
                        Fila(Celda(R"(office:value-type="date" office:date-value="1899-12-28T06:00:00")")) +
                        Fila(Celda(R"(office:value-type="date" office:date-value="10000-01-01")")) +
                        Fila(Celda(R"(office:value-type="date" office:date-value="-0070-01-01")")) +
                        Fila(Celda(R"(office:value-type="date" office:date-value="")")) + Fila(Celda(uno))));
}

TEST(LectorOds, UnaHojaConUnaCeldaMalaNoSeLlevaALasDemas) {
    const auto libro =
        EscribirOds(Tabla1(cabecera + Fila("<table:table-cell/>" +
                                           Celda(R"(office:value-type="float" office:value="1,5")"))) +
                    "<table:table table:name=\"Buena\">" + cabecera + "</table:table>");
    EXPECT_TRUE(TieneDefecto(
        libro, "H$", fallo::archivoDanado,
        "No se puede leer la hoja «H» de «libro.xyz»: el archivo está dañado (una celda no lleva "
        "un número: 1,5), celda B2: ábralo"));
    const auto tablas = LeerLibroComprimido(libro, "libro.xyz");
    ASSERT_EQ(tablas.size(), 2U);
    EXPECT_EQ((LineasDeTablas{"[Buena$]", "X"}), Lineas(tablas[1]));
    for (const std::string mala :
         {R"(office:value-type="date" office:date-value="ayer")",
          R"(office:value-type="time" office:time-value="6:00")",
          R"(office:value-type="boolean" office:boolean-value="1")", R"(office:value-type="raro")"}) {
        EXPECT_TRUE(
            TieneDefecto(EscribirOds(Tabla1(Fila(Celda(mala)))), "H$", fallo::archivoDanado, "celda A1"))
            << mala;
    }
}

TEST(LectorOds, UnLibroCifradoLoDice) {
    auto partes = PartesDeOds(Tabla1(cabecera));
    const std::string aviso = "es un libro cifrado (.ods con contraseña): ábralo con ella";
    auto& manifiesto = partes.back().contenido;
    manifiesto =
        Reemplazar(manifiesto, "</manifest:manifest>",
                   R"(<manifest:file-entry manifest:full-path="content.xml"><manifest:encryption-data/>)"
                   R"(</manifest:file-entry></manifest:manifest>)");
    EXPECT_TRUE(NoSeLee(EscribirZip(partes), fallo::archivoCifrado, aviso));
    EXPECT_TRUE(NoSeLee(EscribirZip({{"mimetype", partes.front().contenido}, {"encrypted-package", "x"}}),
                        fallo::archivoCifrado, aviso));
}

TEST(LectorOds, ElManifiestoPuedeNombrarSuTipoDeDocumento) {
    auto partes = PartesDeOds(Tabla1(cabecera));
    const auto manifiesto = partes.back().contenido;
    const auto con = [&](const std::string& declaracion) {
        partes.back().contenido =
            Reemplazar(manifiesto, "<manifest:manifest ", declaracion + "<manifest:manifest ");
        return EscribirZip(partes);
    };
    const std::string nombre =
        R"(<!DOCTYPE manifest:manifest PUBLIC "-//OpenOffice.org//DTD Manifest 1.0//EN" "Manifest.dtd")";
    EXPECT_EQ((LineasDeTablas{"[H$]", "X"}), LineasDelLibro(con(nombre + ">")));
    const std::string dicho = "su parte «META-INF/manifest.xml» declara un tipo de documento (DOCTYPE)";
    EXPECT_TRUE(NoSeLee(con(nombre + " []>"), fallo::archivoDanado, dicho));
    EXPECT_TRUE(NoSeLee(con(nombre + R"( [<!ENTITY a "b">]>)"), fallo::archivoDanado, dicho));
}

TEST(LectorOds, SeReconocePorSuClaseOPorSusPartes) {
    auto partes = PartesDeOds(Tabla1(cabecera));
    const LineasDeTablas esperado{"[H$]", "X"};
    std::swap(partes[0], partes[2]);
    EXPECT_EQ(esperado, LineasDelLibro(EscribirZip(partes)));
    partes[2].contenido += "-template\n";
    EXPECT_EQ(esperado, LineasDelLibro(EscribirZip(partes)));
    partes.pop_back();
    EXPECT_EQ(esperado, LineasDelLibro(EscribirZip(partes)));
}

TEST(LectorOds, LoQueNoEsUnaHojaOEstaDanadoLoDice) {
    const auto partes = PartesDeOds(Tabla1(cabecera));
    const auto con = [&](const std::string& contenido) {
        return EscribirZip(Cambiada(partes, "content.xml", contenido));
    };
    EXPECT_TRUE(NoSeLee(con(Reemplazar(partes[1].contenido, "office:spreadsheet", "office:chart")),
                        fallo::formatoNoReconocido, "es un documento de OpenDocument sin hojas de cálculo"));
    EXPECT_TRUE(NoSeLee(con(partes[1].contenido.substr(0, 400)), fallo::archivoDanado,
                        "su parte «content.xml» no está bien escrita"));
    EXPECT_TRUE(NoSeLee(con("<!DOCTYPE a [<!ENTITY b \"c\">]>" + partes[1].contenido.substr(38)),
                        fallo::archivoDanado, "(DOCTYPE)"));
    EXPECT_TRUE(NoSeLee(EscribirZip({partes[0]}), fallo::archivoDanado, "le falta su parte «content.xml»"));
}

} // namespace
} // namespace varo::prueba
