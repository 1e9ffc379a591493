// The command line of the desktop program.
#include "desktop/OrdenDeArranque.h"

#include <gtest/gtest.h>

namespace varo::prueba {

using Clase = OrdenDeArranque::Clase;

TEST(LaOrdenDeArranque, SinArgumentosNoAbreNada) {
    const auto orden = LeerOrden({});
    EXPECT_EQ(orden.clase, Clase::Abrir);
    EXPECT_EQ(orden.texto, "");
}

TEST(LaOrdenDeArranque, UnArgumentoEsElArchivo) {
    EXPECT_EQ(LeerOrden({"datos/una.xls"}).texto, "datos/una.xls");
    EXPECT_EQ(LeerOrden({"--", "-rara.xls"}).texto, "-rara.xls");
}

TEST(LaOrdenDeArranque, LaAyudaYLaVersionNoPidenVentana) {
    EXPECT_TRUE(SoloPregunta({"--help"}));
    EXPECT_TRUE(SoloPregunta({"una.xls", "-h"}));
    EXPECT_TRUE(SoloPregunta({"--version"}));
    EXPECT_FALSE(SoloPregunta({"una.xls"}));
    EXPECT_FALSE(SoloPregunta({"--", "--help"}));
    EXPECT_EQ(LeerOrden({"--", "--help"}).texto, "--help");
    EXPECT_TRUE(LeerOrden({"--help"}).texto.starts_with("Uso: varo [ARCHIVO]\n"));
    EXPECT_TRUE(LeerOrden({"--version"})
                    .texto.starts_with("varo " + VersionDelPrograma() + "\nAbre: .xls, .mdb, .accdb"));
    EXPECT_EQ(LeerOrden({"-h"}).clase, Clase::Decir);
}

TEST(LaOrdenDeArranque, LoQueSobraSeRechaza) {
    const auto orden = LeerOrden({"--hoja"});
    EXPECT_EQ(orden.clase, Clase::Rechazar);
    EXPECT_TRUE(orden.texto.starts_with("«--hoja» no es una orden de varo."));
    EXPECT_EQ(LeerOrden({"una.xls", "otra.xls"}).clase, Clase::Rechazar);
}

} // namespace varo::prueba
