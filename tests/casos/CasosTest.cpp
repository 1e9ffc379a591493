// The golden plots: each folder is a plot, a job and its right answer, worked out apart from the program.
#include "apoyo/CarpetaTemporal.h"
#include "apoyo/Jornada.h"
#include "apoyo/Lugares.h"
#include "casos/Caso.h"
#include "lote/recorrido/Recorrido.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace varo::prueba {
namespace {

namespace fs = std::filesystem;

using Tabla = std::vector<std::vector<std::string>>;

std::vector<std::string> Partir(const std::string& texto, char separador) {
    std::vector<std::string> partes{""};
    for (const char c : texto) {
        if (c == separador) {
            partes.emplace_back();
        } else {
            partes.back() += c;
        }
    }
    return partes;
}

Tabla Celdas(const std::string& bytes) {
    Tabla tabla;
    for (const auto& fila : Partir(bytes, '\r')) {
        tabla.push_back(Partir(fila, '\t'));
    }
    return tabla;
}

/// Where two results files part, for a person.
std::string PrimeraDiferencia(const std::string& obtenido, const std::string& esperado) {
    const Tabla uno = Celdas(obtenido);
    const Tabla otro = Celdas(esperado);
    if (uno.size() != otro.size()) {
        return std::to_string(uno.size()) + " filas en lugar de " + std::to_string(otro.size());
    }
    for (std::size_t fila = 0; fila < uno.size(); ++fila) {
        if (uno[fila].size() != otro[fila].size()) {
            return "la fila " + std::to_string(fila) + " tiene otro número de celdas";
        }
        for (std::size_t columna = 0; columna < uno[fila].size(); ++columna) {
            if (uno[fila][columna] != otro[fila][columna]) {
                return "fila " + std::to_string(fila) + ", columna " + otro[0].at(columna) + ": «" +
                       uno[fila][columna] + "» en lugar de «" + otro[fila][columna] + "»";
            }
        }
    }
    return "difieren";
}

void CompararBytes(const fs::path& resultados, const std::string& esperado) {
    const std::string obtenido = LeerArchivo(resultados);
    if (obtenido != esperado) {
        ADD_FAILURE() << PrimeraDiferencia(obtenido, esperado);
    }
}

/// The maps shape by shape, and then byte by byte.
void CompararLineas(const std::string& obtenido, const std::string& esperado) {
    const auto lineas = [](const std::string& texto) {
        std::vector<std::string> partes;
        std::istringstream entrada{texto};
        for (std::string linea; std::getline(entrada, linea);) {
            partes.push_back(linea);
        }
        return partes;
    };
    EXPECT_EQ(lineas(obtenido), lineas(esperado));
    EXPECT_EQ(obtenido, esperado);
}

std::set<std::string> Archivos(const fs::path& carpeta) {
    std::set<std::string> nombres;
    for (const auto& entrada : fs::directory_iterator{carpeta}) {
        nombres.insert(entrada.path().filename().string());
    }
    return nombres;
}

/// What the job wrote; an output that faults leaves no file, and the others stand.
void CompararSalidas(const Caso& caso, const Trabajo& trabajo, const fs::path& carpeta) {
    std::set<std::string> esperados;
    if (!caso.fallo) {
        esperados.insert(trabajo.resultados->ruta.filename().string());
    }
    if (caso.datos) {
        esperados.insert(trabajo.datos->ruta.filename().string());
    }
    if (caso.mapa) {
        esperados.insert("mapa.txt");
    }
    ASSERT_EQ(Archivos(carpeta), esperados);
    if (!caso.fallo) {
        CompararBytes(trabajo.resultados->ruta, caso.indices);
    }
    if (caso.datos) {
        CompararLineas(LeerArchivo(trabajo.datos->ruta), *caso.datos);
    }
    if (caso.mapa) {
        CompararLineas(LeerArchivo(carpeta / "mapa.txt"), *caso.mapa);
    }
}

/// Runs the job, with its results in a folder of the test.
void CorrerCaso(const Caso& caso) {
    const CarpetaTemporal carpeta;
    const Trabajo trabajo =
        LeerTrabajo(caso.trabajo(), {.archivo = {}, .hoja = {}, .salida = carpeta.ruta()});
    ASSERT_TRUE(trabajo.resultados) << "el trabajo no pide el archivo de resultados";
    ASSERT_EQ(trabajo.datos.has_value(), caso.conDatos()) << "el trabajo pide los datos o el caso los espera";
    ASSERT_NE(trabajo.mapas.empty(), caso.mapa.has_value()) << "el trabajo pide el mapa o el caso lo espera";
    try {
        CorrerTrabajo(trabajo);
        EXPECT_FALSE(caso.fallo || caso.falloDeDatos) << "debía fallar";
    } catch (const ErrorTrabajo& error) {
        EXPECT_EQ(error.estado(), Estado::FalloDeCalculo) << error.what();
        ASSERT_TRUE(error.fallo()) << error.what();
        EXPECT_TRUE(error.fallo() == caso.fallo || error.fallo() == caso.falloDeDatos) << error.what();
    }
    CompararSalidas(caso, trabajo, carpeta.ruta());
}

fs::path CasosPropios() {
    return DatosDePrueba() / "casos";
}

/// Raise it with each new plot: a folder for which ctest has no test yet shows here.
constexpr std::size_t cuantosCasos = 302;

TEST(ListaDeCasos, EstanTodos) {
    EXPECT_EQ(NombresDeCasos(CasosPropios()).size(), cuantosCasos);
}

class Parcelas : public testing::TestWithParam<std::string> {};

TEST_P(Parcelas, DaSuRespuesta) {
    CorrerCaso(LeerCaso(CasosPropios() / GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Casos, Parcelas, testing::ValuesIn(NombresDeCasos(CasosPropios())),
                         [](const auto& caso) { return caso.param; });

TEST(ListaDeCasos, LasParcelasDeAlLadoDanSuRespuesta) {
    const fs::path compartidas = AlLado() / "casos";
    if (!fs::exists(compartidas)) {
        GTEST_SKIP() << "no hay parcelas al lado del proyecto";
    }
    const auto nombres = NombresDeCasos(compartidas);
    ASSERT_FALSE(nombres.empty());
    for (const auto& nombre : nombres) {
        SCOPED_TRACE(nombre);
        try {
            CorrerCaso(LeerCaso(compartidas / nombre));
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
    }
}

} // namespace
} // namespace varo::prueba
