#include "lote/recorrido/PuestoDeTrabajo.h"

namespace varo {

void PuestoDeTrabajo::hacer(const Lugar& lugar, const std::function<void()>& acto, Estado siFalla) {
    try {
        acto();
    } catch (const ActoImposible& imposible) {
        throw error(lugar, imposible.what());
    } catch (const MensajeInesperado& mensaje) {
        throw error(lugar, "el programa avisa: " + CitaLarga(mensaje.texto()));
    } catch (const FalloInesperado& fallo) {
        throw ErrorTrabajo{trabajo.ruta, lugar, fallo.what(), siFalla, fallo.error().numero()};
    } catch (const ErrorEjecucion& fallo) {
        throw ErrorTrabajo{trabajo.ruta, lugar, fallo.what(), siFalla, fallo.numero()};
    }
    for (const auto& aviso : servicios.recogerAvisos()) {
        avisar(lugar, aviso);
    }
}

void PuestoDeTrabajo::avisar(const Lugar& lugar, const std::string& texto) const {
    seguimiento_.aviso(LineaDeAviso(trabajo.ruta, lugar, "aviso: " + texto));
}

void PuestoDeTrabajo::empezar(const std::string& etapa) const {
    seguimiento_.etapa(LineaDeAviso(trabajo.ruta, {}, etapa));
}

} // namespace varo
