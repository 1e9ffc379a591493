#include "plot/calculo/MallaDeCopa.h"

#include "basico/ErrorEjecucion.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace varo {

namespace {

std::vector<double> Pasos(double desde, double hasta, double paso) {
    constexpr std::size_t demasiados = 1'000'000; // 100 km of samples
    std::vector<double> valores;
    double valor = desde;
    while (valor <= hasta) {
        if (valores.size() == demasiados || valor + paso == valor) {
            throw ErrorEjecucion{fallo::desbordamiento}.porque(
                "la copa mide demasiado, o está demasiado lejos del origen, para recorrerla paso a paso: "
                "revise sus radios, su unidad y sus coordenadas");
        }
        valores.push_back(valor);
        valor += paso;
    }
    return valores;
}

} // namespace

MallaDeCopa MallaDe(const Copa& copa, double paso) {
    return {Pasos(copa.x - copa.W, copa.x + copa.E, paso), Pasos(copa.y - copa.S, copa.y + copa.N, paso)};
}

MallaDeCopa SobreLaSuperficie(MallaDeCopa malla, const Escala& escala) {
    std::erase_if(malla.x, [&](double x) { return !escala.contieneX(x); });
    std::erase_if(malla.y, [&](double y) { return !escala.contieneY(y); });
    return malla;
}

FilasTapadas FilasComunes(const FilasTapadas& unas, const FilasTapadas& otras) {
    return {std::max(unas.desde, otras.desde), std::min(unas.hasta, otras.hasta)};
}

void Cobertura::poner(const Copa& copa) {
    copa_ = copa;
    cuadrados_.clear();
    primeraAlNorte_ = 0;
    for (const double y : malla_.y) {
        const double dy = y - copa.y;
        primeraAlNorte_ += dy >= 0 ? 0 : 1;
        const double enRadios = dy / (dy >= 0 ? copa.N : copa.S);
        cuadrados_.push_back(enRadios * enRadios);
    }
}

FilasTapadas Cobertura::en(std::size_t columna) const {
    const double dx = malla_.x[columna] - copa_.x;
    const double enRadios = dx / (dx >= 0 ? copa_.E : copa_.W);
    const double cuadrado = enRadios * enRadios;
    if (cuadrado > 1) {
        return {};
    }
    const auto tapada = [&](double otro) { return cuadrado + otro <= 1; };
    const auto sinTapar = [&](double otro) { return !tapada(otro); };
    const auto alNorte = std::next(cuadrados_.begin(), static_cast<std::ptrdiff_t>(primeraAlNorte_));
    const auto desde = std::partition_point(cuadrados_.begin(), alNorte, sinTapar);
    const auto hasta = std::partition_point(alNorte, cuadrados_.end(), tapada);
    return {static_cast<std::size_t>(desde - cuadrados_.begin()),
            static_cast<std::size_t>(hasta - cuadrados_.begin())};
}

} // namespace varo
