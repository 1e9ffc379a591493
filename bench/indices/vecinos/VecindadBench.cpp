// One column of each family of neighbours, with what it computes first about the plot, and the same column by
// the literal procedure of the tests.
#include "indices/vecinos/AOI.h"
#include "indices/vecinos/DR.h"
#include "indices/vecinos/IDP.h"
#include "indices/vecinos/ISC.h"
#include "indices/vecinos/ISCDeElipses.h"

#include "SitiosDeParcela.h"
#include "basico/Cuadrilla.h"
#include "basico/Numeros.h"
#include "indices/vecinos/ElipsesLiteral.h"
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
        std::uniform_real_distribution<double> diametro{10, 40};
        const auto [xs, ys] = SitiosDeParcela{cuantos, azar};
        celdas.copa.resize(1);
        for (std::size_t i = 0; i < xs.size(); ++i) {
            const double d = diametro(azar);
            celdas.x.push_back(ATexto(xs[i]));
            celdas.y.push_back(ATexto(ys[i]));
            celdas.tamano.push_back(Formato(d, "##0.0"));
            celdas.copa[0].push_back(Formato(d / 10, "##0.0"));
        }
        for (const int i : EnvolverArboles(xs, ys).arboles) {
            celdas.contornoX.push_back(xs[static_cast<std::size_t>(i)]);
            celdas.contornoY.push_back(ys[static_cast<std::size_t>(i)]);
        }
        celdas.unidades = {false, UnidadLongitud::Centimetros};
        arboles.emplace(ArbolesDe(celdas));
    }
    [[nodiscard]] ContornoXY contorno() const { return celdas.contorno(); }
    /// The same trees, their crowns of four radii about this one (m).
    [[nodiscard]] Parcela conElipses(double radio) const {
        Parcela elipses = *this;
        std::mt19937 azar{2};
        std::uniform_real_distribution<double> radios{radio * 0.9, radio * 1.1};
        elipses.celdas.datosDeCopa = DatosDeCopa::CuatroRadios;
        elipses.celdas.copa.assign(4, {});
        for (auto& medida : elipses.celdas.copa) {
            for (std::size_t i = 0; i < celdas.x.size(); ++i) {
                medida.push_back(Formato(radios(azar), "##0.00"));
            }
        }
        elipses.arboles.emplace(ArbolesDe(elipses.celdas));
        return elipses;
    }

    prueba::ParcelaLiteral celdas;
    std::optional<Arboles> arboles;
};

constexpr SumaDePotencias radioDeInfluencia{0.5, 0.1, 1, 0, 0};
const char* const peso = "HIP, a: 1,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000";

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
        const RadiosDeCopa radios{*parcela.arboles, DatosDeCopa::RadioMedio, 1};
        benchmark::DoNotOptimize(CalcularISC(vecindad, radios, Lado::Bilateral));
    }
}

void ISCDeElipses(benchmark::State& estado, double radio) {
    const Parcela parcela = Parcela{estado.range(0)}.conElipses(radio);
    for (auto _ : estado) {
        Vecindad vecindad{*parcela.arboles, parcela.contorno()};
        const CopasDeArboles copas{*parcela.arboles, DatosDeCopa::CuatroRadios, 1};
        Lienzo superficie;
        benchmark::DoNotOptimize(CalcularISCDeElipses(vecindad, copas, Lado::Bilateral, superficie));
    }
}

void AOI(benchmark::State& estado) {
    const Parcela parcela{estado.range(0)};
    for (auto _ : estado) {
        Vecindad vecindad{*parcela.arboles, parcela.contorno()};
        const RadiosDeInfluencia radios{*parcela.arboles, radioDeInfluencia};
        benchmark::DoNotOptimize(CalcularAOI(vecindad, radios, Lado::Bilateral, 1));
    }
}

void IDP(benchmark::State& estado, ReglaDeSeleccion regla, double p) {
    const Parcela parcela{estado.range(0)};
    for (auto _ : estado) {
        Vecindad vecindad{*parcela.arboles, parcela.contorno()};
        Seleccion seleccion{vecindad, regla, OrdenDeRango::PorAngulo};
        seleccion.poner(p);
        benchmark::DoNotOptimize(
            CalcularIDP(*parcela.arboles, seleccion, Lado::Bilateral, FormaIDP::ConArbolCentral));
    }
}

void DR(benchmark::State& estado, ReglaDeSeleccion regla, double p) {
    const Parcela parcela{estado.range(0)};
    for (auto _ : estado) {
        Vecindad vecindad{*parcela.arboles, parcela.contorno()};
        Seleccion seleccion{vecindad, regla, OrdenDeRango::PorDistancia};
        seleccion.poner(p);
        EntradaDeDistancia entrada{peso};
        benchmark::DoNotOptimize(CalcularDR(*parcela.arboles, seleccion, Lado::Bilateral, entrada, 1));
    }
}

