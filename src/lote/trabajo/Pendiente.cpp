#include "lote/trabajo/Pendiente.h"

namespace varo {

void RechazarLoPendiente(const Trabajo& trabajo) {
    const auto rechazarSalida = [&](const char* clave, const std::optional<SalidaPedida>& salida) {
        if (salida) {
            throw ErrorTrabajo{trabajo.ruta, {clave, salida->linea}, "todavía no se puede pedir"};
        }
    };
    rechazarSalida("salida.datos", trabajo.datos);
    rechazarSalida("salida.mapa", trabajo.mapa);
}

} // namespace varo
