#include "indices/vecinos/Borde.h"

#include "basico/EnLugar.h"
#include "basico/Saltando.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>

namespace varo {

namespace {

/// The heights of a point over the sides, one after another, in the steps of AlturaTriangulo but with no test
/// for a fault between them, so that several are taken side by side. What neighbouring sides share is
/// computed once. A step that would fault leaves an infinity or a NaN, and none of the later ones makes a
/// number of it again.
class AlturasSinPruebas {
public:
    AlturasSinPruebas(const ContornoXY& contorno, std::span<const double> lados, double x, double y)
        : contorno_{contorno}, lados_{lados}, x_{x}, y_{y}, hastaVertice_{distancia(0)} {}

    /// The least of the heights; nothing where one of them faults.
    [[nodiscard]] std::optional<double> minima() {
        std::array<double, aLaVez> minimas;
        minimas.fill(std::numeric_limits<double>::infinity());
        std::array<double, aLaVez> nulos{}; // no number, once a height is none
        std::size_t k = 0;
        for (; k + aLaVez <= lados_.size(); k += aLaVez) {
            medir<aLaVez>(k, minimas, nulos);
        }
        for (; k < lados_.size(); ++k) {
            medir<1>(k, minimas, nulos);
        }
        const bool sinFallo = std::all_of(nulos.begin(), nulos.end(), [](double nulo) { return nulo == 0; });
        return sinFallo ? std::optional{*std::min_element(minimas.begin(), minimas.end())} : std::nullopt;
    }

private:
    static constexpr std::size_t aLaVez = 4;

    [[nodiscard]] double distancia(std::size_t vertice) const {
        const double dx = contorno_.x[vertice] - x_;
        const double dy = contorno_.y[vertice] - y_;
        return std::sqrt(dx * dx + dy * dy);
    }

    template <std::size_t cuantos>
    void medir(std::size_t k, std::array<double, aLaVez>& minimas, std::array<double, aLaVez>& nulos) {
        std::array<double, cuantos + 1> hasta;
        hasta[0] = hastaVertice_;
        for (std::size_t n = 0; n < cuantos; ++n) {
            hasta[n + 1] = distancia(k + n + 1);
        }
        hastaVertice_ = hasta[cuantos];
        for (std::size_t n = 0; n < cuantos; ++n) {
            const double a = hasta[n];
            const double b = lados_[k + n];
            const double c = hasta[n + 1];
            const double s = ((a + b) + c) / 2.0;
            const double area = std::sqrt(((s * (s - a)) * (s - b)) * (s - c));
            const double altura = (area + area) / b;
            nulos[n] += altura * 0.0;
            minimas[n] = altura < minimas[n] ? altura : minimas[n];
        }
    }

