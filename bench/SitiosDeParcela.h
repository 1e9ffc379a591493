// Where the trees of a plot stand that benchmarks run on.
#pragma once

#include "basico/Numeros.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

namespace varo {

struct SitiosDeParcela {
    std::vector<double>
        x; ///< metres, rounded to centimetres; it rises, as the walk round the plot starts at the first
    std::vector<double> y;

    /// A square plot of 900 stems per hectare.
    SitiosDeParcela(std::int64_t cuantos, std::mt19937& azar) {
        std::uniform_real_distribution<double> coordenada{
            0, std::sqrt(static_cast<double>(cuantos) / 900 * 10000)};
        for (std::int64_t i = 0; i < cuantos; ++i) {
            x.push_back(ANumero(Formato(coordenada(azar), "##0.00")));
            y.push_back(ANumero(Formato(coordenada(azar), "##0.00")));
        }
        std::sort(x.begin(), x.end());
    }
};

} // namespace varo
