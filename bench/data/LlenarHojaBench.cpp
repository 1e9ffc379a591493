// From the chosen sheet to the filled grid, for the largest sheet the program takes: 32,766 rows, 100
// columns.
#include "data/FrmSeleccion.h"

#include "apoyo/Jornada.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

namespace {

constexpr int filas = 32'766;
constexpr int columnas = 100;

void EscribirParcela(const std::filesystem::path& archivo) {
    varo::prueba::Hoja hoja{"Parcela", {{}}};
    for (int columna = 0; columna < columnas; ++columna) {
        hoja.celdas.front().emplace_back("Medida " + std::to_string(columna));
    }
    for (int fila = 1; fila < filas; ++fila) {
        auto& celdas = hoja.celdas.emplace_back();
        for (int columna = 0; columna < columnas; ++columna) {
            celdas.emplace_back((fila * 7919 + columna * 104'729) % 10'000 / 100.0);
        }
    }
    varo::prueba::EscribirArchivoXls(archivo, {hoja});
}

void LlenarHoja(benchmark::State& estado) {
    const varo::prueba::CarpetaTemporal carpeta;
    EscribirParcela(carpeta / "parcela.xls");
    for (auto _ : estado) {
        estado.PauseTiming();
        auto jornada = std::make_unique<varo::prueba::Jornada>();
        jornada->servicios.prepararArchivo(carpeta.archivo("parcela.xls"));
        jornada->usuario.clic(jornada->marco().mnuAbrir);
        auto& seleccion = jornada->programa.tocar<varo::FrmSeleccion>();
        jornada->usuario.escribir(seleccion.CboHoja, "Parcela$");
        estado.ResumeTiming();
        jornada->usuario.clic(seleccion.CmdAceptar);
        estado.PauseTiming();
        jornada.reset();
        estado.ResumeTiming();
    }
}
BENCHMARK(LlenarHoja)->Unit(benchmark::kMillisecond);

} // namespace
