// What the findings about the open sheet depend on.
#pragma once

#include "avisos/AvisosDeLaHoja.h"
#include "plot/calculo/Unidades.h"
#include "revision/ParcelaPorRevisar.h"

#include <string>
#include <vector>

namespace varo {

/// While it is equal to an earlier one, the sheet has the same findings: a sheet does not change while it is
/// open.
struct HojaPorRevisar {
    std::string archivo;
    std::string hoja;
    DatosDeCopa copa = DatosDeCopa::CuatroRadios;
    bool conCodigo = false;
    std::vector<int> columnas; ///< the grid column of each role
    int columnaDelTamano = 0;
    OpcionesPorRevisar opciones;

    bool operator==(const HojaPorRevisar&) const = default;
};

/// Once the columns are chosen.
HojaPorRevisar LaHojaPorRevisar(Programa& programa, const LoPedido& pedido);

} // namespace varo
