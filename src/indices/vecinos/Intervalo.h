// The sweep of a parameter: first value, last value and step, and what a run makes of them.
#pragma once

#include <vector>

namespace varo {

struct Intervalo {
    double Desde = 0;
    double Hasta = 0;
    double Paso = 0;
};

/// A step of 0 between equal ends becomes 1: the interval holds its one value.
Intervalo SinDegenerar(Intervalo intervalo);

/// How many values an interval has room for, not rounded. A step of 0 throws 11.
double CuantosCaben(const Intervalo& intervalo);

/// The values that a loop runs through up to the end, each one the one before plus the step. Meant: rounding
/// may lose the last value, for which CuantosCaben still has room. A step too small to move the value
/// throws 9.
std::vector<double> ValoresDe(const Intervalo& intervalo);

} // namespace varo
