// The model functions of the option lists, read back from the texts of their entries. A parameter is what the
// entry shows, rounded to four decimals.
//
// An entry that lacks a letter throws 5; a parameter that is no number throws 13.
#pragma once

#include "basico/Aritmetica.h"
#include "basico/EnLugar.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>

namespace varo {

/// Some numbers that are worked on side by side.
using CuatroNumeros = std::array<double, 4>;

/// Potencia of each one without a test: not finite where it faults or the base is not finite, but that
/// anything raised to 0 is 1.
inline CuatroNumeros PotenciasSinPruebas(const CuatroNumeros& bases, double exponente) {
    if (exponente == 1) {
        return bases;
    }
    CuatroNumeros potencias;
    potencias.fill(1);
    if (exponente != 0) {
        for (std::size_t n = 0; n < potencias.size(); ++n) {
            potencias[n] = std::pow(bases[n], exponente);
        }
    }
    return potencias;
}

/// x -> a + b x^c + d x^e. Faults of Potencia; overflow throws 6.
struct SumaDePotencias {
    double a = 0, b = 0, c = 0, d = 0, e = 0;

    [[nodiscard]] double en(double x) const {
        const double deC = Potencia(x, c);
        const double deE = Potencia(x, e);
        return ExigirFinito(a + b * deC + d * deE);
    }
    /// `en` of each one, none below 0, without a test: not finite exactly where `en` faults.
    [[nodiscard]] CuatroNumeros sinPruebas(const CuatroNumeros& xs) const {
        const CuatroNumeros deC = PotenciasSinPruebas(xs, c);
        const CuatroNumeros deE = PotenciasSinPruebas(xs, e);
        CuatroNumeros sumas;
        for (std::size_t n = 0; n < sumas.size(); ++n) {
            sumas[n] = a + b * deC[n] + d * deE[n];
        }
        return sumas;
    }
};

/// "a: 0,5000; b: ...; e: 0,0000": the radius of influence (m) of a diameter (cm).
SumaDePotencias LeerRadioDeInfluencia(const std::string& entrada);

/// "EXP, a: ..." or "HIP, a: ...": the weight of a competitor at a distance (m).
struct FuncionDeDistancia {
    bool exponencial = false;
    SumaDePotencias suma;

    /// exp(-s), or 1 / s, of the sum s at distance L. In the second form s = 0 throws 11.
    [[nodiscard]] double en(double L) const {
        const double s = suma.en(L);
        return exponencial ? ExigirFinito(std::exp(-s)) : Dividir(1, s);
    }
    /// `en` of each distance without a test: not finite exactly where `en` faults.
    [[nodiscard]] CuatroNumeros sinPruebas(const CuatroNumeros& L) const {
        const CuatroNumeros s = suma.sinPruebas(L);
        CuatroNumeros f;
        for (std::size_t n = 0; exponencial && n < f.size(); ++n) {
            f[n] = std::exp(-s[n]);
        }
        for (std::size_t n = 0; !exponencial && n < f.size(); ++n) {
            f[n] = 1 / s[n];
        }
        for (std::size_t n = 0; n < f.size(); ++n) {
            f[n] += s[n] * 0.0; // Meant: a sum that is not finite shows; any other adds a 0.
        }
        return f;
    }
    /// Runs `acto`, which asks `en`; a division by zero that has no cause yet gets this one.
    template <class Acto>
    static decltype(auto) explicando(Acto&& acto) {
        return Porque(
            fallo::divisionPorCero,
            [] { return "la función de la distancia divide por 0 a la que los separa"; },
            std::forward<Acto>(acto));
    }
    /// True only if `en` faults nowhere between two distances, the first one above 0.
    [[nodiscard]] bool sinFallosEntre(double desde, double hasta) const;
};
FuncionDeDistancia LeerFuncionDeDistancia(const std::string& entrada);

/// The limit distance (m) of a subject from its diameter (m).
struct FuncionDeLimite {
    bool hiperbolica = false;
    double A = 0, k = 0;
    double m = 0;                ///< of Richards' function
    SumaDePotencias denominador; ///< of the hyperbolic one

    /// A (1 - exp(-k D))^(1 / (1 - m)), or A - k (1 / denominador).
    [[nodiscard]] double en(double D) const;
};

/// "A: ...; k: ...; m: ..." or "A: ...; k: ...; a: ...; ...; e: ...", told apart by the letter e. Meant: the
/// A of the first form loses its decimals; "9,75" is 9.
FuncionDeLimite LeerFuncionDeLimite(const std::string& entrada);

} // namespace varo
