// Reading the largest plot the program takes: 32,766 rows of ten columns.
#include "motor/lectores/LectorXls.h"

#include "apoyo/EscritorXls.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

constexpr int filas = 32766;

/// A header, a species as text and nine measures.
std::vector<std::byte> Parcela() {
    varo::prueba::Hoja hoja{"Parcela", {{"Especie"}}};
    for (int columna = 1; columna < 10; ++columna) {
        hoja.celdas.front().emplace_back("Medida " + std::to_string(columna));
    }
    for (int fila = 0; fila < filas; ++fila) {
        hoja.celdas.push_back({fila % 3 == 0 ? "Pinus pinaster" : "Quercus robur"});
        for (int columna = 1; columna < 10; ++columna) {
            hoja.celdas.back().emplace_back(fila / 7.0 + columna);
        }
    }
    return varo::prueba::EscribirXls({hoja});
}

void LeerParcela(benchmark::State& estado) {
    const auto bytes = Parcela();
    for (auto _ : estado) {
        benchmark::DoNotOptimize(varo::LeerXls(bytes, "parcela.xls"));
    }
    estado.SetItemsProcessed(estado.iterations() * filas);
    estado.SetBytesProcessed(estado.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(LeerParcela)->Unit(benchmark::kMillisecond);

} // namespace
