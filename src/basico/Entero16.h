// 16-bit signed integers that fault when they leave their range.
#pragma once

#include "basico/ErrorEjecucion.h"

#include <compare>
#include <concepts>
#include <cstdint>
#include <utility>

namespace varo {

/// A 16-bit signed integer. Leaving -32768..32767 throws ErrorEjecucion 6.
class Entero16 {
public:
    constexpr Entero16() = default;

    template <std::integral Entero>
    constexpr Entero16(
        Entero valor) // NOLINT(google-explicit-constructor): counts flow in from plain integers
        : valor_{comprobado(valor)} {}

    /// A 64-bit float rounded to a whole number, halves to even.
    explicit Entero16(double valor);

    [[nodiscard]] constexpr int valor() const noexcept { return valor_; }
    constexpr explicit operator int() const noexcept { return valor_; }

    constexpr Entero16& operator+=(Entero16 otro) { return *this = Entero16{valor_ + otro.valor_}; }
    constexpr Entero16& operator-=(Entero16 otro) { return *this = Entero16{valor_ - otro.valor_}; }
    constexpr Entero16& operator++() { return *this += 1; }
    constexpr Entero16& operator--() { return *this -= 1; }

    friend constexpr Entero16 operator+(Entero16 a, Entero16 b) { return a += b; }
    friend constexpr Entero16 operator-(Entero16 a, Entero16 b) { return a -= b; }
    friend constexpr Entero16 operator*(Entero16 a, Entero16 b) { return Entero16{a.valor_ * b.valor_}; }
    friend constexpr bool operator==(Entero16, Entero16) = default;
    friend constexpr auto operator<=>(Entero16 a, Entero16 b) { return a.valor_ <=> b.valor_; }

private:
    template <std::integral Entero>
    static constexpr std::int16_t comprobado(Entero valor) {
        if (!std::in_range<std::int16_t>(valor)) {
            throw ErrorEjecucion{fallo::desbordamiento};
        }
        return static_cast<std::int16_t>(valor);
    }

    std::int16_t valor_ = 0;
};

} // namespace varo
