// Workbooks as other programs write them; tests/datos/hacer_libros_con_programas.py says what each one holds.
#include "motor/lectores/LectorXls.h"

#include "motor/lectores/ApoyoLectores.h"

#include <gtest/gtest.h>

#include <string>

namespace varo {
namespace {

using Texto = std::vector<std::string>;

Texto LineasDeLibro(const std::string& nombre) {
    return prueba::Lineas(LeerXls(prueba::BytesDeLibro(nombre), nombre));
}

/// Formulas with results of all kinds, one of them in an array, a row without cells, errors, a hidden sheet
/// that begins in B3 and a name over a rectangle. The last row holds an error alone, so it is none.
Texto DeGnumeric() {
    return {
        "[Parcela d'aquí$]",
        "Árbol € | X | Día | Vivo | Doble | Grito | Mayor | Error | Vacío | Mezcla | Largo",
        "'encina' | 0.5 | #43831 | V | 1 | 'encina!' | V | - | '' | 5 | '" + std::string(400, 'L') + "'",
        "'piñón' | -1.25 | #43832.5 | F | -2.5 | 'piñón!' | F | - | '' | 'cinco' | 'k'",
        "- | - | - | - | - | - | - | - | - | - | -",
        "'chopo' | 20.25 | #36526 | V | 40.5 | 'chopo!' | V | -0.5 | '' | F | 'k'",
        "[Vacía$]",
        "",
        "[Oculta$]",
        "Secreto",
        "'sí'",
        "[Zona]",
        "Árbol € | X",
        "'encina' | 0.5",
        "'piñón' | -1.25",
    };
}

TEST(LectorXlsDeProgramas, UnLibroParaExcel95) {
    EXPECT_EQ(DeGnumeric(), LineasDeLibro("gnumeric_95.xls"));
}

TEST(LectorXlsDeProgramas, UnLibroParaExcel97) {
    EXPECT_EQ(DeGnumeric(), LineasDeLibro("gnumeric_97.xls"));
}

TEST(LectorXlsDeProgramas, UnLibroDeExcel97GuardadoParaExcel95) {
    EXPECT_EQ(DeGnumeric(), LineasDeLibro("gnumeric_95_de_97.xls"));
}

TEST(LectorXlsDeProgramas, UnLibroParaLosDos) {
    EXPECT_EQ(DeGnumeric(), LineasDeLibro("gnumeric_95_y_97.xls"));
}

TEST(LectorXlsDeProgramas, LosGraficosYLasNotasNoSonTablasNiCeldas) {
    EXPECT_EQ((Texto{
                  "[Parcela$]",
                  "Árbol € | X | Día | Doble | Código | Blanco | Grito | Verdad",
                  "'encina' | 0.25 | #43831 | 0.5 | '001' | - | 'encina!' | V",
                  "'piñón' | 0.5 | #43832 | 1 | '002' | - | '' | F",
                  "'chopo' | 0.75 | #43833 | 1.5 | '003' | - | - | -",
                  "- | - | - | - | - | - | - | -",
                  "'" + std::string(300, 'z') + "' | - | - | - | - | - | - | -",
                  "[L'Estany$]",
                  "v",
                  "42",
                  "[Años$]",
                  "ü",
                  "[Lejana$]",
                  "lejos",
                  "[Oculta$]",
                  "h",
                  "1",
                  "[Tras el gráfico$]",
                  "último",
                  "[Zona]",
                  "Árbol € | X",
                  "'encina' | 0.25",
                  "'piñón' | 0.5",
                  "'chopo' | 0.75",
              }),
              LineasDeLibro("perl.xls"));
}

} // namespace
} // namespace varo
