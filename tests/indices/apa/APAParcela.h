// Plots for the tests of APA: trees as numbers, their cells as texts, and a boundary about them.
#pragma once

#include "basico/Numeros.h"
#include "indices/vecinos/Arboles.h"
#include "plot/calculo/Envolvente.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <string>
#include <vector>

namespace varo {

/// Sizes are diameters in metres, as the cell has them; an empty text is no tree.
struct ParcelaAPA {
    std::vector<double> x, y;
    std::vector<std::string> tamano;
    std::vector<double> contornoX, contornoY;

    void anadir(double enX, double enY, std::string conTamano = "0,2") {
        x.push_back(enX);
        y.push_back(enY);
        tamano.push_back(std::move(conTamano));
    }

    /// The convex hull of all trees, those without a size too, drawn together towards its middle.
    void envolver(double encogido = 1) {
        std::vector<std::size_t> porX(x.size());
        std::iota(porX.begin(), porX.end(), std::size_t{0});
        std::sort(porX.begin(), porX.end(), [&](auto a, auto b) { return x[a] < x[b]; });
        std::vector<double> ex(x.size());
        std::vector<double> ey(x.size());
        for (std::size_t n = 0; n < porX.size(); ++n) {
            ex[n] = x[porX[n]];
            ey[n] = y[porX[n]];
        }
        const auto [oeste, este] = std::minmax_element(x.begin(), x.end());
        const auto [sur, norte] = std::minmax_element(y.begin(), y.end());
        const double cx = (*oeste + *este) / 2;
        const double cy = (*sur + *norte) / 2;
        for (const int arbol : EnvolverArboles(ex, ey).arboles) {
            const auto n = static_cast<std::size_t>(arbol);
            contornoX.push_back(encogido == 1 ? ex[n] : cx + (ex[n] - cx) * encogido);
            contornoY.push_back(encogido == 1 ? ey[n] : cy + (ey[n] - cy) * encogido);
        }
    }

    /// A square boundary turned by so little that no side of it is vertical.
    void cuadrar(double desde, double hasta) {
        constexpr double sesgo = 1.0 / 1024;
        contornoX = {desde - sesgo, desde, hasta + sesgo, hasta, desde - sesgo};
        contornoY = {desde, hasta, hasta, desde, desde};
    }

    [[nodiscard]] ContornoXY contorno() const { return {contornoX, contornoY}; }

    [[nodiscard]] Arboles arboles() const {
        return Arboles{{{"X", ATextos(x)}, {"Y", ATextos(y)}, {"D", tamano}, {}},
                       {false, UnidadLongitud::Metros},
                       contorno()};
    }

private:
    static std::vector<std::string> ATextos(const std::vector<double>& numeros) {
        std::vector<std::string> textos;
        textos.reserve(numeros.size());
        for (const double numero : numeros) {
            textos.push_back(ATexto(numero));
        }
        return textos;
    }
};

} // namespace varo
