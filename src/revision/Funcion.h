// The model functions of the options, read back from the lines of their lists to see what comes of them.
#pragma once

#include <optional>
#include <string>

namespace varo {

/// a + b x^c + d x^e
struct SumaEscrita {
    double a = 0, b = 0, c = 0, d = 0, e = 0;
    friend bool operator==(const SumaEscrita&, const SumaEscrita&) = default;
};

/// Any line of a list. A weight by distance and a radius of influence have a sum alone.
struct FuncionEscrita {
    bool exponencial = false; ///< a weight by distance, "EXP"
    bool hiperbolica = false; ///< a limit of the form A - k / sum
    double A = 0, k = 0, m = 0;
    SumaEscrita suma;
    std::string textoDeA; ///< as it is written
    friend bool operator==(const FuncionEscrita&, const FuncionEscrita&) = default;
};

/// Nothing for a line that is none: "a: 0,5000; b: 0,2000; c: 1,0000; d: 0,0000; e: 0,0000" and the like.
std::optional<FuncionEscrita> LeerFuncionEscrita(const std::string& linea);

/// Without what cannot count: the exponent of a factor of 0.
FuncionEscrita Simplificada(FuncionEscrita funcion);

/// The values; nothing where the computation faults.
std::optional<double> ValorDeSuma(const SumaEscrita& suma, double x);
std::optional<double> ValorDePeso(const FuncionEscrita& peso, double distancia);
std::optional<double> ValorDeLimite(const FuncionEscrita& limite, double d);

} // namespace varo