/// Within 10 m, on several threads.
void DREnVariosHilos(benchmark::State& estado) {
    const Parcela parcela{estado.range(0)};
    Cuadrilla cuadrilla{static_cast<std::size_t>(estado.range(1))};
    for (auto _ : estado) {
        Vecindad vecindad{*parcela.arboles, parcela.contorno()};
        Seleccion seleccion{vecindad, ReglaDeSeleccion::Distancia, OrdenDeRango::PorDistancia};
        seleccion.poner(10);
        const EntradaDeDistancia entrada{peso};
        benchmark::DoNotOptimize(
            CalcularDR(*parcela.arboles, seleccion, Lado::Bilateral, entrada, 1, {{}, &cuadrilla}));
    }
}

void ISCLiteral(benchmark::State& estado) {
    const Parcela parcela{estado.range(0)};
    for (auto _ : estado) {
        benchmark::DoNotOptimize(prueba::VecindadLiteral{parcela.celdas}.ISC(Lado::Bilateral));
    }
}

void ISCDeElipsesLiteral(benchmark::State& estado, double radio) {
    const Parcela parcela = Parcela{estado.range(0)}.conElipses(radio);
    for (auto _ : estado) {
        benchmark::DoNotOptimize(prueba::ElipsesLiteral{parcela.celdas, {}}.ISC(Lado::Bilateral));
    }
}

void AOILiteral(benchmark::State& estado) {
    const Parcela parcela{estado.range(0)};
    for (auto _ : estado) {
        benchmark::DoNotOptimize(
            prueba::VecindadLiteral{parcela.celdas}.AOI(Lado::Bilateral, radioDeInfluencia, 1));
    }
}

void IDPLiteral(benchmark::State& estado, ReglaDeSeleccion regla, double p) {
    const Parcela parcela{estado.range(0)};
    for (auto _ : estado) {
        benchmark::DoNotOptimize(prueba::VecindadLiteral{parcela.celdas}.IDP({regla, p, {}}, Lado::Bilateral,
                                                                             FormaIDP::ConArbolCentral));
    }
}

void DRLiteral(benchmark::State& estado, ReglaDeSeleccion regla, double p) {
    const Parcela parcela{estado.range(0)};
    for (auto _ : estado) {
        benchmark::DoNotOptimize(
            prueba::VecindadLiteral{parcela.celdas}.DR({regla, p, {}}, Lado::Bilateral, peso, 1));
    }
}

void Tamanos(benchmark::internal::Benchmark* medida) {
    medida->Arg(200)->Arg(1000)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);
}

/// Plots on which a literal column takes seconds; with a fixed number of stems only the smallest one does.
void TamanosLiterales(benchmark::internal::Benchmark* medida) {
    medida->Arg(200)->Arg(1000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(Reconocer)->Apply(Tamanos);
BENCHMARK(ISC)->Apply(Tamanos);
BENCHMARK_CAPTURE(ISCDeElipses, cuatro_metros, 4)->Apply(Tamanos);
BENCHMARK(AOI)->Apply(Tamanos);
BENCHMARK_CAPTURE(IDP, diez_metros, ReglaDeSeleccion::Distancia, 10)->Apply(Tamanos);
BENCHMARK_CAPTURE(IDP, baf_1, ReglaDeSeleccion::BAF, 1)->Apply(Tamanos);
BENCHMARK_CAPTURE(IDP, ocho_pies, ReglaDeSeleccion::NumeroFijo, 8)->Apply(Tamanos);
BENCHMARK_CAPTURE(DR, diez_metros, ReglaDeSeleccion::Distancia, 10)->Apply(Tamanos);
BENCHMARK_CAPTURE(DR, baf_1, ReglaDeSeleccion::BAF, 1)->Apply(Tamanos);
BENCHMARK_CAPTURE(DR, ocho_pies, ReglaDeSeleccion::NumeroFijo, 8)->Apply(Tamanos);
BENCHMARK(DREnVariosHilos)
    ->ArgNames({"arboles", "hilos"})
    ->ArgsProduct({{1000, 20000}, {1, 2, 4}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

BENCHMARK(ISCLiteral)->Apply(TamanosLiterales);
BENCHMARK_CAPTURE(ISCDeElipsesLiteral, cuatro_metros, 4)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(AOILiteral)->Apply(TamanosLiterales);
BENCHMARK_CAPTURE(IDPLiteral, diez_metros, ReglaDeSeleccion::Distancia, 10)->Apply(TamanosLiterales);
BENCHMARK_CAPTURE(IDPLiteral, baf_1, ReglaDeSeleccion::BAF, 1)->Apply(TamanosLiterales);
BENCHMARK_CAPTURE(IDPLiteral, ocho_pies, ReglaDeSeleccion::NumeroFijo, 8)
    ->Arg(200)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DRLiteral, diez_metros, ReglaDeSeleccion::Distancia, 10)->Apply(TamanosLiterales);
BENCHMARK_CAPTURE(DRLiteral, baf_1, ReglaDeSeleccion::BAF, 1)->Apply(TamanosLiterales);
BENCHMARK_CAPTURE(DRLiteral, ocho_pies, ReglaDeSeleccion::NumeroFijo, 8)
    ->Arg(200)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace varo
