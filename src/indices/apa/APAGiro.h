// The turn of APA about a tree: from its nearest virtual neighbour on, counter-clockwise, all the others are
// tried once; one is taken when the circle through the tree, the neighbour taken last and this one holds no
// other neighbour.
#pragma once

#include "indices/apa/APARueda.h"
#include "indices/apa/APAVecinos.h"
#include "plot/calculo/Module1.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace varo {

/// A side of a cell: the line y = pendiente * x + intercepto (m), half way to a virtual neighbour.
struct LadoAPA {
    std::size_t vecino = 0; ///< its position among the virtual neighbours
    double pendiente = 0;
    double intercepto = 0;
};

class GiroAPA {
public:
    /// Turns about the subject of those neighbours. Faults: 11 without neighbours and on one of the same x or
    /// y, or in line with the last one taken; those of AnguloDireccion.
    void dar(const VecinosAPA& vecinos, Pareja& pareja);

    /// The sides, in the order in which they were taken, after a turn without a fault; the first one is not
    /// repeated at the end.
    [[nodiscard]] const std::vector<LadoAPA>& lados() const { return lados_; }
    /// The circle that was looked for last, empty or not; none about a single neighbour.
    [[nodiscard]] const std::optional<CirculoCircunscrito>& ultimoCirculo() const { return ultimoCirculo_; }

private:
    using Vecino = RuedaAPA::Vecino;

    /// Notes the largest distance as well.
    [[nodiscard]] Vecino masCercano();
    void medirDirecciones(Vecino primero, Pareja& pareja);
    void probarLosDemas(Vecino primero, Pareja& pareja);
    void anadirLado(Vecino vecino);
    [[nodiscard]] bool vacio(const CirculoCircunscrito& circulo, Vecino p, Vecino q);
    [[nodiscard]] bool vacioPorFilas(const CirculoCircunscrito& circulo, Vecino p, Vecino q) const;
    [[nodiscard]] bool dentro(const CirculoCircunscrito& circulo, Vecino t) const;

    const VecinosAPA* vecinos_ = nullptr; ///< of the turn that is being made
    std::vector<LadoAPA> lados_;
    std::optional<CirculoCircunscrito> ultimoCirculo_;
    double mayorDistancia_ = 0; ///< from the subject to a neighbour (m)

    std::vector<double> angulo_; ///< of each neighbour, in degrees
    RuedaAPA rueda_;
    std::vector<Vecino> prueba_; ///< the order in which the neighbours are looked for in a circle
};

} // namespace varo
