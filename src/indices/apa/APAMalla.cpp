#include "indices/apa/APAMalla.h"

#include <algorithm>
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

MallaAPA::MallaAPA(const PesosAPA& pesos) : pesos_{pesos}, cuadricula_{CuadriculaDe(pesos.arboles())} {
    const auto& [x0, y0, x1, y1] = cuadricula_.extremos();
    extension_ = (x1 - x0) + (y1 - y0);
    mayorCoordenada_ = std::max({std::abs(x0), std::abs(x1), std::abs(y0), std::abs(y1)});
    peso_.reserve(cuadricula_.cuantos());
    for (const Fila i : cuadricula_.filas()) {
        peso_.push_back(pesos.de(i));
        mayorPeso_ = std::max(mayorPeso_, peso_.back());
    }
}

void MallaAPA::cuadro(std::size_t i, double medioLado, std::vector<Fila>& halladas) const {
    const Arboles& arboles = pesos_.arboles();
    cuadricula_.recorrerCuadro(arboles.x(i), arboles.y(i), medioLado,
                               [&](std::size_t lugar) { halladas.push_back(cuadricula_.fila(lugar)); });
}

void MallaAPA::alAlcance(std::size_t i, double alcance, std::vector<Fila>& halladas) const {
    const double xi = pesos_.arboles().x(i);
    const double yi = pesos_.arboles().y(i);
    const double peso = pesos_.de(i);
    // 2 * W * L <= alcance, as 2 * peso * L <= alcance * (peso + pesoJ): squared, and with no division.
    const double a = 4 * peso * peso;
    const double b = alcance * alcance * (1 + 1E-9);
    const double medioLado = alcance * (peso + mayorPeso_) / (2 * peso);
    cuadricula_.recorrerCuadro(xi, yi, medioLado, [&](std::size_t lugar) {
        const double dx = cuadricula_.x(lugar) - xi;
        const double dy = cuadricula_.y(lugar) - yi;
        const double suma = peso + peso_[lugar];
        if (a * (dx * dx + dy * dy) <= b * (suma * suma)) {
            halladas.push_back(cuadricula_.fila(lugar));
        }
    });
}

void MallaAPA::enfiladas(std::size_t i, const DireccionAPA& direccion, double seno,
                         std::vector<Fila>& halladas) const {
    const double xi = pesos_.arboles().x(i);
    const double yi = pesos_.arboles().y(i);
    const bool tendida = std::abs(direccion.x) >= std::abs(direccion.y);
    const double mayor = tendida ? direccion.x : direccion.y;
    const double pendiente = (tendida ? direccion.y : direccion.x) / mayor;
    const double ancho = seno * extension_ / std::abs(mayor);
    const auto& [x0, y0, x1, y1] = cuadricula_.extremos();
    const double principal = tendida ? xi - x0 : yi - y0; // of the subject, along the cells that are walked
    const double otro = tendida ? yi - y0 : xi - x0;
    const double lado = cuadricula_.lado();
    const std::size_t pasos = tendida ? cuadricula_.columnas() : cuadricula_.hileras();
    const std::size_t cuantas = tendida ? cuadricula_.hileras() : cuadricula_.columnas();

    const double s2 = seno * seno;
    const auto visitar = [&](std::size_t lugar) {
        const double dx = cuadricula_.x(lugar) - xi;
        const double dy = cuadricula_.y(lugar) - yi;
        const double cruz = direccion.x * dy - direccion.y * dx;
        if (cruz * cruz <= s2 * (dx * dx + dy * dy)) {
            halladas.push_back(cuadricula_.fila(lugar));
        }
    };
    for (std::size_t paso = 0; paso < pasos; ++paso) {
        const double entra = (static_cast<double>(paso) * lado - principal) * pendiente;
        const double sale = entra + lado * pendiente;
        const double bajo = otro + std::min(entra, sale) - ancho;
        const double alto = otro + std::max(entra, sale) + ancho;
        if (alto < -lado || bajo > static_cast<double>(cuantas + 1) * lado) {
            continue;
        }
        const Cuadricula::Tramo corte = cuadricula_.tramo(bajo, alto, cuantas);
        if (tendida) {
            cuadricula_.recorrer(paso, corte, visitar);
            continue;
        }
        for (std::size_t columna = corte.desde; columna <= corte.hasta; ++columna) {
            cuadricula_.recorrer(columna, {paso, paso}, visitar);
        }
    }
}

} // namespace varo
