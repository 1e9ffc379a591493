// The samples, 0.1 m apart, that stand in a crown painted on a surface, and which of them another one covers.
#pragma once

#include "lienzo/Copa.h"
#include "lienzo/Escala.h"
#include "plot/calculo/MallaDeCopa.h"

#include <cstddef>
#include <vector>

namespace varo {

/// Whether the boxes of two crowns overlap on the sides that face each other. Meant: with one x or one y
/// crowns count as if B lay to the left and above, however far it is.
bool CajasCruzadas(const Copa& a, const Copa& b);

/// The samples of one crown that other crowns cover.
class MuestrasDeCopa {
public:
    /// Of the samples in the box of the crown, those that the painted crown covers and that lie on the
    /// surface. A crown or coordinates too large to be walked through throw 6.
    MuestrasDeCopa(const Copa& copa, const Escala& superficie);
    MuestrasDeCopa(const MuestrasDeCopa&) = delete;
    MuestrasDeCopa& operator=(const MuestrasDeCopa&) = delete;

    [[nodiscard]] double cuantas() const { return static_cast<double>(cuantas_); }
    /// How many of them turn another colour when this crown is painted over.
    double tapadasPor(const Copa& otra);

    [[nodiscard]] const MallaDeCopa& malla() const { return malla_; }
    /// Forgets those outside of the given rows of each column.
    void limitar(const std::vector<FilasTapadas>& filas);

private:
    static constexpr double paso = 0.1; // m

    MallaDeCopa malla_;
    Cobertura cobertura_;
    std::vector<FilasTapadas> suyas_; ///< by column
    std::size_t cuantas_ = 0;
};

} // namespace varo
