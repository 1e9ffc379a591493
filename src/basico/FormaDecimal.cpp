#include "basico/FormaDecimal.h"

#include "basico/Aritmetica.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string_view>

namespace varo {

namespace {

// No 64-bit float has more significant digits than this: its scientific form with one digit before the point
// and 766 behind it is exact.
constexpr int decimalesExactos = 766;
constexpr std::size_t largoExacto = 800;

constexpr int masCifrasJustas = 17; ///< of the shortest decimal that reads back to a 64-bit float

constexpr int cifrasDe64Bits = 15;
constexpr int cifrasDe32Bits = 7;

void QuitarCerosFinales(std::string& cifras) {
    cifras.erase(cifras.find_last_not_of('0') + 1);
}

/// Takes "-1.25e+03" apart.
FormaDecimal DeCientifica(std::string_view texto) {
    FormaDecimal forma;
    forma.negativo = texto.front() == '-';
    if (forma.negativo) {
        texto.remove_prefix(1);
    }
    const auto e = texto.find('e');
    std::string_view exponente = texto.substr(e + 1);
    if (exponente.front() == '+') {
        exponente.remove_prefix(1);
    }
    std::from_chars(exponente.data(), exponente.data() + exponente.size(), forma.punto);
    ++forma.punto; // from one digit before the point to none
    forma.cifras = texto[0];
    forma.cifras += texto.substr(0, e).substr(std::min<std::size_t>(e, 2)); // past the decimal point
    QuitarCerosFinales(forma.cifras);
    return forma.cifras.empty() ? FormaDecimal{} : forma;
}

FormaDecimal Cientifica(double numero, int decimales) {
    std::array<char, largoExacto> texto{};
    const auto escrito = std::to_chars(texto.data(), texto.data() + texto.size(), numero,
                                       std::chars_format::scientific, decimales);
    return DeCientifica({texto.data(), escrito.ptr});
}

/// The exact digits are many and slow to write, and seldom needed. A normal number that some decimal of up to
/// 15 digits reads back to rounds to that decimal, since 64 bits tell all of those apart. And a number whose
/// shortest decimal is as long as they get lies on no half, so any rounding to nearest is the right one.
FormaDecimal ConCifras(double numero, int significativas) {
    FormaDecimal justo = EnDecimalJusto(numero);
    const auto cuantas = static_cast<int>(justo.cifras.size());
    if (cuantas <= significativas && std::isnormal(numero)) {
        return justo;
    }
    if (cuantas == masCifrasJustas) {
        return Cientifica(numero, significativas - 1);
    }
    FormaDecimal forma = Cientifica(numero, decimalesExactos);
    forma.redondear(significativas);
    return forma;
}

} // namespace

void FormaDecimal::redondear(int cuantas) {
    if (cuantas >= static_cast<int>(cifras.size())) {
        return;
    }
    if (cuantas < 0) {
        cifras.clear();
        return;
    }
    const auto corte = static_cast<std::size_t>(cuantas);
    const bool sube = cifras[corte] >= '5';
    cifras.erase(corte);
    if (!sube) {
        QuitarCerosFinales(cifras);
        return;
    }
    // The carry turns the nines at the end into zeros, which go; past the first digit it adds a digit.
    cifras.erase(cifras.find_last_not_of('9') + 1);
    if (cifras.empty()) {
        cifras.push_back('1');
        ++punto;
    } else {
        ++cifras.back();
    }
}

FormaDecimal EnDecimal(double numero) {
    return ConCifras(numero, cifrasDe64Bits);
}

FormaDecimal EnDecimal(float numero) {
    return ConCifras(numero, cifrasDe32Bits);
}

FormaDecimal EnDecimalJusto(double numero) {
    std::array<char, largoExacto> texto{};
    const auto escrito = std::to_chars(texto.data(), texto.data() + texto.size(), ExigirFinito(numero),
                                       std::chars_format::scientific);
    return DeCientifica({texto.data(), escrito.ptr});
}

} // namespace varo
