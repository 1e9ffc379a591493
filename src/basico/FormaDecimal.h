// A number as its decimal digits: the one place where numbers are rounded for writing.
#pragma once

#include <string>

namespace varo {

/// ±0,d1d2d3… × 10^punto, without zeros at either end of the digits; no digits at all for zero, which has no
/// sign.
struct FormaDecimal {
    bool negativo = false;
    std::string cifras;
    int punto = 0;

    /// Keeps the first `cuantas` digits, halves away from zero. A number that rounds to zero keeps its sign.
    void redondear(int cuantas);
};

/// The number rounded from its exact binary value to 15 significant digits, halves away from zero. An
/// infinity or a NaN throws 6.
FormaDecimal EnDecimal(double numero);
/// The same with the 7 digits of a 32-bit float.
FormaDecimal EnDecimal(float numero);

/// The fewest digits that read back to the same value.
FormaDecimal EnDecimalJusto(double numero);

} // namespace varo
