// Workbooks that other programs wrote, and the same tables from every format.
#include "apoyo/EscritorOds.h"
#include "libros/ApoyoLibros.h"

#include "apoyo/ArchivoDePrueba.h"
#include "apoyo/CarpetaTemporal.h"
#include "apoyo/Lugares.h"
#include "apoyo/Proceso.h"
#include "libros/RegistrarLibros.h"
#include "motor/ArchivoDatos.h"
#include "motor/FormatosDeArchivo.h"
#include "motor/lectores/ApoyoLectores.h"
#include "motor/lectores/LectorXls.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varo::prueba {
namespace {

LineasDeTablas LineasDeXls(const std::string& nombre) {
    return Lineas(LeerXls(BytesDeLibro(nombre), nombre));
}

TEST(LibrosDeProgramas, LosTextosDeLibreOfficeSonLosDelXls) {
    EXPECT_EQ(LineasDeXls("textos.xls"), LineasDelLibro(BytesDeComprimido("libreoffice_textos.xlsx")));
    EXPECT_EQ(LineasDeXls("textos.xls"), LineasDelLibro(BytesDeComprimido("libreoffice_textos.ods")));
}

TEST(LibrosDeProgramas, LosLibrosDeGnumericSonLosDelXls) {
    EXPECT_EQ(LineasDeXls("gnumeric_97.xls"), LineasDelLibro(BytesDeComprimido("gnumeric_97.xlsx")));
    EXPECT_EQ(LineasDeXls("gnumeric_97.xls"), LineasDelLibro(BytesDeComprimido("gnumeric_97.ods")));
    EXPECT_EQ(LineasDeXls("huecos.xls"), LineasDelLibro(BytesDeComprimido("gnumeric_huecos.xlsx")));
    EXPECT_EQ(LineasDeXls("huecos.xls"), LineasDelLibro(BytesDeComprimido("gnumeric_huecos.ods")));
}

/// The lines of each table, tables in order of name: programs put names in an order of their own.
std::vector<LineasDeTablas> PorNombre(const std::vector<Tabla>& tablas) {
    std::vector<LineasDeTablas> todas;
    for (const auto& tabla : tablas) {
        if (tabla.Name != "Excel_BuiltIn_Print_Area") { // which LibreOffice makes a name of the workbook
            todas.push_back(Lineas(tabla));
        }
    }
    std::ranges::sort(todas);
    return todas;
}

TEST(LibrosDeProgramas, LosNombresDeLibreOfficeSonLosDelXls) {
    const auto delXls = PorNombre(LeerXls(BytesDeLibro("nombres.xls"), "nombres.xls"));
    RegistrarLibros();
    const auto carpeta = DatosDePrueba() / "datos" / "comprimidos";
    EXPECT_EQ(delXls, PorNombre(LeerArchivoDatos(carpeta / "libreoffice_nombres.xlsx")));
    EXPECT_EQ(delXls, PorNombre(LeerArchivoDatos(carpeta / "libreoffice_nombres.ods")));
}

TEST(LibrosDeProgramas, LasMuestrasDeLibreOfficeSonIgualesEnLosDosFormatos) {
    const auto muestras = AlLado() / "muestras";
    if (!std::filesystem::exists(muestras)) {
        GTEST_SKIP() << "no están las muestras";
    }
    RegistrarLibros();
    const auto xlsx = Lineas(LeerArchivoDatos(muestras / "other" / "lo.xlsx"));
    EXPECT_EQ(xlsx, Lineas(LeerArchivoDatos(muestras / "xls-bad" / "xlsx_renamed.xls")));
    const auto ods = Lineas(LeerArchivoDatos(muestras / "other" / "lo.ods"));
    EXPECT_EQ(xlsx.size(), ods.size());
    EXPECT_NE(std::ranges::find(ods, "[It's got blanks$]"), ods.end());
}

TEST(LibrosDeProgramas, ElNucleoLosAbreUnaVezRegistrados) {
    RegistrarLibros();
    RegistrarLibros();
    const auto formatos = FormatosQueSeAbren();
    const auto lugar = formatos.find(".xlsx, .ods");
    ASSERT_NE(lugar, std::string::npos);
    EXPECT_EQ(formatos.find(".xlsx", lugar + 1), std::string::npos);
}

TEST(LibrosDeProgramas, VaroLoteLosAbreYLoDice) {
    const CarpetaTemporal carpeta;
    const std::vector<Hoja> hojas{{"Parcela", {{"X", "Y", "CAP", "Nota"}, {1.5, 2.0, 30.0, "a"}}}};
    EscribirBytes(carpeta / "una.xlsx", EscribirXlsx(hojas));
    EscribirBytes(carpeta / "una.ods", EscribirOds(hojas));
    EXPECT_NE(Ejecutar(ProgramaLote(), {"--version"}).salida.find(".xlsx, .ods"), std::string::npos);
    for (const std::string nombre : {"una.xlsx", "una.ods"}) {
        const auto dicho = Ejecutar(ProgramaLote(), {"--tablas", carpeta.archivo(nombre)});
        EXPECT_EQ(dicho.estado, 0) << dicho.errores;
        EXPECT_NE(dicho.salida.find("Parcela$ (1 fila"), std::string::npos) << dicho.salida;
    }
}

} // namespace
} // namespace varo::prueba
