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

double ExigirFinito(double numero) {
    if (!std::isfinite(numero)) {
        throw ErrorEjecucion{fallo::desbordamiento};
    }
    return numero;
}

float ASimple(double numero) {
    const auto simple = static_cast<float>(numero);
    ExigirFinito(static_cast<double>(simple));
    return simple;
}

double Dividir(double a, double b) {
    if (b == 0) {
        throw ErrorEjecucion{fallo::divisionPorCero};
    }
    return ExigirFinito(a / b);
}

double Raiz(double x) {
    if (x < 0) {
        throw ErrorEjecucion{fallo::argumentoNoValido};
    }
    return ExigirFinito(std::sqrt(x));
}

double Potencia(double a, double b) {
    if (a == 0 && b < 0) {
        throw ErrorEjecucion{fallo::divisionPorCero};
    }
    if (a < 0 && b != std::trunc(b)) {
        throw ErrorEjecucion{fallo::argumentoNoValido};
    }
    if (b == 1) {
        return ExigirFinito(a); // what std::pow gives too, and sooner
    }
    return b == 0 ? 1 : ExigirFinito(std::pow(a, b));
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
