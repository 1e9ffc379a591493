// Overlap and clipping of the circular crowns of a plot, and the overlap by the literal walk of the tests.
#include "plot/calculo/RecortarCirculos.h"
#include "plot/calculo/SolaparCirculos.h"

#include "SitiosDeParcela.h"
#include "basico/Numeros.h"
#include "plot/calculo/Envolvente.h"
#include "plot/calculo/SolapeLiteral.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <set>
#include <vector>

namespace varo {
namespace {

/// A square plot of 900 stems per hectare, circles of 0.5 to 1.5 m. The trees on an x of the boundary stand
/// behind the others, so that the clipping looks at all of these.
struct Parcela {
    explicit Parcela(std::int64_t cuantos) {
        std::mt19937 azar{1};
        const auto [xs, ys] = SitiosDeParcela{cuantos, azar};
        cercar(xs, ys);
        plantar(xs, ys, azar);
    }

    FilasDeCopas copas;
    TablaPoligono Poligono;
    MatrizDinamica<double> AnguloInterior;

private:
    void cercar(const std::vector<double>& xs, const std::vector<double>& ys) {
        const Envolvente envolvente = EnvolverArboles(xs, ys);
        for (const int arbol : envolvente.arboles) {
            const auto i = static_cast<std::size_t>(arbol);
            Poligono.anadir(xs[i], ys[i], {Valor{0.05}, Valor{1.0}, Valor{"1"}});
        }
        AnguloInterior.redimensionar(static_cast<int>(envolvente.AnguloInterior.size()) - 1);
        for (int i = 0; i <= AnguloInterior.limite(); ++i) {
            AnguloInterior(i) = envolvente.AnguloInterior[static_cast<std::size_t>(i)];
        }
    }

    void plantar(const std::vector<double>& xs, const std::vector<double>& ys, std::mt19937& azar) {
        std::uniform_real_distribution<double> radio{0.5, 1.5};
        const ContornoXY contorno = Poligono.contorno();
        const std::set<double> deVertice(contorno.x.begin(), contorno.x.end());
        copas.datos = DatosDeCopa::CuatroRadios;
        copas.FactorRadios = 10;
        for (const bool ahora : {false, true}) {
            for (std::size_t i = 0; i < xs.size(); ++i) {
                if (deVertice.contains(xs[i]) == ahora) {
                    FilaDeCopa fila;
                    fila.x = CeldaLeida{ATexto(xs[i])};
                    fila.y = CeldaLeida{ATexto(ys[i])};
                    for (CeldaLeida& medida : fila.medidas) {
                        medida = CeldaLeida{Formato(radio(azar) * 10, "##0.0")};
                    }
                    copas.filas.push_back(fila);
                }
            }
        }
    }
};

void SolaparLosCirculos(benchmark::State& estado) {
    const Parcela parcela{estado.range(0)};
    SolapeDeCopas solape;
    for (auto _ : estado) {
        SolaparCirculos(parcela.copas, solape);
    }
    estado.counters["pares"] = solape.NumParesCopas.valor() + 1;
}

void SolaparLosCirculosLiteral(benchmark::State& estado) {
    const Parcela parcela{estado.range(0)};
    SolapeDeCopas solape;
    for (auto _ : estado) {
        prueba::SolapeLiteral{parcela.copas, solape}.AreaTotalIntersCopas();
    }
    estado.counters["pares"] = solape.NumParesCopas.valor() + 1;
}

void RecortarLosCirculos(benchmark::State& estado) {
    const Parcela parcela{estado.range(0)};
    RecorteDeCopas recorte;
    for (auto _ : estado) {
        recorte = RecortarCirculos(parcela.copas, parcela.Poligono, parcela.AnguloInterior, false);
    }
    estado.counters["lados"] = parcela.Poligono.filas() - 1;
    estado.counters["fuera"] = recorte.SupFuera;
}

BENCHMARK(SolaparLosCirculos)->Arg(1000)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(SolaparLosCirculosLiteral)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(RecortarLosCirculos)->Arg(1000)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace varo
