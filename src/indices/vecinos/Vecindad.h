// What the families of neighbours share in a run: the trees, their heights over the boundary, and the
// searches that leave out the trees that do nothing.
#pragma once

#include "indices/vecinos/Arboles.h"
#include "indices/vecinos/Borde.h"
#include "indices/vecinos/BuscadorDeCercanos.h"
#include "indices/vecinos/PrimerCompetidor.h"

#include <optional>
#include <vector>

namespace varo {

struct Vecindad {
    /// The trees and the boundary must outlive it.
    Vecindad(const Arboles& arboles_, const ContornoXY& contorno);

    const Arboles& arboles;
    Borde borde;
    BuscadorDeCercanos buscador;
    std::optional<PrimerCompetidor> primero; ///< only with a reliable search
    std::vector<Cuadricula::Fila> todas;     ///< every tree, in the order of the rows
};

} // namespace varo
