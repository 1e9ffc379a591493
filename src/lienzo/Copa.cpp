#include "lienzo/Copa.h"

namespace varo {

namespace {

double RadioPintado(double radio) {
    constexpr double copaPuntual = 0.5;
    return radio == 0 ? copaPuntual : radio;
}

} // namespace

Copa Pintada(const Copa& copa) {
    return {copa.x,
            copa.y,
            RadioPintado(copa.N),
            RadioPintado(copa.E),
            RadioPintado(copa.S),
            RadioPintado(copa.W)};
}

} // namespace varo
