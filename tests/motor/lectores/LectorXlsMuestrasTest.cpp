// Workbooks of other programs. What each of them holds was told by three readers of their own: LibreOffice,
// Gnumeric and python3-xlrd.
#include "motor/lectores/LectorXls.h"

#include "motor/lectores/ApoyoLectores.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

namespace varo {
namespace {

using Texto = std::vector<std::string>;

constexpr const char* sinMuestras = "no está la carpeta de muestras ../shared/muestras";

/// The workbook "Zeta" that several programs saved; the sums of its third row depend on who made them.
Texto Zeta(const std::string& num3, const std::string& fnum3) {
    return {
        "[Zeta$]",
        "Name | Num | Date | Bool | FNum | FText | FBool | FErr | Mixed | Long | Empty",
        "'n1 é' | 0.1 | #43839 | 1 | 0.2 | 'n1 é!' | F | - | 1 | '" + std::string(400, 'L') + "' | -",
        "'n2 é' | 0.2 | #43870 | 0 | 0.4 | 'n2 é!' | F | - | 'txt' | 'k' | -",
        "'n3 é' | " + num3 + " | #43899 | 1 | " + fnum3 + " | 'n3 é!' | V | 0.1 | 3 | 'k' | -",
        "'n4 é' | 0.4 | #43930 | 0 | 0.8 | 'n4 é!' | V | '' | 4 | 'k' | -",
        "[It's got blanks$]",
        "A | F2 | A1 | x#y(z)_",
        "1 | 2 | 3 | 4",
        "- | - | - | -",
        "5 | - | 7 | -",
        "[Älpha$]",
        "q",
        "[Empty$]",
        "",
        "[MyRange]",
        "Name | Num",
        "'n1 é' | 0.1",
        "'n2 é' | 0.2",
    };
}

Texto DeSpreadsheetWriteExcel() {
    return {
        "[Plain$]",
        "Name | Num | Date | F | Txtnum | Blank | Bool",
        "'name1 é €' | 0.3333333333333333 | #40193 | 1.3333333333333333 | '001' | - | V",
        "'name2 é €' | 0.6666666666666666 | #40224 | 1.6666666666666665 | '002' | - | 'xy'",
        "'name3 é €' | 1 | #40252 | 2 | '003' | - | -",
        "'name4 é €' | 1.3333333333333333 | #40283 | 2.333333333333333 | '004' | - | ''",
        "'name5 é €' | 1.6666666666666667 | #40313 | 2.666666666666667 | '005' | - | -",
        "'" + std::string(300, 'z') + "' | - | - | - | - | - | -",
        "[It's a sheet$]",
        "v",
        "42",
        "[Données$]",
        "ü",
        "[Trailing$]",
        "far",
        "[Hidden$]",
        "h",
        "[AfterChart$]",
        "after",
        "[MyRange]",
        "Name | Num",
        "'name1 é €' | 0.3333333333333333",
        "'name2 é €' | 0.6666666666666666",
        "'name3 é €' | 1",
        "'name4 é €' | 1.3333333333333333",
        "'name5 é €' | 1.6666666666666667",
    };
}

Texto DeSheetJs(const std::string& nota, const std::string& segundaHoja) {
    std::string ces;
    while (ces.size() < 254) {
        ces += "c ";
    }
    return {
        "[O'Neil data$]",
        "Name | Num | Date | Bool | Err | F",
        "'" + nota + "' | 1.5 | #43839 | V | - | 3",
        "'b' | 2 | #44348 | F | - | 'hello'",
        "'" + ces + "c' | 3 | - | - | - | V",
        "[" + segundaHoja + "$]",
        "x",
        "1",
    };
}

Texto DeXlwt() {
    std::string ees;
    for (int i = 0; i < 300; ++i) {
        ees += "é";
    }
    const std::string hora = " | #0.12783564814814816 | ";
    return {
        "[Plain$]",
        "Name | Num | Date | Bool | Formula | Mixed | Err | Long | Time | DateTime | Pct | Cur | Col",
        "'Röw 1' | 1.5 | #36923 | F | '' | 1 | - | '" + std::string(300, 'x') + ees + "'" + hora +
            "#36525.99931712963 | 0.25 | 1234.5 | -2.5",
        "'Röw 2' | 3 | #36924 | V | '' | 2 | '' | '" + std::string(9000, 'y') + "'" + hora +
            "#36525.99932870371 | 0.5 | 2469 | -5",
        "'Röw 3' | 4.5 | #36925 | F | '' | 'abc' | - | -" + hora +
            "#36525.999340277776 | 0.75 | 3703.5 | -7.5",
        "'Röw 4' | 6 | #36926 | V | '' | 4 | '' | 'line1\nline2 €漢字'" + hora +
            "#36525.99935185185 | 1 | 4938 | -10",
        "[Sheet with blanks$]",
        "a | 123456789 | 1E+15 | 0,1 | 12,34 | -5 | 1E-300 | 2147483648 | 1073741824",
        "[Été d'Öl 漢字$]",
        "starts at C3",
        "[Empty$]",
        "",
    };
}

std::map<std::string, Texto> Esperado() {
    return {
        {"lo.xls", Zeta("0.30000000000000004", "0.6000000000000001")},
        {"gnm_biff8.xls", Zeta("0.3", "0.6")},
        {"gnm_biff7.xls", Zeta("0.3", "0.6")},
        {"gnm_dsf.xls", Zeta("0.3", "0.6")},
        {"perl.xls", DeSpreadsheetWriteExcel()},
        {"sjs_biff8.xls", DeSheetJs("a é", "Åb c")},
        {"sjs_biff5.xls", DeSheetJs("a _", "_b c")},
        {"xlwt.xls", DeXlwt()},
        {"xlwt_1904.xls", {"[D$]", "03/02/2001"}},
    };
}

TEST(LectorXlsMuestras, CadaLibroSeLeeCeldaACelda) {
    const auto archivos = prueba::Muestras("xls");
    if (archivos.empty()) {
        GTEST_SKIP() << sinMuestras;
    }
    auto esperado = Esperado();
    for (const auto& archivo : archivos) {
        const auto nombre = archivo.filename().string();
        ASSERT_TRUE(esperado.contains(nombre)) << nombre;
        EXPECT_EQ(esperado[nombre], prueba::Lineas(LeerXls(prueba::BytesDe(archivo), nombre))) << nombre;
        esperado.erase(nombre);
    }
    EXPECT_TRUE(esperado.empty()) << "falta " << esperado.begin()->first;
}

TEST(LectorXlsMuestras, CadaArchivoMaloDiceLoQueTiene) {
    const auto archivos = prueba::Muestras("xls-bad");
    if (archivos.empty()) {
        GTEST_SKIP() << sinMuestras;
    }
    std::map<std::string, int> esperado{
        {"zero.xls", fallo::formatoNoReconocido},
        {"text.xls", fallo::formatoNoReconocido},
        {"xlsx_renamed.xls", fallo::formatoNoReconocido},
        {"sjs_xlml.xls", fallo::formatoNoReconocido},
        {"sjs_biff2.xls", fallo::formatoNoReconocido},
        {"sjs_biff4.xls", fallo::formatoNoReconocido},
        {"encrypted.xls", fallo::archivoCifrado},
        {"trunc300.xls", fallo::archivoDanado},
        {"truncated.xls", fallo::archivoDanado},
        {"corrupt.xls", fallo::archivoDanado},
        {"fuzz_heap_parse_biff_record.xls", fallo::archivoDanado},
        {"fuzz_heap_parse_unicode_string.xls", fallo::archivoDanado},
        {"fuzz_segv_parse_sst.xls", fallo::archivoDanado},
        {"fuzz_stack_dir_name.xls", fallo::archivoDanado},
    };
    for (const auto& archivo : archivos) {
        const auto nombre = archivo.filename().string();
        ASSERT_TRUE(esperado.contains(nombre)) << nombre;
        try {
            const auto tablas = LeerXls(prueba::BytesDe(archivo), nombre);
            // Damage in one sheet leaves the others, and the sheet tells of it.
            const auto danada =
                std::ranges::find_if(tablas, [](const Tabla& tabla) { return tabla.defecto.has_value(); });
            ASSERT_NE(danada, tablas.end()) << nombre << " se ha leído";
            throw ErrorMotor{*danada->defecto};
        } catch (const ErrorMotor& error) {
            EXPECT_EQ(esperado[nombre], error.numero()) << error.what();
            EXPECT_NE(std::string::npos, error.descripcion().find("«" + nombre + "»")) << error.what();
        }
        esperado.erase(nombre);
    }
    EXPECT_TRUE(esperado.empty()) << "falta " << esperado.begin()->first;
}

} // namespace
} // namespace varo
