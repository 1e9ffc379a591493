// Files of other programs: what they are and what to do.
#include "motor/lectores/OtrosFormatos.h"

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <string_view>

namespace varo {
namespace {

using namespace std::string_view_literals;

std::string Archivo(std::string_view bytes) {
    return QueArchivoEs(std::as_bytes(std::span{bytes})).value_or("nada");
}

std::string Texto(std::string_view texto) {
    return QueTextoEs(texto).value_or("nada");
}

const std::string comoTabla =
    "; copie la tabla a una hoja de cálculo y guárdela como libro de Excel 97-2003 (.xls)";
const std::string comoLibro = "; guárdelo desde la hoja de cálculo como libro de Excel 97-2003 (.xls)";
const std::string comoCsv = "; guarde la tabla desde su programa como CSV";
const std::string descomprimir = "; descomprímalo y abra el archivo que lleva dentro";
const std::string desdeR = "; escriba la tabla en R con «write.csv2» y abra ese archivo";

TEST(OtrosFormatos, LosComprimidosDicenCuales) {
    EXPECT_EQ("es un archivo comprimido, como los .xlsx y los .ods" + comoLibro,
              Archivo("PK\3\4\x14\0\6\0"sv));
    EXPECT_EQ("es un archivo comprimido, como los .xlsx y los .ods" + comoLibro, Archivo("PK\5\6\0\0"sv));
    EXPECT_TRUE(
        Archivo("\x1F\x8B\x08\0"sv)
            .starts_with("es un archivo comprimido (.gz), como los datos de R (.rda, .rds); si es de R"));
    EXPECT_EQ("es un archivo comprimido (.bz2)" + descomprimir, Archivo("BZh91AY&SY"));
    EXPECT_EQ("es un archivo comprimido (.xz)" + descomprimir, Archivo("\xFD\x37zXZ\0\0"sv));
    EXPECT_EQ("es un archivo comprimido (.7z)" + descomprimir, Archivo("7z\xBC\xAF\x27\x1C\0"sv));
    EXPECT_EQ("es un archivo comprimido (.rar)" + descomprimir, Archivo("Rar!\x1A\x07\x01\0"sv));
    const auto tar = "parcela.csv" + std::string(246, '\0'); // the mark stands at 257
    EXPECT_EQ("es un archivo de varios (.tar)" + descomprimir, Archivo(tar + std::string{"ustar\0", 6}));
    EXPECT_EQ("es un archivo de varios (.tar)" + descomprimir, Archivo(tar + std::string{"ustar  \0", 8}));
    EXPECT_EQ("nada", Archivo(std::string(257, 'a') + "ustar al muestreo")); // a word of a note
}

TEST(OtrosFormatos, LosDocumentosYLasImagenes) {
    EXPECT_EQ("es un documento PDF" + comoTabla, Archivo("%PDF-1.4\n1,2\n3,4\n"));
    EXPECT_EQ("es un documento de Word (.docx)" + comoTabla,
              Archivo("PK\3\4\x14\0\0\0[Content_Types].xml\0\0word/document.xml\0"sv));
    const std::string odf = "PK\3\4" + std::string(26, '\1') + "mimetypeapplication/vnd.oasis.opendocument.";
    EXPECT_EQ("es un documento de texto (.odt)" + comoTabla, Archivo(odf + "text"));
    EXPECT_EQ("es una presentación (.odp)" + comoTabla, Archivo(odf + "presentation"));
    EXPECT_EQ("es un archivo comprimido, como los .xlsx y los .ods" + comoLibro,
              Archivo(odf + "spreadsheet"));
    for (const auto bytes : {"\x89PNG\r\n\x1A\n\0\0"sv, "\xFF\xD8\xFF\xE0\0"sv, "GIF89a\1"sv, "II*\0\x08"sv,
                             "MM\0*\0"sv, "RIFF\x10\0\0\0WEBPVP8 "sv, "BM\x36\0\x0C\0\0\0\0\0\x36"sv}) {
        EXPECT_EQ("es una imagen" + comoTabla, Archivo(bytes)) << bytes;
    }
    EXPECT_EQ("nada", Archivo("BM;X;Y\n1;2;3\n"));
    EXPECT_EQ("nada", Archivo("XX\x36\0\x0C\0\0\0\0\0\x36"sv));
}

TEST(OtrosFormatos, LosDatosDeOtrosProgramas) {
    EXPECT_EQ("es una base de datos de SQLite, como las capas .gpkg de un SIG" + comoCsv,
              Archivo("SQLite format 3\0\x10"sv));
    EXPECT_EQ("es una capa de un SIG (.shp); guarde su tabla de atributos desde el SIG como CSV",
              Archivo("\0\0\x27\x0A\0\0\0\0\0"sv));
    for (const auto bytes : {"RDX2\nX\n"sv, "RDX3\nX\n"sv, "RDA3\nA\n"sv, "X\n\0\0\0\3"sv}) {
        EXPECT_EQ("es un archivo de datos de R" + desdeR, Archivo(bytes));
    }
    EXPECT_EQ("es un archivo de datos de SPSS (.sav)" + comoCsv, Archivo("$FL2@(#) SPSS DATA FILE"));
    EXPECT_EQ("es un archivo de datos de Stata (.dta)" + comoCsv, Archivo("<stata_dta><header>"));
    EXPECT_EQ("es un archivo de datos de SAS (.sas7bdat)" + comoCsv,
              Archivo("\0\0\0\0\0\0\0\0\0\0\0\0\xC2\xEA\x81\x60\xB3\x14\x11\xCF\xBD\x92"sv));
    EXPECT_EQ("es una tabla de Parquet (.parquet)" + comoCsv, Archivo("PAR1\x15\0PAR1"sv));
    EXPECT_EQ("es una tabla de Arrow (.feather)" + comoCsv, Archivo("ARROW1\0\0"sv));
    EXPECT_EQ("es un archivo de datos HDF5" + comoCsv, Archivo("\x89HDF\r\n\x1A\n\0"sv));
}

/// The header of a table of dBase with one column, and one row of so many bytes.
std::string Dbf(char version, char mes, char dia) {
    std::string bytes{version, 125, mes, dia, 1, 0, 0, 0, 65, 0, 11, 0};
    bytes.resize(32);
    return bytes + "CAP" + std::string(8, '\0') + "N" + std::string(20, '\0') + "\r 000000012,";
}

TEST(OtrosFormatos, UnaTablaDeDBaseNoSeConfundeConUnTexto) {
    const auto deDBase = "es una tabla de dBase (.dbf), como las de las capas de un SIG" + comoLibro;
    for (const char version : {'\x03', '\x83', '\x30', '\xF5'}) {
        EXPECT_EQ(deDBase, Archivo(Dbf(version, 12, 31)));
    }
    EXPECT_EQ("nada", Archivo(Dbf('\x03', 13, 31)));
    EXPECT_EQ("nada", Archivo(Dbf('\x03', 12, 0)));
    EXPECT_EQ("nada", Archivo(Dbf('\x20', 12, 31)));
    EXPECT_EQ("nada", Archivo("0;\n\n1;2\n3;4\n5;6\n7;8\n9;1\n2;3\n4;5\n6;7\n"));
    EXPECT_EQ("nada", Archivo("\x03"));
}

TEST(OtrosFormatos, LosTextosEnAlgunLenguaje) {
    EXPECT_EQ("es una página web (HTML), aunque se llame de otra manera" + comoLibro,
              Texto("\n<!DOCTYPE html><table><tr><td>a,b</td></tr></table>"));
    EXPECT_EQ("es un archivo de texto en XML, como los de «Hoja de cálculo XML 2003»" + comoLibro,
              Texto("<?XML version=\"1.0\"?>"));
    EXPECT_EQ("es un documento de texto (.rtf)" + comoTabla, Texto("{\\rtf1 a,b}"));
    EXPECT_EQ("es un documento PostScript" + comoTabla, Texto("%!PS-Adobe-3.0"));
    const auto json = "es un archivo de texto en JSON, como las capas .geojson de un SIG" + comoCsv;
    EXPECT_EQ(json, Texto("{\n  \"type\": \"FeatureCollection\"}"));
    EXPECT_EQ(json, Texto("[{\"x\": 1}]"));
    EXPECT_EQ(json, Texto("[[1,2],[3,4]]"));
    EXPECT_EQ("nada", Texto("[x],[y]\n1,2\n"));
    EXPECT_EQ("nada", Texto("x,y\n1,2\n"));
    EXPECT_EQ("nada", Texto("  "));
}

} // namespace
} // namespace varo
