#include "indices/independientes/AreaDeMayores.h"

#include "basico/Numeros.h"

#include <benchmark/benchmark.h>

#include <random>

namespace varo {
namespace {

/// Basal area of larger trees over a plot of so many trees whose girths are all different.
void MedirABj(benchmark::State& estado) {
    std::mt19937 azar{1};
    std::uniform_real_distribution<double> perimetro{30, 130};
    std::vector<std::vector<Valor>> filas;
    std::vector<std::string> celdas;
    for (int i = 0; i < estado.range(0); ++i) {
        const double tamano = perimetro(azar);
        filas.push_back({Valor{tamano}});
        celdas.push_back(ATexto(tamano));
    }
    const BaseDatos base{{Tabla{"P$", Coleccion<Campo>{{Campo{"CAP"}}}, std::move(filas)}}};
    for (auto _ : estado) {
        benchmark::DoNotOptimize(CalcularABj(base, "CAP", "P$", {}, celdas, 10000));
    }
}

BENCHMARK(MedirABj)->Arg(200)->Arg(1000)->Arg(5000)->Arg(20000)->Arg(32766)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace varo
