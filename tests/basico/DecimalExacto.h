// Exact decimal arithmetic of unbounded length, slow and plain: the judge of the rounding in the program.
#pragma once

#include <string>

namespace varo {

/// The magnitude N / 10^escala of a number, N a whole number of any length.
class DecimalExacto {
public:
    /// The exact value of a finite 64-bit float, without its sign.
    static DecimalExacto De(double numero);

    /// Rounded to so many significant digits or decimals, halves away from zero.
    [[nodiscard]] DecimalExacto conCifras(int cuantas) const;
    [[nodiscard]] DecimalExacto conDecimales(int cuantos) const;

    /// N, without zeros in front ("0" for zero).
    [[nodiscard]] const std::string& entero() const { return entero_; }
    /// The significant digits, without zeros at either end (empty for zero).
    [[nodiscard]] std::string cifrasSinCeros() const;
    /// The number is 0,ddd × 10^punto; only for one that is not zero.
    [[nodiscard]] int punto() const { return static_cast<int>(entero_.size()) - escala_; }

private:
    std::string entero_ = "0";
    int escala_ = 0;
};

} // namespace varo
