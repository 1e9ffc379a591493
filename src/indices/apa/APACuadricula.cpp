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

/// The cells that a band about a line touches. It is walked slice by slice along the axis that the line is
/// nearer to: by columns if that is x, by rows if it is y. So the line rises by at most one cell in a slice.
/// Lengths are in cells, from the grid's corner.
class Franja {
public:
    /// The line goes through `punto`; no point of the band is farther than `semiancho` (m) from it.
    Franja(const Cuadricula& cuadricula, const PuntoAPA& punto, const DireccionAPA& direccion,
           double semiancho)
        : cuadricula_{cuadricula}, porColumnas_{std::abs(direccion.x) >= std::abs(direccion.y)} {
        const double avance = porColumnas_ ? direccion.x : direccion.y;
        const double subida = porColumnas_ ? direccion.y : direccion.x;
        pendiente_ = subida / avance;
        // Measured along a slice, which the line crosses aslant, the band is wider.
        const double lado = cuadricula.lado();
        const double holgura = Cuadricula::holgura;
        const double alLado = semiancho / std::abs(avance) / lado + holgura;
        const double x = (punto.x - cuadricula.extremos().x0) / lado;
        const double y = (punto.y - cuadricula.extremos().y0) / lado;
        const double entra = porColumnas_ ? y - x * pendiente_ : x - y * pendiente_;
        bajo_ = entra + std::min(pendiente_, 0.0) - alLado;
        alto_ = entra + std::max(pendiente_, 0.0) + alLado;
    }

    /// Visits the places of the trees in those cells.
    template <class Visita>
    void recorrer(Visita visita) const {
        const std::size_t rebanadas = porColumnas_ ? cuadricula_.columnas() : cuadricula_.hileras();
        const std::size_t casillas = porColumnas_ ? cuadricula_.hileras() : cuadricula_.columnas();
        const auto ultima = static_cast<double>(casillas - 1);
        for (std::size_t rebanada = 0; rebanada < rebanadas; ++rebanada) {
            const double subida = static_cast<double>(rebanada) * pendiente_;
            const double bajo = bajo_ + subida;
            const double alto = alto_ + subida;
            if (alto < -1 || bajo > ultima + 2) {
                continue; // beside the grid
            }
            recorrerTramo(rebanada, {casillaEn(bajo, ultima), casillaEn(alto, ultima)}, visita);
        }
    }

private:
    /// What stands beyond the ends is in the cells at the ends.
    static std::size_t casillaEn(double posicion, double ultima) {
        return static_cast<std::size_t>(std::clamp(posicion, 0.0, ultima));
    }

    template <class Visita>
    void recorrerTramo(std::size_t rebanada, const Cuadricula::Tramo& tramo, Visita visita) const {
        if (porColumnas_) {
            cuadricula_.recorrer(rebanada, tramo, visita);
            return;
        }
        for (std::size_t columna = tramo.desde; columna <= tramo.hasta; ++columna) {
            cuadricula_.recorrer(columna, {rebanada, rebanada}, visita);
        }
    }

    const Cuadricula& cuadricula_;
    bool porColumnas_;
    double pendiente_ = 0;       ///< rise of the line from one slice to the next, -1 to 1
    double bajo_ = 0, alto_ = 0; ///< the edges of the band in the first slice
};

} // namespace

CuadriculaAPA::CuadriculaAPA(const PesosAPA& pesos)
    : pesos_{pesos}, cuadricula_{CuadriculaDe(pesos.arboles())} {
    const auto& [x0, y0, x1, y1] = cuadricula_.extremos();
    extension_ = (x1 - x0) + (y1 - y0);
    mayorCoordenada_ = std::max({std::abs(x0), std::abs(x1), std::abs(y0), std::abs(y1)});
    peso_.reserve(cuadricula_.cuantos());
    for (const Fila i : cuadricula_.filas()) {
        peso_.push_back(pesos.de(i));
        mayorPeso_ = std::max(mayorPeso_, peso_.back());
    }
}

bool CuadriculaAPA::tiene(std::size_t i) const {
    return !pesos_.arboles().sinTamano(i) && pesos_.arboles().d(i) != 0;
}

void CuadriculaAPA::cuadro(std::size_t i, double medioLado, std::vector<Fila>& halladas) const {
    assert(tiene(i) && medioLado >= 0);
    const Arboles& arboles = pesos_.arboles();
    cuadricula_.recorrerCuadro(arboles.x(i), arboles.y(i), medioLado,
                               [&](std::size_t lugar) { halladas.push_back(cuadricula_.fila(lugar)); });
}

void CuadriculaAPA::alAlcance(std::size_t i, double alcance, std::vector<Fila>& halladas) const {
    assert(tiene(i) && alcance >= 0);
    constexpr double holgura = 1 + 1E-9; // docs/apa.md, "The trees within reach"
    const double xi = pesos_.arboles().x(i);
    const double yi = pesos_.arboles().y(i);
    const double peso = pesos_.de(i);
    // 2 * W * L <= alcance, as 2 * peso * L <= alcance * (peso + pesoJ): squared, and with no division.
    const double a = 4 * peso * peso;
    const double b = alcance * alcance * holgura;
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

void CuadriculaAPA::enfiladas(std::size_t i, const DireccionAPA& direccion, double seno,
                              std::vector<Fila>& halladas) const {
    assert(tiene(i) && seno >= 0);
    assert(std::abs(std::hypot(direccion.x, direccion.y) - 1) < 1E-9);
    const double xi = pesos_.arboles().x(i);
    const double yi = pesos_.arboles().y(i);
    const double seno2 = seno * seno;
    // A tree at a distance L within that angle stands within seno * L of the line, L at most the extension.
    const Franja franja{cuadricula_, {xi, yi}, direccion, seno * extension_};
    franja.recorrer([&](std::size_t lugar) {
        const double dx = cuadricula_.x(lugar) - xi;
        const double dy = cuadricula_.y(lugar) - yi;
        const double alejamiento = direccion.x * dy - direccion.y * dx; // from the line
        if (alejamiento * alejamiento <= seno2 * (dx * dx + dy * dy)) {
            halladas.push_back(cuadricula_.fila(lugar));
        }
    });
}

} // namespace varo
