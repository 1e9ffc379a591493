#include "lote/recorrido/ServiciosDeTrabajo.h"

#include <algorithm>
#include <utility>

namespace varo {

int ServiciosDeTrabajo::mensaje(const std::string& texto, const std::string& titulo, int opciones) {
    if (texto != "El intervalo no es correcto") {
        return ServiciosPreparados::mensaje(texto, titulo, opciones);
    }
    if (std::find(avisos_.begin(), avisos_.end(), texto) == avisos_.end()) {
        avisos_.push_back(texto);
    }
    return mensaje::respondeAceptar;
}

std::vector<std::string> ServiciosDeTrabajo::recogerAvisos() {
    return std::exchange(avisos_, {});
}

} // namespace varo
