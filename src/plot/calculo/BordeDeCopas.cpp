#include "plot/calculo/BordeDeCopas.h"

#include "basico/Saltando.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <span>

namespace varo {

namespace {

constexpr double infinito = std::numeric_limits<double>::infinity();

} // namespace

BordeDeCopas::BordeDeCopas(const ContornoXY& contorno) : contorno_{contorno} {
    const std::span<const double> x = contorno.x;
    const std::span<const double> y = contorno.y;
    for (std::size_t k = 0; k + 1 < x.size(); ++k) {
        LadoDelBorde lado{x[k], x[k + 1]};
        const auto fallado = Saltando([&] { lado.m = Dividir(y[k + 1] - y[k], x[k + 1] - x[k]); });
        lado.falla = fallado.has_value();
        lado.b = y[k + 1] - lado.m * x[k + 1];
        lados_.push_back(lado);
    }
}

double BordeDeCopas::alturaMenor(double x, double y) const {
    const std::span<const double> px = contorno_.x;
    const std::span<const double> py = contorno_.y;
    double menor = infinito;
    const auto fallado = Saltando([&] {
        for (std::size_t k = 0; k + 1 < px.size(); ++k) {
            menor = std::min(menor, AlturaTriangulo(x, y, px[k], py[k], px[k + 1], py[k + 1]));
        }
    });
    return fallado ? -infinito : menor;
}

BordeDeCopas::Tramo BordeDeCopas::tramo(double x) const {
    Tramo tramo{infinito, infinito};
    for (const LadoDelBorde& lado : lados_) {
        if (lado.falla) {
            tramo.falla = true;
            return tramo;
        }
        const double y = lado.m * x + lado.b;
        if (lado.desde < lado.hasta) {
            if (x >= lado.desde && x <= lado.hasta && y < tramo.bajo) {
                tramo.bajo = y;
            }
        } else if (x >= lado.hasta && x <= lado.desde) {
            tramo.sobre = y;
            return tramo;
        }
    }
    return tramo;
}

std::vector<FilasTapadas> BordeDeCopas::filasDentro(const MallaDeCopa& malla, PruebaFallida prueba) const {
    std::vector<FilasTapadas> filas;
    filas.reserve(malla.x.size());
    const auto posicion = [&](auto pasaAntes) {
        return static_cast<std::size_t>(std::ranges::partition_point(malla.y, pasaAntes) - malla.y.begin());
    };
    for (const double x : malla.x) {
        Tramo suyo = tramo(x);
        if (suyo.falla && prueba == PruebaFallida::CuentaDentro) {
            suyo.sobre = -infinito; // every sample that no upper side has turned away before
        }
        filas.push_back({posicion([&](double y) { return !(suyo.sobre < y); }),
                         posicion([&](double y) { return y < suyo.bajo; })});
    }
    return filas;
}

} // namespace varo
