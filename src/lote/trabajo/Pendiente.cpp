#include "lote/trabajo/Pendiente.h"

#include <algorithm>
#include <string_view>

namespace varo {

namespace {

bool Encendida(const Trabajo& trabajo, std::string_view control) {
    return std::any_of(trabajo.opciones.begin(), trabajo.opciones.end(), [&](const OpcionPedida& opcion) {
        return opcion.control == control && opcion.valor != ValorPedido{false} &&
               opcion.valor != ValorPedido{std::int64_t{0}};
    });
}

/// Crowns are ellipses unless the job says otherwise; a mean radius makes them circles.
bool ConCopasElipticas(const Trabajo& trabajo) {
    return !Encendida(trabajo, "Optcirc") && !Encendida(trabajo, "OptRM");
}

} // namespace

void RechazarLoPendiente(const Trabajo& trabajo) {
    const auto rechazarSalida = [&](const char* clave, const std::optional<SalidaPedida>& salida) {
        if (salida) {
            throw ErrorTrabajo{trabajo.ruta, {clave, salida->linea}, "todavía no se puede pedir"};
        }
    };
    rechazarSalida("salida.datos", trabajo.datos);
    rechazarSalida("salida.mapa", trabajo.mapa);
    for (const auto& opcion : trabajo.opciones) {
        if (opcion.control == "ChSupCopa" && Encendida(trabajo, opcion.control) &&
            ConCopasElipticas(trabajo)) {
            throw ErrorTrabajo{trabajo.ruta, opcion.lugar(),
                               "todavía no se calcula la superposición de copas elípticas"};
        }
    }
}

} // namespace varo
