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
    void abrir(const std::string& archivo) {
        datos.DatabaseName(archivo);
        datos.Refresh();
    }
    void mostrar(const std::string& tabla) {
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
    abrir(libro);
    EXPECT_EQ(FalloDe([&] { (void)datos.Recordset(); }), fallo::objetoNoEstablecido);
}

TEST_F(ControlDatosConLibro, RefreshMuestraLasFilasDeSuTabla) {
    abrir(libro);
    mostrar("Hoja1$");
    EXPECT_EQ(datos.Recordset().RecordCount(), 1);
    EXPECT_EQ(datos.Recordset().Fields(0).Value, Valor{30.0});
    mostrar("hoja2$");
    EXPECT_EQ(datos.Recordset().campos().Count(), 2);
}

TEST_F(ControlDatosConLibro, OtroRefreshVuelveALaPrimeraFila) {
    abrir(libro);
    mostrar("Hoja1$");
    datos.Recordset().MoveNext();
    datos.Refresh();
    EXPECT_FALSE(datos.Recordset().Eof());
}

TEST_F(ControlDatosConLibro, RefrescarLasFilasNoVuelveALeerElArchivo) {
    abrir(libro);
    std::filesystem::remove(libro);
    mostrar("Hoja1$");
    EXPECT_EQ(datos.Recordset().Fields(0).Value, Valor{30.0});
}

TEST_F(ControlDatosConLibro, NombrarDeNuevoElMismoArchivoLoVuelveALeer) {
    abrir(libro);
    ASSERT_EQ(Libro(carpeta, "libro ñ.xls", 40), libro);
    abrir(libro);
    mostrar("Hoja1$");
    EXPECT_EQ(datos.Recordset().Fields(0).Value, Valor{40.0});
}

TEST_F(ControlDatosConLibro, OtroArchivoOcupaElLugarDelPrimero) {
    abrir(libro);
    mostrar("Hoja1$");
    abrir(Libro(carpeta, "otro.xls", 50));
    EXPECT_EQ(FalloDe([&] { (void)datos.Recordset(); }), fallo::objetoNoEstablecido);
    mostrar("Hoja1$");
    EXPECT_EQ(datos.Recordset().Fields(0).Value, Valor{50.0});
}

TEST_F(ControlDatosConLibro, UnaTablaQueNoHayDejaLoQueSeMostraba) {
    abrir(libro);
    mostrar("Hoja1$");
    EXPECT_EQ(FalloDe([&] { mostrar("(ninguna)"); }), fallo::tablaDesconocida);
    EXPECT_EQ(datos.RecordSource, "(ninguna)");
    EXPECT_EQ(datos.Recordset().Fields(0).Value, Valor{30.0});
    EXPECT_EQ(datos.Database().TableDefs().Count(), 2);
}

TEST_F(ControlDatosConLibro, UnArchivoQueNoSeAbreDejaElDeAntes) {
    abrir(libro);
    mostrar("Hoja1$");
    EXPECT_EQ(FalloDe([&] { abrir((carpeta / "nada.xls").string()); }), fallo::archivoNoEncontrado);
    EXPECT_EQ(datos.Database().TableDefs().Count(), 2);
    EXPECT_EQ(datos.Recordset().Fields(0).Value, Valor{30.0});
}

TEST_F(ControlDatosConLibro, VaciarElNombreDesconecta) {
    abrir(libro);
    mostrar("Hoja1$");
    datos.RecordSource.clear();
    datos.DatabaseName("");
    EXPECT_EQ(FalloDe([&] { (void)datos.Database(); }), fallo::objetoNoEstablecido);
    EXPECT_EQ(FalloDe([&] { (void)datos.Recordset(); }), fallo::objetoNoEstablecido);
    EXPECT_EQ(FalloDe([&] { datos.Refresh(); }), 0);
    EXPECT_EQ(FalloDe([&] { (void)datos.Database(); }), fallo::objetoNoEstablecido);
}

TEST_F(ControlDatosConLibro, VaciarLaTablaQuitaLasFilas) {
    abrir(libro);
    mostrar("Hoja1$");
    mostrar("");
    EXPECT_EQ(FalloDe([&] { (void)datos.Recordset(); }), fallo::objetoNoEstablecido);
    EXPECT_EQ(datos.Database().TableDefs().Count(), 2);
}

TEST_F(ControlDatosConLibro, LaCadenaDeConexionNoDecideNada) {
    datos.Connect = "Access";
    abrir(libro);
    EXPECT_EQ(datos.Database().TableDefs()(0).Name, "Hoja1$");
}

} // namespace

} // namespace varo
