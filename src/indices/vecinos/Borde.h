// Border detection: whether the room that a tree needs reaches beyond the plot boundary.
#pragma once

#include "indices/vecinos/Arboles.h"
#include "plot/calculo/Module1.h"

#include <array>
#include <cstddef>
#include <limits>
#include <optional>
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
    /// The least height (m) of tree i, infinity where there are no sides; nothing where the height over some
    /// side cannot be computed.
    [[nodiscard]] std::optional<double> alturaMinima(std::size_t i) {
        const Alturas& suyas = alturas(i);
        return suyas.ladoConFallo == ninguno ? std::optional{suyas.minima} : std::nullopt;
    }
    /// Throws where the height of tree i over some side cannot be computed.
    void exigirAlturas(std::size_t i) { exigirSinFallo(i, alturas(i)); }

    [[nodiscard]] const ContornoXY& contorno() const { return contorno_; }

private:
    static constexpr std::size_t ninguno = std::numeric_limits<std::size_t>::max();

    static constexpr std::size_t aLaVez = 4;

    /// Some sides: one end, the way to the other end (m) and the inverse of its length.
    struct Lados {
        std::array<double, aLaVez> x{}, y{}, haciaX{}, haciaY{}, porLargo{};
    };

    struct Alturas {
        bool calculadas = false;
        double minima = std::numeric_limits<double>::infinity(); ///< of the sides before the faulty one
        std::size_t ladoConFallo = ninguno;
    };

    void agruparLados();
    /// The least height of tree i (m), told without roots and right to 1 in 200; 0 where some height may
    /// fault.
    [[nodiscard]] double estimar(std::size_t i) const;
    /// Whether the estimate tells on which side of a limit (m) the least height is, well above or well below.
    [[nodiscard]] std::optional<bool> esMenorSinDuda(std::size_t i, double limite);
    const Alturas& alturas(std::size_t i);
    Alturas calcular(std::size_t i) const;
    Alturas calcularPasoAPaso(double x, double y) const;
    void exigirSinFallo(std::size_t i, const Alturas& alturas) const;

    const Arboles& arboles_;
    ContornoXY contorno_;
    std::vector<double> lados_; ///< their lengths
    std::vector<Lados> grupos_; ///< the same sides; the last one again where a group is not full
    double x0_ = 0, y0_ = 0, x1_ = 0, y1_ = 0; ///< the extent of the boundary (m)
    std::vector<Alturas> porArbol_;
    std::vector<std::optional<double>> estimadas_; ///< the least height of each tree, once it was told
};

} // namespace varo
