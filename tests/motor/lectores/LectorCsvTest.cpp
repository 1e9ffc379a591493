// Texts of cells as tables: letters, separators, quotes, numbers, dates and rows.
#include "motor/lectores/LectorCsv.h"

#include "apoyo/EscritorXls.h"
#include "apoyo/Fallos.h"
#include "apoyo/Utf16DePrueba.h"
#include "basico/Texto.h"
#include "motor/lectores/ApoyoLectores.h"
#include "motor/lectores/LectorXls.h"

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varo {
namespace {

using namespace std::string_view_literals;
using prueba::FallaCon;
using Renglones = std::vector<std::string>;

Tabla Leida(std::string_view texto) {
    const auto tablas = LeerCsv(std::as_bytes(std::span{texto}), "/datos/parcela.csv", "parcela");
    EXPECT_EQ(1U, tablas.size());
    return tablas.at(0);
}

/// The fields and the rows.
Renglones Leidas(std::string_view texto) {
    auto renglones = prueba::Lineas(Leida(texto));
    renglones.erase(renglones.begin());
    return renglones;
}

testing::AssertionResult NoSeLee(int numero, const std::string& motivo, std::string_view texto) {
    return FallaCon(numero, "No se puede leer «/datos/parcela.csv»: " + motivo, [&] { (void)Leida(texto); });
}

std::string EnUtf16(std::string_view texto, bool bajoPrimero) {
    std::string bytes;
    for (const char16_t unidad : prueba::AUtf16(texto)) {
        const auto alto = static_cast<char>(unidad >> 8U);
        const auto bajo = static_cast<char>(unidad & 0xFFU);
        bytes += bajoPrimero ? bajo : alto;
        bytes += bajoPrimero ? alto : bajo;
    }
    return bytes;
}

TEST(LectorCsv, ConComasPuntosYComasOTabuladoresEsLaMismaTabla) {
    const Renglones tabla{"Arbol | X | CAP", "1 | 2.5 | 31.4", "2 | 0.25 | -"};
    EXPECT_EQ(tabla, Leidas("Arbol,X,CAP\n1,2.5,31.4\n2,0.25,\n"));
    EXPECT_EQ(tabla, Leidas("Arbol;X;CAP\r\n1;2,5;31,4\r\n2;0,25;\r\n"));
    EXPECT_EQ(tabla, Leidas("Arbol\tX\tCAP\n1\t2.5\t31.4\n2\t0.25\t\n"));
    EXPECT_EQ(tabla, Leidas("Arbol\tX\tCAP\r1\t2,5\t31,4\r2\t0,25\t"));
    EXPECT_EQ(tabla, Leidas("Arbol,X,CAP\n1,\"2,5\",\"31,4\"\n2,\"0,25\",\"\"\n"));
}

TEST(LectorCsv, LaTablaSeLlamaComoElArchivo) {
    EXPECT_EQ("parcela$", Leida("a,b\n1,2\n").Name);
    const auto texto = "a,b\n1,2\n"sv;
    EXPECT_EQ("lote (3).v2$", LeerCsv(std::as_bytes(std::span{texto}), "x", "lote [3].v2").at(0).Name);
}

TEST(LectorCsv, LasLetrasSeConocenPorElContenido) {
    const std::string texto = "Año;Especie\n2025;Castaño 25 €\n";
    const Renglones tabla{"Año | Especie", "2025 | 'Castaño 25 €'"};
    EXPECT_EQ(tabla, Leidas(texto));
    EXPECT_EQ(tabla, Leidas("\xEF\xBB\xBF" + texto));
    EXPECT_EQ(tabla, Leidas(AWindows1252(texto)));
    EXPECT_EQ(tabla, Leidas("\xFF\xFE" + EnUtf16(texto, true)));
    EXPECT_EQ(tabla, Leidas("\xFE\xFF" + EnUtf16(texto, false)));
    EXPECT_EQ(tabla, Leidas(EnUtf16(texto, true)));
    EXPECT_EQ(tabla, Leidas(EnUtf16(texto, false)));
}

TEST(LectorCsv, LetrasDeMasDeUnaUnidadYSueltas) {
    EXPECT_EQ((Renglones{"a | b", "1 | '😀'"}), Leidas("\xFF\xFE" + EnUtf16("a,b\n1,😀\n", true)));
    EXPECT_EQ((Renglones{"a | b", "1 | '\uFFFD'"}), Leidas("a,b\n1,\uFFFD\n"));
}

TEST(LectorCsv, LasLetrasRotasDicenSuLinea) {
    EXPECT_TRUE(NoSeLee(fallo::archivoDanado,
                        "el archivo está dañado (la línea 2 tiene un carácter que no es de un texto, el de "
                        "código 241",
                        "\xEF\xBB\xBF"
                        "a,b\n1,a\xF1o\n"));
    EXPECT_TRUE(NoSeLee(fallo::archivoDanado,
                        "el archivo está dañado (la línea 3 tiene un carácter que no es de un texto, el de "
                        "código 241",
                        "Año,Árbol\n1,ñandú\n1,\xF1\n"));
    EXPECT_TRUE(NoSeLee(fallo::archivoDanado, "el archivo está dañado (la línea 902 tiene un carácter",
                        "a;b\r" + Reemplazar(std::string(900, 'x'), "x", "1;1234,5\r") + "1;\x01\r"));
    const auto larga = "a,b\n" + std::string(5000, '1') + ",2\n1,\x01\n";
    EXPECT_TRUE(NoSeLee(fallo::archivoDanado,
                        "el archivo está dañado (la línea 3 tiene un carácter que no es de un texto, el de "
                        "código 1",
                        larga));
    EXPECT_TRUE(NoSeLee(fallo::archivoDanado, "el archivo está dañado (le falta un byte",
                        "\xFF\xFE"
                        "a\0,\0b"sv));
}

TEST(LectorCsv, LasComillasGuardanSeparadoresComillasYFinesDeLinea) {
    EXPECT_EQ((Renglones{"a,b | c", "'x, y' | 'dijo \"sí\"'", "'dos\nlíneas' | 3"}),
              Leidas("\"a,b\",c\n\"x, y\",\"dijo \"\"sí\"\"\"\n\"dos\nlíneas\",3\n"));
    EXPECT_EQ((Renglones{"a | b", "'tubo 5\"' | 'x y'", "' con blancos ' | 2.5"}),
              Leidas("a,b\ntubo 5\", \"x\" y\n\" con blancos \",\"2.5\"\n"));
}

TEST(LectorCsv, UnasComillasSinCerrarDicenSuFila) {
    EXPECT_TRUE(NoSeLee(fallo::archivoDanado,
                        "el archivo está dañado (la fila 3 abre unas comillas que nadie cierra",
                        "a,b\n\"1\n2\",2\n\"3,4\n5,6\n"));
}

TEST(LectorCsv, LosBlancosAlrededorNoCuentan) {
    EXPECT_EQ((Renglones{"a | b | c", "1.5 | 'x y' | -"}), Leidas(" a ,  b,\tc\n  1.5 , x y ,   \n"));
    EXPECT_EQ((Renglones{"a | b", "- | 2"}), Leidas("a\tb\n\t2\n"));
}

TEST(LectorCsv, LasFilasLlevanElNumeroQueMuestraLaHoja) {
    const auto tabla = Leida("\n;;\n\na;b\n1;\"dos\nlíneas\"\n\n3;4\n;\n\n");
    EXPECT_EQ((Renglones{"[parcela$]", "a | b", "1 | 'dos\nlíneas'", "- | -", "3 | 4"}),
              prueba::Lineas(tabla));
    EXPECT_EQ(5, tabla.numeroDeFila(0));
    EXPECT_EQ(7, tabla.numeroDeFila(2));
    EXPECT_EQ(2, Leida("a,b\n1,2").numeroDeFila(0));
}

TEST(LectorCsv, LosCamposSeLlamanComoEnUnaHoja) {
    EXPECT_EQ((Renglones{"F1 | x | X1 | d#a#p (cm) | 2025 | 1,5", "1 | 2 | 3 | 4 | 5 | 6.5"}),
              Leidas("\"\",x,X,d.a.p [cm],2025,1.5\n1,2,3,4,5,6.5\n"));
}

TEST(LectorCsv, LasColumnasVaciasDeLosLadosNoSonCampos) {
    EXPECT_EQ((Renglones{"a | F2 | c", "1 | - | 3", "- | 2 | -"}), Leidas(";a;;c;;\n;1;;3;;\n;;2;\n"));
    EXPECT_EQ((Renglones{"a | b | F3", "1 | 2 | 'nota'"}), Leidas("a,b,\n1,2,nota\n"));
}

TEST(LectorCsv, UnaFilaCortaAcabaEnNulos) {
    EXPECT_EQ((Renglones{"a | b | c", "1 | 2 | 3", "4 | - | -", "5 | 6 | -"}),
              Leidas("a,b,c\n1,2,3\n4\n5,6\n"));
}

TEST(LectorCsv, UnaFilaLargaSeRechaza) {
    EXPECT_TRUE(NoSeLee(fallo::tablaNoAdmitida,
                        "la fila 3 tiene 4 celdas, y la de los nombres, 3: quite el separador que sobra",
                        "a,b,c\n1,2,3\n1,2,5,3\n4,5,6\n7,8,9,,\n"));
}

TEST(LectorCsv, UnaCabeceraSolaEsUnaTablaSinFilas) {
    EXPECT_EQ((Renglones{"a | b"}), Leidas("a,b\n"));
    EXPECT_EQ((Renglones{"a | b"}), Leidas("a;b"));
}

TEST(LectorCsv, ElSeparadorEsElQueDaLasMismasCeldasEnCadaFila) {
    EXPECT_EQ((Renglones{"X, m | Y, m", "1.5 | 2.5"}), Leidas("X, m;Y, m\n1,5;2,5\n"));
    EXPECT_EQ((Renglones{"X; m | Y", "1.5 | 2.5"}), Leidas("X; m,Y\n1.5,2.5\n"));
    EXPECT_EQ((Renglones{"X | Notas", "1.5 | 'uno, dos; tres'"}), Leidas("X\tNotas\n1,5\tuno, dos; tres\n"));
}

TEST(LectorCsv, LoQueNoEsUnNumeroEsUnTexto) {
    EXPECT_EQ((Renglones{"a | b", "1.5 | '1.101.102'", "'12 m' | 'NA'", "'1E400' | '1234567890123456'",
                         "'-' | '1.2.3'", "'1,2,3' | 'x.'", "'12:30' | '1e'"}),
              Leidas("a;b\n1.5;1.101.102\n12 m;NA\n1E400;1234567890123456\n-;1.2.3\n1,2,3;x.\n12:30;1e\n"));
}

TEST(LectorCsv, LosImportesYLosPorcentajesSonLosNumerosDeSuCelda) {
    EXPECT_EQ(
        (Renglones{"a | b | c", "12.5 | -1234.5 | 0.123", "12.5 | 12.5 | 0.05", "'€' | '12 € $' | '12 %%'"}),
        Leidas("a;b;c\n12,50 €;-1.234,50\u00A0€;12,3 %\n€ 12,5;$12,5;5%\n€;12 € $;12 %%\n"));
}

TEST(LectorCsv, LoQueGuardaUnaHojaEspanolaEsLoQueHayEnSuLibro) {
    const auto libro = prueba::EscribirXls({{"parcela",
                                             {{"Árbol", "Fecha", "Vivo", "CAP", "Hora", "Rodal"},
                                              {1.0, Fecha{46022}, true, 12.5, Fecha{46022.5}, "A-1"},
                                              {2.0, Nulo{}, false, 1234.5, Fecha{0.25}, Nulo{}},
                                              {3.0, Fecha{45813}, Nulo{}, -0.125, Nulo{}, "007"}}}});
    EXPECT_EQ(prueba::Lineas(LeerXls(libro, "parcela.xls")),
              prueba::Lineas(Leida("Árbol;Fecha;Vivo;CAP;Hora;Rodal\r\n"
                                   "1;31/12/2025;VERDADERO;12,5;31/12/2025 12:00;A-1\r\n"
                                   "2;;FALSO;1.234,50 €;6:00:00;#N/D\r\n"
                                   "3;05/06/2025;;-12,5%;;007\r\n")));
}

TEST(LectorCsv, UnNumeroConUnCeroDelanteEsUnCodigo) {
    EXPECT_EQ((Renglones{"a | b", "'007' | 0.5", "0 | -7", "'00' | 0"}),
              Leidas("a;b\n007;00,5\n0;-07\n00;0,00\n"));
}

TEST(LectorCsv, UnaFormulaQueGuardaUnCodigoEsElCodigo) {
    EXPECT_EQ((Renglones{"a | b | c", "'007' | '1.10' | '=\"a'", "'' | '=1+1' | '=\"a\"&\"b\"'"}),
              Leidas("a;b;c\n=\"007\";\"=\"\"1.10\"\"\";=\"a\n=\"\";=1+1;=\"a\"&\"b\"\n"));
}

TEST(LectorCsv, UnaPrimeraLineaPuedeDecirElSeparador) {
    for (const std::string linea :
         {"sep=,\n", "SEP=,\r\n", "sep=, \n", "sep=,,,\n", "\"sep=,\"\r\n", "\xEF\xBB\xBFsep=,\r"}) {
        const auto leida = Leida(linea + "a;1,b\n1.5,x\n");
        EXPECT_EQ((Renglones{"[parcela$]", "a;1 | b", "1.5 | 'x'"}), prueba::Lineas(leida)) << linea;
        EXPECT_EQ(2, leida.numeroDeFila(0)); // no spreadsheet shows that line
    }
    EXPECT_EQ((Renglones{"a | b", "1 | 2"}), Leidas("sep=|\na|b\n1|2\n"));
    EXPECT_EQ((Renglones{"sep=x | b", "1 | 2"}), Leidas("sep=x;b\n1;2\n"));
    EXPECT_TRUE(NoSeLee(fallo::formatoNoReconocido, "es un archivo de texto y está en blanco", "sep=;\r\n"));
}

TEST(LectorCsv, LosNumerosSonLosMasCercanos) {
    EXPECT_EQ((Renglones{"a | b", "0.1 | 5e-324"}), Leidas("a,b\n0.1,4.9406564584124654e-324\n"));
    const auto tabla = Leida("a,b\n9007199254740993.0,1.7976931348623157e308\n");
    EXPECT_EQ(Valor{9007199254740992.0}, tabla.filas[0][0]);
    EXPECT_EQ(Valor{1.7976931348623157e308}, tabla.filas[0][1]);
}

TEST(LectorCsv, LasFechasSonFechas) {
    EXPECT_EQ((Renglones{"a | b", "#46022 | #46022", "#46022.5 | #46022.25", "#2 | '31/12/1899'",
                         "'30/02/2025' | '2025-13-01'", "'1/1/25' | '2025-01-01 25:00'", "#46022 | #45813"}),
              Leidas("a;b\n31/12/2025;2025-12-31\n31/12/2025 12:00;2025-12-31T06:00:00\n1/1/1900;31/12/1899\n"
                     "30/02/2025;2025-13-01\n1/1/25;2025-01-01 25:00\n31-12-2025;5/6/2025\n"));
}

TEST(LectorCsv, LasFechasDeOtrosProgramasSonFechas) {
    EXPECT_EQ((Renglones{"a | b", "#46022 | #46022.25", "#46022.5 | #46022.25",
                         "#46022.25 | '2025-12-31T06:00:00.5'", "'2025/13/31' | '2025-12-31T06:00:00+02'"}),
              Leidas("a;b\n2025/12/31;2025-12-31T06:00:00Z\n2025/12/31 12:00:00;2025-12-31 06:00:00.000\n"
                     "2025-12-31T06:00:00.000Z;2025-12-31T06:00:00.5\n2025/13/31;2025-12-31T06:00:00+02\n"));
}

TEST(LectorCsv, UnCodigoDeTresPartesNoEsUnaFechaConElMesPorDelante) {
    EXPECT_EQ((Renglones{"a | b", "'1-15-0003' | #46022"}), Leidas("a;b\n1-15-0003;31/12/2025\n"));
}

TEST(LectorCsv, UnaHoraConSusSegundosEsUnaHoraYSinEllosPuedeSerUnCodigo) {
    EXPECT_EQ((Renglones{"a | b", "#0.25 | '6:00'", "'24:00:00' | '6:60:00'"}),
              Leidas("a;b\n6:00:00;6:00\n24:00:00;6:60:00\n"));
}

TEST(LectorCsv, ConElMesPorDelanteLasFechasQuedanEnTextos) {
    EXPECT_EQ((Renglones{"a | b", "'03/04/2025' | #46022", "'12/31/2025' | 1"}),
              Leidas("a;b\n03/04/2025;2025-12-31\n12/31/2025;1\n"));
    // Both orders are there: no date between slashes is sure.
    EXPECT_EQ((Renglones{"a | b", "'12-31-2025' | '31/12/2025'"}), Leidas("a;b\n12-31-2025;31/12/2025\n"));
}

TEST(LectorCsv, VerdadesYErroresComoEnUnaHoja) {
    EXPECT_EQ(
        (Renglones{"a | b", "V | F", "V | F", "- | -", "- | -", "- | -", "'verdad' | '#1'",
                   "'###' | 'Err:5'"}),
        Leidas("a,b\nVERDADERO,Falso\ntrue,FALSE\n#N/A,#¡DIV/0!\n#DIV/0!,#N/D\n#REF!,Err:502\nverdad,#1\n"
               "###,Err:5\n"));
}

TEST(LectorCsv, UnTextoQueNoEsUnaTablaLoDice) {
    const std::string noEsTabla = "es un archivo de texto y no se ve en él una tabla: ";
    EXPECT_TRUE(NoSeLee(fallo::formatoNoReconocido, noEsTabla + "en su primera fila ninguna coma", "1"));
    EXPECT_TRUE(
        NoSeLee(fallo::formatoNoReconocido, noEsTabla + "en su primera fila ninguna coma", "Arbol\n1\n2\n"));
    EXPECT_TRUE(NoSeLee(fallo::formatoNoReconocido, noEsTabla + "la primera fila ha de llevar los nombres",
                        "Parcela 3, Los Molinos\n\nArbol;X;Y\n1;2;3\n2;3;4\n"));
    EXPECT_TRUE(NoSeLee(fallo::formatoNoReconocido, noEsTabla + "la primera fila ha de llevar los nombres",
                        "Estimado señor,\nle escribo\npor lo de ayer\n"));
    EXPECT_TRUE(NoSeLee(fallo::formatoNoReconocido, noEsTabla + "no tiene más que errores", "#N/A,#N/A\n"));
    EXPECT_TRUE(NoSeLee(fallo::formatoNoReconocido, "es un archivo de texto y está en blanco", "\r\n \r\n"));
    EXPECT_TRUE(NoSeLee(fallo::formatoNoReconocido, "no se reconoce su formato", "a,b\n1,\x02\n"));
    EXPECT_TRUE(NoSeLee(fallo::formatoNoReconocido, "no se reconoce su formato", "a,b\n1,\0\n"sv));
    EXPECT_TRUE(NoSeLee(fallo::formatoNoReconocido, "no se reconoce su formato", "a,\xF1\n1,\x81\n"));
}

TEST(LectorCsv, UnaPaginaSeReconoceEnCualquierasLetras) {
    EXPECT_TRUE(NoSeLee(fallo::formatoNoReconocido, "es una página web (HTML)", "<html>a,b"));
    EXPECT_TRUE(NoSeLee(fallo::formatoNoReconocido, "es un archivo de texto en XML",
                        "\xFF\xFE" + EnUtf16("<?XML version=\"1.0\"?>", true)));
}

TEST(LectorCsv, LoQueNoCabeEnUnaHojaSeRechaza) {
    const auto noCabe = [](std::string_view texto) {
        return NoSeLee(fallo::tablaNoAdmitida, "en la fila ", texto);
    };
    EXPECT_EQ(16384, Leida("1" + std::string(16383, ',') + "1\n2,3\n").Fields.Count());
    EXPECT_TRUE(noCabe("1" + std::string(16384, ',') + "1\n2,3\n"));
    // A row without an end costs no memory.
    EXPECT_TRUE(noCabe("1" + std::string(8'000'000, ';') + "1"));
    const auto filas = "a,b\n" + std::string(1'048'574, '\n') + "1,2\n";
    EXPECT_EQ(1'048'575U, Leida(filas).filas.size());
    EXPECT_TRUE(noCabe(filas + "1,2\n"));
    EXPECT_TRUE(FallaCon(fallo::formatoNoReconocido, "es demasiado grande para ser el inventario", [] {
        const std::vector<std::byte> grande(std::size_t{129} * 1024 * 1024, std::byte{'1'});
        (void)LeerCsv(grande, "grande.csv", "grande");
    }));
}

TEST(LectorCsv, UnaCeldaMuyLargaEsUnTexto) {
    const std::string larga(1'000'000, 'x');
    EXPECT_EQ((Renglones{"a | b", "1 | '" + larga + "'"}), Leidas("a,b\n1," + larga + "\n"));
}

TEST(LectorCsv, UnasComillasPerdidasNoSeTraganFilas) {
    const std::string tragadas = "tiene una celda entre comillas con otras filas dentro";
    EXPECT_TRUE(NoSeLee(fallo::archivoDanado, "el archivo está dañado (la fila 3 " + tragadas,
                        "Arbol;X;Y;Nota\n1;1,5;2,5;\n2;2,5;3,5;\"roto\n3;3,5;4,5;\n4;4,5;5,5;\"seco\"\n"
                        "5;5,5;6,5;\n"));
    EXPECT_TRUE(NoSeLee(fallo::archivoDanado, "el archivo está dañado (la fila 2 " + tragadas,
                        "Arbol;X;Nota\n1;1,5;\"roto\n2;2,5;seco\"\n"));
    // A note of several lines, with a separator in one of them.
    EXPECT_EQ((Renglones{"X | Nota", "1.5 | 'roto;\nseco'"}), Leidas("X;Nota\n1,5;\"roto;\nseco\"\n"));
}

TEST(LectorCsv, UnasComillasEnMedioDeLaFilaNoJuntanDosFilas) {
    const std::string tragadas = "tiene una celda entre comillas con otras filas dentro";
    const std::string nombres = "Arbol;Especie;X;Y\n1;PINO;1,5;2,5\n";
    // The sign for "the same as above".
    EXPECT_TRUE(NoSeLee(fallo::archivoDanado, "el archivo está dañado (la fila 3 " + tragadas,
                        nombres + "2;\";3,5;4,5\n3;\";5,5;6,5\n4;ROBLE;7,5;8,5\n"));
    EXPECT_TRUE(NoSeLee(fallo::archivoDanado, "el archivo está dañado (la fila 3 " + tragadas,
                        nombres + "2;\"PINO;3,5;4,5\r\n3;PINO\";5,5;6,5\r\n"));
    for (const std::string arboles : {"1;1,5;2,5;a\"\n", "1;1,5;2,5;a\n2;2,5;3,5;b\"\n"}) {
        EXPECT_TRUE(NoSeLee(fallo::archivoDanado, "el archivo está dañado (la fila 1 " + tragadas,
                            "Arbol;X;Y;\"Nota\n" + arboles + "3;3,5;4,5;c\n"));
    }
    // Names and notes of several lines are none.
    EXPECT_EQ((Renglones{"X\n(m) | Nota | Y", "1.5 | 'roto;\nseco, hendido' | 2.5", "1.5 | '\n;' | -"}),
              Leidas("\"X\n(m)\";Nota;Y\n1,5;\"roto;\nseco, hendido\";2,5\n1,5;\"\n;\"\n"));
}

TEST(LectorCsv, UnasComillasQueSeCierranEnMedioDeUnaCeldaSeRechazan) {
    const std::string motivo =
        "cierra unas comillas en medio de una celda: ciérrelas donde acaba la celda, o "
        "quítelas";
    const std::string nombres =
        "\"Arbol\",\"Especie\",\"X\",\"Y\",\"CAP\"\n\"1\",\"PINO\",\"1.5\",\"2.5\",\"30\"\n";
    EXPECT_TRUE(NoSeLee(fallo::archivoDanado, "el archivo está dañado (la fila 3 " + motivo,
                        nombres + "\"2\",\"PINO,\"3.5\",\"4.5\",\"31\"\n"));
    EXPECT_TRUE(NoSeLee(fallo::archivoDanado, "el archivo está dañado (la fila 3 " + motivo,
                        nombres + "2,PINO,\"3,5,\"4,5\",31\n"));
    EXPECT_EQ((Renglones{"X | Nota", "1.5 | 'el alto de allí'"}),
              Leidas("X;Nota\n1,5;\"el alto\" de allí\n"));
}

TEST(LectorCsv, ElSeparadorEsElQueDaMasNumerosEnCadaFila) {
    EXPECT_EQ(
        (Renglones{"Parcela | Arbol | Especie | Estado | X | DAP, cm",
                   "'P1' | 'A1' | 'PINO' | 'vivo' | 12 | 30.1", "'P1' | 'A2' | 'PINO' | 'vivo' | 14 | 28"}),
        Leidas("Parcela;Arbol;Especie;Estado;X;DAP, cm\nP1;A1;PINO;vivo;12;30,1\nP1;A2;PINO;vivo;14;28,0\n"));
}

TEST(LectorCsv, UnaCeldaQueNoMuestraNadaNoHaceLargaUnaFila) {
    EXPECT_EQ((Renglones{"Arbol | X", "1 | 2.5"}), Leidas("Arbol;X\n1;2,5;\" \"\n"));
    EXPECT_EQ((Renglones{"Arbol | X", "1 | 2.5"}), Leidas("Arbol;X\n1;2,5;\u00A0\n"));
    EXPECT_EQ((Renglones{"Arbol | X", "1 | 2.5"}), Leidas("\" \";\" \"\nArbol;X\n1;2,5\n"));
}

TEST(LectorCsv, UnaCeldaMasQueNombresDiceQueHacer) {
    EXPECT_TRUE(NoSeLee(fallo::tablaNoAdmitida,
                        "las filas tienen una celda más que la de los nombres: si es la primera columna",
                        "\"x\"\t\"y\"\t\"dap\"\n\"1\"\t1.5\t2.5\t30\n\"2\"\t1.5\t2.5\t30\n"));
}

TEST(LectorCsv, SinNombresNoSePierdeElPrimerArbol) {
    const std::string motivo = "la primera fila lleva números: escriba encima los nombres de las columnas";
    EXPECT_TRUE(
        NoSeLee(fallo::tablaNoAdmitida, motivo, "1,431250.5,4567890.25,PINO\n2,431251.5,4567891.25,PINO\n"));
    for (const std::string filas :
         {"1;2;3\n4;5;6\n", "1;2;3;\n4;5;6;\n", "1;PINO;107.766;95.633\n2;PINO;95.250;1.125\n",
          "1;PINO;431250;4567890;31,4\n2;PINO;431251;4567891;30,2\n"}) {
        EXPECT_TRUE(NoSeLee(fallo::tablaNoAdmitida, motivo, filas)) << filas;
    }
    // Names that are years or classes.
    EXPECT_EQ((Renglones{"F1 | 0 | 1 | 2", "0 | 5 | 6 | 7"}), Leidas(",0,1,2\n0,5,6,7\n"));
    EXPECT_EQ((Renglones{"Arbol | X | 12,5", "1 | 2.5 | 3"}), Leidas("Arbol;X;12,5\n1;2,5;3\n"));
}

TEST(LectorCsv, ElRellenoAlFinalNoEsDelTexto) {
    using namespace std::string_literals;
    for (const auto& relleno : {"\x1A"s, "\0\0\0"s, "\x1A\0\0"s}) {
        EXPECT_EQ((Renglones{"Arbol | X", "1 | 2.5"}), Leidas("Arbol;X\r\n1;2,5\r\n" + relleno));
        for (const bool bajoPrimero : {true, false}) {
            EXPECT_EQ((Renglones{"Arbol | X", "1 | 2.5"}),
                      Leidas(EnUtf16("\uFEFFArbol;X\r\n1;2,5\r\n" + relleno, bajoPrimero)));
        }
    }
}

TEST(LectorCsv, UnaFilaDemasiadoLargaNoCambiaElSeparador) {
    std::string texto = "Arbol;X, m;Y, m;Notas\n1;12,5;7,25;\n2;3,5;4,5;seco; roto\n";
    for (int i = 3; i < 40; ++i) {
        texto += std::to_string(i) + ";3,5;4,5;x\n";
    }
    EXPECT_TRUE(NoSeLee(fallo::tablaNoAdmitida, "la fila 3 tiene 5 celdas, y la de los nombres, 4", texto));
}

} // namespace
} // namespace varo
