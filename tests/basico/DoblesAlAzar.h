// Random finite 64-bit floats for property tests: any bits, decimals as people write them, binary fractions
// that are exact halves of a decimal, and the surroundings of the powers of ten.
#pragma once

#include <rapidcheck.h>

#include <bit>
#include <cmath>
#include <cstdint>

namespace varo {

inline rc::Gen<double> DobleAlAzar() {
    const auto bits = rc::gen::map(rc::gen::arbitrary<std::uint64_t>(),
                                   [](std::uint64_t todos) { return std::bit_cast<double>(todos); });
    const auto escrito = rc::gen::apply(
        [](std::int64_t cifras, int decimales) {
            return static_cast<double>(cifras) / std::pow(10.0, decimales);
        },
        rc::gen::inRange<std::int64_t>(-10'000'000'000'000, 10'000'000'000'000), rc::gen::inRange(0, 14));
    const auto mitad = rc::gen::apply(
        [](std::int64_t cifras, int potencia) { return std::ldexp(static_cast<double>(cifras), -potencia); },
        rc::gen::inRange<std::int64_t>(-(std::int64_t{1} << 53), std::int64_t{1} << 53),
        rc::gen::inRange(0, 16));
    const auto juntoAPotencia = rc::gen::apply(
        [](int exponente, int pasos) {
            double numero = std::pow(10.0, exponente);
            for (int i = 0; i < std::abs(pasos); ++i) {
                numero = std::nextafter(numero, pasos < 0 ? 0 : HUGE_VAL);
            }
            return numero;
        },
        rc::gen::inRange(-20, 25), rc::gen::inRange(-12, 13));
    return rc::gen::suchThat(rc::gen::oneOf(bits, escrito, mitad, juntoAPotencia),
                             [](double numero) { return std::isfinite(numero); });
}

} // namespace varo
