// The queries of a run over the largest plot that the program takes.
#include "motor/BaseDatos.h"

#include <benchmark/benchmark.h>

#include <string>
#include <utility>
#include <vector>

namespace {

constexpr int arboles = 32766;

/// A sheet with sizes as numbers, the same as texts, and codes.
varo::BaseDatos Parcela() {
    std::vector<std::vector<varo::Valor>> filas;
    for (int i = 0; i < arboles; ++i) {
        const int decimas = 100 + i * 7919 % 900;
        filas.push_back({static_cast<double>(decimas) / 10,
                         std::to_string(decimas / 10) + "," + std::to_string(decimas % 10),
                         std::string{i % 3 == 0 ? "pino" : "roble"}, 1.25, 1.5, 1.75, 2.0});
    }
    std::vector<varo::Campo> campos{{"CAP"}, {"CAP texto"}, {"Especie"}, {"RN"}, {"RE"}, {"RS"}, {"RO"}};
    return varo::BaseDatos{{{"Hoja1$", varo::Coleccion<varo::Campo>{std::move(campos)}, std::move(filas)}}};
}

void Consultar(benchmark::State& estado, const std::string& sql) {
    const auto base = Parcela();
    for (auto _ : estado) {
        benchmark::DoNotOptimize(base.OpenRecordset(sql));
    }
    estado.SetItemsProcessed(estado.iterations() * arboles);
}

BENCHMARK_CAPTURE(Consultar, cuenta_por_codigo,
                  "SELECT Count (Especie) as [variablecodigo] FROM [Hoja1$] WHERE Especie = 'pino'")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Consultar, area_basimetrica,
                  "SELECT Sum ( [CAP]^2/(4*3.1415927*10000) ) as [AB] FROM [Hoja1$] WHERE [CAP] > 31.5")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(
    Consultar, area_basimetrica_de_textos,
    "SELECT Sum ( [CAP texto]^2/(4*3.1415927*10000) ) as [AB] FROM [Hoja1$] WHERE [CAP texto] > 31.5")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Consultar, copas,
                  "SELECT (3.1415927/4)*(RN*RE+RE*RS+RS*RO+RO*RN) AS [SupElipse]  FROM  [Hoja1$]")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Consultar, dominantes,
                  "SELECT top 100 [CAP] as Ddom FROM [Hoja1$] WHERE [CAP] <> 0 order by [CAP] desc")
    ->Unit(benchmark::kMicrosecond);

} // namespace
