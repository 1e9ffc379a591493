#include "lote/trabajo/ErrorTrabajo.h"

#include "basico/Texto.h"

#include <cstddef>

namespace varo {

std::string Acortado(const std::string& texto) {
    constexpr std::size_t bastantes = 120;
    return Longitud(texto) > bastantes ? Izquierda(texto, bastantes) + "…" : texto;
}

std::string CitaLarga(const std::string& texto) {
    return "«" + Acortado(texto) + "»";
}

std::string Enumerar(const std::vector<std::string>& nombres) {
    constexpr std::size_t bastantes = 40;
    std::string texto;
    for (std::size_t i = 0; i < std::min(nombres.size(), bastantes); ++i) {
        texto += (i == 0 ? "" : ", ") + nombres[i];
    }
    if (nombres.size() > bastantes) {
        texto += " y " + std::to_string(nombres.size() - bastantes) + " más";
    }
    return texto;
}

std::string LineaDeAviso(const std::filesystem::path& trabajo, const Lugar& lugar, const std::string& texto) {
    std::string linea = trabajo.string() + ": ";
    if (lugar.linea > 0) {
        linea += "línea " + std::to_string(lugar.linea) + ": ";
    }
    if (!lugar.clave.empty()) {
        linea += Acortado(lugar.clave) + (lugar.valor ? " = " + CitaLarga(*lugar.valor) : "") + ": ";
    }
    return EnUnaLinea(linea + texto);
}

} // namespace varo
