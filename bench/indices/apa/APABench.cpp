#include "indices/apa/APA.h"

#include "basico/Cuadrilla.h"
#include "basico/Numeros.h"
#include "indices/apa/APALiteral.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace varo {
namespace {

/// Coordinates between 0 and `lado`, at random, of which no two are nearer than half their mean distance:
/// with two trees almost in line with an axis, APA would fault.
std::vector<std::string> Coordenadas(long cuantas, double lado, std::mt19937& azar) {
    const double paso = lado / static_cast<double>(cuantas);
    std::uniform_real_distribution<double> desvio{0.25, 0.75};
    std::vector<std::string> coordenadas;
    for (long i = 0; i < cuantas; ++i) {
        coordenadas.push_back(ATexto((static_cast<double>(i) + desvio(azar)) * paso));
    }
    std::shuffle(coordenadas.begin(), coordenadas.end(), azar);
    return coordenadas;
}

/// A square plot with 900 stems per hectare, diameters of 10 to 40 cm, and the boundary a little beyond it.
struct Parcela {
    std::vector<double> contornoX, contornoY;
    Arboles arboles;

    explicit Parcela(long cuantos)
        : Parcela{cuantos, std::sqrt(static_cast<double>(cuantos) / 900.0) * 100} {}

private:
    Parcela(long cuantos, double lado)
        : contornoX{-0.5, -0.4, lado + 0.5, lado + 0.4, -0.5}, contornoY{-0.5, lado + 0.5, lado + 0.5, -0.5,
                                                                         -0.5},
          arboles{celdas(cuantos, lado), {false, UnidadLongitud::Centimetros}, {contornoX, contornoY}} {}

    static CeldasDeArboles celdas(long cuantos, double lado) {
        std::mt19937 azar{1};
        std::uniform_real_distribution<double> diametro{10, 40};
        const auto x = Coordenadas(cuantos, lado, azar);
        const auto y = Coordenadas(cuantos, lado, azar);
        std::vector<std::string> d;
        for (long i = 0; i < cuantos; ++i) {
            d.push_back(ATexto(diametro(azar)));
        }
        return {{"X", x}, {"Y", y}, {"D", d}, {}};
    }
};

/// One column, for the exponent given.
void MedirAPA(benchmark::State& estado) {
    const Parcela parcela{static_cast<long>(estado.range(0))};
    const auto k = static_cast<double>(estado.range(1));
    const ContornoXY contorno{parcela.contornoX, parcela.contornoY};
    for (auto _ : estado) {
        benchmark::DoNotOptimize(CalcularAPA(parcela.arboles, contorno, k));
    }
}

/// On several threads; by the wall clock.
void MedirAPAEnVariosHilos(benchmark::State& estado) {
    const Parcela parcela{static_cast<long>(estado.range(0))};
    Cuadrilla cuadrilla{static_cast<std::size_t>(estado.range(1))};
    const ContornoXY contorno{parcela.contornoX, parcela.contornoY};
    for (auto _ : estado) {
        benchmark::DoNotOptimize(CalcularAPA(parcela.arboles, contorno, 1, {}, {{}, &cuadrilla}));
    }
}

/// The same column by the literal procedure.
void MedirAPALiteral(benchmark::State& estado) {
    const Parcela parcela{static_cast<long>(estado.range(0))};
    const auto k = static_cast<double>(estado.range(1));
    const ContornoXY contorno{parcela.contornoX, parcela.contornoY};
    for (auto _ : estado) {
        benchmark::DoNotOptimize(literal::APA{parcela.arboles, contorno, k}.columna());
    }
}

BENCHMARK(MedirAPA)
    ->ArgNames({"arboles", "k"})
    ->ArgsProduct({{200, 500, 1000, 5000, 20000}, {0, 1, 2, 4}})
    ->Unit(benchmark::kMillisecond);

BENCHMARK(MedirAPAEnVariosHilos)
    ->ArgNames({"arboles", "hilos"})
    ->ArgsProduct({{1000, 20000}, {1, 2, 4}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

// The time grows with the cube of the trees: some minutes for 2,000.
BENCHMARK(MedirAPALiteral)
    ->ArgNames({"arboles", "k"})
    ->ArgsProduct({{200, 500, 1000}, {1}})
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace varo
