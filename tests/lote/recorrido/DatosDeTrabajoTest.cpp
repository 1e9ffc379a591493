// The plot data among the outputs of a job.
#include "lote/Lote.h"
#include "lote/TrabajoDePrueba.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace varo::prueba {
namespace {

namespace fs = std::filesystem;

const char* const todasLasSalidas = "resultados = 'indices.txt'\ndatos = 'datos.txt'\nmapa = 'mapa.txt'\n";

TEST(DatosDeTrabajo, SeEscribenTrasElMapaYAntesQueLosResultados) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.salida = todasLasSalidas;
    const auto fin = Correr(parcela, texto);
    ASSERT_EQ(fin.error, "");
    const auto etapa = [&](const std::string& resto) {
        return std::find_if(fin.etapas.begin(), fin.etapas.end(),
                            [&](const std::string& linea) { return linea.ends_with(resto); });
    };
    ASSERT_NE(etapa("indices.txt"), fin.etapas.end());
    EXPECT_LT(etapa("mapa.txt"), etapa("calculando los datos de parcela"));
    EXPECT_LT(etapa("calculando los datos de parcela"), etapa("datos.txt"));
    EXPECT_LT(etapa("datos.txt"), etapa("indices.txt"));
    EXPECT_TRUE(LeerArchivo(parcela.ruta("datos.txt")).starts_with("LbPiesHaCodigo(0)\tPS\n"));
}

TEST(DatosDeTrabajo, UnArchivoDeDatosQueNoSePuedeEscribirDejaLoDemas) {
    const ParcelaDePrueba parcela;
    fs::create_directory(parcela.ruta("datos.txt"));
    TextoDeTrabajo texto;
    texto.salida = todasLasSalidas;
    const auto fin = Correr(parcela, texto);
    EXPECT_EQ(fin.estado, Estado::ErrorDeArchivo);
    EXPECT_NE(fin.error.find("salida.datos: Error 75"), std::string::npos) << fin.error;
    EXPECT_TRUE(fs::exists(parcela.ruta("mapa.txt")));
    EXPECT_TRUE(fs::exists(parcela.ruta("indices.txt")));
}

TEST(DatosDeTrabajo, UnFalloEnLosDatosDejaLoDemas) {
    auto filas = CuadradoConCentro();
    filas[0][5] = std::string{"Radio S"};
    const ParcelaDePrueba parcela{filas};
    TextoDeTrabajo texto;
    texto.columnas.replace(texto.columnas.find("\"RS\""), 4, "\"Radio S\"");
    texto.salida = todasLasSalidas;
    const auto fin = Correr(parcela, texto);
    EXPECT_EQ(fin.estado, Estado::FalloDeCalculo);
    EXPECT_EQ(fin.fallo, 3075);
    EXPECT_FALSE(fs::exists(parcela.ruta("datos.txt")));
    EXPECT_TRUE(fs::exists(parcela.ruta("mapa.txt")));
    EXPECT_TRUE(fs::exists(parcela.ruta("indices.txt")));
}

} // namespace
} // namespace varo::prueba
