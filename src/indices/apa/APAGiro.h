// The turn of APA about a tree: from its nearest virtual neighbour on, counter-clockwise, all the others are
// tried once; one is taken when the circle through the tree, the neighbour taken last and this one holds no
// other neighbour.
#pragma once

#include "indices/apa/APAVecinos.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace varo {

struct CirculoCircunscrito;

/// A side of a cell: the line y = pendiente * x + intercepto, half way to a virtual neighbour.
struct LadoAPA {
    std::size_t vecino = 0; ///< its position among the virtual neighbours
    double pendiente = 0;
    double intercepto = 0;
};

/// The literal turn searches all rows for the next direction, before every trial. As it tries each neighbour
/// once, and never one that it has passed, one sort by direction serves for the whole turn. What rounding may
/// tie is compared by the very differences of the search, and of those that tie the first row goes first.
class GiroAPA {
public:
    /// Faults: 11 without neighbours and on one of the same x or y, or in line with the last one taken; those
    /// of AnguloDireccion.
    void dar(const VecinosAPA& vecinos, Pareja& pareja);

    /// The sides, in the order in which they were taken; the ring is not closed.
    [[nodiscard]] const std::vector<LadoAPA>& lados() const { return lados_; }
    /// The largest of the empty circles by which neighbours were taken.
    [[nodiscard]] double mayorRadio() const { return mayorRadio_; }

private:
    using Indice = std::uint32_t;

    [[nodiscard]] Indice masCercano();
    void ordenar(Indice primero);
    [[nodiscard]] Indice tomarSiguiente(double a0);
    void anadirLado(Indice vecino);
    [[nodiscard]] bool vacio(const CirculoCircunscrito& circulo, Indice p, Indice q);
    [[nodiscard]] bool vacioPorFilas(const CirculoCircunscrito& circulo, Indice p, Indice q) const;

    const VecinosAPA* vecinos_ = nullptr;
    std::vector<LadoAPA> lados_;
    double mayorRadio_ = 0;
    double mayorDistancia_ = 0;

    std::vector<double> angulo_;               ///< of each neighbour, in degrees
    std::vector<Indice> orden_;                ///< neighbours by angle, then by row
    std::vector<Indice> siguiente_, anterior_; ///< the ring of those not tried yet: places in `orden_`
    std::size_t cabeza_ = 0;                   ///< the place where the search begins
    std::vector<Indice> prueba_; ///< the order in which the neighbours are looked for in a circle
};

} // namespace varo
