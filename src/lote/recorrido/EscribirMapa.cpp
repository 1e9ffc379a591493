#include "lote/recorrido/EscribirMapa.h"

#include "lote/recorrido/CarpetaDeSalida.h"
#include "map/FrmMapa.h"
#include "map/TextoDelMapa.h"

#include <algorithm>
#include <cassert>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace varo {

namespace {

std::set<std::string> FuentesNombradas(const FormatoPedido& formato) {
    std::set<std::string> nombres;
    const auto anadir = [&](const std::optional<Pedido<FuentePedida>>& fuente) {
        if (fuente && fuente->valor.nombre) {
            nombres.insert(*fuente->valor.nombre);
        }
    };
    anadir(formato.fuente);
    for (const auto& codigo : formato.codigos) {
        anadir(codigo.fuente);
    }
    return nombres;
}

/// The fonts of the texts in sight.
std::set<std::string> FuentesALaVista(const FrmMapa& mapa) {
    std::set<std::string> nombres;
    for (const Figura& figura : mapa.lienzo.figuras()) {
        if (const auto* const mostrada = std::get_if<EtiquetaMostrada>(&figura)) {
            const Etiqueta& etiqueta = mapa.etiqueta(*mostrada);
            if (etiqueta.Visible && !etiqueta.Caption().empty()) {
                nombres.insert(etiqueta.Font().nombre);
            }
        }
    }
    return nombres;
}

/// "la fuente «A»", "las fuentes «A», «B»".
std::string AvisoDeFuentes(const std::set<std::string>& fuentes) {
    std::vector<std::string> citas;
    std::transform(fuentes.begin(), fuentes.end(), std::back_inserter(citas), CitaLarga);
    const std::string cuales = Enumerar(citas);
    return citas.size() == 1 ? "no está instalada la fuente " + cuales + ": el mapa se pinta con otra"
                             : "no están instaladas las fuentes " + cuales + ": el mapa se pinta con otras";
}

} // namespace

void AvisarDeLasFuentes(PuestoDeTrabajo& puesto, PintorDeMapas* pintor) {
    const Trabajo& trabajo = puesto.trabajo;
    const auto esDeDibujo = [](const SalidaPedida& mapa) { return EsDeDibujo(ExtensionDe(mapa.ruta)); };
    if (!trabajo.formato || std::none_of(trabajo.mapas.begin(), trabajo.mapas.end(), esDeDibujo)) {
        return;
    }
    assert(pintor != nullptr && "a job that asks for a picture without a painter was refused");
    auto fuentes = FuentesNombradas(*trabajo.formato);
    const auto aLaVista = FuentesALaVista(puesto.programa.tocar<FrmMapa>());
    std::erase_if(fuentes, [&](const std::string& fuente) { return !aLaVista.contains(fuente); });
    if (!fuentes.empty()) {
        fuentes = pintor->fuentesQueFaltan(std::move(fuentes));
    }
    if (!fuentes.empty()) {
        puesto.avisar({"formato"}, AvisoDeFuentes(fuentes));
    }
}

void EscribirMapa(PuestoDeTrabajo& puesto, const SalidaPedida& salida, PintorDeMapas* pintor) {
    const auto& mapa = puesto.programa.tocar<FrmMapa>();
    const Lugar lugar{"salida.mapa", salida.linea};
    const std::string extension = ExtensionDe(salida.ruta);
    puesto.empezar("escribiendo " + salida.ruta.string());
    std::string bytes;
    if (EsDeDibujo(extension)) {
        assert(pintor != nullptr && "a job that asks for a picture without a painter was refused");
        puesto.hacer(lugar, [&] { bytes = pintor->pintar(mapa, extension); });
    } else {
        bytes = TextoDelMapa(mapa);
    }
    puesto.hacer(
        lugar, [&] { EscribirEntero(salida.ruta, bytes); }, Estado::ErrorDeArchivo);
}

} // namespace varo
