#include "indices/vecinos/CopasDeArboles.h"

#include "basico/Aritmetica.h"
#include "basico/Saltando.h"

#include <cassert>
#include <limits>

namespace varo {

CopasDeArboles::CopasDeArboles(const Arboles& arboles, DatosDeCopa datos, int factor)
    : arboles_{arboles}, datos_{datos}, factor_{factor}, copas_(arboles.cuantos()) {
    assert(datos != DatosDeCopa::RadioMedio);
    for (std::size_t i = 0; i < copas_.size(); ++i) {
        copas_[i].x = std::numeric_limits<double>::quiet_NaN();
        Saltando([&] { copas_[i] = calcular(i); }); // `de` throws the fault again when it is asked for
    }
}

/// The radii first: of several wrong cells the first one that a run reads is told.
Copa CopasDeArboles::calcular(std::size_t i) const {
    const auto metros = [&](std::size_t medida, int divisor) {
        return Dividir(arboles_.celdas().copa[medida].numero(i), divisor);
    };
    Copa copa;
    if (datos_ == DatosDeCopa::CuatroRadios) {
        copa.N = metros(0, factor_);
        copa.E = metros(1, factor_);
        copa.S = metros(2, factor_);
        copa.W = metros(3, factor_);
    } else {
        copa.N = copa.S = metros(0, 2 * factor_);
        copa.E = copa.W = metros(1, 2 * factor_);
    }
    copa.x = arboles_.x(i);
    copa.y = arboles_.y(i);
    return copa;
}

} // namespace varo