    const ContornoXY& contorno_;
    std::span<const double> lados_;
    double x_, y_;
    double hastaVertice_; ///< from the point to the first vertex of the side that comes next (m)
};

} // namespace

Borde::Borde(const Arboles& arboles, const ContornoXY& contorno)
    : arboles_{arboles}, contorno_{contorno}, porArbol_(arboles.cuantos()), estimadas_(arboles.cuantos()) {
    assert(contorno.x.size() == contorno.y.size());
    for (std::size_t k = 0; k + 1 < contorno.x.size(); ++k) {
        lados_.push_back(Distancia(contorno.x[k], contorno.y[k], contorno.x[k + 1], contorno.y[k + 1]));
    }
    if (!lados_.empty()) {
        agruparLados();
    }
}

void Borde::agruparLados() {
    const auto& [x, y] = contorno_;
    const auto [menorX, mayorX] = std::minmax_element(x.begin(), x.end());
    const auto [menorY, mayorY] = std::minmax_element(y.begin(), y.end());
    x0_ = *menorX;
    x1_ = *mayorX;
    y0_ = *menorY;
    y1_ = *mayorY;
    grupos_.resize((lados_.size() + aLaVez - 1) / aLaVez);
    for (std::size_t n = 0; n < grupos_.size() * aLaVez; ++n) {
        const std::size_t k = std::min(n, lados_.size() - 1);
        Lados& grupo = grupos_[n / aLaVez];
        grupo.x[n % aLaVez] = x[k];
        grupo.y[n % aLaVez] = y[k];
        grupo.haciaX[n % aLaVez] = x[k + 1] - x[k];
        grupo.haciaY[n % aLaVez] = y[k + 1] - y[k];
        grupo.porLargo[n % aLaVez] = 1 / lados_[k];
    }
}

/// Twice the area A of the triangle of tree and side is the side's length times the height, and comes without
/// a root from the cross product. AlturaTriangulo takes A by Heron's formula. Let no vertex be farther than D
/// from the tree, so that the half sum s of the sides is at most 2 D, and let u = 2^-53. Each difference of
/// the formula, such as s - a, is wrong by 10 u s at most, and not below A^2 / s^3, as the other factors are
/// not above s. With 2 A >= 1E-5 D^2 it is right to 640 u / 1E-10, less than 1 in 1000, and so positive; the
/// height comes out no more than 2 in 1000 too small or too large; the rounding of the cross product is
/// nothing beside it. Beyond the bounds of D a product might leave the range of a number.
double Borde::estimar(std::size_t i) const {
    constexpr double menorD = 1E-60;
    constexpr double mayorD = 1E+60;
    const double x = arboles_.x(i);
    const double y = arboles_.y(i);
    const double D =
        std::max(std::abs(x - x0_), std::abs(x - x1_)) + std::max(std::abs(y - y0_), std::abs(y - y1_));
    if (lados_.empty() || !(D > menorD && D < mayorD)) {
        return 0;
    }
    std::array<double, aLaVez> cruces;
    std::array<double, aLaVez> alturas;
    cruces.fill(std::numeric_limits<double>::infinity());
    alturas.fill(std::numeric_limits<double>::infinity());
    for (const Lados& lados : grupos_) {
        for (std::size_t n = 0; n < aLaVez; ++n) {
            const double cruz =
                std::abs((x - lados.x[n]) * lados.haciaY[n] - (y - lados.y[n]) * lados.haciaX[n]);
            const double altura = cruz * lados.porLargo[n];
            cruces[n] = cruz < cruces[n] ? cruz : cruces[n];
            alturas[n] = altura < alturas[n] ? altura : alturas[n];
        }
    }
    const bool sinFallo = *std::min_element(cruces.begin(), cruces.end()) >= 1E-5 * D * D;
    return sinFallo ? *std::min_element(alturas.begin(), alturas.end()) : 0;
}

std::optional<bool> Borde::esMenorSinDuda(std::size_t i, double limite) {
    constexpr double holgura = 1.01;
    auto& estimada = estimadas_[i];
    if (!estimada) {
        estimada = estimar(i);
    }
    if (*estimada == 0) {
        return std::nullopt;
    }
    if (*estimada >= limite * holgura) {
        return false;
    }
    return *estimada * holgura < limite ? std::optional{true} : std::nullopt;
}

bool Borde::algunaAlturaMenor(std::size_t i, double limite) {
    if (const auto esMenor = esMenorSinDuda(i, limite)) {
        return *esMenor;
    }
    const Alturas& suyas = alturas(i);
    if (suyas.minima < limite) {
        return true;
    }
    exigirSinFallo(i, suyas);
    return false;
}

bool Borde::algunaAlturaMenorOIgual(std::size_t i, double limite) {
    if (const auto esMenor = esMenorSinDuda(i, limite)) {
        return *esMenor;
    }
    const Alturas& suyas = alturas(i);
    if (!lados_.empty() && suyas.minima <= limite) {
        return true;
    }
    exigirSinFallo(i, suyas);
    return false;
}

const Borde::Alturas& Borde::alturas(std::size_t i) {
    assert(i < porArbol_.size());
    Alturas& suyas = porArbol_[i];
    if (!suyas.calculadas) {
        suyas = calcular(i);
        suyas.calculadas = true;
    }
    return suyas;
}

Borde::Alturas Borde::calcular(std::size_t i) const {
    if (lados_.empty()) {
        return {};
    }
    const double x = arboles_.x(i);
    const double y = arboles_.y(i);
    if (const auto minima = AlturasSinPruebas{contorno_, lados_, x, y}.minima()) {
        return {.minima = *minima};
    }
    return calcularPasoAPaso(x, y);
}

/// Side by side, up to the one that faults.
Borde::Alturas Borde::calcularPasoAPaso(double x, double y) const {
    Alturas suyas;
    std::size_t k = 0;
    const auto fallado = Saltando([&] {
        double hastaVertice = Distancia(x, y, contorno_.x[0], contorno_.y[0]);
        for (; k < lados_.size(); ++k) {
            const double hastaSiguiente = Distancia(x, y, contorno_.x[k + 1], contorno_.y[k + 1]);
            const double area = AreaTrianguloLados(hastaVertice, lados_[k], hastaSiguiente);
            suyas.minima = std::min(suyas.minima, Dividir(area + area, lados_[k]));
            hastaVertice = hastaSiguiente;
        }
    });
    if (fallado) {
        suyas.ladoConFallo = k;
    }
    return suyas;
}

void Borde::exigirSinFallo(std::size_t i, const Alturas& alturas) const {
    assert(alturas.calculadas);
    if (alturas.ladoConFallo == ninguno) {
        return;
    }
    const std::size_t k = alturas.ladoConFallo;
    EnLugar([k] { return "lado " + std::to_string(k + 1) + " del contorno"; },
            [&] {
                AlturaTriangulo(arboles_.x(i), arboles_.y(i), contorno_.x[k], contorno_.y[k],
                                contorno_.x[k + 1], contorno_.y[k + 1]);
            });
}

} // namespace varo
