// The first candidate, in the order of the rows, that the side rule leaves to a subject.
#pragma once

#include "indices/vecinos/Arboles.h"
#include "indices/vecinos/Lado.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace varo {

/// All sizes must be numbers.
class PrimerCompetidor {
public:
    explicit PrimerCompetidor(const Arboles& arboles);

    /// The first tree with a size but the subject itself; in a unilateral pass, the first one whose d is not
    /// below the subject's. The subject has a size.
    [[nodiscard]] std::optional<std::size_t> de(std::size_t i, Lado lado) const;

private:
    [[nodiscard]] std::optional<std::size_t> primeroNoMenor(std::size_t i) const;

    const Arboles& arboles_;
    std::vector<std::size_t> conTamano_;  ///< the first two
    std::vector<std::size_t> crecientes_; ///< the trees that are larger than all before them
    std::vector<std::optional<std::size_t>> siguienteNoMenor_;
};

} // namespace varo
