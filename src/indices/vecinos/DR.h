// DR, size ratios weighted by distance: the sum over the competitors j of f(L) (dj / di)^k, L in metres. With
// k = 1 and f = 1 / L it is the index of Hegyi (1974).
#pragma once

#include "basico/Reparto.h"
#include "indices/vecinos/FuncionesDeLista.h"
#include "indices/vecinos/Seleccion.h"

#include <optional>
#include <string>
#include <vector>

namespace varo {

/// An entry of the list of distance functions. It is read when a candidate first needs it, so that a bad
/// entry faults there.
class EntradaDeDistancia {
public:
    explicit EntradaDeDistancia(std::string texto) : texto_{std::move(texto)} {}

    const FuncionDeDistancia& funcion() {
        if (!funcion_) {
            funcion_ = LeerFuncionDeDistancia(texto_);
        }
        return *funcion_;
    }
    /// The function, once it was read.
    [[nodiscard]] const std::optional<FuncionDeDistancia>& leida() const { return funcion_; }
    /// True only if the function can be read and does not fault between two distances (m), `desde` <=
    /// `hasta`.
    bool sinFallosEntre(double desde, double hasta);

private:
    std::string texto_;
    std::optional<FuncionDeDistancia> funcion_;
    std::optional<double> sinFallosDesde_; ///< the least distance found without faults so far
};

/// One column: for every tree its index, 0 where it has no competitor, or a marker. The selection has its
/// parameter and ranks by distance. f is computed for every candidate, so a rejected one may fault too: 11 on
/// a null denominator, and on distance 0 with a negative exponent.
std::vector<double> CalcularDR(const Arboles& arboles, const Seleccion& seleccion, Lado lado,
                               const EntradaDeDistancia& entrada, double k, const Faena& faena = {});

} // namespace varo
