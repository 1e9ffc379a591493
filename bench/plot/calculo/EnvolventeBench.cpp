// The hull of a plot, from a small inventory to the largest one.
#include "plot/calculo/Envolvente.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstddef>
#include <random>
#include <vector>

namespace {

std::vector<double> Coordenadas(std::size_t cuantas, unsigned semilla) {
    std::mt19937 azar{semilla};
    std::uniform_real_distribution<double> metros{0.0, 100.0};
    std::vector<double> coordenadas(cuantas);
    std::ranges::generate(coordenadas, [&] { return metros(azar); });
    return coordenadas;
}

void EnvolverParcela(benchmark::State& estado) {
    const auto arboles = static_cast<std::size_t>(estado.range(0));
    std::vector<double> x = Coordenadas(arboles, 1);
    const std::vector<double> y = Coordenadas(arboles, 2);
    std::ranges::sort(x);
    std::size_t vertices = 0;
    for (auto _ : estado) {
        const varo::Envolvente envolvente = varo::EnvolverArboles(x, y);
        vertices = envolvente.arboles.size();
        benchmark::DoNotOptimize(vertices);
    }
    estado.counters["vertices"] = static_cast<double>(vertices);
}
BENCHMARK(EnvolverParcela)
    ->Arg(200)
    ->Arg(1'000)
    ->Arg(5'000)
    ->Arg(20'000)
    ->Arg(32'766)
    ->Unit(benchmark::kMillisecond);

} // namespace
