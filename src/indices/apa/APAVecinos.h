// The virtual neighbours of APA: where a tree sees the others, each one drawn nearer or pushed away along the
// line to it, so that the plain bisector of the two points is the weighted one of the two trees.
#pragma once

#include "indices/vecinos/Arboles.h"
#include "indices/vecinos/Marcas.h"
#include "plot/calculo/Cuadricula.h"

#include <cstddef>
#include <span>
#include <vector>

namespace varo {

/// A point, or the vector from one point to another (m).
struct PuntoAPA {
    double x = 0;
    double y = 0;
};

/// d^k of every tree with a size, d in metres; each one is worked out once.
class PesosAPA {
public:
    PesosAPA(const Arboles& arboles, double k);

    [[nodiscard]] const Arboles& arboles() const { return arboles_; }
    /// Faults of the size cell and of the power.
    [[nodiscard]] double de(std::size_t i) const;

private:
    const Arboles& arboles_;
    double k_;
    std::vector<double> pesos_; ///< NaN where it faults
};

/// The virtual neighbours of one subject.
struct VecinosAPA {
    using Fila = Cuadricula::Fila;

    double xSujeto = 0, ySujeto = 0; ///< m
    std::vector<Fila> filas;         ///< the trees behind them
    std::vector<double> x, y;        ///< m

    [[nodiscard]] std::size_t cuantos() const { return filas.size(); }
    [[nodiscard]] PuntoAPA desdeElSujeto(std::size_t vecino) const {
        return {x[vecino] - xSujeto, y[vecino] - ySujeto};
    }
};

/// Where a tree sees another one, L metres away, with the share W in the weight of both. Faults: 11 on a tree
/// of the same x.
PuntoAPA ColocarVecino(const PuntoAPA& arbol, const PuntoAPA& otro, double L, double W);

/// Places the virtual neighbours of the subject that stand in the given rows: trees with a size, the subject
/// itself among them, in ascending order and each one once; they come out in that order. A size of 0 is
/// placed, with its faults, and left out. Faults: those of the cells and of the weights; 11 on a tree of the
/// same x.
void ReunirVecinos(const PesosAPA& pesos, std::span<const VecinosAPA::Fila> filas, Pareja& pareja,
                   VecinosAPA& vecinos);

} // namespace varo
