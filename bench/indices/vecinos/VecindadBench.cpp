// One column of each family of neighbours, with what it works out first about the plot.
#include "indices/vecinos/AOI.h"
#include "indices/vecinos/DR.h"
#include "indices/vecinos/IDP.h"
#include "indices/vecinos/ISC.h"

#include "basico/Numeros.h"
#include "plot/calculo/Envolvente.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace varo {
namespace {

/// A square plot of 900 stems per hectare, diameters of 10 to 40 cm, crowns of 1 to 4 m.
struct Parcela {
    explicit Parcela(std::int64_t cuantos) {
        std::mt19937 azar{1};
        const double lado = std::sqrt(static_cast<double>(cuantos) / 900 * 10000);
        std::uniform_real_distribution<double> coordenada{0, lado};
        std::uniform_real_distribution<double> diametro{10, 40};
        std::vector<double> xs, ys;
        for (std::int64_t i = 0; i < cuantos; ++i) {
            xs.push_back(ANumero(Formato(coordenada(azar), "##0.00")));
            ys.push_back(ANumero(Formato(coordenada(azar), "##0.00")));
        }
        std::sort(xs.begin(), xs.end()); // the walk round the plot starts at the first one
        std::vector<std::string> tx, ty, td, tr;
        for (std::size_t i = 0; i < xs.size(); ++i) {
            const double d = diametro(azar);
            tx.push_back(ATexto(xs[i]));
            ty.push_back(ATexto(ys[i]));
            td.push_back(Formato(d, "##0.0"));
            tr.push_back(Formato(d / 10, "##0.0"));
        }
        for (const int i : EnvolverArboles(xs, ys).arboles) {
            contornoX.push_back(xs[static_cast<std::size_t>(i)]);
            contornoY.push_back(ys[static_cast<std::size_t>(i)]);
        }
        CeldasDeArboles celdas;
        celdas.x = {"X", std::move(tx)};
        celdas.y = {"Y", std::move(ty)};
        celdas.tamano = {"DAP", std::move(td)};
        celdas.copa.emplace_back("R", std::move(tr));
        arboles.emplace(std::move(celdas), UnidadesTallo{false, UnidadLongitud::Centimetros}, contorno());
    }
    [[nodiscard]] ContornoXY contorno() const { return {contornoX, contornoY}; }

    std::vector<double> contornoX, contornoY;
    std::optional<Arboles> arboles;
};

void Reconocer(benchmark::State& estado) {
    const Parcela parcela{estado.range(0)};
    for (auto _ : estado) {
        benchmark::DoNotOptimize(Vecindad{*parcela.arboles, parcela.contorno()});
    }
}

void ISC(benchmark::State& estado) {
    const Parcela parcela{estado.range(0)};
    for (auto _ : estado) {
        Vecindad vecindad{*parcela.arboles, parcela.contorno()};
        const RadiosDeCopa radios{*parcela.arboles, FormaDeCopa::RadioMedio, 1};
        benchmark::DoNotOptimize(CalcularISC(vecindad, radios, false));
    }
}

void AOI(benchmark::State& estado) {
    const Parcela parcela{estado.range(0)};
    for (auto _ : estado) {
        Vecindad vecindad{*parcela.arboles, parcela.contorno()};
        const RadiosDeInfluencia radios{*parcela.arboles, {0.5, 0.1, 1, 0, 0}};
        benchmark::DoNotOptimize(CalcularAOI(vecindad, radios, false, 1));
    }
}

void IDP(benchmark::State& estado, ReglaDeSeleccion regla, double p) {
    const Parcela parcela{estado.range(0)};
    for (auto _ : estado) {
        Vecindad vecindad{*parcela.arboles, parcela.contorno()};
        Seleccion seleccion{vecindad, regla, OrdenDeRango::PorAngulo};
        seleccion.poner(p);
        benchmark::DoNotOptimize(CalcularIDP(*parcela.arboles, seleccion, false, FormaIDP::ConArbolCentral));
    }
}

void DR(benchmark::State& estado, ReglaDeSeleccion regla, double p) {
    const Parcela parcela{estado.range(0)};
    for (auto _ : estado) {
        Vecindad vecindad{*parcela.arboles, parcela.contorno()};
        Seleccion seleccion{vecindad, regla, OrdenDeRango::PorDistancia};
        seleccion.poner(p);
        EntradaDeDistancia entrada{"HIP, a: 1,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000"};
        benchmark::DoNotOptimize(CalcularDR(vecindad, seleccion, false, entrada, 1));
    }
}

void Tamanos(benchmark::internal::Benchmark* medida) {
    medida->Arg(200)->Arg(1000)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(Reconocer)->Apply(Tamanos);
BENCHMARK(ISC)->Apply(Tamanos);
BENCHMARK(AOI)->Apply(Tamanos);
BENCHMARK_CAPTURE(IDP, diez_metros, ReglaDeSeleccion::Distancia, 10)->Apply(Tamanos);
BENCHMARK_CAPTURE(IDP, baf_1, ReglaDeSeleccion::BAF, 1)->Apply(Tamanos);
BENCHMARK_CAPTURE(IDP, ocho_pies, ReglaDeSeleccion::NumeroFijo, 8)->Apply(Tamanos);
BENCHMARK_CAPTURE(DR, diez_metros, ReglaDeSeleccion::Distancia, 10)->Apply(Tamanos);
BENCHMARK_CAPTURE(DR, baf_1, ReglaDeSeleccion::BAF, 1)->Apply(Tamanos);
BENCHMARK_CAPTURE(DR, ocho_pies, ReglaDeSeleccion::NumeroFijo, 8)->Apply(Tamanos);

} // namespace
} // namespace varo
