// Numbers to text.
#include "basico/FormaDecimal.h"
#include "basico/Numeros.h"

#include <cstddef>
#include <cstdlib>

namespace varo {

namespace {

// The exponent form begins at 1E+15 and ends at 0,0001; `punto` is one more than the exponent.
constexpr int mayorPuntoFijo = 15;
constexpr int menorPuntoFijo = -3;

std::string ConExponente(const FormaDecimal& forma) {
    std::string texto = forma.cifras.substr(0, 1);
    if (forma.cifras.size() > 1) {
        texto += ',' + forma.cifras.substr(1);
    }
    const int exponente = forma.punto - 1;
    const std::string valor = std::to_string(std::abs(exponente));
    return texto + (exponente < 0 ? "E-" : "E+") + (valor.size() < 2 ? "0" : "") + valor;
}

std::string SinExponente(const FormaDecimal& forma) {
    if (forma.punto <= 0) {
        return "0," + std::string(static_cast<std::size_t>(-forma.punto), '0') + forma.cifras;
    }
    const auto enteras = static_cast<std::size_t>(forma.punto);
    std::string texto = forma.cifras;
    if (texto.size() <= enteras) {
        texto.append(enteras - texto.size(), '0');
    } else {
        texto.insert(enteras, 1, ',');
    }
    return texto;
}

std::string Escribir(const FormaDecimal& forma) {
    if (forma.cifras.empty()) {
        return "0";
    }
    const bool fijo = forma.punto >= menorPuntoFijo && forma.punto <= mayorPuntoFijo;
    return (forma.negativo ? "-" : "") + (fijo ? SinExponente(forma) : ConExponente(forma));
}

} // namespace

std::string ATexto(double numero) {
    return Escribir(EnDecimal(numero));
}

std::string ATexto(float numero) {
    return Escribir(EnDecimal(numero));
}

std::string ATexto(int numero) {
    return std::to_string(numero);
}

std::string ATextoCorto(double numero) {
    return Escribir(EnDecimalJusto(numero));
}

} // namespace varo
