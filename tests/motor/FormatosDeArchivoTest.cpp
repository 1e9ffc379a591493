// Formats that a program adds to those of the core.
#include "motor/FormatosDeArchivo.h"
#include "apoyo/CarpetaTemporal.h"
#include "apoyo/Fallos.h"
#include "motor/ArchivoDatos.h"
#include "motor/lectores/Bytes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varo {
namespace {

/// Takes what begins with its mark, and makes one table of it, named after the file.
FormatoDeArchivo FormatoInventado(const std::string& nombre) {
    return {nombre, [](Bytes bytes) { return Lleva(bytes, 0, "\1INVENTADO"); },
            [](Bytes, const std::string& archivo, const Avance&) {
                return std::vector<Tabla>{{.Name = archivo, .Fields = {}, .filas = {}}};
            }};
}

TEST(FormatosDeArchivo, LosDelNucleoVanPrimeroYLosOtrosComoSeRegistranUnaSolaVez) {
    const auto propios = FormatosQueSeAbren();
    EXPECT_TRUE(propios.starts_with(".xls, .mdb, .accdb, .csv")) << propios;
    RegistrarFormato(FormatoInventado(".uno"));
    RegistrarFormato(FormatoInventado(".dos"));
    RegistrarFormato(FormatoInventado(".uno"));
    EXPECT_EQ(FormatosQueSeAbren(), propios + ", .uno, .dos");
}

TEST(FormatosDeArchivo, UnArchivoSeReconocePorLoQueElFormatoMiraYLoLeeSuLector) {
    RegistrarFormato(FormatoInventado(".tres"));
    const prueba::CarpetaTemporal carpeta;
    const auto archivo = carpeta.Escribir("datos.tres", "\1INVENTADO\2");
    const auto tablas = LeerArchivoDatos(archivo);
    ASSERT_EQ(tablas.size(), 1U);
    EXPECT_EQ(tablas.front().Name, archivo.string());
    EXPECT_TRUE(prueba::FallaCon(fallo::formatoNoReconocido, "no se reconoce su formato",
                                 [&] { LeerArchivoDatos(carpeta.Escribir("otro.tres", "\1OTRO\2")); }));
}

} // namespace
} // namespace varo
