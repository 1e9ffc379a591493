// The decimal marks of a text of cells: never a wrong number without a word, and no more refusals than that
// takes.
#include "motor/lectores/LectorCsv.h"

#include "apoyo/Fallos.h"
#include "motor/lectores/ApoyoLectores.h"

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varo {
namespace {

using Renglones = std::vector<std::string>;

Renglones Leidas(std::string_view texto) {
    auto renglones = prueba::Lineas(LeerCsv(std::as_bytes(std::span{texto}), "p.csv", "p").at(0));
    renglones.erase(renglones.begin());
    return renglones;
}

testing::AssertionResult NoSeAdmite(const std::string& motivo, std::string_view texto) {
    return prueba::FallaCon(fallo::tablaNoAdmitida, "No se puede leer «p.csv»: en la columna " + motivo,
                            [&] { (void)Leidas(texto); });
}

TEST(LectorCsvMarcas, UnPuntoDecimalEsDeTodoElArchivo) {
    EXPECT_EQ((Renglones{"a | b", "107.766 | 95.633", "-1 | 1e+06"}),
              Leidas("a,b\n107.766,95.633\n-1,1e6\n"));
    EXPECT_EQ((Renglones{"a | b", "107.766 | 95.5"}), Leidas("a;b\n107.766;95.5\n"));
    EXPECT_EQ((Renglones{"a | b", "1.234 | 0.5", "1234.5 | 1234567"}),
              Leidas("a,b\n1.234,.5\n\"1,234.5\",\"1,234,567\"\n"));
}

TEST(LectorCsvMarcas, UnaComaDecimalEsDeTodoElArchivo) {
    EXPECT_EQ((Renglones{"a | b", "107.766 | 95.5"}), Leidas("a;b\n107,766;95,5\n"));
    EXPECT_EQ((Renglones{"a | b", "1.234 | 0.5", "1234.5 | 1234567", "1234 | -0.001"}),
              Leidas("a;b\n1,234;,5\n1.234,5;1.234.567\n1.234;-1E-3\n"));
}

TEST(LectorCsvMarcas, LosGruposSolosSonMillares) {
    EXPECT_EQ((Renglones{"a | b", "4567890 | 1", "1234 | 2"}), Leidas("a;b\n4.567.890;1\n1.234;2\n"));
    EXPECT_EQ((Renglones{"a | b", "4567890 | 1234567"}), Leidas("a;b\n4.567.890;1,234,567\n"));
}

TEST(LectorCsvMarcas, CadaColumnaPuedeTenerLaSuya) {
    EXPECT_EQ((Renglones{"Arbol | X | CAP", "1 | 107.76 | 31.4", "2 | 95.633 | 12"}),
              Leidas("Arbol;X;CAP\n1;107.76;31,4\n2;95.633;12\n"));
    // A code, which a sheet of commas has as a text, is that number: no other number reads like it.
    EXPECT_EQ((Renglones{"Codigo | X | Y", "1.1 | 1.5 | 2.25", "1.2 | 3.125 | 4"}),
              Leidas("Codigo;X;Y\n1.1;1,5;2,25\n1.2;3,125;4\n"));
}

TEST(LectorCsvMarcas, LosCodigosQueCuentanPasadoElNueveSonTextos) {
    EXPECT_EQ((Renglones{"Codigo | X", "'1.8' | 1.5", "'1.9' | 2.5", "'1.10' | 3.5", "'2.1' | 4.5"}),
              Leidas("Codigo;X\n1.8;1,5\n1.9;2,5\n1.10;3,5\n2.1;4,5\n"));
    EXPECT_EQ((Renglones{"Codigo | X", "'1,9' | 1.5", "'1,10' | 2.5"}),
              Leidas("Codigo;X\n1,9;1.5\n1,10;2.5\n"));
    // In a file of points too: 1.10 is not the first tree again.
    EXPECT_EQ((Renglones{"Codigo | X", "'1.99' | 1.5", "'1.100' | 2.5"}),
              Leidas("Codigo,X\n1.99,1.5\n1.100,2.5\n"));
    // The ninth tree is missing.
    EXPECT_EQ(
        (Renglones{"Codigo | X", "'1.1' | 1.5", "'1.7' | 2.5", "'1.8' | 3.5", "'1.10' | 4.5", "'2.1' | 5.5"}),
        Leidas("Codigo,X\n1.1,1.5\n1.7,2.5\n1.8,3.5\n1.10,4.5\n2.1,5.5\n"));
    EXPECT_EQ((Renglones{"DAP | X", "3.8 | 1", "3.15 | 2", "4.2 | 3"}),
              Leidas("DAP,X\n3.8,1\n3.15,2\n4.2,3\n"));
    // These do not count on.
    EXPECT_EQ((Renglones{"DAP | X", "1.9 | 1", "1.1 | 2", "1.2 | 3"}),
              Leidas("DAP,X\n1.9,1\n1.10,2\n1.2,3\n"));
    EXPECT_EQ((Renglones{"DAP | X", "3.2 | 1", "1.9 | 2", "1.1 | 3"}),
              Leidas("DAP,X\n3.2,1\n1.9,2\n1.10,3\n"));
}

TEST(LectorCsvMarcas, UnOrdinalNoHaceDecimalesDeLosMillares) {
    EXPECT_TRUE(
        NoSeAdmite("«CAP» la fila 3 tiene «1.234», y no se sabe si el punto", "N;CAP\n1.;987\n2.;1.234\n"));
    EXPECT_EQ((Renglones{"N | CAP", "1 | 12.5", "2 | 13.5"}), Leidas("N;CAP\n1.;12,5\n2.;13,5\n"));
}

TEST(LectorCsvMarcas, GruposDeMillaresYUnNumeroQuePuedeSerDosSeRechazan) {
    EXPECT_TRUE(NoSeAdmite("«Y» unos números llevan punto y otros coma: la fila 2 tiene "
                           "«4.567.890» y la fila 3 tiene «1,234»",
                           "N,Y\n1.5,4.567.890\n2.5,\"1,234\"\n"));
}

TEST(LectorCsvMarcas, LasPalabrasDeLoQueFaltaNoHacenTextosDeUnaColumna) {
    for (const std::string falta : {"n/d", "NULL", "n/a", "S/D", "nan", "--", ".", "NA"}) {
        EXPECT_EQ((Renglones{"Alt | X", "'" + falta + "' | 1.5", "'" + falta + "' | 2.5", "12.5 | 3.5"}),
                  Leidas("Alt;X\n" + falta + ";1,5\n" + falta + ";2,5\n12.5;3,5\n"));
    }
}

TEST(LectorCsvMarcas, UnCodigoQueSePierdeComoNumeroSeRechaza) {
    EXPECT_TRUE(
        NoSeAdmite("«Codigo» la fila 3 tiene «1.10», que puede ser un código o un número. Si es un código, "
                   "sepárelo con un guion; si es un número, escríbalo como los de las otras columnas, con "
                   "coma",
                   "Codigo;X;Y\n1.1;1,5;2,5\n1.10;3,5;4,5\n"));
    // Measures with as many decimals all.
    EXPECT_EQ((Renglones{"DAP | X | Y", "1.15 | 1.5 | 2.5", "1.1 | 3.5 | 4.5"}),
              Leidas("DAP;X;Y\n1.15;1,5;2,5\n1.10;3,5;4,5\n"));
}

TEST(LectorCsvMarcas, LasDosMarcasEnUnaColumnaSeRechazan) {
    EXPECT_TRUE(
        NoSeAdmite("«a» unos números llevan punto y otros coma: la fila 2 tiene «2.5» y la fila 4 tiene "
                   "«3,5». Escriba todos los números de la columna de la misma manera",
                   "a;b\n2.5;1\n;\n3,5;4\n"));
    EXPECT_TRUE(NoSeAdmite("«a» unos números llevan punto y otros coma: la fila 2 tiene «2.500» y la fila 3",
                           "a;b\n2.500;1\n3,500;4\n"));
    EXPECT_TRUE(
        NoSeAdmite("«a» unos números llevan punto y otros coma: la fila 2 tiene «1,234,567» y la fila 3",
                   "a;b\n1,234,567;1\n1.234.567;4\n"));
}

TEST(LectorCsvMarcas, UnNumeroQuePuedeSerDosSeRechaza) {
    const std::string punto =
        "no se sabe si el punto separa decimales o millares. Quite las separaciones de millares";
    const std::string coma = "no se sabe si la coma separa decimales o millares";
    // Beside commas, and nothing in its column tells that it has groups.
    EXPECT_TRUE(NoSeAdmite("«X» la fila 3 tiene «107.766», y " + punto, "X;CAP\n5;12,5\n107.766;31,4\n"));
    EXPECT_TRUE(NoSeAdmite("«X» la fila 3 tiene «1.234», y " + punto, "X;Y\n12,5;1\n1.234;2\n"));
    EXPECT_TRUE(NoSeAdmite("«Y» la fila 2 tiene «1,234», y " + coma, "X,Y\n12.5,\"1,234\"\n"));
    // Groups or decimals: the other columns leave it open.
    EXPECT_TRUE(NoSeAdmite("«X» la fila 2 tiene «431.250», y " + punto, "X;Y\n431.250;4.567.890\n"));
    EXPECT_TRUE(NoSeAdmite("«a» la fila 2 tiene «2.500», y " + punto, "a;b\n2.500;3,500\n"));
    // A column without a name tells its number.
    EXPECT_TRUE(NoSeAdmite("2 la fila 3 tiene «1.234», y " + punto, "X;;Z\n12,5;1;1\n1,5;1.234;2\n"));
}

TEST(LectorCsvMarcas, UnMillarAlLadoDeCentenasSeRechaza) {
    const std::string punto = "no se sabe si el punto separa decimales o millares";
    const std::string coma = "no se sabe si la coma separa decimales o millares";
    EXPECT_TRUE(NoSeAdmite("«CAP» la fila 3 tiene «1.234», y " + punto, "X;CAP\n12;987\n15;1.234\n"));
    EXPECT_TRUE(NoSeAdmite("«CAP» la fila 3 tiene «1,234», y " + coma, "X,CAP\n12,987\n15,\"1,234\"\n"));
    EXPECT_TRUE(NoSeAdmite("«CAP» la fila 3 tiene «1.234», y " + punto,
                           "X;Y;CAP;Alt\n107.76;95.63;987;12,5\n69.39;12.46;1.234;13,1\n"));
    // The other columns, or a whole number without groups, say that it is a decimal.
    EXPECT_EQ((Renglones{"X | CAP", "1.5 | 9", "2.5 | 1.234"}), Leidas("X;CAP\n1.5;9\n2.5;1.234\n"));
    EXPECT_EQ((Renglones{"X | CAP", "12 | 9", "15 | 1.234"}), Leidas("X,CAP\n12,9\n15,1.234\n"));
    EXPECT_EQ((Renglones{"X | CAP", "12 | 9", "15 | 1.234"}), Leidas("X;CAP\n12;9\n15;1,234\n"));
    EXPECT_EQ((Renglones{"X | CAP", "12 | 1250", "15 | 1.25"}), Leidas("X;CAP\n12;1250\n15;1.250\n"));
}

TEST(LectorCsvMarcas, UnaColumnaDeCodigosNoHaceDecimalesDeLosMillares) {
    EXPECT_TRUE(NoSeAdmite("«X» la fila 2 tiene «431.250», y no se sabe",
                           "Codigo;X;Y\n1.1;431.250;4.567.890\n1.2;431.251;4.567.891\n"));
}

TEST(LectorCsvMarcas, UnNumeroMalEscritoSeRechaza) {
    EXPECT_TRUE(NoSeAdmite("«CAP» la fila 2 tiene «12..5», que no es un número bien escrito: corríjalo",
                           "Arbol,CAP\n1,12..5\n2,40.1\n3,9\n"));
    EXPECT_TRUE(NoSeAdmite("«CAP» la fila 3 tiene «1.23,5», que no es", "Arbol;CAP\n1;40,1\n2;1.23,5\n"));
    // Codes and dates are texts.
    EXPECT_EQ((Renglones{"Fecha | X", "'31.12.2025' | 1.5", "'1.2.3' | 2"}),
              Leidas("Fecha,X\n31.12.2025,1.5\n1.2.3,2\n"));
}

TEST(LectorCsvMarcas, GruposDeOtraMarcaJuntoADecimalesSeRechazan) {
    EXPECT_TRUE(NoSeAdmite("«X» unos números llevan punto y otros coma: la fila 2 tiene «12.5» y la fila 3 "
                           "tiene «1.234.567»",
                           "Id;X\n1;12.5\n2;1.234.567\n"));
}

TEST(LectorCsvMarcas, UnaMedidaSinDecimalesNoEsUnCodigo) {
    EXPECT_EQ((Renglones{"CAP | X", "12 | 1.5", "1.9 | 2.5", "30 | 3.5", "1.1 | 4.5"}),
              Leidas("CAP;X\n12;1.5\n1.9;2.5\n30;3.5\n1.10;4.5\n"));
}

TEST(LectorCsvMarcas, LosBlancosDentroDeLasComillasNoHacenTextos) {
    EXPECT_EQ((Renglones{"id | x | dbh | dia", "1 | 107.766 | 4.7 | #46022", "2 | 69.399 | - | -"}),
              Leidas("\"id\",\"x\",\"dbh\",\"dia\"\n\"1\",\"107.766\",\" 4.7\",\" 31/12/2025\"\n"
                     "\"2\",\" 69.399\",\"  \",\" #N/A \"\n"));
    EXPECT_EQ((Renglones{"x | y", "12.5 | 31.4", "2.5 | 3.5"}),
              Leidas("x;y\n\"12.5\u00A0\";\u00A031.4\n\"\t2.5\";3.5\n"));
}

TEST(LectorCsvMarcas, LoDudosoSigueALaMayoriaDeLasColumnasSiDiceLoMismo) {
    EXPECT_EQ((Renglones{"Codigo | X | Y | Z", "1.1 | 107.766 | 1.5 | 2.5"}),
              Leidas("Codigo;X;Y;Z\n1.1;107,766;1,5;2,5\n"));
    // As many columns have the one as the other: the separator tells.
    EXPECT_EQ((Renglones{"Codigo | X | Y", "1.1 | 107.766 | 1.5"}), Leidas("Codigo;X;Y\n1.1;107,766;1,5\n"));
    EXPECT_EQ((Renglones{"Codigo | X | Y", "1.1 | 107.766 | 1.5"}),
              Leidas("Codigo,X,Y\n\"1,1\",107.766,1.5\n"));
    EXPECT_TRUE(NoSeAdmite("«X» la fila 2", "Codigo;X;Y\n1.1;107.766;1,5\n"));
}

TEST(LectorCsvMarcas, EnUnaColumnaDeTextosLoDudosoQuedaComoEsta) {
    EXPECT_EQ((Renglones{"X | Nota", "1.5 | 'viejo'", "2.5 | '2.5'", "3.5 | '1.234'", "4.5 | 'seco'",
                         "5.5 | 'roto'", "6.5 | 'hueco'"}),
              Leidas("X;Nota\n1,5;viejo\n2,5;2.5\n3,5;1.234\n4,5;seco\n5,5;roto\n6,5;hueco\n"));
    EXPECT_EQ((Renglones{"X | Nota", "1.5 | '3,5'", "2.5 | '2.5'", "3.5 | 'seco'", "4.5 | 'roto'",
                         "5.5 | 'hueco'"}),
              Leidas("X;Nota\n1,5;3,5\n2,5;2.5\n3,5;seco\n4,5;roto\n5,5;hueco\n"));
    // What was not measured is no text.
    EXPECT_EQ((Renglones{"X | Alt", "1.5 | 'NA'", "2.5 | 2.5", "3.5 | 'NA'", "4.5 | '-'"}),
              Leidas("X;Alt\n1,5;NA\n2,5;2.5\n3,5;NA\n4,5;-\n"));
}

TEST(LectorCsvMarcas, LosCodigosConGruposQuedanComoEstan) {
    EXPECT_EQ((Renglones{"Rodal | X", "'1.101.102' | 1.5", "'1.101' | 2"}),
              Leidas("Rodal,X\n1.101.102,1.5\n1.101,2\n"));
}

} // namespace
} // namespace varo
