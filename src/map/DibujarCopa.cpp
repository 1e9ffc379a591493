#include "map/DibujarCopa.h"

#include "plot/calculo/Module1.h"

namespace varo {

namespace {

// Meant: quarter turns of three digits, rounded to 32 bits.
constexpr double este = 0;
constexpr auto norte = static_cast<double>(1.57F);
constexpr auto oeste = static_cast<double>(3.14F);
constexpr auto sur = static_cast<double>(4.712F);

} // namespace

void DibujarCopa(Lienzo& lienzo, const Copa& copa) {
    const auto [x, y, N, E, S, W] = Pintada(copa);
    lienzo.arco(x, y, Maximo(N, E), este, norte, Dividir(N, E));
    lienzo.arco(x, y, Maximo(S, E), sur, este, Dividir(S, E));
    lienzo.arco(x, y, Maximo(S, W), oeste, sur, Dividir(S, W));
    lienzo.arco(x, y, Maximo(N, W), norte, oeste, Dividir(N, W));
    lienzo.punto(x, y);
}

void DibujarCirculo(Lienzo& lienzo, const Copa& copa) {
    lienzo.circulo(copa.x, copa.y, (copa.N + copa.E + copa.S + copa.W) / 4);
    lienzo.punto(copa.x, copa.y);
}

} // namespace varo
