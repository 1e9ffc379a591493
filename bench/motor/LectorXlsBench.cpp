// Reading the largest plot the program takes, 32,766 rows, from a workbook.
#include "motor/lectores/LectorXls.h"

#include "apoyo/EscritorXls.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

constexpr int filas = 32766;

/// A header, a species as text and measures.
std::vector<std::byte> Parcela(int columnas) {
    varo::prueba::Hoja hoja{"Parcela", {{"Especie"}}};
    for (int columna = 1; columna < columnas; ++columna) {
        hoja.celdas.front().emplace_back("Medida " + std::to_string(columna));
    }
    for (int fila = 0; fila < filas; ++fila) {
        hoja.celdas.push_back({fila % 3 == 0 ? "Pinus pinaster" : "Quercus robur"});
        for (int columna = 1; columna < columnas; ++columna) {
            hoja.celdas.back().emplace_back(fila / 7.0 + columna);
        }
    }
    return varo::prueba::EscribirXls({hoja});
}

void LeerParcela(benchmark::State& estado) {
    const auto bytes = Parcela(static_cast<int>(estado.range(0)));
    for (auto _ : estado) {
        benchmark::DoNotOptimize(varo::LeerXls(bytes, "parcela.xls"));
    }
    estado.SetItemsProcessed(estado.iterations() * filas);
    estado.SetBytesProcessed(estado.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(LeerParcela)->ArgName("columnas")->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond);

} // namespace
