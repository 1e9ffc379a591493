#include "motor/BaseDatos.h"

#include "apoyo/CarpetaTemporal.h"
#include "apoyo/EscritorXls.h"
#include "apoyo/Fallos.h"
#include "apoyo/Lugares.h"
#include "motor/TablasDePrueba.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace varo {

namespace {

using prueba::CarpetaTemporal;
using prueba::MensajeDe;
using prueba::TablaCon;

BaseDatos ConDosTablas() {
    return BaseDatos{{TablaCon("Parcela1$", {"Arbol", "CAP"}, {{1.0, 30.0}, {2.0, 40.0}}),
                      TablaCon("Vacía$", {"Arbol"}, {})}};
}

TEST(BaseDatos, LasTablasSeDanEnSuOrdenPorPosicionOPorNombre) {
    const auto base = ConDosTablas();
    ASSERT_EQ(base.TableDefs().Count(), 2);
    EXPECT_EQ(base.TableDefs()(0).Name, "Parcela1$");
    EXPECT_EQ(base.TableDefs()(1).Name, "Vacía$");
    EXPECT_EQ(base.TableDefs()("PARCELA1$").Fields(1).Name, "CAP");
    EXPECT_EQ(FalloDe([&] { (void)base.TableDefs()("(ninguna)"); }), fallo::elementoNoEncontrado);
    EXPECT_EQ(FalloDe([&] { (void)base.TableDefs()(2); }), fallo::elementoNoEncontrado);
}

TEST(BaseDatos, UnaTablaSeAbrePorSuNombreSinImportarMayusculas) {
    const auto base = ConDosTablas();
    EXPECT_EQ(base.AbrirTabla("parcela1$").RecordCount(), 2);
    EXPECT_TRUE(base.AbrirTabla("VACÍA$").Eof());
}

TEST(BaseDatos, UnaTablaQueNoHayFallaConSuNombre) {
    const auto base = ConDosTablas();
    EXPECT_EQ(FalloDe([&] { (void)base.AbrirTabla("Parcela1"); }), fallo::tablaDesconocida);
    EXPECT_NE(MensajeDe([&] { (void)base.AbrirTabla("Parcela1"); }).find("«Parcela1»"), std::string::npos);
}

TEST(BaseDatos, LasFilasSobrevivenALaBase) {
    std::optional<BaseDatos> base = ConDosTablas();
    auto tabla = base->AbrirTabla("Parcela1$");
    auto consulta = base->OpenRecordset("SELECT Sum([CAP]) FROM [Parcela1$]");
    base.reset();
    EXPECT_EQ(tabla.Fields(1).Value, Valor{30.0});
    EXPECT_EQ(consulta.Fields(0).Value, Valor{70.0});
}

TEST(BaseDatos, UnTopDeCeroFilasFallaAlMoverseALaPrimera) {
    const auto base = ConDosTablas();
    auto filas = base.OpenRecordset("SELECT top 0 [CAP] as Ddom FROM [Parcela1$] order by [CAP] desc");
    EXPECT_EQ(filas.RecordCount(), 0);
    EXPECT_EQ(FalloDe([&] { filas.MoveFirst(); }), fallo::sinRegistroActual);
}

TEST(BaseDatos, LosFallosDeUnaConsultaSonDelMotor) {
    const auto base = ConDosTablas();
    EXPECT_THROW((void)base.OpenRecordset("SELECT"), ErrorMotor);
    EXPECT_THROW((void)base.OpenRecordset(""), ErrorMotor);
    EXPECT_THROW((void)base.OpenRecordset("SELECT [x] FROM [Parcela1$]"), ErrorMotor);
    EXPECT_THROW((void)base.OpenRecordset("SELECT 'x' + 1 FROM [Parcela1$]"), ErrorMotor);
    EXPECT_THROW((void)base.OpenRecordset("SELECT 1 FROM [x]"), ErrorMotor);
}

// --- Files ---

/// Opening it fails with this number, and the message tells the file and this.
void EsperarFallo(const std::filesystem::path& archivo, int numero, std::string_view dice) {
    try {
        (void)BaseDatos::Abrir(archivo);
        ADD_FAILURE() << archivo << " se abre";
    } catch (const ErrorMotor& error) {
        EXPECT_EQ(error.numero(), numero) << error.what();
        const std::string mensaje = error.what();
        EXPECT_NE(mensaje.find(archivo.filename().string()), std::string::npos) << mensaje;
        EXPECT_NE(mensaje.find(dice), std::string::npos) << mensaje;
    }
}

TEST(BaseDatosAbrir, UnLibroSeLeeConSusHojasEnOrden) {
    const CarpetaTemporal carpeta;
    const auto archivo = carpeta / "parcela ñ.xls";
    prueba::EscribirArchivoXls(archivo,
                               {{.nombre = "Zeta",
                                 .celdas = {{std::string{"Arbol"}, std::string{"CAP"}},
                                            {1.0, 62.5},
                                            {2.0, Nulo{}},
                                            {3.0, std::string{"12,5"}}}},
                                {.nombre = "Alfa", .celdas = {{std::string{"a"}}, {true}}, .oculta = true}});
    const auto base = BaseDatos::Abrir(archivo);
    ASSERT_EQ(base.TableDefs().Count(), 2);
    EXPECT_EQ(base.TableDefs()(0).Name, "Zeta$");
    EXPECT_EQ(base.TableDefs()(1).Name, "Alfa$");
    EXPECT_EQ(base.AbrirTabla("Zeta$").RecordCount(), 3);
    EXPECT_EQ(base.OpenRecordset("SELECT Sum ( [CAP] ) FROM [Zeta$]").Fields(0).Value, Valor{75.0});
}

TEST(BaseDatosAbrir, ElNombreNoDiceLoQueEs) {
    const CarpetaTemporal carpeta;
    const auto archivo = carpeta / "parcela.mdb";
    prueba::EscribirArchivoXls(archivo, {{.nombre = "Hoja1", .celdas = {{std::string{"a"}}, {1.0}}}});
    EXPECT_EQ(BaseDatos::Abrir(archivo).TableDefs()(0).Name, "Hoja1$");
}

TEST(BaseDatosAbrir, UnArchivoQueNoHay) {
    const CarpetaTemporal carpeta;
    EsperarFallo(carpeta / "nada.xls", fallo::archivoNoEncontrado, "no existe");
    EsperarFallo(carpeta / "no hay carpeta" / "nada.xls", fallo::archivoNoEncontrado, "no existe");
}

TEST(BaseDatosAbrir, UnaRutaQuePasaPorUnArchivo) {
    const CarpetaTemporal carpeta;
    const auto archivo = carpeta.Escribir("a.txt", "a");
    EXPECT_THROW((void)BaseDatos::Abrir(archivo / "b.xls"), ErrorMotor);
    EXPECT_THROW((void)BaseDatos::Abrir(carpeta / std::string(5000, 'a')), ErrorMotor);
    EXPECT_THROW((void)BaseDatos::Abrir(""), ErrorMotor);
}

TEST(BaseDatosAbrir, UnaCarpeta) {
    const CarpetaTemporal carpeta;
    std::filesystem::create_directory(carpeta / "carpeta.xls");
    EsperarFallo(carpeta / "carpeta.xls", fallo::accesoAlArchivo, "es una carpeta");
}

TEST(BaseDatosAbrir, LoQueNoEsUnArchivoCorriente) {
    if (!std::filesystem::is_character_file("/dev/zero")) {
        GTEST_SKIP() << "no hay /dev/zero";
    }
    EsperarFallo("/dev/zero", fallo::accesoAlArchivo, "no es un archivo corriente");
}

TEST(BaseDatosAbrir, UnArchivoQueNoSePuedeLeer) {
    const CarpetaTemporal carpeta;
    const auto archivo = carpeta.Escribir("cerrado.xls", "x");
    std::filesystem::permissions(archivo, std::filesystem::perms::none);
    if (std::ifstream{archivo}) {
        GTEST_SKIP() << "quien prueba puede leerlo todo";
    }
    EsperarFallo(archivo, fallo::permisoDenegado, "permiso");
}

TEST(BaseDatosAbrir, UnArchivoVacio) {
    const CarpetaTemporal carpeta;
    EsperarFallo(carpeta.Escribir("vacio.xls", ""), fallo::formatoNoReconocido, "está vacío");
}

TEST(BaseDatosAbrir, UnArchivoDesmesuradoNoSeLee) {
    const CarpetaTemporal carpeta;
    const auto archivo = carpeta.Escribir("enorme.xls", "x");
    std::error_code error;
    std::filesystem::resize_file(archivo, std::uintmax_t{512} * 1024 * 1024 + 1, error);
    if (error) {
        GTEST_SKIP() << "no cabe un archivo con huecos: " << error.message();
    }
    EsperarFallo(archivo, fallo::formatoNoReconocido, "demasiado grande");
}

TEST(BaseDatosAbrir, LasBasesDeDatosTodaviaNoSeLeen) {
    using namespace std::string_view_literals;
    const CarpetaTemporal carpeta;
    EsperarFallo(carpeta.Escribir("jet.xls", "\0\1\0\0Standard Jet DB\0\1\0\0\0"sv),
                 fallo::formatoNoReconocido, "bases de datos (.mdb) todavía no");
    EsperarFallo(carpeta.Escribir("ace.mdb", "\0\1\0\0Standard ACE DB\0\2\0\0\0"sv),
                 fallo::formatoNoReconocido, "bases de datos (.mdb) todavía no");
}

TEST(BaseDatosAbrir, LosArchivosComprimidosYLosDeTextoSeDicen) {
    using namespace std::string_view_literals;
    const CarpetaTemporal carpeta;
    EsperarFallo(carpeta.Escribir("hoja.xlsx", "PK\3\4\x14\0\6\0"sv), fallo::formatoNoReconocido, ".xlsx");
    EsperarFallo(carpeta.Escribir("nada.zip", "PK\5\6\0\0"sv), fallo::formatoNoReconocido, ".xlsx");
    EsperarFallo(carpeta.Escribir("hoja.csv", "Árbol;CAP\r\n1;12,5\r\n"), fallo::formatoNoReconocido,
                 "archivo de texto");
    EsperarFallo(carpeta.Escribir("una.csv", "1"), fallo::formatoNoReconocido, "archivo de texto");
    EsperarFallo(carpeta.Escribir("utf16.txt", "\xFF\xFE"
                                               "1\0;\0"sv),
                 fallo::formatoNoReconocido, "archivo de texto");
}

TEST(BaseDatosAbrir, LoQueNadieConoceSeRechaza) {
    using namespace std::string_view_literals;
    const CarpetaTemporal carpeta;
    EsperarFallo(carpeta.Escribir("que.xls", "\x89PNG\r\n\x1A\n\0\0"sv), fallo::formatoNoReconocido,
                 "no se reconoce su formato");
    // A header of a database that is cut short is none.
    EsperarFallo(carpeta.Escribir("corto.mdb", "\0\1\0\0Standard Jet"sv), fallo::formatoNoReconocido,
                 "no se reconoce su formato");
}

TEST(BaseDatosAbrir, LasMuestrasBuenasSeLeenYLasMalasSeRechazan) {
    const auto muestras = prueba::AlLado() / "muestras";
    if (!std::filesystem::exists(muestras)) {
        GTEST_SKIP() << "no están las muestras";
    }
    for (const auto& entrada : std::filesystem::directory_iterator{muestras / "xls"}) {
        EXPECT_GT(BaseDatos::Abrir(entrada.path()).TableDefs().Count(), 0) << entrada.path();
    }
    for (const std::string otra : {"other/lo.xlsx", "other/lo.ods", "xls-bad/xlsx_renamed.xls"}) {
        EsperarFallo(muestras / otra, fallo::formatoNoReconocido, "archivo comprimido");
    }
    for (const std::string otra :
         {"other/s.csv", "other/t.csv", "xls-bad/text.xls", "xls-bad/sjs_xlml.xls"}) {
        EsperarFallo(muestras / otra, fallo::formatoNoReconocido, "archivo de texto");
    }
    for (const std::string otra : {"mdb-made/jet4_2000.mdb", "mdb-made/ace_2010.accdb"}) {
        EsperarFallo(muestras / otra, fallo::formatoNoReconocido, "todavía no");
    }
    EsperarFallo(muestras / "xls-bad/encrypted.xls", fallo::archivoCifrado, "");
}

} // namespace

} // namespace varo
