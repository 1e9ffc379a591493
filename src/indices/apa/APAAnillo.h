// The ring that the sides of a cell make about its tree, and what it says about the other trees: which ones
// can matter to the cell. docs/apa.md, "The ring".
#pragma once

#include "indices/apa/APAGiro.h"

#include <vector>

namespace varo {

struct AnilloAPA {
    /// A side, as the way to its virtual neighbour.
    struct LadoDelAnillo {
        VecinosAPA::Fila arbol = 0; ///< the tree behind it
        PuntoAPA vecino;            ///< from the tree (m)
        double distancia = 0;       ///< its length (m)
        double inclinacion = 0;     ///< the sine between it and the x axis
        double seno = 0; ///< nearer than this to its line (the sine of the angle), a circle may fault
    };
    /// The circle through the tree, a side and the next one.
    struct CirculoDelAnillo {
        PuntoAPA centro; ///< from the tree (m)
        double radio = 0;
        double seno = 0; ///< between the two sides
    };

    std::vector<LadoDelAnillo> lados;
    std::vector<CirculoDelAnillo> circulos;
    double vecinoMasCercano = 0; ///< m: the distance of the nearest neighbour (m)
    double tolerancia = 0;       ///< what stands so far outside of all circles matters to none (m)
};

/// Makes the ring of a turn that has ended; false where the sides do not close about the tree. No coordinate
/// of a virtual neighbour is larger than `medida` (m).
bool CerrarAnillo(const VecinosAPA& vecinos, const GiroAPA& giro, double medida, AnilloAPA& anillo);

} // namespace varo
