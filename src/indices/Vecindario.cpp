#include "indices/Vecindario.h"

#include <algorithm>

namespace varo {

namespace {

bool EsMesurado(const Arboles& arboles, std::size_t i) {
    constexpr double desmedido = 1E+100;
    const auto& celdas = arboles.celdas();
    return celdas.x.legible(i) && celdas.y.legible(i) && celdas.tamano.legible(i) &&
           std::abs(arboles.x(i)) < desmedido && std::abs(arboles.y(i)) < desmedido &&
           std::abs(arboles.tamano(i)) < desmedido;
}

/// Beyond what rounding can move a distance.
double ConHolgura(double distancia) {
    return distancia * (1 + 1E-9);
}

} // namespace

Vecindario::Vecindario(const Arboles& arboles) {
    std::vector<Fila> conTamano;
    for (std::size_t i = 0; i < arboles.cuantos(); ++i) {
        if (arboles.sinTamano(i)) {
            continue;
        }
        if (!EsMesurado(arboles, i)) {
            fiable_ = false;
            return;
        }
        conTamano.push_back(static_cast<Fila>(i));
    }
    if (conTamano.empty()) {
        return;
    }
    medir(arboles, conTamano);
    repartir(arboles, conTamano);
    comparteSitio_.resize(arboles.cuantos());
    std::vector<Fila> enElSitio;
    for (const Fila i : conTamano) {
        buscar(i, 0, enElSitio);
        comparteSitio_[i] = !enElSitio.empty();
    }
}

void Vecindario::medir(const Arboles& arboles, const std::vector<Fila>& conTamano) {
    xDe_.resize(arboles.cuantos());
    yDe_.resize(arboles.cuantos());
    mayorD_ = arboles.d(conTamano.front());
    x0_ = arboles.x(conTamano.front());
    y0_ = arboles.y(conTamano.front());
    double x1 = x0_;
    double y1 = y0_;
    for (const Fila i : conTamano) {
        xDe_[i] = arboles.x(i);
        yDe_[i] = arboles.y(i);
        mayorD_ = std::max(mayorD_, arboles.d(i));
        x0_ = std::min(x0_, xDe_[i]);
        y0_ = std::min(y0_, yDe_[i]);
        x1 = std::max(x1, xDe_[i]);
        y1 = std::max(y1, yDe_[i]);
    }
    constexpr double arbolesPorCasilla = 2;
    const double ancho = x1 - x0_;
    const double alto = y1 - y0_;
    const auto n = static_cast<double>(conTamano.size());
    extension_ = ConHolgura(Distancia(x0_, y0_, x1, y1));
    // The second one keeps the number of cells in proportion to the trees on a long and narrow plot.
    lado_ = std::max(std::sqrt(ancho * alto * arbolesPorCasilla / n), std::max(ancho, alto) / n);
    if (!(lado_ > 0)) {
        lado_ = 1;
    }
    columnas_ = static_cast<std::size_t>(ancho / lado_) + 1;
    hileras_ = static_cast<std::size_t>(alto / lado_) + 1;
}

std::size_t Vecindario::casilla(double desplazamiento, double lado, std::size_t cuantas) {
    const double posicion = desplazamiento / lado;
    if (!(posicion > 0)) {
        return 0;
    }
    return posicion < static_cast<double>(cuantas) ? static_cast<std::size_t>(posicion) : cuantas - 1;
}

void Vecindario::repartir(const Arboles& arboles, const std::vector<Fila>& conTamano) {
    const auto casillaDe = [&](Fila i) {
        return casilla(yDe_[i] - y0_, lado_, hileras_) * columnas_ + casilla(xDe_[i] - x0_, lado_, columnas_);
    };
    comienzo_.assign(columnas_ * hileras_ + 1, 0);
    for (const Fila i : conTamano) {
        ++comienzo_[casillaDe(i) + 1];
    }
    for (std::size_t c = 1; c < comienzo_.size(); ++c) {
        comienzo_[c] += comienzo_[c - 1];
    }
    std::vector<std::size_t> libre = comienzo_;
    filas_.resize(conTamano.size());
    x_.resize(conTamano.size());
    y_.resize(conTamano.size());
    d_.resize(conTamano.size());
    for (const Fila i : conTamano) {
        const std::size_t sitio = libre[casillaDe(i)]++;
        filas_[sitio] = i;
        x_[sitio] = arboles.x(i);
        y_[sitio] = arboles.y(i);
        d_[sitio] = arboles.d(i);
    }
}

/// `alcanceDe` gives the reach of the tree in a place of the grid; none of them is beyond `mayorAlcance`.
template <class Alcance>
void Vecindario::buscarEn(std::size_t i, double mayorAlcance, Alcance alcanceDe,
                          std::vector<Fila>& cercanas) const {
    cercanas.clear();
    const double x = xDe_[i];
    const double y = yDe_[i];
    // Two points whose difference vanishes when squared may stand on either side of a cell's edge.
    const double margen = mayorAlcance + lado_ * 1E-6;
    const std::size_t primera = casilla(x - margen - x0_, lado_, columnas_);
    const std::size_t ultima = casilla(x + margen - x0_, lado_, columnas_);
    const std::size_t hileraUltima = casilla(y + margen - y0_, lado_, hileras_);
    for (std::size_t h = casilla(y - margen - y0_, lado_, hileras_); h <= hileraUltima; ++h) {
        const std::size_t fin = comienzo_[h * columnas_ + ultima + 1];
        for (std::size_t s = comienzo_[h * columnas_ + primera]; s < fin; ++s) {
            const double dx = x_[s] - x;
            const double dy = y_[s] - y;
            const double alcance = alcanceDe(s);
            if (dx * dx + dy * dy <= alcance * alcance && filas_[s] != i) {
                cercanas.push_back(filas_[s]);
            }
        }
    }
    std::sort(cercanas.begin(), cercanas.end());
}

void Vecindario::buscar(std::size_t i, double radio, std::vector<Fila>& cercanas) const {
    const double alcance = ConHolgura(std::max(radio, 0.0));
    buscarEn(
        i, alcance, [&](std::size_t) { return alcance; }, cercanas);
}

void Vecindario::buscarPorTamano(std::size_t i, double porD, double radio,
                                 std::vector<Fila>& cercanas) const {
    const auto alcanceDe = [&](double d) { return ConHolgura(std::max(porD * d, radio)); };
    buscarEn(
        i, alcanceDe(mayorD_), [&](std::size_t s) { return alcanceDe(d_[s]); }, cercanas);
}

} // namespace varo
