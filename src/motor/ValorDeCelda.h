// What a cell of a table holds, read in its place: a text stays in the table.
#pragma once

#include "basico/Valor.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace varo {

/// Becomes a Valor where one is asked for. The cells must outlive it.
class ValorDeCelda {
public:
    enum class Clase : std::uint8_t { Vacia, Numero, Texto, Momento, Verdad };

    ValorDeCelda() = default;
    ValorDeCelda(Clase clase, double numero) : clase_{clase}, numero_{numero} {}
    explicit ValorDeCelda(std::string_view texto) : clase_{Clase::Texto}, texto_{texto} {}
    explicit ValorDeCelda(const std::string& texto) : ValorDeCelda{std::string_view{texto}} {}
    explicit ValorDeCelda(const Valor& valor);

    [[nodiscard]] Clase clase() const { return clase_; }
    /// A number, the serial of a date, or 1 and 0 for true and false.
    [[nodiscard]] double numero() const { return numero_; }
    [[nodiscard]] std::string_view texto() const { return texto_; }

    // NOLINTNEXTLINE(google-explicit-constructor): a cell is its value wherever a value is asked for
    operator Valor() const;

    friend bool operator==(const ValorDeCelda&, const ValorDeCelda&) = default;
    friend bool operator==(const ValorDeCelda& celda, const Valor& valor) {
        return celda == ValorDeCelda{valor};
    }

private:
    Clase clase_ = Clase::Vacia;
    double numero_ = 0;
    std::string_view texto_;
};

inline bool EsNulo(const ValorDeCelda& valor) {
    return valor.clase() == ValorDeCelda::Clase::Vacia;
}

} // namespace varo
