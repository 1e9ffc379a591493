// The revision of a plot with everything asked for.
#include "revision/Revisar.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

namespace varo {
namespace {

/// A square plot of 900 stems per hectare with coordinates in centimetres.
ParcelaPorRevisar ParcelaAlAzar(std::int64_t cuantos) {
    std::mt19937 azar{1};
    const double lado = std::sqrt(static_cast<double>(cuantos) / 900) * 10'000;
    std::uniform_int_distribution<int> sitio{0, static_cast<int>(lado)};
    std::uniform_real_distribution<double> tamano{20, 120};
    std::uniform_real_distribution<double> radio{5, 15};
    ParcelaPorRevisar parcela;
    parcela.copa.resize(4);
    parcela.codigo.emplace();
    parcela.tamano.emplace();
    for (std::int64_t i = 0; i < cuantos; ++i) {
        parcela.filas.push_back({static_cast<int>(i) + 2, true});
        parcela.numero.celdas.emplace_back(static_cast<double>(i) + 1);
        parcela.x.celdas.emplace_back(sitio(azar) / 100.0);
        parcela.y.celdas.emplace_back(sitio(azar) / 100.0);
        parcela.tamano->celdas.emplace_back(tamano(azar));
        parcela.codigo->celdas.emplace_back(std::string{i % 3 == 0 ? "Ps" : "Qi"});
        for (auto& medida : parcela.copa) {
            medida.celdas.emplace_back(radio(azar));
        }
    }
    auto& opciones = parcela.opciones;
    opciones.copasCirculares = true;
    opciones.datosDeParcela = true;
    opciones.independientes = {true, true, true, true, true, true, true, true};
    opciones.ISC.activa = true;
    opciones.AOI.activa = true;
    opciones.AOI.funciones = {"a: 1,0000; b: 0,0500; c: 1,0000; d: 0,0000; e: 0,0000"};
    opciones.IDP.activa = true;
    opciones.IDP.parametro = {"TxtBAF1(0)", "2", "2", "1"};
    opciones.DR.activa = true;
    opciones.DR.parametro = {"TxtBAF1(2)", "2", "2", "1"};
    opciones.DR.distancias = {"EXP, a: 0,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000"};
    opciones.APA.activa = true;
    return parcela;
}

void Revision(benchmark::State& estado) {
    const ParcelaPorRevisar parcela = ParcelaAlAzar(estado.range(0));
    for (auto _ : estado) {
        benchmark::DoNotOptimize(Revisar(parcela));
    }
}
BENCHMARK(Revision)->Arg(500)->Arg(1500)->Arg(5000)->Arg(32'766)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace varo
