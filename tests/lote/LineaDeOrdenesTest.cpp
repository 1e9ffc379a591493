#include "lote/LineaDeOrdenes.h"

#include "apoyo/Jornada.h"
#include "apoyo/Lugares.h"

#include <gtest/gtest.h>

#include <regex>

namespace varo::prueba {
namespace {

using Argumentos = std::vector<std::string>;

std::string Error(const Argumentos& argumentos) {
    try {
        LeerOrdenes(argumentos);
    } catch (const ErrorDeOrden& error) {
        return error.what();
    }
    return "(sin error)";
}

TEST(LineaDeOrdenes, LosTrabajosConservanSuOrden) {
    const auto ordenes = LeerOrdenes({"b.toml", "a.toml", "c.toml"});
    EXPECT_EQ(ordenes.trabajos, (std::vector<std::filesystem::path>{"b.toml", "a.toml", "c.toml"}));
    EXPECT_EQ(ordenes.aLaVez, 1);
    EXPECT_FALSE(ordenes.cambios.archivo || ordenes.cambios.hoja || ordenes.cambios.salida);
    EXPECT_FALSE(ordenes.tablas || ordenes.plantilla || ordenes.texto);
}

TEST(LineaDeOrdenes, LosCambiosYLosTrabajosALaVezVanEnCualquierSitio) {
    const auto ordenes = LeerOrdenes(
        {"--archivo", "p.xls", "a.toml", "--hoja=H$", "b.toml", "--salida", "d", "--trabajos", "4"});
    EXPECT_EQ(ordenes.trabajos.size(), 2U);
    EXPECT_EQ(ordenes.cambios.archivo, "p.xls");
    EXPECT_EQ(ordenes.cambios.hoja, "H$");
    EXPECT_EQ(ordenes.cambios.salida, "d");
    EXPECT_EQ(ordenes.aLaVez, 4);
}

TEST(LineaDeOrdenes, LosHilosDeCadaTrabajoSePidenAparte) {
    EXPECT_EQ(LeerOrdenes({"a.toml"}).hilos, std::nullopt) << "se reparten los núcleos";
    EXPECT_EQ(LeerOrdenes({"--hilos", "7", "a.toml", "--trabajos=2"}).hilos, 7);
    EXPECT_EQ(LeerOrdenes({"a.toml", "--hilos=999"}).hilos, 999);
    for (const std::string hilos : {"0", "-1", "dos", "1.5"}) {
        EXPECT_EQ(Error({"a.toml", "--hilos=" + hilos}),
                  "--hilos: se espera un número de 1 en adelante y hay «" + hilos + "»");
    }
    EXPECT_EQ(Error({"a.toml", "--hilos=1000"}), "--hilos: se espera un número menor que 1.000 y hay «1000»");
    EXPECT_EQ(Error({"--tablas", "p.xls", "--hilos", "2"}),
              "--tablas y --plantilla van solas, sin trabajos ni otras opciones");
}

TEST(LineaDeOrdenes, TablasYPlantillaVanSolas) {
    EXPECT_EQ(LeerOrdenes({"--tablas", "p.xls"}).tablas, "p.xls");
    EXPECT_EQ(LeerOrdenes({"--plantilla", "p.xls"}).plantilla, "p.xls");
    const std::string solas = "--tablas y --plantilla van solas, sin trabajos ni otras opciones";
    EXPECT_EQ(Error({"--tablas", "p.xls", "a.toml"}), solas);
    EXPECT_EQ(Error({"--tablas", "p.xls", "--plantilla", "p.xls"}), solas);
    EXPECT_EQ(Error({"--plantilla", "p.xls", "--hoja", "H"}), solas);
    EXPECT_EQ(Error({"--plantilla", "p.xls", "--trabajos", "2"}), solas);
}

TEST(LineaDeOrdenes, UnaOrdenMalEscritaSeDiceEnEspanol) {
    EXPECT_EQ(Error({}), "falta el trabajo que se corre; varo-lote --help lo explica");
    EXPECT_EQ(Error({"--hoja", "H"}), "falta el trabajo que se corre; varo-lote --help lo explica");
    EXPECT_EQ(Error({"a.toml", "--otra"}), "no se conoce la opción --otra");
    EXPECT_EQ(Error({"a.toml", "--archivo"}), "--archivo: lleva un valor, y uno solo");
    EXPECT_EQ(Error({"a.toml", "--hoja", "H", "--hoja", "I"}), "--hoja: lleva un valor, y uno solo");
    EXPECT_EQ(Error({"a.toml", "--salida", ""}), "--salida: está vacío");
    for (const std::string cuantos : {"0", "-1", "dos", "1.5", "99999999999", "2 "}) {
        EXPECT_EQ(Error({"a.toml", "--trabajos=" + cuantos}),
                  "--trabajos: se espera un número de 1 en adelante y hay «" + cuantos + "»");
    }
}

TEST(LineaDeOrdenes, LaAyudaNombraTodasLasOpciones) {
    for (const char* pedida : {"--help", "-h"}) {
        const auto ayuda = LeerOrdenes({pedida}).texto;
        ASSERT_TRUE(ayuda);
        for (const char* trozo : {"Uso: varo-lote", "TRABAJO.toml", "--archivo F", "--hoja H", "--salida DIR",
                                  "--trabajos N", "--tablas F", "--plantilla F", "--version", "--help"}) {
            EXPECT_PRED_FORMAT2(::testing::IsSubstring, trozo, ayuda->c_str());
        }
        for (const char* ingles :
             {"Usage", "Options", "OPTIONS", "Positionals", "TEXT", "Print", "REQUIRED"}) {
            EXPECT_PRED_FORMAT2(::testing::IsNotSubstring, ingles, ayuda->c_str());
        }
    }
}

TEST(LineaDeOrdenes, LaVersionEsLaDelProyectoYDiceLosFormatos) {
    const auto cmake = LeerArchivo(Proyecto() / "CMakeLists.txt");
    std::smatch version;
    ASSERT_TRUE(std::regex_search(cmake, version, std::regex{R"(project\(varo\s+VERSION ([0-9.]+))"}));
    const auto texto = LeerOrdenes({"--version"}).texto;
    ASSERT_TRUE(texto);
    EXPECT_TRUE(texto->starts_with("varo-lote " + version.str(1) + "\nAbre: .xls, .mdb, .accdb")) << *texto;
}

} // namespace
} // namespace varo::prueba
