#include "lote/Pendiente.h"

#include <algorithm>
#include <array>

namespace varo {

namespace {

constexpr std::array<std::string_view, 5> familiasPendientes{"ChSupCopa", "ChAOIActivar", "ChIDPActivar",
                                                             "ChDRActivar", "ChAPA"};

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
        const bool apagada =
            opcion.valor == ValorPedido{false} || opcion.valor == ValorPedido{std::int64_t{0}};
        if (!apagada && std::find(familiasPendientes.begin(), familiasPendientes.end(), opcion.control) !=
                            familiasPendientes.end()) {
            throw ErrorTrabajo{trabajo.ruta, opcion.lugar(), "todavía no se calcula esta familia de índices"};
        }
    }
}

} // namespace varo
