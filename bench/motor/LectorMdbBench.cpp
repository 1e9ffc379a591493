// Reading the largest plot the program takes, 32,766 rows of 100 columns, from a database.
#include "motor/lectores/LectorMdb.h"

#include "apoyo/EscritorMdb.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace {

using varo::prueba::TipoMdb;

constexpr int filas = 32766;
constexpr int columnas = 100;

/// A species as text and measures.
std::vector<std::byte> Parcela(int version) {
    varo::prueba::TablaMdb tabla{"Parcela", {{"Especie", TipoMdb::Texto}}, {}};
    tabla.mapaEnPaginas = true;
    for (int columna = 1; columna < columnas; ++columna) {
        tabla.campos.push_back({"Medida " + std::to_string(columna), TipoMdb::Doble});
    }
    for (int fila = 0; fila < filas; ++fila) {
        auto& valores = tabla.filas.emplace_back();
        valores.emplace_back(fila % 3 == 0 ? "Pinus pinaster" : "Quercus robur");
        for (int columna = 1; columna < columnas; ++columna) {
            valores.emplace_back(fila / 7.0 + columna);
        }
    }
    return varo::prueba::EscribirMdb({{tabla}, version});
}

void LeerBase(benchmark::State& estado, int version) {
    const auto bytes = Parcela(version);
    for (auto _ : estado) {
        benchmark::DoNotOptimize(varo::LeerMdb(bytes, "parcela.mdb"));
    }
    estado.SetBytesProcessed(estado.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK_CAPTURE(LeerBase, access_97, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LeerBase, access_2000, 1)->Unit(benchmark::kMillisecond);

} // namespace
