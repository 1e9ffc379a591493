// A uniform grid over rectangles: it finds those about a point without looking at the others.
#pragma once

#include "lienzo/Figuras.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace varo {

/// Rectangles are numbered from 0 as they come. The cells are made at the first question, and anew when the
/// rectangles are twice as many: then no cell is smaller than a usual rectangle, and there are about as many
/// cells as rectangles. What comes between goes into the cells there are.
class Reticula {
public:
    using Numero = std::uint32_t;

    void vaciar() { *this = {}; }
    void anadir(const Recuadro& recuadro) { recuadros_.push_back(recuadro); }

    /// The last rectangle about a point, and maybe near it, that passes `prueba(numero)`.
    template <class Prueba>
    std::optional<Numero> ultimaEn(double x, double y, Prueba prueba) {
        if (repartidos_ < recuadros_.size()) {
            ponerAlDia();
        }
        if (recuadros_.empty()) {
            return std::nullopt;
        }
        const auto& enSuCasilla = casillas_[columna(x) * hileras_ + hilera(y)];
        const auto hallado = std::find_if(enSuCasilla.rbegin(), enSuCasilla.rend(), prueba);
        return hallado == enSuCasilla.rend() ? std::nullopt : std::optional{*hallado};
    }

private:
    void ponerAlDia();
    void medir();
    void repartir(Numero numero);
    [[nodiscard]] std::size_t columna(double x) const { return casilla(x - extremos_.x0, columnas_); }
    [[nodiscard]] std::size_t hilera(double y) const { return casilla(y - extremos_.y0, hileras_); }
    /// It never falls when the distance grows, and what lies outside counts in the cell at the edge: so a
    /// point of a rectangle lies in one of its cells.
    [[nodiscard]] std::size_t casilla(double distancia, std::size_t cuantas) const;

    std::vector<Recuadro> recuadros_;
    std::size_t repartidos_ = 0; ///< those that are in the cells
    std::size_t medidos_ = 0;    ///< those for which the cells were made
    Recuadro extremos_;
    double lado_ = 1;
    std::size_t columnas_ = 1, hileras_ = 1;
    std::vector<std::vector<Numero>> casillas_;
};

} // namespace varo
