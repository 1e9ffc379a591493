// What plot data computes of crowns of ellipse (overlap, clipping, cover), and the same figures by the
// literal procedures of the tests.
#include "plot/calculo/CubiertaDeCopas.h"
#include "plot/calculo/Elipses.h"
#include "plot/calculo/Envolvente.h"

#include "SitiosDeParcela.h"
#include "basico/Numeros.h"
#include "plot/calculo/ElipsesDePlotLiteral.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace varo {
namespace {

/// A square plot of 900 stems per hectare, crowns of four radii of about 3 m.
struct ParcelaDeElipses {
    explicit ParcelaDeElipses(std::int64_t cuantos) {
        std::mt19937 azar{1};
        std::uniform_real_distribution<double> radio{2.7, 3.3};
        const auto [xs, ys] = SitiosDeParcela{cuantos, azar};
        for (std::size_t i = 0; i < xs.size(); ++i) {
            FilaDeCopa fila{CeldaLeida{ATexto(xs[i])}, CeldaLeida{ATexto(ys[i])}, false, {}};
            for (auto& medida : fila.medidas) {
                medida = CeldaLeida{Formato(radio(azar), "##0.00")};
            }
            filas.filas.push_back(fila);
        }
        for (const int i : EnvolverArboles(xs, ys).arboles) {
            x.push_back(xs[static_cast<std::size_t>(i)]);
            y.push_back(ys[static_cast<std::size_t>(i)]);
        }
        areas.assign(xs.size(), Valor{28.0});
    }
    [[nodiscard]] ContornoXY contorno() const { return {x, y}; }

    FilasDeCopas filas;
    std::vector<double> x, y;
    std::vector<Valor> areas;
};

float Cubierta(const ParcelaDeElipses& parcela) {
    Lienzo superficie;
    PintarCopas(parcela.filas, true, superficie);
    return CalcularFcc(parcela.contorno(), [&](double px, double py) { return superficie.Point(px, py); });
}

void SolapeRecorteYCubierta(benchmark::State& estado) {
    const ParcelaDeElipses parcela{estado.range(0)};
    SolapeDeCopas solape;
    for (auto _ : estado) {
        const Lienzo superficie;
        SolaparElipses(parcela.filas, parcela.contorno(), superficie, solape);
        benchmark::DoNotOptimize(
            RecortarElipses(parcela.filas, parcela.contorno(), superficie, parcela.areas));
        benchmark::DoNotOptimize(Cubierta(parcela));
    }
    estado.counters["pares"] = static_cast<double>(solape.ParesCopas.size());
}
BENCHMARK(SolapeRecorteYCubierta)
    ->Arg(200)
    ->Arg(1'000)
    ->Arg(5'000)
    ->Arg(20'000)
    ->Unit(benchmark::kMillisecond);

void SolapeRecorteYCubiertaLiteral(benchmark::State& estado) {
    const ParcelaDeElipses parcela{estado.range(0)};
    for (auto _ : estado) {
        prueba::ElipsesDePlotLiteral literal{parcela.filas, parcela.contorno(), {}};
        benchmark::DoNotOptimize(literal.solape());
        benchmark::DoNotOptimize(literal.recorte(parcela.areas));
        benchmark::DoNotOptimize(Cubierta(parcela));
    }
}
BENCHMARK(SolapeRecorteYCubiertaLiteral)->Arg(200)->Arg(1'000)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
} // namespace varo
