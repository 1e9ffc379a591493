// Plots and jobs at random, most of them with something wrong in them.
#pragma once

#include "lote/TrabajoDePrueba.h"

#include <cstddef>
#include <cstdint>

namespace varo::prueba {

struct ParcelaEstropeada {
    Filas filas;
    TextoDeTrabajo trabajo; ///< for parcela.xls; it asks for results, and sometimes for plot data
};

/// Always the same for one seed, with so many things wrong at most.
ParcelaEstropeada Estropear(std::uint32_t semilla, std::size_t masDefectos = 3);

} // namespace varo::prueba
