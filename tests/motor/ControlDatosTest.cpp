#include "motor/ControlDatos.h"

#include "apoyo/CarpetaTemporal.h"
#include "apoyo/EscritorXls.h"
#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace varo {

namespace {

using prueba::CarpetaTemporal;

/// Writes a book with the sheets Hoja1, of one row with this value, and Hoja2, of none.
std::string Libro(const CarpetaTemporal& carpeta, const std::string& nombre, double valor) {
    const auto archivo = carpeta / nombre;
    prueba::EscribirArchivoXls(archivo,
                               {{.nombre = "Hoja1", .celdas = {{std::string{"CAP"}}, {valor}}},
                                {.nombre = "Hoja2", .celdas = {{std::string{"a"}, std::string{"b"}}}}});
    return archivo.string();
}

class ControlDatosConLibro : public testing::Test {
protected:
    void Abrir(const std::string& archivo) {
        datos.DatabaseName(archivo);
        datos.Refresh();
    }
    void Mostrar(const std::string& tabla) {
        datos.RecordSource = tabla;
        datos.Refresh();
    }

    CarpetaTemporal carpeta;
    std::string libro = Libro(carpeta, "libro ñ.xls", 30);
    ControlDatos datos;
};

TEST(ControlDatos, NaceSinNadaAbierto) {
    ControlDatos datos;
    EXPECT_EQ(datos.Connect, "Excel 8.0;");
    EXPECT_EQ(datos.DatabaseName(), "");
    EXPECT_EQ(datos.RecordSource, "");
    EXPECT_EQ(FalloDe([&] { (void)datos.Database(); }), fallo::objetoNoEstablecido);
    EXPECT_EQ(FalloDe([&] { (void)datos.Recordset(); }), fallo::objetoNoEstablecido);
}

TEST(ControlDatos, SinArchivoNoHayFilasQueMostrar) {
    ControlDatos datos;
    datos.RecordSource = "Hoja1$";
    EXPECT_EQ(FalloDe([&] { datos.Refresh(); }), fallo::objetoNoEstablecido);
}

TEST_F(ControlDatosConLibro, NombrarUnArchivoNoLoAbreHastaRefresh) {
    datos.DatabaseName(libro);
    EXPECT_EQ(datos.DatabaseName(), libro);
    EXPECT_EQ(FalloDe([&] { (void)datos.Database(); }), fallo::objetoNoEstablecido);
    datos.Refresh();
    EXPECT_EQ(datos.Database().TableDefs().Count(), 2);
}

TEST_F(ControlDatosConLibro, AbrirLaConexionNoMuestraFilas) {
    Abrir(libro);
    EXPECT_EQ(FalloDe([&] { (void)datos.Recordset(); }), fallo::objetoNoEstablecido);
}

TEST_F(ControlDatosConLibro, RefreshMuestraLasFilasDeSuTabla) {
    Abrir(libro);
    Mostrar("Hoja1$");
    EXPECT_EQ(datos.Recordset().RecordCount(), 1);
    EXPECT_EQ(datos.Recordset().Fields(0).Value, Valor{30.0});
    Mostrar("hoja2$");
    EXPECT_EQ(datos.Recordset().campos().Count(), 2);
}

TEST_F(ControlDatosConLibro, OtroRefreshVuelveALaPrimeraFila) {
    Abrir(libro);
    Mostrar("Hoja1$");
    datos.Recordset().MoveNext();
    datos.Refresh();
    EXPECT_FALSE(datos.Recordset().Eof());
}

TEST_F(ControlDatosConLibro, RefrescarLasFilasNoVuelveALeerElArchivo) {
    Abrir(libro);
    std::filesystem::remove(libro);
    Mostrar("Hoja1$");
    EXPECT_EQ(datos.Recordset().Fields(0).Value, Valor{30.0});
}

TEST_F(ControlDatosConLibro, NombrarDeNuevoElMismoArchivoLoVuelveALeer) {
    Abrir(libro);
    ASSERT_EQ(Libro(carpeta, "libro ñ.xls", 40), libro);
    Abrir(libro);
    Mostrar("Hoja1$");
    EXPECT_EQ(datos.Recordset().Fields(0).Value, Valor{40.0});
}

TEST_F(ControlDatosConLibro, OtroArchivoOcupaElLugarDelPrimero) {
    Abrir(libro);
    Mostrar("Hoja1$");
    Abrir(Libro(carpeta, "otro.xls", 50));
    EXPECT_EQ(FalloDe([&] { (void)datos.Recordset(); }), fallo::objetoNoEstablecido);
    Mostrar("Hoja1$");
    EXPECT_EQ(datos.Recordset().Fields(0).Value, Valor{50.0});
}

TEST_F(ControlDatosConLibro, UnaTablaQueNoHayDejaLoQueSeMostraba) {
    Abrir(libro);
    Mostrar("Hoja1$");
    EXPECT_EQ(FalloDe([&] { Mostrar("(ninguna)"); }), fallo::tablaDesconocida);
    EXPECT_EQ(datos.RecordSource, "(ninguna)");
    EXPECT_EQ(datos.Recordset().Fields(0).Value, Valor{30.0});
    EXPECT_EQ(datos.Database().TableDefs().Count(), 2);
}

TEST_F(ControlDatosConLibro, UnArchivoQueNoSeAbreDejaElDeAntes) {
    Abrir(libro);
    Mostrar("Hoja1$");
    EXPECT_EQ(FalloDe([&] { Abrir((carpeta / "nada.xls").string()); }), fallo::archivoNoEncontrado);
    EXPECT_EQ(datos.Database().TableDefs().Count(), 2);
    EXPECT_EQ(datos.Recordset().Fields(0).Value, Valor{30.0});
}

TEST_F(ControlDatosConLibro, VaciarElNombreDesconecta) {
    Abrir(libro);
    Mostrar("Hoja1$");
    datos.RecordSource.clear();
    datos.DatabaseName("");
    EXPECT_EQ(FalloDe([&] { (void)datos.Database(); }), fallo::objetoNoEstablecido);
    EXPECT_EQ(FalloDe([&] { (void)datos.Recordset(); }), fallo::objetoNoEstablecido);
    EXPECT_EQ(FalloDe([&] { datos.Refresh(); }), 0);
    EXPECT_EQ(FalloDe([&] { (void)datos.Database(); }), fallo::objetoNoEstablecido);
}

TEST_F(ControlDatosConLibro, VaciarLaTablaQuitaLasFilas) {
    Abrir(libro);
    Mostrar("Hoja1$");
    Mostrar("");
    EXPECT_EQ(FalloDe([&] { (void)datos.Recordset(); }), fallo::objetoNoEstablecido);
    EXPECT_EQ(datos.Database().TableDefs().Count(), 2);
}

TEST_F(ControlDatosConLibro, LaCadenaDeConexionNoDecideNada) {
    datos.Connect = "Access";
    Abrir(libro);
    EXPECT_EQ(datos.Database().TableDefs()(0).Name, "Hoja1$");
}

} // namespace

} // namespace varo
