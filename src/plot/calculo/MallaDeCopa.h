// The samples of the box about a crown, and which of them a crown covers.
#pragma once

#include "lienzo/Copa.h"
#include "lienzo/Escala.h"

#include <cstddef>
#include <vector>

namespace varo {

/// The columns (x) and the rows (y) of a net of samples, both rising.
struct MallaDeCopa {
    std::vector<double> x, y;
};

/// From the lower left corner of the box of a crown, each value the one before plus the step (m), as long as
/// it does not pass the end. A crown or coordinates too large to be walked through throw 6.
MallaDeCopa MallaDe(const Copa& copa, double paso);

/// The net without what lies outside of the surface.
MallaDeCopa SobreLaSuperficie(MallaDeCopa malla, const Escala& escala);

/// The rows of a column that a crown covers, or that lie in a boundary: from one up to the one before
/// another.
struct FilasTapadas {
    std::size_t desde = 0, hasta = 0;

    [[nodiscard]] std::size_t cuantas() const { return hasta > desde ? hasta - desde : 0; }
};

/// The rows that two runs share.
FilasTapadas FilasComunes(const FilasTapadas& unas, const FilasTapadas& otras);

/// Which samples of a net a crown covers, column by column: they are those that `Copa::cubre` gives. In a
/// column they make one run, because the sum of the two squares never falls away from the tree.
class Cobertura {
public:
    /// The net must outlive it.
    explicit Cobertura(const MallaDeCopa& malla) : malla_{malla} {}

    /// Takes a crown as it is painted.
    void poner(const Copa& copa);
    [[nodiscard]] FilasTapadas en(std::size_t columna) const;

private:
    const MallaDeCopa& malla_;
    Copa copa_;
    std::vector<double> cuadrados_; ///< of each row, the square of its distance to the tree in radii
    std::size_t primeraAlNorte_ = 0;
};

} // namespace varo
