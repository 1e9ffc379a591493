#include "indices/vecinos/PrimerCompetidor.h"

#include <algorithm>
#include <cassert>

namespace varo {

PrimerCompetidor::PrimerCompetidor(const Arboles& arboles)
    : arboles_{arboles}, siguienteNoMenor_(arboles.cuantos()) {
    std::vector<std::size_t> sinSiguiente; // from the largest to the smallest
    for (std::size_t i = 0; i < arboles.cuantos(); ++i) {
        if (arboles.sinTamano(i)) {
            continue;
        }
        if (conTamano_.size() < 2) {
            conTamano_.push_back(i);
        }
        if (crecientes_.empty() || arboles.d(i) > arboles.d(crecientes_.back())) {
            crecientes_.push_back(i);
        }
        while (!sinSiguiente.empty() && arboles.d(sinSiguiente.back()) <= arboles.d(i)) {
            siguienteNoMenor_[sinSiguiente.back()] = i;
            sinSiguiente.pop_back();
        }
        sinSiguiente.push_back(i);
    }
}

std::optional<std::size_t> PrimerCompetidor::de(std::size_t i, Lado lado) const {
    assert(!arboles_.sinTamano(i));
    if (lado == Lado::Unilateral) {
        return primeroNoMenor(i);
    }
    const auto otro = std::find_if(conTamano_.begin(), conTamano_.end(), [&](auto j) { return j != i; });
    return otro == conTamano_.end() ? std::nullopt : std::optional{*otro};
}

/// The first tree that is not smaller than a given one is larger than all before it.
std::optional<std::size_t> PrimerCompetidor::primeroNoMenor(std::size_t i) const {
    const auto primero = std::lower_bound(crecientes_.begin(), crecientes_.end(), arboles_.d(i),
                                          [&](std::size_t j, double d) { return arboles_.d(j) < d; });
    assert(primero != crecientes_.end()); // the largest tree is not smaller than the subject
    return *primero == i ? siguienteNoMenor_[i] : std::optional{*primero};
}

} // namespace varo
