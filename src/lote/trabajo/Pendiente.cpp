#include "lote/trabajo/Pendiente.h"

namespace varo {

void RechazarLoPendiente(const Trabajo& trabajo, bool conPintor) {
    const auto rechazarSalida = [&](const char* clave, const std::optional<SalidaPedida>& salida) {
        if (salida) {
            throw ErrorTrabajo{trabajo.ruta, {clave, salida->linea}, "todavía no se puede pedir"};
        }
    };
    rechazarSalida("salida.datos", trabajo.datos);
    for (const auto& mapa : trabajo.mapas) {
        if (!conPintor && EsDeDibujo(ExtensionDe(mapa.ruta))) {
            throw ErrorTrabajo{trabajo.ruta,
                               {"salida.mapa", mapa.linea},
                               "aquí no se escriben mapas .svg, .pdf ni .png: pida un .txt"};
        }
    }
}

} // namespace varo
