// Checked 64-bit arithmetic: what would give an infinity or a NaN faults instead.
#pragma once

#include <cmath>

namespace varo {

/// The literal that the whole program uses for pi.
inline constexpr double numeroPi = 3.1415927;

// The faults stand apart, so that what every loop calls is short enough to be put in place.
[[noreturn]] void FallarPorDesbordamiento();  ///< 6
[[noreturn]] void FallarPorDivisionPorCero(); ///< 11
[[noreturn]] void FallarPorArgumento();       ///< 5

/// The number itself; an infinity or a NaN throws 6.
inline double ExigirFinito(double numero) {
    if (!std::isfinite(numero)) {
        FallarPorDesbordamiento();
    }
    return numero;
}

/// Rounded to a 32-bit float; out of its range throws 6.
float ASimple(double numero);

/// a / b. b = 0 throws 11 (0 / 0 too); leaving the range of a 64-bit float throws 6.
inline double Dividir(double a, double b) {
    if (b == 0) {
        FallarPorDivisionPorCero();
    }
    return ExigirFinito(a / b);
}

/// Square root; a negative argument throws 5.
inline double Raiz(double x) {
    if (x < 0) {
        FallarPorArgumento();
    }
    return ExigirFinito(std::sqrt(x));
}

/// a raised to b. 0 to a negative power throws 11, a negative base with a fractional exponent 5, overflow 6.
double PotenciaPorPow(double a, double b);
inline double Potencia(double a, double b) {
    if (b == 1) {
        return ExigirFinito(a); // what std::pow gives too, and sooner
    }
    return b == 0 ? 1 : PotenciaPorPow(a, b);
}

/// Arc sine and arc cosine in radians; an argument outside -1..1 throws 1004.
double Asin(double x);
double Acos(double x);

/// The whole number nearest to x, halves to even.
double RedondearPar(double x);

} // namespace varo
