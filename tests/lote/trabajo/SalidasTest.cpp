#include "lote/trabajo/Salidas.h"

#include "lote/TrabajoDePrueba.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

namespace fs = std::filesystem;

Trabajo Con(const fs::path& ruta, const std::string& resultados, const std::string& archivo = "parcela.xls") {
    TextoDeTrabajo texto;
    texto.parcela = "archivo = '" + archivo + "'\nhoja = 'H'\n";
    texto.salida = "resultados = '" + resultados + "'\n";
    return InterpretarTrabajo(texto.texto(), ruta);
}

std::string Error(const std::vector<Trabajo>& trabajos) {
    return ErrorDe([&] { RechazarSalidasEnConflicto(trabajos); });
}

TEST(Salidas, TrabajosConSalidasDistintasPasan) {
    EXPECT_EQ(Error({Con("d/a.toml", "a.txt"), Con("d/b.toml", "b.txt"), Con("e/a.toml", "a.txt")}),
              "(sin error)");
}

TEST(Salidas, DosTrabajosNoEscribenElMismoArchivo) {
    EXPECT_EQ(Error({Con("d/a.toml", "i.txt"), Con("d/b.toml", "i.txt")}),
              "d/b.toml: línea 15: salida.resultados: «d/i.txt» es también una salida de d/a.toml");
    EXPECT_EQ(Error({Con("d/a.toml", "i.txt"), Con("e/b.toml", "../d/./i.txt")}),
              "e/b.toml: línea 15: salida.resultados: «e/../d/./i.txt» es también una salida de d/a.toml");
    EXPECT_EQ(Error({Con("a.toml", "i.txt"), Con("a.toml", "i.txt")}),
              "a.toml: línea 15: salida.resultados: «i.txt» es también una salida de a.toml");
}

TEST(Salidas, CadaMapaDeUnaListaEsUnaSalida) {
    Trabajo trabajo = Con("d/a.toml", "i.txt");
    trabajo.mapas = {{"d/m.txt", 20}, {"d/m.svg", 20}};
    EXPECT_EQ(Error({trabajo}), "(sin error)");
    trabajo.mapas.push_back({"d/./m.txt", 20});
    EXPECT_EQ(Error({trabajo}),
              "d/a.toml: línea 20: salida.mapa: «d/./m.txt» es también una salida de d/a.toml");
    trabajo.mapas = {{"d/i.txt", 20}};
    EXPECT_EQ(Error({trabajo}),
              "d/a.toml: línea 20: salida.mapa: «d/i.txt» es también una salida de d/a.toml");
}

TEST(Salidas, UnEnlaceNoEscondeElMismoArchivo) {
    const CarpetaTemporal carpeta;
    fs::create_directory(carpeta.ruta() / "real");
    fs::create_directory_symlink("real", carpeta.ruta() / "enlace");
    EXPECT_NE(
        Error({Con(carpeta.ruta() / "real/a.toml", "i.txt"), Con(carpeta.ruta() / "enlace/b.toml", "i.txt")}),
        "(sin error)");
}

TEST(Salidas, NingunaSalidaCaeSobreUnaParcelaNiSobreUnTrabajo) {
    EXPECT_EQ(Error({Con("d/a.toml", "parcela.xls")}),
              "d/a.toml: línea 15: salida.resultados: escribiría sobre «d/parcela.xls», que es una entrada");
    EXPECT_EQ(Error({Con("d/a.toml", "../d/a.toml")}),
              "d/a.toml: línea 15: salida.resultados: escribiría sobre «d/a.toml», que es una entrada");
    EXPECT_EQ(Error({Con("a.toml", "otra.xls"), Con("b.toml", "b.txt", "otra.xls")}),
              "a.toml: línea 15: salida.resultados: escribiría sobre «otra.xls», que es una entrada");
    EXPECT_EQ(Error({Con("a.toml", "a.txt"), Con("b.toml", "a.toml")}),
              "b.toml: línea 15: salida.resultados: escribiría sobre «a.toml», que es una entrada");
}

} // namespace
} // namespace varo::prueba
