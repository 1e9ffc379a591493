// The plot boundary as a shared table: one row per vertex, the last one repeating the first.
#pragma once

#include "basico/ErrorEjecucion.h"
#include "basico/Valor.h"
#include "plot/calculo/Module1.h"

#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace varo {

/// Columns: x, y (m), then the tree code when the source has one, then the basal area (m2), the mean crown
/// radius (m) and the text of the tree index. Without a code the later columns stand one to the left.
class TablaPoligono {
public:
    void vaciar() {
        filas_.clear();
        x_.clear();
        y_.clear();
    }

    void anadir(double x, double y, std::vector<Valor> resto) {
        std::vector<Valor> fila{Valor{x}, Valor{y}};
        fila.insert(fila.end(), std::make_move_iterator(resto.begin()), std::make_move_iterator(resto.end()));
        filas_.push_back(std::move(fila));
        x_.push_back(x);
        y_.push_back(y);
    }

    [[nodiscard]] int filas() const { return static_cast<int>(filas_.size()); }

    /// Out of bounds throws 9.
    const Valor& operator()(int columna, int fila) const {
        if (fila < 0 || fila >= filas() || columna < 0 ||
            columna >= static_cast<int>(filas_[static_cast<std::size_t>(fila)].size())) {
            throw ErrorEjecucion{fallo::fueraDeIndice};
        }
        return filas_[static_cast<std::size_t>(fila)][static_cast<std::size_t>(columna)];
    }

    [[nodiscard]] ContornoXY contorno() const { return {x_, y_}; }

private:
    std::vector<std::vector<Valor>> filas_;
    std::vector<double> x_;
    std::vector<double> y_;
};

} // namespace varo
