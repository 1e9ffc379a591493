// Databases of other programs. What each of them holds was told by mdbtools and by whoever made it.
#include "motor/lectores/LectorMdb.h"

#include "basico/Texto.h"
#include "motor/lectores/ApoyoLectores.h"

#include <gtest/gtest.h>

#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace varo {
namespace {

using Texto = std::vector<std::string>;

constexpr const char* sinMuestras = "no está la carpeta de muestras ../shared/muestras";

/// Every type, nulls, empty texts, dates before 1900 and extremes.
Texto Hecha() {
    std::string memo;
    while (memo.size() < 24000) {
        memo += "é€漢";
    }
    const std::string corta = " | 'short memo' | -12.3456 | 'x'";
    const std::string borrada = " | - | - | - | - | - | F | - | - | -";
    return {
        "[Zeta data]",
        "ID | Name | Dbl | Sgl | Int | Byt | Cur | Dat | Yes | Memo | Dec | With blank",
        "1 | 'plain' | 0.1 | 0.1 | -5 | 200 | -922337203685477.6 | #36925.17020833334 | V" + corta,
        "2 | - | - | - | - | - | - | - | F | - | - | -",
        "3 | '' | 1e+300 | 3.4e+38 | 0 | 0 | 1e-04 | #-1.75 | F | '' | 0 | ''",
        "4 | 'é€漢字 'q' \"d\"' | 0.3333333333333333 | 0.33333334 | 32767 | 1 | 1234.5 | #-36522 | V | '" +
            memo + "' | 1e+14 | 'line1\nline2'",
        "5 | 'del0' | 0" + borrada,
        "7 | 'del2' | 2" + borrada,
        "9 | 'del4' | 4" + borrada,
        "[alpha]",
        "k",
        "'v'",
        "[Empty]",
        "k",
    };
}

Texto ColumnaBorrada() {
    return {"[Table1]", "id | id2 | data | data2", "0 | 2 | 'foo' | 'foo2'", "3 | 5 | 'bar' | 'bar2'"};
}

Texto Desbordada() {
    return {
        "[Table1]",
        "data1 | data3 | data4 | data5 | data6 | data7 | data8 | data9 | data10",
        "'row1col1' | - | - | - | - | - | - | - | -",
        "'row2col1' | 'row2col3' | - | - | - | - | - | - | -",
        "- | 'row3col3' | - | - | - | - | - | 'row3col9' | -",
        "'row4col1' | 'row4col2' | - | - | - | - | - | - | -",
        "- | 'row5col2' | - | - | - | - | - | - | -",
        "- | 'row6col2' | 'row6col3' | - | - | - | - | - | -",
        "'row7col1' | - | - | - | - | 'row7col7' | - | - | -",
    };
}

Texto DeUnicode() {
    const std::string detras = "52\x02_AB(¥\x05!!V'";
    std::string letras;
    for (char32_t c = 1; c <= 0xFF; ++c) {
        AnadirUtf8(letras, c);
    }
    return {
        "[Table]",
        "ID | Unicode",
        "1 | 'only ascii chars'",
        "2 | 'ääkkösiä'",
        "3 | 'Мир'",
        "4 | 'ϰαὶ τ\u1F79τ' ἐγὼ Κ\u1F7Bϰλωπα'",
        "5 | '漢字仮名交じり文'",
        "6 | '3L9\x1D" + detras,
        "7 | 'ümlaut'",
        "8 | '" + letras + "'",
    };
}

Texto DeAccess97() {
    std::string columnas;
    for (int i = 1; i <= 89; ++i) {
        columnas += (i == 1 ? "column" : " | column") + std::to_string(i);
    }
    return {
        "[Table1]",
        "A | B | C | D | E | F | G | H | I",
        "'a' | 'b' | 0 | 0 | 0 | 0 | #29932 | 0 | F",
        "'abcdefg' | 'hijklmnop' | 2 | 222 | 333333333 | 444.555 | #27293 | 3.5 | V",
        "[Table2]",
        columnas,
        "[Table3]",
        "a | b",
        "[Table4]",
        "name | data",
    };
}

std::map<std::string, Texto> Esperado() {
    return {{"jet4_2000.mdb", Hecha()},
            {"jet4_2003.mdb", Hecha()},
            {"ace_2010.accdb", Hecha()},
            {"delColTestV2003.mdb", ColumnaBorrada()},
            {"overflowTestV1997.mdb", Desbordada()},
            {"testUnicodeCompV2003.mdb", DeUnicode()},
            {"testV1997.mdb", DeAccess97()}};
}

TEST(LectorMdbMuestras, CadaBaseSeLeeCampoACampo) {
    auto archivos = prueba::Muestras("mdb-made");
    const auto reales = prueba::Muestras("mdb-real");
    archivos.insert(archivos.end(), reales.begin(), reales.end());
    if (archivos.empty()) {
        GTEST_SKIP() << sinMuestras;
    }
    auto esperado = Esperado();
    for (const auto& archivo : archivos) {
        const auto nombre = archivo.filename().string();
        ASSERT_TRUE(esperado.contains(nombre)) << nombre;
        EXPECT_EQ(esperado[nombre], prueba::Lineas(LeerMdb(prueba::BytesDe(archivo), nombre))) << nombre;
        esperado.erase(nombre);
    }
    EXPECT_TRUE(esperado.empty()) << "falta " << esperado.begin()->first;
}

/// What a database says that it has: each table with its rows, or with the place where it broke.
Texto Resumen(const std::vector<Tabla>& tablas) {
    Texto resumen;
    for (const auto& tabla : tablas) {
        resumen.push_back(
            tabla.Name + ": " +
            (tabla.defecto ? tabla.defecto->descripcion() : std::to_string(tabla.filas.size()) + " filas"));
    }
    return resumen;
}

TEST(LectorMdbMuestras, CadaBaseMalaDiceLoQueTiene) {
    if (prueba::Muestras("mdb-bad").empty()) {
        GTEST_SKIP() << sinMuestras;
    }
    const std::string remedio =
        "): ábralo en Access y use «Compactar y reparar base de datos», o tome otra copia";
    const std::map<std::string, Texto> esperado{{"fuzz_crash_f123.mdb", {"MSP_PROJECTS: 1 filas"}},
                                                {"fuzz_crash_f26.mdb",
                                                 {"No se puede leer «fuzz_crash_f26.mdb»: el archivo está "
                                                  "dañado (falta la página 32768; el archivo acaba "
                                                  "tras la 72" +
                                                  remedio}},
                                                {"fuzz_hang.mdb",
                                                 {"Table1: 2 filas", "Table2: 0 filas",
                                                  "Table3: No se puede leer la tabla «Table3» de "
                                                  "«fuzz_hang.mdb»: el archivo está dañado (falta la página "
                                                  "50; el archivo acaba tras la 47" +
                                                      remedio,
                                                  "Table4: No se puede leer la tabla «Table4» de "
                                                  "«fuzz_hang.mdb»: el archivo está dañado (falta la página "
                                                  "54; el archivo acaba tras la 47" +
                                                      remedio}}};
    std::map<std::string, Texto> obtenido;
    for (const auto& archivo : prueba::Muestras("mdb-bad")) {
        const auto nombre = archivo.filename().string();
        try {
            obtenido[nombre] = Resumen(LeerMdb(prueba::BytesDe(archivo), nombre));
        } catch (const ErrorMotor& error) {
            obtenido[nombre] = {error.descripcion()};
        }
    }
    EXPECT_EQ(esperado, obtenido);
}

} // namespace
} // namespace varo
