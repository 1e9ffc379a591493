#include "basico/Aritmetica.h"

#include "basico/ErrorEjecucion.h"

#include <cmath>

namespace varo {

namespace {

double EntreMenosUnoYUno(double x) {
    // Written so that a NaN is outside too.
    if (!(std::fabs(x) <= 1)) {
        throw ErrorEjecucion{fallo::funcionDeHoja};
    }
    return x;
}

} // namespace

void FallarPorDesbordamiento() {
    throw ErrorEjecucion{fallo::desbordamiento};
}

void FallarPorDivisionPorCero() {
    throw ErrorEjecucion{fallo::divisionPorCero};
}

void FallarPorArgumento() {
    throw ErrorEjecucion{fallo::argumentoNoValido};
}

float ASimple(double numero) {
    const auto simple = static_cast<float>(numero);
    ExigirFinito(static_cast<double>(simple));
    return simple;
}

double PotenciaPorPow(double a, double b) {
    if (a == 0 && b < 0) {
        FallarPorDivisionPorCero();
    }
    if (a < 0 && b != std::trunc(b)) {
        FallarPorArgumento();
    }
    return ExigirFinito(std::pow(a, b));
}

double Asin(double x) {
    return std::asin(EntreMenosUnoYUno(x));
}

double Acos(double x) {
    return std::acos(EntreMenosUnoYUno(x));
}

double RedondearPar(double x) {
    return std::nearbyint(x); // to nearest, halves to even: the rounding that all the arithmetic runs under
}

} // namespace varo
