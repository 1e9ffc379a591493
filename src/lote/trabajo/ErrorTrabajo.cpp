#include "lote/trabajo/ErrorTrabajo.h"

#include "basico/Texto.h"

#include <algorithm>

namespace varo {

std::string EnUnaLinea(std::string texto) {
    std::replace_if(
        texto.begin(), texto.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return texto;
}

std::string LineaDeAviso(const std::filesystem::path& trabajo, const Lugar& lugar, const std::string& texto) {
    std::string linea = trabajo.string() + ": ";
    if (lugar.linea > 0) {
        linea += "línea " + std::to_string(lugar.linea) + ": ";
    }
    if (!lugar.clave.empty()) {
        linea += lugar.clave + (lugar.valor ? " = " + Cita(*lugar.valor) : "") + ": ";
    }
    return EnUnaLinea(linea + texto);
}

} // namespace varo
