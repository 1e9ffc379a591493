// Real plots as they were published: each cell against a reading of its own, which knows commas and points
// alone.
#include "apoyo/Lugares.h"
#include "motor/BaseDatos.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <locale>
#include <sstream>
#include <string>
#include <vector>

namespace varo {
namespace {

std::vector<std::string> Partida(const std::string& linea) {
    std::vector<std::string> celdas;
    std::istringstream partes{linea};
    for (std::string celda; std::getline(partes, celda, ',');) {
        celdas.push_back(celda);
    }
    return celdas;
}

Valor ComoValor(const std::string& celda) {
    std::istringstream lector{celda};
    lector.imbue(std::locale::classic());
    double numero = 0;
    lector >> numero;
    return celda.empty() ? Valor{} : lector && lector.eof() ? Valor{numero} : Valor{celda};
}

TEST(LectorCsvParcelas, CadaCeldaEsLaDelArchivo) {
    const auto carpeta = prueba::AlLado() / "parcelas";
    if (!std::filesystem::is_directory(carpeta)) {
        GTEST_SKIP() << "no están las parcelas";
    }
    int archivos = 0;
    int celdas = 0;
    for (const auto& entrada : std::filesystem::directory_iterator{carpeta}) {
        if (entrada.path().extension() != ".csv") {
            continue;
        }
        ++archivos;
        SCOPED_TRACE(entrada.path());
        std::ifstream archivo{entrada.path()};
        std::string linea;
        std::getline(archivo, linea);
        const auto nombres = Partida(linea);
        const auto base = BaseDatos::abrir(entrada.path());
        const auto& tabla = base.TableDefs()(entrada.path().stem().string() + "$");
        ASSERT_EQ(tabla.Fields.Count(), static_cast<int>(nombres.size()));
        std::size_t fila = 0;
        for (; std::getline(archivo, linea); ++fila) {
            ASSERT_LT(fila, tabla.filas.size());
            auto suyas = Partida(linea);
            suyas.resize(nombres.size());
            for (std::size_t i = 0; i < suyas.size(); ++i, ++celdas) {
                EXPECT_EQ(tabla.filas[fila][i], ComoValor(suyas[i])) << nombres[i] << ", fila " << fila + 2;
            }
        }
        EXPECT_EQ(fila, tabla.filas.size());
        for (std::size_t i = 0; i < nombres.size(); ++i) {
            EXPECT_EQ(nombres[i], tabla.Fields(static_cast<int>(i)).Name);
        }
    }
    EXPECT_GE(archivos, 6);
    EXPECT_GT(celdas, 15000);
}

} // namespace
} // namespace varo
