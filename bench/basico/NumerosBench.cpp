// How long one number takes on its way to text and back.
#include "basico/Numeros.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace {

/// Values as the results have them: a few thousandths to some thousands, all their binary digits in use.
std::vector<double> Valores() {
    std::mt19937_64 azar{1}; // NOLINT(cert-msc51-cpp): the same values in every measurement
    std::uniform_real_distribution<double> reparto{0.001, 5000.0};
    std::vector<double> valores(1024);
    for (double& valor : valores) {
        valor = reparto(azar);
    }
    return valores;
}

/// Runs `operacion` over the elements, one per iteration, round and round.
template <class Elemento, class Operacion>
void Medir(benchmark::State& estado, const std::vector<Elemento>& elementos, Operacion operacion) {
    std::size_t i = 0;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(operacion(elementos[i]));
        i = (i + 1) % elementos.size();
    }
}

void ATexto(benchmark::State& estado) {
    Medir(estado, Valores(), [](double valor) { return varo::ATexto(valor); });
}

void Formato(benchmark::State& estado) {
    Medir(estado, Valores(), [](double valor) { return varo::Formato(valor, "##0.00"); });
}

void ANumero(benchmark::State& estado) {
    std::vector<std::string> textos;
    for (const double valor : Valores()) {
        textos.push_back(varo::ATexto(valor));
    }
    Medir(estado, textos, [](const std::string& texto) { return varo::ANumero(texto); });
}

} // namespace

BENCHMARK(ATexto);
BENCHMARK(Formato);
BENCHMARK(ANumero);
