// What the circular crowns have outside of the plot.
#pragma once

#include "basico/Avance.h"
#include "basico/MatrizDinamica.h"
#include "plot/calculo/FilasDeCopas.h"
#include "plot/calculo/Poligono.h"

namespace varo {

/// Areas outside of the plot, in m2.
struct RecorteDeCopas {
    double SupFuera = 0;    ///< beyond the edges
    double SupVertices = 0; ///< of trees on vertices, beyond the two edges that meet there

    friend bool operator==(const RecorteDeCopas&, const RecorteDeCopas&) = default;
};

/// Takes the rows up to the first one whose x is that of a vertex. `conCodigo` tells where the boundary holds
/// the radii (m); `AnguloInterior` is in degrees, one per vertex. What faults is passed over, statement by
/// statement: a variable keeps its value, from edge to edge and from tree to tree, and a test lets its block
/// run.
RecorteDeCopas RecortarCirculos(const FilasDeCopas& copas, const TablaPoligono& Poligono,
                                const MatrizDinamica<double>& AnguloInterior, bool conCodigo,
                                const Avance& avance = {});

} // namespace varo
