// The cells of the data grid, tree by tree. The first row holds the headers.
#pragma once

#include "formularios/Rejilla.h"

#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

namespace varo {

/// What `leer` makes of each tree; it takes the row.
template <class Leer>
auto PorArbol(const Rejilla& rejilla, Leer leer) {
    std::vector<std::decay_t<std::invoke_result_t<Leer, int>>> valores;
    valores.reserve(static_cast<std::size_t>(rejilla.Rows()));
    for (int fila = 1; fila < rejilla.Rows(); ++fila) {
        valores.push_back(leer(fila));
    }
    return valores;
}

/// The texts of a column.
inline std::vector<std::string> TextosDeColumna(const Rejilla& rejilla, int columna) {
    return PorArbol(rejilla,
                    [&](int fila) -> const std::string& { return rejilla.TextMatrix(fila, columna); });
}

} // namespace varo
