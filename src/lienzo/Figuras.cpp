#include "lienzo/Figuras.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace varo {

namespace {

template <class... Casos>
struct SegunFigura : Casos... {
    using Casos::operator()...;
};
template <class... Casos>
SegunFigura(Casos...) -> SegunFigura<Casos...>;

bool EnElSector(const Arco& arco, double dx, double dy) {
    double angulo = std::atan2(dy / arco.semiejeY(), dx / arco.semiejeX());
    if (angulo < 0) {
        angulo += 2 * std::numbers::pi;
    }
    if (arco.inicio < arco.fin) {
        return angulo >= arco.inicio && angulo <= arco.fin;
    }
    return angulo >= arco.inicio || angulo <= arco.fin;
}

bool CubreElArco(const Arco& arco, double x, double y) {
    const double dx = x - arco.x;
    const double dy = y - arco.y;
    const double enX = dx / arco.semiejeX();
    const double enY = dy / arco.semiejeY();
    return enX * enX + enY * enY <= 1 && EnElSector(arco, dx, dy);
}

bool CubreElCirculo(const Circulo& circulo, double x, double y) {
    const double dx = x - circulo.x;
    const double dy = y - circulo.y;
    return dx * dx + dy * dy <= circulo.radio * circulo.radio;
}

/// The radii reach a little further, so that no point is left out that a formula takes in by rounding, or
/// because the square of a tiny number is 0.
Recuadro RecuadroEnTorno(const Copa& copa) {
    const auto alcance = [](double radio) {
        constexpr double redondeo = 1 + 1E-12;
        constexpr double cuadradoNulo = 1E-150;
        return std::abs(radio) * redondeo + cuadradoNulo;
    };
    return {copa.x - alcance(copa.W), copa.y - alcance(copa.S), copa.x + alcance(copa.E),
            copa.y + alcance(copa.N)};
}

Recuadro RecuadroEnTorno(double x, double y, double semiejeX, double semiejeY) {
    return RecuadroEnTorno({x, y, semiejeY, semiejeX, semiejeY, semiejeX});
}

} // namespace

Relleno RellenoDe(const Figura& figura) {
    return std::visit(SegunFigura{[](const Arco& arco) { return arco.relleno; },
                                  [](const Circulo& circulo) { return circulo.relleno; },
                                  [](const CopaLlena& llena) { return Relleno{llena.color}; },
                                  [](const auto& /*sinRelleno*/) { return Relleno{}; }},
                      figura);
}

bool Cubre(const Figura& figura, double x, double y) {
    if (!RellenoDe(figura)) {
        return false;
    }
    return std::visit(SegunFigura{[&](const Arco& arco) { return CubreElArco(arco, x, y); },
                                  [&](const Circulo& circulo) { return CubreElCirculo(circulo, x, y); },
                                  [&](const CopaLlena& llena) { return llena.copa.cubre(x, y); },
                                  [](const auto& /*sinRelleno*/) { return false; }},
                      figura);
}

Recuadro RecuadroDe(const Figura& figura) {
    return std::visit(
        SegunFigura{[](const Arco& arco) {
                        return RecuadroEnTorno(arco.x, arco.y, arco.semiejeX(), arco.semiejeY());
                    },
                    [](const Circulo& circulo) {
                        return RecuadroEnTorno(circulo.x, circulo.y, circulo.radio, circulo.radio);
                    },
                    [](const CopaLlena& llena) { return RecuadroEnTorno(llena.copa); },
                    [](const auto& /*sinRelleno*/) { return Recuadro{}; }},
        figura);
}

} // namespace varo
