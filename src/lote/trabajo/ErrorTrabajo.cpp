#include "lote/trabajo/ErrorTrabajo.h"

#include "basico/Texto.h"

#include <algorithm>

namespace varo {

std::string EnUnaLinea(std::string texto) {
    std::replace_if(
        texto.begin(), texto.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return texto;
}

namespace {

/// The value in a place: long enough for a function with its parameters, and no longer.
std::string ValorCitado(const std::string& valor) {
    constexpr std::size_t bastantes = 120;
    return " = «" + (Longitud(valor) > bastantes ? Izquierda(valor, bastantes) + "…" : valor) + "»";
}

} // namespace

std::string LineaDeAviso(const std::filesystem::path& trabajo, const Lugar& lugar, const std::string& texto) {
    std::string linea = trabajo.string() + ": ";
    if (lugar.linea > 0) {
        linea += "línea " + std::to_string(lugar.linea) + ": ";
    }
    if (!lugar.clave.empty()) {
        linea += lugar.clave + (lugar.valor ? ValorCitado(*lugar.valor) : "") + ": ";
    }
    return EnUnaLinea(linea + texto);
}

} // namespace varo
