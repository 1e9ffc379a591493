#include "motor/ValorDeCelda.h"

#include <string>

namespace varo {

ValorDeCelda::ValorDeCelda(const Valor& valor) {
    if (const auto* numero = std::get_if<double>(&valor)) {
        *this = {ValorDeCelda::Clase::Numero, *numero};
    } else if (const auto* texto = std::get_if<std::string>(&valor)) {
        *this = ValorDeCelda{std::string_view{*texto}};
    } else if (const auto* fecha = std::get_if<Fecha>(&valor)) {
        *this = {ValorDeCelda::Clase::Momento, fecha->serie};
    } else if (const auto* verdad = std::get_if<bool>(&valor)) {
        *this = {ValorDeCelda::Clase::Verdad, *verdad ? 1.0 : 0.0};
    }
}

ValorDeCelda::operator Valor() const {
    switch (clase_) {
    case ValorDeCelda::Clase::Numero:
        return numero_;
    case ValorDeCelda::Clase::Texto:
        return std::string{texto_};
    case ValorDeCelda::Clase::Momento:
        return Fecha{numero_};
    case ValorDeCelda::Clase::Verdad:
        return numero_ != 0;
    default:
        return Nulo{};
    }
}

} // namespace varo
