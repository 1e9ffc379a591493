#include "motor/BaseDatos.h"

#include "apoyo/CarpetaTemporal.h"
#include "apoyo/EscritorCompuesto.h"
#include "apoyo/EscritorMdb.h"
#include "apoyo/EscritorXls.h"
#include "apoyo/Fallos.h"
#include "apoyo/Lugares.h"
#include "motor/TablasDePrueba.h"
#include "motor/lectores/ApoyoLectores.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace varo {

namespace {

using prueba::CarpetaTemporal;
using prueba::FallaCon;
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
    EXPECT_EQ(base.abrirTabla("parcela1$").RecordCount(), 2);
    EXPECT_TRUE(base.abrirTabla("VACÍA$").Eof());
}

TEST(BaseDatos, UnaTablaQueNoHayFallaConSuNombre) {
    const auto base = ConDosTablas();
    EXPECT_EQ(FalloDe([&] { (void)base.abrirTabla("Parcela1"); }), fallo::tablaDesconocida);
    EXPECT_NE(MensajeDe([&] { (void)base.abrirTabla("Parcela1"); }).find("«Parcela1»"), std::string::npos);
}

TEST(BaseDatos, LasFilasSobrevivenALaBase) {
    std::optional<BaseDatos> base = ConDosTablas();
    auto tabla = base->abrirTabla("Parcela1$");
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
    for (const auto& [sql, numero, texto] :
         {std::tuple{"SELECT", fallo::sintaxisDeConsulta, "al final: se esperaba"},
          {"", fallo::sintaxisDeConsulta, "al final: se esperaba «SELECT»"},
          {"SELECT [x] FROM [Parcela1$]", fallo::nombreDesconocido,
           "La tabla «Parcela1$» no tiene ningún campo «x»"},
          {"SELECT 'x' + 1 FROM [Parcela1$]", fallo::tiposDistintosEnConsulta,
           "el texto «x» no es un número"},
          {"SELECT 1 FROM [x]", fallo::tablaDesconocida, "No se encuentra la tabla «x»"}}) {
        EXPECT_TRUE(FallaCon(numero, texto, [&, consulta = sql] { (void)base.OpenRecordset(consulta); }));
    }
}

// --- Files ---

/// Opening it fails with this number, and the message tells the file and this.
void EsperarFallo(const std::filesystem::path& archivo, int numero, std::string_view dice) {
    try {
        (void)BaseDatos::abrir(archivo);
        ADD_FAILURE() << archivo << " se abre";
    } catch (const ErrorMotor& error) {
        EXPECT_EQ(error.numero(), numero) << error.what();
        const std::string mensaje = error.what();
        EXPECT_NE(mensaje.find(archivo.filename().string()), std::string::npos) << mensaje;
        EXPECT_NE(mensaje.find(dice), std::string::npos) << mensaje;
    }
}

/// A file with this workbook stream.
std::filesystem::path Guardado(const std::filesystem::path& archivo, const std::vector<std::byte>& flujo) {
    const auto bytes = prueba::EscribirCompuesto({{"Workbook", flujo}});
    std::ofstream salida{archivo, std::ios::binary};
    std::transform(bytes.begin(), bytes.end(), std::ostreambuf_iterator<char>{salida},
                   [](std::byte byte) { return static_cast<char>(byte); });
    return archivo;
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
    const auto base = BaseDatos::abrir(archivo);
    ASSERT_EQ(base.TableDefs().Count(), 2);
    EXPECT_EQ(base.TableDefs()(0).Name, "Zeta$");
    EXPECT_EQ(base.TableDefs()(1).Name, "Alfa$");
    EXPECT_EQ(base.abrirTabla("Zeta$").RecordCount(), 3);
    EXPECT_EQ(base.OpenRecordset("SELECT Sum ( [CAP] ) FROM [Zeta$]").Fields(0).Value, Valor{75.0});
}

