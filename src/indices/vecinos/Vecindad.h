// What the families of neighbours share in a run: the trees, their heights over the boundary, and ways to
// leave out those that do nothing.
#pragma once

#include "indices/vecinos/Arboles.h"
#include "indices/vecinos/Borde.h"
#include "indices/vecinos/PrimerCompetidor.h"
#include "indices/vecinos/Vecindario.h"

#include <optional>
#include <vector>

namespace varo {

struct Vecindad {
    /// The trees and the boundary have to outlive it.
    Vecindad(const Arboles& arboles_, const ContornoXY& contorno);

    const Arboles& arboles;
    Borde borde;
    Vecindario vecindario;
    std::optional<PrimerCompetidor> primero; ///< only where the grid is reliable
    std::vector<Vecindario::Fila> todas;     ///< every tree, in the order of the rows
};

} // namespace varo
