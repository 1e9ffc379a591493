// The turn of APA over the neighbours that matter to one tree, which are few. The sides that it gives are
// those of the turn over all trees, to the last bit; where that is not certain, it gives none.
//
// Seen from the subject, let t be a neighbour, as a vector, and z the centre of a circle through the subject:
// t lies within the circle when 2 z·t > t·t. Take neighbours in a ring about the subject, each one less than
// half a turn from the next, and let R be the largest circle through the subject and two neighbours in a row.
// Whatever way z points, between some two in a row, one of the two has 2 z·t >= t·t |z| / R. Hence
//
//   1. a circle larger than R is not empty, and the ring itself says so;
//   2. a circle up to R is decided by the neighbours within 2 R;
//   3. a neighbour beyond 2 R is neither the nearest one nor ever taken, as a circle through it is larger
//   than R.
//
// The sides of a turn over some of the trees are such a ring, when it closes. If that turn had all neighbours
// within 2 R at hand, it gave what the turn over all of them gives, provided that no far one faults. All rows
// are tried, the far ones too, but a trial can fault only
//
//   - on a neighbour too near to the directions of the axes (AnguloDireccion, RadioCircunscrito);
//   - on one in line with the neighbour taken before it (RadioCircunscrito).
//
// Those are looked for along the axes and along the directions of the ring, and join the turn, however far
// they stand. How near is too near comes from bounds on the rounding of those two procedures, each one taken
// several times over; so do the 5 % beyond 2 R and the 2.5 % beyond R.
#pragma once

#include "indices/apa/APAGiro.h"
#include "indices/apa/APAMalla.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace varo {

class CercanosAPA {
public:
    /// All cells and weights of the trees with a size must be readable.
    explicit CercanosAPA(const PesosAPA& pesos);

    /// Turns about the subject. True when `giro` holds what a turn over all trees would give; otherwise that
    /// turn must be made.
    bool girar(Pareja& pareja, VecinosAPA& vecinos, GiroAPA& giro);

private:
    using Fila = VecinosAPA::Fila;

    /// What the ring of the sides says about the subject's surroundings.
    struct Anillo {
        double radio = 0; ///< R
        double vecinoMasCercano = 0;
    };

    void marcarDudosos();
    [[nodiscard]] static std::optional<Anillo> cerrar(const VecinosAPA& vecinos,
                                                      const std::vector<LadoAPA>& lados);
    /// Leaves in `necesarias_` the trees that the turn must have had at hand; false where rounding may be too
    /// large to tell.
    bool buscarNecesarias(std::size_t i, const Anillo& anillo, const VecinosAPA& vecinos,
                          const std::vector<LadoAPA>& lados);
    [[nodiscard]] double senoDeLosEjes(double radio) const;
    [[nodiscard]] double senoDelLado(const Anillo& anillo, double inclinacion) const;
    static void enOrden(std::vector<Fila>& filas);

    const PesosAPA& pesos_;
    MallaAPA malla_;
    double medida_; ///< no coordinate of a virtual neighbour is larger
    std::vector<bool> dudoso_;
    std::vector<Fila> filas_, necesarias_;
};

} // namespace varo
