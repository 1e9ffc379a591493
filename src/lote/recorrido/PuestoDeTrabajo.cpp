#include "lote/recorrido/PuestoDeTrabajo.h"

#include "data/Hojadedatos.h"

namespace varo {

PuestoDeTrabajo::PuestoDeTrabajo(const Trabajo& trabajo_, const Seguimiento& seguimiento)
    : trabajo{trabajo_}, seguimiento_{seguimiento} {
    if (seguimiento.marcha) {
        servicios.oyente = &oyente_;
    }
}

bool PuestoDeTrabajo::Oyente::oir(const Marcha& marcha) {
    constexpr std::chrono::milliseconds cadaCuanto{100};
    const auto ahora = std::chrono::steady_clock::now();
    if (ahora - dicho_ >= cadaCuanto) {
        dicho_ = ahora;
        const auto* const hoja = puesto_.programa.cargada<Hojadedatos>();
        const bool conArboles = hoja != nullptr && hoja->Visible();
        puesto_.seguimiento_.marcha(marcha, conArboles ? hoja->MSFlexGrid1.Rows() - 1 : 0);
    }
    return false;
}

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