TEST(BaseDatosAbrir, ElNombreNoDiceLoQueEs) {
    const CarpetaTemporal carpeta;
    const auto archivo = carpeta / "parcela.mdb";
    prueba::EscribirArchivoXls(archivo, {{.nombre = "Hoja1", .celdas = {{std::string{"a"}}, {1.0}}}});
    EXPECT_EQ(BaseDatos::abrir(archivo).TableDefs()(0).Name, "Hoja1$");
}

TEST(BaseDatosAbrir, UnArchivoQueNoHay) {
    const CarpetaTemporal carpeta;
    EsperarFallo(carpeta / "nada.xls", fallo::archivoNoEncontrado, "no existe");
    EsperarFallo(carpeta / "no hay carpeta" / "nada.xls", fallo::archivoNoEncontrado, "no existe");
}

TEST(BaseDatosAbrir, UnaRutaQuePasaPorUnArchivo) {
    const CarpetaTemporal carpeta;
    const auto archivo = carpeta.Escribir("a.txt", "a");
    EsperarFallo(archivo / "b.xls", fallo::archivoNoEncontrado, "no existe");
    EsperarFallo(carpeta / std::string(5000, 'a'), fallo::accesoAlArchivo, "no se puede llegar a él");
    EsperarFallo("", fallo::archivoNoEncontrado, "«»: el archivo no existe");
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
    std::filesystem::resize_file(archivo, std::uintmax_t{192} * 1024 * 1024 + 1, error);
    if (error) {
        GTEST_SKIP() << "no cabe un archivo con huecos: " << error.message();
    }
    EsperarFallo(archivo, fallo::formatoNoReconocido, "demasiado grande");
}

/// A database with a plot, a linked table and one with attachments.
prueba::BaseMdb ConTresTablas() {
    using prueba::TipoMdb;
    prueba::TablaMdb vinculada{"De otro", {}, {}};
    vinculada.vinculada = true;
    return {{{"Parcela", {{"CAP", TipoMdb::Doble}, {"Nota", TipoMdb::Texto}}, {{62.5, "a"}, {Nulo{}, "b"}}},
             vinculada,
             {"Fotos", {{"Foto", TipoMdb::Compleja}}, {}}}};
}

TEST(BaseDatosAbrir, UnaBaseDeDatosSeLeeConSusTablasEnOrden) {
    const CarpetaTemporal carpeta;
    const auto archivo = carpeta / "parcela ñ.xls"; // the name does not count
    prueba::EscribirArchivoMdb(archivo, ConTresTablas());
    const auto base = BaseDatos::abrir(archivo);
    ASSERT_EQ(base.TableDefs().Count(), 3);
    EXPECT_EQ(base.TableDefs()(0).Name, "Parcela");
    EXPECT_EQ(base.TableDefs()(2).Name, "Fotos");
    EXPECT_EQ(base.abrirTabla("parcela").RecordCount(), 2);
    EXPECT_EQ(base.OpenRecordset("SELECT Sum ( [CAP] ) FROM [Parcela]").Fields(0).Value, Valor{62.5});
}

TEST(BaseDatosAbrir, UnaTablaQueNoSePuedeLeerLoDiceAlAbrirse) {
    const CarpetaTemporal carpeta;
    prueba::EscribirArchivoMdb(carpeta / "parcela.mdb", ConTresTablas());
    const auto base = BaseDatos::abrir(carpeta / "parcela.mdb");
    EXPECT_TRUE(FallaCon(fallo::tablaNoAdmitida, "No se puede leer la tabla «De otro»",
                         [&] { (void)base.abrirTabla("De otro"); }));
    EXPECT_TRUE(FallaCon(fallo::tablaNoAdmitida, "su campo «Foto» es de datos adjuntos",
                         [&] { (void)base.OpenRecordset("SELECT [Foto] FROM [Fotos]"); }));
}

