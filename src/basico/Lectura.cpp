// Text to numbers.
#include "basico/Aritmetica.h"
#include "basico/ErrorEjecucion.h"
#include "basico/Numeros.h"
#include "basico/Texto.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <system_error>

namespace varo {

namespace {

/// A number as its text gives it, whatever the notation.
struct NumeroEscrito {
    bool negativo = false;
    std::string enteras;
    std::string decimales;
    std::string exponente; // with its sign, empty without one
};

bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}

/// A text that is read from the front.
class Lector {
public:
    explicit Lector(std::string_view texto) : resto_{texto} {}

    [[nodiscard]] bool acabado() const { return resto_.empty(); }

    /// Takes the next character if it is one of these, and tells which one (0 if none).
    char una(std::string_view entre) {
        if (resto_.empty() || entre.find(resto_.front()) == std::string_view::npos) {
            return 0;
        }
        const char tomada = resto_.front();
        resto_.remove_prefix(1);
        return tomada;
    }

    std::string cifras() {
        const auto fin = std::ranges::find_if_not(resto_, EsCifra);
        std::string tomadas{resto_.begin(), fin};
        resto_.remove_prefix(tomadas.size());
        return tomadas;
    }

    /// An exponent behind one of these letters. Letters without digits behind them are not taken.
    std::string exponente(std::string_view letras) {
        const std::string_view antes = resto_;
        if (una(letras) == 0) {
            return {};
        }
        const bool negativo = una("+-") == '-';
        const std::string valor = cifras();
        if (valor.empty()) {
            resto_ = antes;
            return {};
        }
        return (negativo ? "-" : "") + valor;
    }

private:
    std::string_view resto_;
};

/// The power of ten of the first digit that is no zero, plus one. Not for zero.
std::int64_t Orden(const NumeroEscrito& numero) {
    std::int32_t exponente = 0;
    const char* const fin = numero.exponente.data() + numero.exponente.size();
    if (std::from_chars(numero.exponente.data(), fin, exponente).ec == std::errc::result_out_of_range) {
        exponente = numero.exponente.front() == '-' ? std::numeric_limits<std::int32_t>::min()
                                                    : std::numeric_limits<std::int32_t>::max();
    }
    const std::string cifras = numero.enteras + numero.decimales;
    const auto ceros = static_cast<std::int64_t>(cifras.find_first_not_of('0'));
    return static_cast<std::int64_t>(numero.enteras.size()) - ceros + exponente;
}

/// The nearest 64-bit float: an infinity past the largest one, zero below the smallest.
double MasCercano(const NumeroEscrito& numero) {
    const std::string texto =
        numero.enteras + '.' + numero.decimales + (numero.exponente.empty() ? "" : "e") + numero.exponente;
    double valor = 0;
    if (std::from_chars(texto.data(), texto.data() + texto.size(), valor).ec ==
        std::errc::result_out_of_range) {
        valor = Orden(numero) > 0 ? std::numeric_limits<double>::infinity() : 0;
    }
    return numero.negativo ? -valor : valor;
}

/// Without spaces, tabs and no-break spaces at both ends.
std::string_view SinBlancosAlrededor(std::string_view texto) {
    constexpr std::string_view blancos[] = {" ", "\t", "\u00A0"};
    const auto quitarUno = [&] {
        for (const auto blanco : blancos) {
            if (texto.starts_with(blanco)) {
                texto.remove_prefix(blanco.size());
                return true;
            }
            if (texto.ends_with(blanco)) {
                texto.remove_suffix(blanco.size());
                return true;
            }
        }
        return false;
    };
    while (quitarUno()) {
    }
    return texto;
}

/// The number of a text under the decimal comma, an infinity if it is too large; nothing if it is no number.
std::optional<double> Leer(std::string_view texto) {
    Lector lector{SinBlancosAlrededor(texto)};
    NumeroEscrito numero;
    numero.negativo = lector.una("+-") == '-';
    do {
        numero.enteras += lector.cifras();
    } while (lector.una(".") != 0);
    if (lector.una(",") != 0) {
        numero.decimales = lector.cifras();
    }
    numero.exponente = lector.exponente("Ee");
    if (!lector.acabado() || (numero.enteras.empty() && numero.decimales.empty())) {
        return std::nullopt;
    }
    return MasCercano(numero);
}

} // namespace

double ANumero(std::string_view texto) {
    const auto numero = Leer(texto);
    if (!numero) {
        throw ErrorEjecucion{fallo::tiposDistintos}.porque(
            texto.empty() ? "no hay nada donde se espera un número" : Cita(texto) + " no es un número");
    }
    if (!std::isfinite(*numero)) {
        throw ErrorEjecucion{fallo::desbordamiento}.porque(Cita(texto) + " es un número demasiado grande");
    }
    return *numero;
}

bool EsNumerico(std::string_view texto) {
    const auto numero = Leer(texto);
    return numero && std::isfinite(*numero);
}

double Val(std::string_view texto) {
    std::string junto{texto};
    std::erase_if(junto, [](char c) { return c == ' ' || c == '\t' || c == '\n'; });
    Lector lector{junto};
    NumeroEscrito numero;
    numero.negativo = lector.una("+-") == '-';
    numero.enteras = lector.cifras();
    if (lector.una(".") != 0) {
        numero.decimales = lector.cifras();
    }
    if (numero.enteras.empty() && numero.decimales.empty()) {
        return 0;
    }
    numero.exponente = lector.exponente("EeDd");
    return ExigirFinito(MasCercano(numero));
}

} // namespace varo
