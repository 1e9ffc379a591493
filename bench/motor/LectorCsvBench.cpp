// Reading texts of cells: the largest plot that the program takes, with 100 columns.
#include "motor/lectores/LectorCsv.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace {

constexpr int filas = 32766;
constexpr int columnas = 100;

/// A header, a species as text and measures of two decimals.
std::string Parcela(char separador, char marca) {
    std::string texto = "Especie";
    for (int columna = 1; columna < columnas; ++columna) {
        texto += separador + ("Medida " + std::to_string(columna));
    }
    for (int fila = 0; fila < filas; ++fila) {
        texto += fila % 3 == 0 ? "\nPinus pinaster" : "\nQuercus robur";
        for (int columna = 1; columna < columnas; ++columna) {
            const int centesimas = 1000 + (fila * 7919 + columna * 104729) % 9000;
            texto += separador + std::to_string(centesimas / 100) + marca + std::to_string(centesimas % 100);
        }
    }
    return texto;
}

void LeerElTexto(benchmark::State& estado, char separador, char marca) {
    const auto texto = Parcela(separador, marca);
    for (auto _ : estado) {
        benchmark::DoNotOptimize(varo::LeerCsv(std::as_bytes(std::span{texto}), "parcela.csv", "parcela"));
    }
    estado.SetBytesProcessed(estado.iterations() * static_cast<std::int64_t>(texto.size()));
}
BENCHMARK_CAPTURE(LeerElTexto, comas_decimales, ';', ',')->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LeerElTexto, puntos_decimales, ',', '.')->Unit(benchmark::kMillisecond);

} // namespace
