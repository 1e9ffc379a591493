#include "indices/vecinos/Vecindad.h"

#include <numeric>

namespace varo {

Vecindad::Vecindad(const Arboles& arboles_, const ContornoXY& contorno)
    : arboles{arboles_}, borde{arboles_, contorno}, buscador{arboles_}, todas(arboles_.cuantos()) {
    if (buscador.fiable()) {
        primero.emplace(arboles_);
    }
    std::iota(todas.begin(), todas.end(), Cuadricula::Fila{0});
}

} // namespace varo
