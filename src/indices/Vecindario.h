// A uniform grid over the trees with a size, to find those near one of them. It holds only plots on which no
// step between two trees can fault but for their places: all coordinates and sizes are numbers, and
// none is so large that a distance overflows.
#pragma once

#include "indices/Arboles.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace varo {

class Vecindario {
public:
    using Fila = std::uint32_t; ///< a tree, numbered as in Arboles

    explicit Vecindario(const Arboles& arboles);

    /// False when a cell of some tree with a size is no number or out of measure; there is no grid then, and
    /// nothing below may be asked.
    [[nodiscard]] bool fiable() const { return fiable_; }

    /// Replaces `cercanas` by the trees within a distance of tree i, itself left out, in the order of the
    /// rows. It may take in trees that are farther by a rounding; it never leaves one out.
    void buscar(std::size_t i, double radio, std::vector<Fila>& cercanas) const;
    /// The same with a distance for each tree: `porD` times its d, or `radio` where that is more.
    void buscarPorTamano(std::size_t i, double porD, double radio, std::vector<Fila>& cercanas) const;

    /// Whether another tree stands at distance 0.
    [[nodiscard]] bool comparteSitio(std::size_t i) const { return comparteSitio_[i]; }

    /// Trees with a size.
    [[nodiscard]] std::size_t cuantos() const { return filas_.size(); }
    /// A distance that no two trees exceed.
    [[nodiscard]] double extension() const { return extension_; }
    /// The side of a cell, which has few trees on average.
    [[nodiscard]] double lado() const { return lado_; }
    /// The largest d of all, in metres.
    [[nodiscard]] double mayorD() const { return mayorD_; }

private:
    void medir(const Arboles& arboles, const std::vector<Fila>& conTamano);
    void repartir(const Arboles& arboles, const std::vector<Fila>& conTamano);
    template <class Alcance>
    void buscarEn(std::size_t i, double mayorAlcance, Alcance alcanceDe, std::vector<Fila>& cercanas) const;
    [[nodiscard]] static std::size_t casilla(double desplazamiento, double lado, std::size_t cuantas);

    bool fiable_ = true;
    double x0_ = 0, y0_ = 0;
    double lado_ = 1;
    std::size_t columnas_ = 1, hileras_ = 1;
    double extension_ = 0;
    double mayorD_ = 0;

    std::vector<std::size_t> comienzo_; ///< of each cell in the four below; one more at the end
    std::vector<Fila> filas_;
    std::vector<double> x_, y_, d_;

    std::vector<double> xDe_, yDe_; ///< by tree
    std::vector<bool> comparteSitio_;
};

} // namespace varo
