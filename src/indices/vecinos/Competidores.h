// The walk over the neighbours of a tree that ISC, AOI, IDP and DR share.
#pragma once

#include "indices/vecinos/Arboles.h"
#include "indices/vecinos/Lado.h"
#include "indices/vecinos/Marcas.h"
#include "plot/calculo/Cuadricula.h"

#include <span>

namespace varo {

/// Visits, in the order of `filas`, the trees with a size that may compete with the subject of the pair, and
/// notes in the pair which one is at work. `tamano` is the size that the side rule compares. `visita` takes a
/// neighbour and its size; where it gives false the walk ends, and gives false too. Faults of `tamano`.
template <double (Arboles::*tamano)(std::size_t) const, class Visita>
bool RecorrerCompetidores(const Arboles& arboles, std::span<const Cuadricula::Fila> filas, Lado lado,
                          Pareja& pareja, Visita visita) {
    const std::size_t i = pareja.sujeto;
    const double suyo = (arboles.*tamano)(i);
    for (const std::size_t j : filas) {
        if (j == i || arboles.sinTamano(j)) {
            continue;
        }
        pareja.vecino = j;
        const double deJ = (arboles.*tamano)(j);
        if (PuedeCompetir(lado, deJ, suyo) && !visita(j, deJ)) {
            return false;
        }
    }
    pareja.vecino = i;
    return true;
}

} // namespace varo
