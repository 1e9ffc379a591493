#include "indices/APAMalla.h"

#include <algorithm>
#include <cmath>

namespace varo {

MallaAPA::MallaAPA(const PesosAPA& pesos) : pesos_{pesos} {
    const Arboles& arboles = pesos.arboles();
    for (std::size_t i = 0; i < arboles.cuantos(); ++i) {
        if (!arboles.sinTamano(i) && arboles.d(i) != 0) {
            filas_.push_back(static_cast<Fila>(i));
        }
    }
    if (!filas_.empty()) {
        medir();
    }
    repartir();
}

void MallaAPA::medir() {
    const Arboles& arboles = pesos_.arboles();
    x0_ = arboles.x(filas_.front());
    y0_ = arboles.y(filas_.front());
    double x1 = x0_;
    double y1 = y0_;
    for (const auto i : filas_) {
        x0_ = std::min(x0_, arboles.x(i));
        x1 = std::max(x1, arboles.x(i));
        y0_ = std::min(y0_, arboles.y(i));
        y1 = std::max(y1, arboles.y(i));
        mayorPeso_ = std::max(mayorPeso_, pesos_.de(i));
    }
    extension_ = (x1 - x0_) + (y1 - y0_);
    mayorCoordenada_ = std::max({std::abs(x0_), std::abs(x1), std::abs(y0_), std::abs(y1)});

    // Two trees to a cell, and never more than some cells for each tree, however narrow the plot.
    const auto cuantos = static_cast<double>(filas_.size());
    lado_ = std::max(std::sqrt((x1 - x0_) * (y1 - y0_) * 2.0 / cuantos), extension_ / cuantos);
    if (!(lado_ > 0)) {
        lado_ = 1;
    }
    columnas_ = static_cast<std::size_t>((x1 - x0_) / lado_) + 1;
    hileras_ = static_cast<std::size_t>((y1 - y0_) / lado_) + 1;
}

void MallaAPA::repartir() {
    const Arboles& arboles = pesos_.arboles();
    const auto casillaDe = [&](Fila i) {
        return casilla(arboles.x(i) - x0_, columnas_) * hileras_ + casilla(arboles.y(i) - y0_, hileras_);
    };
    comienzo_.assign(columnas_ * hileras_ + 1, 0);
    for (const auto i : filas_) {
        ++comienzo_[casillaDe(i) + 1];
    }
    for (std::size_t c = 1; c < comienzo_.size(); ++c) {
        comienzo_[c] += comienzo_[c - 1];
    }
    std::vector<std::size_t> libre(comienzo_.begin(), comienzo_.end() - 1);
    std::vector<Fila> repartidas(filas_.size());
    for (const auto i : filas_) {
        repartidas[libre[casillaDe(i)]++] = i;
    }
    filas_ = std::move(repartidas);
    for (auto* const columna : {&x_, &y_, &peso_}) {
        columna->reserve(filas_.size());
    }
    for (const auto i : filas_) {
        x_.push_back(arboles.x(i));
        y_.push_back(arboles.y(i));
        peso_.push_back(pesos_.de(i));
    }
}

std::size_t MallaAPA::casilla(double desplazamiento, std::size_t cuantas) const {
    const double posicion = desplazamiento / lado_;
    const auto ultima = static_cast<double>(cuantas - 1);
    return static_cast<std::size_t>(std::clamp(posicion, 0.0, ultima));
}

MallaAPA::Tramo MallaAPA::casillas(double centro, double menos, double mas, std::size_t cuantas) const {
    const double holgura = 1E-6 * lado_; // far more than the rounding of a cell's edge
    return {casilla(centro - menos - holgura, cuantas), casilla(centro + mas + holgura, cuantas)};
}

template <class Visita>
void MallaAPA::recorrer(std::size_t i, double medioLado, Visita visita) const {
    const Tramo enX = casillas(pesos_.arboles().x(i) - x0_, medioLado, medioLado, columnas_);
    const Tramo enY = casillas(pesos_.arboles().y(i) - y0_, medioLado, medioLado, hileras_);
    for (std::size_t columna = enX.desde; columna <= enX.hasta; ++columna) {
        const std::size_t fin = comienzo_[columna * hileras_ + enY.hasta + 1];
        for (std::size_t lugar = comienzo_[columna * hileras_ + enY.desde]; lugar < fin; ++lugar) {
            visita(lugar);
        }
    }
}

void MallaAPA::cuadro(std::size_t i, double medioLado, std::vector<Fila>& halladas) const {
    recorrer(i, medioLado, [&](std::size_t lugar) { halladas.push_back(filas_[lugar]); });
}

void MallaAPA::alAlcance(std::size_t i, double alcance, std::vector<Fila>& halladas) const {
    const double xi = pesos_.arboles().x(i);
    const double yi = pesos_.arboles().y(i);
    const double peso = pesos_.de(i);
    // 2 * W * L <= alcance, as 2 * peso * L <= alcance * (peso + pesoJ): squared, and with no division.
    const double a = 4 * peso * peso;
    const double b = alcance * alcance * (1 + 1E-9);
    const double medioLado = alcance * (peso + mayorPeso_) / (2 * peso);
    recorrer(i, medioLado, [&](std::size_t lugar) {
        const double dx = x_[lugar] - xi;
        const double dy = y_[lugar] - yi;
        const double suma = peso + peso_[lugar];
        if (a * (dx * dx + dy * dy) <= b * (suma * suma)) {
            halladas.push_back(filas_[lugar]);
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
    const double principal = tendida ? xi - x0_ : yi - y0_; // of the subject, along the cells that are walked
    const double otro = tendida ? yi - y0_ : xi - x0_;
    const std::size_t pasos = tendida ? columnas_ : hileras_;
    const std::size_t cuantas = tendida ? hileras_ : columnas_;

    const double s2 = seno * seno;
    const auto visitar = [&](std::size_t desde, std::size_t hasta) {
        for (std::size_t lugar = comienzo_[desde]; lugar < comienzo_[hasta + 1]; ++lugar) {
            const double dx = x_[lugar] - xi;
            const double dy = y_[lugar] - yi;
            const double cruz = direccion.x * dy - direccion.y * dx;
            if (cruz * cruz <= s2 * (dx * dx + dy * dy)) {
                halladas.push_back(filas_[lugar]);
            }
        }
    };
    for (std::size_t paso = 0; paso < pasos; ++paso) {
        const double entra = (static_cast<double>(paso) * lado_ - principal) * pendiente;
        const double sale = entra + lado_ * pendiente;
        const double bajo = otro + std::min(entra, sale) - ancho;
        const double alto = otro + std::max(entra, sale) + ancho;
        if (alto < -lado_ || bajo > static_cast<double>(cuantas + 1) * lado_) {
            continue;
        }
        const Tramo corte = casillas(0, -bajo, alto, cuantas);
        if (tendida) {
            visitar(paso * hileras_ + corte.desde, paso * hileras_ + corte.hasta);
            continue;
        }
        for (std::size_t columna = corte.desde; columna <= corte.hasta; ++columna) {
            visitar(columna * hileras_ + paso, columna * hileras_ + paso);
        }
    }
}

} // namespace varo
