// The golden plots: each folder is a plot, a job and its right answer, worked out apart from the program.
#include "apoyo/Jornada.h"
#include "apoyo/Lugares.h"
#include "lote/recorrido/Recorrido.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <set>
#include <stdexcept>

namespace varo::prueba {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> CasosDe(const fs::path& carpeta) {
    std::vector<fs::path> casos;
    for (const auto& entrada : fs::directory_iterator{carpeta}) {
        if (entrada.is_directory()) {
            casos.push_back(entrada.path());
        }
    }
    std::sort(casos.begin(), casos.end());
    return casos;
}

/// What a case expects: the bytes of the results file, or the fault that leaves none.
struct Esperado {
    std::string bytes;
    std::optional<int> fallo;
};

Esperado LeerEsperado(const fs::path& caso) {
    const fs::path indices = caso / "esperado-indices.txt";
    const fs::path fallo = caso / "esperado-fallo.txt";
    if (fs::exists(indices) == fs::exists(fallo)) {
        throw std::runtime_error{"el caso ha de esperar un archivo de índices o un fallo, y solo uno"};
    }
    if (fs::exists(indices)) {
        return {LeerArchivo(indices), std::nullopt};
    }
    const std::string texto = LeerArchivo(fallo);
    int numero = 0;
    const auto leido = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
    if (leido.ec != std::errc{} || leido.ptr == texto.data() + texto.size() || *leido.ptr != ' ') {
        throw std::runtime_error{"esperado-fallo.txt no empieza por el número del fallo"};
    }
    return {{}, numero};
}

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

/// Reads the job of a case; its results go to a folder of the test.
Trabajo LeerTrabajoDelCaso(const fs::path& caso, const CarpetaTemporal& carpeta) {
    return LeerTrabajo(caso / "trabajo.toml", {.archivo = {}, .hoja = {}, .salida = carpeta.ruta()});
}

void CorrerCaso(const fs::path& caso) {
    const Esperado esperado = LeerEsperado(caso);
    const CarpetaTemporal carpeta;
    const Trabajo trabajo = LeerTrabajoDelCaso(caso, carpeta);
    if (!trabajo.resultados) {
        throw std::runtime_error{"el trabajo no pide el archivo de resultados"};
    }
    try {
        CorrerTrabajo(trabajo);
    } catch (const ErrorTrabajo& error) {
        EXPECT_EQ(error.estado(), Estado::FalloDeCalculo) << error.what();
        EXPECT_EQ(error.fallo(), esperado.fallo) << error.what();
        EXPECT_TRUE(fs::is_empty(carpeta.ruta())) << "un fallo no deja archivo";
        return;
    }
    if (esperado.fallo) {
        ADD_FAILURE() << "debía fallar con " << *esperado.fallo;
        return;
    }
    CompararBytes(trabajo.resultados->ruta, esperado.bytes);
}

TEST(Casos, CadaParcelaDaSuRespuesta) {
    const auto casos = CasosDe(DatosDePrueba() / "casos");
    ASSERT_FALSE(casos.empty());
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.filename().string());
        try {
            CorrerCaso(caso);
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
    }
}

// The plots that came beside the project ask for more than can be done yet: their jobs and their answers are
// cut to what can.

/// Takes from a job what is still to come: the data of the plot, the map, and the overlap of elliptic crowns.
/// True when that took an index away.
bool RecortarTrabajo(Trabajo& trabajo) {
    trabajo.datos.reset();
    trabajo.mapa.reset();
    const bool circulares =
        std::any_of(trabajo.opciones.begin(), trabajo.opciones.end(), [](const auto& opcion) {
            return (opcion.control == "Optcirc" || opcion.control == "OptRM") &&
                   opcion.valor == ValorPedido{true};
        });
    static const std::set<std::string> deCopas{"ChSupCopa", "ChISCBil", "ChISCUni"};
    return !circulares && std::erase_if(trabajo.opciones, [](const auto& opcion) {
                              return deCopas.contains(opcion.control);
                          }) > 0;
}

/// An answer without the columns of the crowns, as the bytes of a results file.
std::string SinCopas(const std::string& bytes) {
    Tabla tabla = Celdas(bytes);
    const std::vector<std::string> encabezados = tabla.at(0);
    std::string recortada;
    for (std::size_t fila = 0; fila < tabla.size(); ++fila) {
        recortada += fila == 0 ? "" : "\r";
        for (std::size_t columna = 0; columna < tabla[fila].size(); ++columna) {
            if (!encabezados.at(columna).starts_with("ISC(")) {
                recortada += (columna == 0 ? "" : "\t") + tabla[fila][columna];
            }
        }
    }
    return recortada;
}

/// Their faults are told in other words than ours: that the run ends in one is what can be compared.
void CorrerCasoDeAlLado(const fs::path& caso) {
    const CarpetaTemporal carpeta;
    Trabajo trabajo = LeerTrabajoDelCaso(caso, carpeta);
    const bool recortado = RecortarTrabajo(trabajo);
    if (!fs::exists(caso / "esperado-fallo.txt")) {
        const std::string respuesta = LeerArchivo(caso / "esperado-indices.txt");
        CorrerTrabajo(trabajo);
        CompararBytes(trabajo.resultados.value().ruta, recortado ? SinCopas(respuesta) : respuesta);
        return;
    }
    ASSERT_FALSE(recortado) << "el fallo puede ser de lo que se quitó";
    try {
        CorrerTrabajo(trabajo);
        ADD_FAILURE() << "debía fallar";
    } catch (const ErrorTrabajo& error) {
        EXPECT_EQ(error.estado(), Estado::FalloDeCalculo) << error.what();
    }
}

TEST(Casos, LasParcelasDeAlLadoDanSuRespuesta) {
    const fs::path compartidas = AlLado() / "casos";
    if (!fs::exists(compartidas)) {
        GTEST_SKIP() << "no hay parcelas al lado del proyecto";
    }
    const auto casos = CasosDe(compartidas);
    ASSERT_FALSE(casos.empty());
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.filename().string());
        try {
            CorrerCasoDeAlLado(caso);
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
    }
}

} // namespace
} // namespace varo::prueba
