// The cells of one worksheet, of whatever format.
#pragma once

#include "motor/CeldasJuntas.h"

#include <cstddef>
#include <optional>

namespace varo {

/// First and last rows and columns, counted from 0.
struct ZonaDeHoja {
    std::size_t primeraFila = 0;
    std::size_t ultimaFila = 0;
    std::size_t primeraColumna = 0;
    std::size_t ultimaColumna = 0;
};

struct HojaDeCalculo {
    /// The cells that hold something, by rows and within a row by columns. A formatted cell without content
    /// is not one of them; one that holds an error is, with a null. Of two in one place the last one counts.
    CeldasJuntas celdas;
    /// From the first of them, by rows and by columns, to the last that a person sees: nulls and empty texts
    /// make no sheet longer. Nothing where there is none to see.
    std::optional<ZonaDeHoja> zonaUsada;

    /// Puts the cells in order and finds the used rectangle: once all are in.
    void cerrar();
};

} // namespace varo
