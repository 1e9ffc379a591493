#include "revision/FormaDeTexto.h"

#include "basico/Texto.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace varo {

namespace {

constexpr std::string_view cifras = "0123456789";

bool SoloBlancos(std::string_view texto) {
    const std::string sinDuros = Reemplazar(texto, "\u00A0", " ");
    return sinDuros.find_first_not_of(" \t\r\n") == std::string::npos;
}

/// Points between groups of three digits, the first group shorter or as long.
bool EnGrupos(std::string_view enteras) {
    std::size_t grupo = enteras.find('.');
    if (grupo == 0 || grupo > 3) {
        return false;
    }
    while (grupo != std::string_view::npos) {
        enteras.remove_prefix(grupo + 1);
        grupo = enteras.find('.');
        if ((grupo == std::string_view::npos ? enteras.size() : grupo) != 3) {
            return false;
        }
    }
    return true;
}

FormaDeTexto FormaDelNumero(std::string_view texto) {
    if (texto.find('.') == std::string_view::npos) {
        return FormaDeTexto::Corriente;
    }
    const auto desde = std::min(texto.find_first_of(cifras), texto.size());
    const auto coma = texto.find(',');
    const auto fin = std::min(texto.find_last_of("0123456789.") + 1, texto.size());
    const std::string_view enteras = texto.substr(desde, std::min(coma, fin) - std::min(desde, fin));
    const bool hayDuda = coma == std::string_view::npos && std::ranges::count(enteras, '.') == 1;
    return !hayDuda && EnGrupos(enteras) ? FormaDeTexto::ConGrupos : FormaDeTexto::ConPunto;
}

/// Digits at the head and a unit behind them.
bool LlevaUnidad(std::string_view texto) {
    const auto fin = texto.find_first_not_of("0123456789.,+- \t");
    const auto ultimaCifra = texto.substr(0, fin).find_last_of(cifras);
    if (fin == std::string_view::npos || ultimaCifra == std::string_view::npos) {
        return false;
    }
    return texto.substr(fin).find_first_of("0123456789*?!#+/\\()[]{}<>=:;_~^&|@$\"'") ==
           std::string_view::npos;
}

} // namespace

FormaDeTexto FormaDe(std::string_view texto, bool esNumero) {
    if (esNumero) {
        return FormaDelNumero(texto);
    }
    if (SoloBlancos(texto)) {
        return FormaDeTexto::EnBlanco;
    }
    return LlevaUnidad(texto) ? FormaDeTexto::ConUnidad : FormaDeTexto::OtraCosa;
}

} // namespace varo
