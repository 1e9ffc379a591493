// The side rule: which neighbours may compete with a tree.
#pragma once

namespace varo {

enum class Lado {
    Bilateral, ///< all of them
    Unilateral ///< those that are not smaller than the tree
};

/// Sizes in one unit.
constexpr bool PuedeCompetir(Lado lado, double vecino, double sujeto) {
    return lado == Lado::Bilateral || !(vecino < sujeto);
}

} // namespace varo
