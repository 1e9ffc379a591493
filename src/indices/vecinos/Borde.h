// Border detection: whether the room that a tree needs reaches beyond the plot boundary.
#pragma once

#include "indices/vecinos/Arboles.h"
#include "plot/calculo/Module1.h"

#include <cstddef>
#include <limits>
#include <vector>

namespace varo {

/// The heights (m) of a tree over the sides, each one taken as an infinite line, are computed once per tree.
/// A side whose height cannot be computed throws, unless an earlier side answers first: two vertices in one
/// place 11, a tree in line with a side maybe 5, by rounding.
class Borde {
public:
    Borde(const Arboles& arboles, const ContornoXY& contorno);

    /// Whether the height of tree i over some side is below the limit (m). Sides are asked in turn.
    [[nodiscard]] bool algunaAlturaMenor(std::size_t i, double limite);
    /// The same with equality.
    [[nodiscard]] bool algunaAlturaMenorOIgual(std::size_t i, double limite);
    /// Throws where the height of tree i over some side cannot be computed.
    void exigirAlturas(std::size_t i) { exigirSinFallo(i, alturas(i)); }

    [[nodiscard]] const ContornoXY& contorno() const { return contorno_; }

private:
    static constexpr std::size_t ninguno = std::numeric_limits<std::size_t>::max();

    struct Alturas {
        bool calculadas = false;
        double minima = std::numeric_limits<double>::infinity(); ///< of the sides before the faulty one
        std::size_t ladoConFallo = ninguno;
    };

    const Alturas& alturas(std::size_t i);
    Alturas calcular(std::size_t i) const;
    void exigirSinFallo(std::size_t i, const Alturas& alturas) const;

    const Arboles& arboles_;
    ContornoXY contorno_;
    std::vector<double> lados_; ///< their lengths
    std::vector<Alturas> porArbol_;
};

} // namespace varo
