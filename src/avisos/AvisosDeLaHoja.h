// What looks wrong in the open sheet, with the columns and the options that are chosen now.
#pragma once

#include "revision/Hallazgo.h"

#include <vector>

namespace varo {

class Programa;

/// What somebody means to compute, of all that the options have on.
struct LoPedido {
    bool indices = true;
    bool datosDeParcela = true;
};

/// Whether each role has a column of the open sheet.
bool HayColumnasElegidas(Programa& programa);

/// The findings, the gravest first, once the columns are chosen. The boundary is worked out as the map that
/// is about to be drawn will have it. No window and no variable changes.
std::vector<Hallazgo> AvisosDeLaHoja(Programa& programa, const LoPedido& pedido);

} // namespace varo