TEST(BaseDatosAbrir, UnaBaseDeDatosConContrasenaOCortadaDiceSuNombre) {
    using namespace std::string_view_literals;
    const CarpetaTemporal carpeta;
    auto base = ConTresTablas();
    base.contrasena = "secreta";
    prueba::EscribirArchivoMdb(carpeta / "cerrada.mdb", base);
    EsperarFallo(carpeta / "cerrada.mdb", fallo::archivoCifrado, "está protegida con una contraseña");
    EsperarFallo(carpeta.Escribir("corta.mdb", "\0\1\0\0Standard Jet DB\0\1\0\0\0"sv), fallo::archivoDanado,
                 "el archivo está dañado (faltan bytes)");
    EsperarFallo(carpeta.Escribir("corta.accdb", "\0\1\0\0Standard ACE DB\0\2\0\0\0"sv), fallo::archivoDanado,
                 "«Compactar y reparar base de datos»");
}

TEST(BaseDatosAbrir, LosArchivosComprimidosYLosTextosSinTablaSeDicen) {
    using namespace std::string_view_literals;
    const CarpetaTemporal carpeta;
    EsperarFallo(carpeta.Escribir("hoja.xlsx", "PK\3\4\x14\0\6\0"sv), fallo::formatoNoReconocido, ".xlsx");
    EsperarFallo(carpeta.Escribir("nada.zip", "PK\5\6\0\0"sv), fallo::formatoNoReconocido, ".xlsx");
    EsperarFallo(carpeta.Escribir("renombrado.xls",
                                  "PK\3\4\x14\0\0\x08"
                                  "mimetypeapplication/vnd.oasis.opendocument.spreadsheet"sv),
                 fallo::formatoNoReconocido, "archivo comprimido, como los .xlsx y los .ods");
    EsperarFallo(carpeta.Escribir("xml.xls",
                                  "<?xml version=\"1.0\"?>\r\n<?mso-application progid=\"Excel.Sheet\"?>"
                                  "<Workbook xmlns=\"urn:schemas-microsoft-com:office:spreadsheet\"/>"),
                 fallo::formatoNoReconocido, "archivo de texto");
    EsperarFallo(carpeta.Escribir("una.csv", "1"), fallo::formatoNoReconocido, "archivo de texto");
    EsperarFallo(carpeta.Escribir("utf16.txt", "\xFF\xFE"
                                               "1\0.\0"sv),
                 fallo::formatoNoReconocido, "archivo de texto");
}

TEST(BaseDatosAbrir, UnTextoDeCeldasEsUnaTablaConElNombreDelArchivo) {
    using namespace std::string_view_literals;
    const CarpetaTemporal carpeta;
    const auto base =
        BaseDatos::abrir(carpeta.Escribir("parcela ñ.2025.csv", "Árbol;CAP\r\n1;12,5\r\n2;1.000,5\r\n"));
    ASSERT_EQ(base.TableDefs().Count(), 1);
    EXPECT_EQ(base.TableDefs()(0).Name, "parcela ñ.2025$");
    EXPECT_EQ(base.abrirTabla("parcela ñ.2025$").RecordCount(), 2);
    EXPECT_EQ(base.OpenRecordset("SELECT Sum ( [CAP] ) FROM [parcela ñ.2025$]").Fields(0).Value,
              Valor{1013.0});
    // The name of the file says nothing about its content.
    EXPECT_EQ(BaseDatos::abrir(carpeta.Escribir("corto.xls", "a,b\n")).TableDefs()(0).Name, "corto$");
    EXPECT_EQ(BaseDatos::abrir(carpeta.Escribir("sin extension", "\xFF\xFE"
                                                                 "a\0\t\0b\0"sv))
                  .TableDefs()(0)
                  .Fields.Count(),
              2);
}

