// The lines of sight of APA along which nobody stands but the trees at both ends. docs/apa.md, "Streets".
#pragma once

#include "indices/apa/APACuadricula.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace varo {

/// Remembers some of the empty streets that it is told of.
class CallesAPA {
public:
    explicit CallesAPA(std::size_t arboles) : desde_(arboles) {}

    /// The street from one tree to another is empty.
    void anotar(LugarAPA a, LugarAPA b) {
        auto& [cuantas, hasta] = desde_[a];
        if (cuantas < hasta.size()) {
            hasta[cuantas++] = b;
        }
    }
    /// Whether that is known.
    [[nodiscard]] bool vacia(LugarAPA a, LugarAPA b) const {
        const auto& [cuantas, hasta] = desde_[a];
        for (std::uint32_t n = 0; n < cuantas; ++n) {
            if (hasta[n] == b) {
                return true;
            }
        }
        return false;
    }

private:
    /// Nearly no tree has more sides.
    struct Calles {
        std::uint32_t cuantas = 0;
        std::array<LugarAPA, 7> hasta{};
    };

    std::vector<Calles> desde_;
};

} // namespace varo
