// The short turn of APA: a turn over the neighbours that matter to one tree, which are few. Its sides are
// those of the turn over all trees, to the last bit, and no tree that it leaves out makes that turn fault;
// where this is not certain, it gives none. docs/apa.md has the argument and derives each bound.
#pragma once

#include "indices/apa/APAAnillo.h"
#include "indices/apa/APACalles.h"
#include "indices/apa/APACuadricula.h"
#include "indices/apa/APAGiro.h"
#include "indices/apa/APALineas.h"

#include <cstddef>
#include <vector>

namespace varo {

class CercanosAPA {
public:
    /// All cells and weights of the trees with a size must be readable, and no size be negative.
    explicit CercanosAPA(const PesosAPA& pesos);

    /// Turns about the subject, a tree with a size. True when `giro` holds what a turn over all trees would
    /// give; otherwise that turn must be made.
    bool girar(Pareja& pareja, VecinosAPA& vecinos, GiroAPA& giro);

private:
    using Fila = VecinosAPA::Fila;

    void marcarDudosos();
    void buscarEsquinas();
    /// Makes `lugares_` those of a square about tree i.
    void empezar(std::size_t i);
    /// Adds to `lugares_` the ones in `hallados_` that are not there yet; false where all of them are.
    bool anadirHallados();
    /// Turns over the trees in `lugares_`; false where they are too many, or the turn faults.
    bool girarEntreEllas(Pareja& pareja, VecinosAPA& vecinos, GiroAPA& giro);
    /// For a ring that does not close: takes in trees farther away, the more the more often it is asked.
    void alejarse(std::size_t i);
    /// Leaves in `hallados_` the trees that might fault and that the turn must have had at hand; false where
    /// rounding may be too large to tell.
    bool buscarEnLineas(std::size_t i);
    /// The same for the line of a side.
    void buscarHacia(std::size_t i, const AnilloAPA::LadoDelAnillo& lado);
    /// Farther than this from both axes (the sine of the angle), no direction faults.
    [[nodiscard]] double senoDeLosEjes() const;

    const PesosAPA& pesos_;
    CuadriculaAPA cuadricula_;
    LineasAPA lineas_;
    CallesAPA calles_;
    double medida_;            ///< no coordinate of a virtual neighbour is larger (m)
    std::vector<bool> dudoso_; ///< by row
    std::vector<LugarAPA>
        esquinas_; ///< the trees at the corners of the plot: every other one stands among them
    AnilloAPA anillo_;
    double medioLado_ = 0;           ///< of the square about the subject that is in `lugares_` (m)
    std::vector<LugarAPA> lugares_;  ///< each one once
    std::vector<LugarAPA> hallados_; ///< some of them more than once
    std::vector<Fila> enfiladas_;    ///< some of them more than once
    std::vector<bool> presente_;     ///< whether a place is in `lugares_`
};

} // namespace varo
