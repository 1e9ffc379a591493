#include "indices/vecinos/Vecindad.h"

#include <numeric>

namespace varo {

Vecindad::Vecindad(const Arboles& arboles_, const ContornoXY& contorno)
    : arboles{arboles_}, borde{arboles_, contorno}, vecindario{arboles_}, todas(arboles_.cuantos()) {
    if (vecindario.fiable()) {
        primero.emplace(arboles_);
    }
    std::iota(todas.begin(), todas.end(), Vecindario::Fila{0});
}

} // namespace varo
