#include "indices/apa/APACuadricula.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

namespace varo {

namespace {

Cuadricula CuadriculaDe(const Arboles& arboles) {
    std::vector<Cuadricula::Fila> filas;
    for (std::size_t i = 0; i < arboles.cuantos(); ++i) {
        if (!arboles.sinTamano(i) && arboles.d(i) != 0) {
            filas.push_back(static_cast<Cuadricula::Fila>(i));
        }
    }
    return {arboles, std::move(filas)};
}

} // namespace

CuadriculaAPA::CuadriculaAPA(const PesosAPA& pesos)
    : pesos_{pesos}, cuadricula_{CuadriculaDe(pesos.arboles())} {
    const auto& [x0, y0, x1, y1] = cuadricula_.extremos();
    extension_ = (x1 - x0) + (y1 - y0);
    mayorCoordenada_ = std::max({std::abs(x0), std::abs(x1), std::abs(y0), std::abs(y1)});
    lugares_.resize(pesos.arboles().cuantos());
    peso_.reserve(cuadricula_.cuantos());
    for (const Fila i : cuadricula_.filas()) {
        lugares_[i] = static_cast<LugarAPA>(peso_.size());
        peso_.push_back(pesos.de(i));
        mayorPeso_ = std::max(mayorPeso_, peso_.back());
    }
}

bool CuadriculaAPA::tiene(std::size_t i) const {
    return !pesos_.arboles().sinTamano(i) && pesos_.arboles().d(i) != 0;
}

void CuadriculaAPA::cuadro(std::size_t i, double medioLado, std::vector<LugarAPA>& hallados) const {
    assert(tiene(i) && medioLado >= 0);
    const Arboles& arboles = pesos_.arboles();
    cuadricula_.recorrerCuadro(arboles.x(i), arboles.y(i), medioLado,
                               [&](std::size_t lugar) { hallados.push_back(static_cast<LugarAPA>(lugar)); });
}

void CuadriculaAPA::enLosCirculos(std::size_t i, const AnilloAPA& anillo,
                                  std::vector<LugarAPA>& hallados) const {
    assert(tiene(i));
    const double xi = pesos_.arboles().x(i);
    const double yi = pesos_.arboles().y(i);
    const double peso = pesos_.de(i);
    const double tolerancia = anillo.tolerancia;
    // The trees whose virtual neighbours may stand in a circle are in one that is so many times as large.
    const double mayor = (peso + mayorPeso_) / (2 * peso);
    Cuadricula::Extremos caja;
    for (const auto& [centro, radio, seno] : anillo.circulos) {
        const double semilado = radio + 2 * tolerancia;
        caja.x0 = std::min(caja.x0, (centro.x - semilado) * mayor);
        caja.y0 = std::min(caja.y0, (centro.y - semilado) * mayor);
        caja.x1 = std::max(caja.x1, (centro.x + semilado) * mayor);
        caja.y1 = std::max(caja.y1, (centro.y + semilado) * mayor);
    }
    cuadricula_.recorrerCaja(xi, yi, caja, [&](std::size_t lugar) {
        const double dx = cuadricula_.x(lugar) - xi;
        const double dy = cuadricula_.y(lugar) - yi;
        double hacia = anillo.circulos[0].centro.x * dx + anillo.circulos[0].centro.y * dy;
        for (const auto& [centro, radio, seno] : anillo.circulos) {
            hacia = std::max(hacia, centro.x * dx + centro.y * dy);
        }
        // With t the tree, L its distance, c a centre and q = 2 * W * t: |q| >= 2 * c * q / |q| +
        // tolerancia is 2 * W * L * L >= 2 * c * t + tolerancia * L, here with no division and no root.
        const double dentro = 2 * hacia + tolerancia * (std::abs(dx) + std::abs(dy));
        if (!(2 * peso * (dx * dx + dy * dy) >= dentro * (peso + peso_[lugar]))) {
            hallados.push_back(static_cast<LugarAPA>(lugar));
        }
    });
}

void CuadriculaAPA::reunirVecinos(std::size_t i, std::span<const LugarAPA> lugares,
                                  VecinosAPA& vecinos) const {
    assert(tiene(i));
    const PuntoAPA arbol{pesos_.arboles().x(i), pesos_.arboles().y(i)};
    const double peso = pesos_.de(i);
    vecinos.filas.clear();
    vecinos.x.clear();
    vecinos.y.clear();
    vecinos.xSujeto = arbol.x;
    vecinos.ySujeto = arbol.y;
    for (const LugarAPA lugar : lugares) {
        const Fila fila = cuadricula_.fila(lugar);
        if (fila == i) {
            continue;
        }
        const PuntoAPA otro{cuadricula_.x(lugar), cuadricula_.y(lugar)};
        const double L = Distancia(arbol.x, arbol.y, otro.x, otro.y);
        const double W = Dividir(peso, ExigirFinito(peso + peso_[lugar]));
        const PuntoAPA vecino = ColocarVecino(arbol, otro, L, W);
        vecinos.filas.push_back(fila);
        vecinos.x.push_back(vecino.x);
        vecinos.y.push_back(vecino.y);
    }
}

} // namespace varo
