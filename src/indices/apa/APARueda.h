// The order in which a turn of APA tries the neighbours: counter-clockwise by direction, each one once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace varo {

/// The neighbours that a turn has not tried yet, round the tree by direction. The literal turn searches all
/// rows for the next direction before every trial. As it tries each neighbour once, and never one that it has
/// passed, one sort by direction serves the whole turn. What rounding may tie is compared by the very
/// differences of the search, and of those that tie the first row goes first.
class RuedaAPA {
public:
    using Vecino = std::uint32_t; ///< a position among the virtual neighbours
    using Fila = std::uint32_t;   ///< of the tree behind it

    /// Takes in all neighbours but the first, from which the turn starts. `angulos` has the direction of each
    /// one, in degrees, `filas` its row, no two the same; both stay as they are for as long as the wheel
    /// turns.
    void llenar(const std::vector<double>& angulos, const std::vector<Fila>& filas, Vecino primero);

    [[nodiscard]] bool vacia() const { return quedan_ == 0; }

    /// Takes off the neighbour at the smallest turn from the last side. The wheel is not empty.
    Vecino sacar();
    /// Makes the neighbour that was taken off last the last side.
    void tomar();

private:
    using LugarEnRueda = std::uint32_t; ///< a place in `orden_`

    /// From the last side to a direction (degrees).
    [[nodiscard]] double giro(LugarEnRueda lugar) const;
    [[nodiscard]] LugarEnRueda buscarElSiguiente() const;
    void ordenar(Vecino primero);
    void repartirEnGajos();
    void enlazar();

    struct Direccion {
        double angulo; ///< degrees
        Fila fila;
        Vecino vecino;
    };

    const std::vector<double>* angulos_ = nullptr;
    const std::vector<Fila>* filas_ = nullptr;
    std::vector<Direccion> porAngulo_, repartidas_;
    std::vector<LugarEnRueda> comienzoDeGajo_; ///< among them, of each slice of the turn; one more at the end
    std::vector<LugarEnRueda> lleno_;          ///< up to where each slice is filled
    std::vector<Vecino> orden_;                ///< by angle, then by row
    std::vector<LugarEnRueda> siguiente_, anterior_; ///< a circular list of those that are left
    std::size_t quedan_ = 0;
    LugarEnRueda cabeza_ = 0; ///< where the search begins: the first one that is left from the last side on
    double ultimoLado_ = 0;   ///< its direction (degrees)
    LugarEnRueda sacado_ = 0;
};

} // namespace varo