TEST(BaseDatosAbrir, LosArchivosDeOtrosProgramasSeDicen) {
    using namespace std::string_view_literals;
    const CarpetaTemporal carpeta;
    EsperarFallo(carpeta.Escribir("hoja.csv", "%PDF-1.4\n1,2\n3,4\n"), fallo::formatoNoReconocido,
                 "es un documento PDF");
    EsperarFallo(carpeta.Escribir("que.xls", "\x89PNG\r\n\x1A\n\0\0"sv), fallo::formatoNoReconocido,
                 "es una imagen");
    EsperarFallo(carpeta.Escribir("p.mdb", "SQLite format 3\0\x10"sv), fallo::formatoNoReconocido,
                 "es una base de datos de SQLite");
    EsperarFallo(carpeta.Escribir("p.shp", "\0\0\x27\x0A\0\0\0\0\0"sv), fallo::formatoNoReconocido,
                 "es una capa de un SIG");
    EsperarFallo(carpeta.Escribir("hoja.xls", "<html><body><table><tr><td>X,Y</td></tr></table>"),
                 fallo::formatoNoReconocido, "es una página web");
}

TEST(BaseDatosAbrir, LoQueNadieConoceSeRechaza) {
    using namespace std::string_view_literals;
    const CarpetaTemporal carpeta;
    EsperarFallo(carpeta.Escribir("que.xls", "\x07\x89\r\n\x1A\n\0\0"sv), fallo::formatoNoReconocido,
                 "no se reconoce su formato");
    // A header of a database that is cut short is none.
    EsperarFallo(carpeta.Escribir("corto.mdb", "\0\1\0\0Standard Jet"sv), fallo::formatoNoReconocido,
                 "no se reconoce su formato");
}

TEST(BaseDatosAbrir, LosLibrosDeOtrosProgramasSeLeen) {
    for (const auto& archivo : prueba::LibrosPropios()) {
        EXPECT_GT(BaseDatos::abrir(archivo).TableDefs().Count(), 0) << archivo;
    }
}

TEST(BaseDatosAbrir, UnLibroDanadoOCifradoDiceSuNombreYLoQueTiene) {
    const CarpetaTemporal carpeta;
    auto flujo = prueba::EscribirFlujoXls({{"Hoja", {{std::string{"X"}}}}});
    constexpr std::size_t tamanoDelComienzo = 20; // the BOF of the workbook, before any other record
    std::vector<std::byte> cifrado{flujo.begin(), flujo.begin() + tamanoDelComienzo};
    prueba::AnadirRegistro(cifrado, 0x002F, std::vector<std::byte>(54));
    EsperarFallo(Guardado(carpeta / "cifrado.xls", cifrado), fallo::archivoCifrado,
                 "el libro está protegido con una contraseña");
    flujo.pop_back();
    EsperarFallo(Guardado(carpeta / "cortado.xls", flujo), fallo::archivoDanado,
                 "está dañado (faltan bytes)");
}

TEST(BaseDatosAbrir, LasMuestrasBuenasSeLeenYLasMalasSeRechazan) {
    const auto muestras = prueba::AlLado() / "muestras";
    if (!std::filesystem::exists(muestras)) {
        GTEST_SKIP() << "no están las muestras";
    }
    for (const auto& entrada : std::filesystem::directory_iterator{muestras / "xls"}) {
        EXPECT_GT(BaseDatos::abrir(entrada.path()).TableDefs().Count(), 0) << entrada.path();
    }
    for (const std::string otra : {"other/lo.xlsx", "other/lo.ods", "xls-bad/xlsx_renamed.xls"}) {
        EsperarFallo(muestras / otra, fallo::formatoNoReconocido, "archivo comprimido");
    }
    EsperarFallo(muestras / "xls-bad/sjs_xlml.xls", fallo::formatoNoReconocido, "archivo de texto");
    for (const std::string buena : {"other/s.csv", "other/t.csv", "xls-bad/text.xls"}) {
        EXPECT_EQ(BaseDatos::abrir(muestras / buena).TableDefs()(0).Fields.Count(), 2) << buena;
    }
    for (const std::string buena : {"mdb-made/jet4_2000.mdb", "mdb-made/ace_2010.accdb"}) {
        EXPECT_EQ(BaseDatos::abrir(muestras / buena).abrirTabla("Zeta data").RecordCount(), 7) << buena;
    }
    EsperarFallo(muestras / "xls-bad/encrypted.xls", fallo::archivoCifrado, "");
}

} // namespace

} // namespace varo
