#include "lote/revision/RevisarTrabajos.h"

#include "lote/FinalDeTrabajo.h"
#include "lote/revision/InformeDeRevision.h"
#include "lote/revision/RevisarTrabajo.h"

#include <algorithm>
#include <array>
#include <ostream>

namespace varo {

namespace {

/// The worse, the later.
constexpr std::array deMejorAPeor{Estado::Hecho,          Estado::CifrasEquivocadas, Estado::FalloDeCalculo,
                                  Estado::ErrorDeArchivo, Estado::Rechazado,         Estado::ErrorInterno};

Estado Peor(Estado uno, Estado otro) {
    return std::max(uno, otro, [](Estado a, Estado b) {
        return std::ranges::find(deMejorAPeor, a) < std::ranges::find(deMejorAPeor, b);
    });
}

} // namespace

Estado RevisarTrabajos(const Ordenes& ordenes, const Consola& consola) {
    Estado peor = Estado::Hecho;
    if (ordenes.tsv) {
        consola.salida << CabeceraDeHallazgos();
    }
    for (const auto& ruta : ordenes.trabajos) {
        FinalDeTrabajo final;
        Seguimiento seguimiento;
        seguimiento.aviso = [&](const std::string& aviso) { final.errores.push_back(aviso); };
        Terminar(final, ruta, [&] {
            const auto hallazgos = RevisarTrabajo(LeerTrabajo(ruta, ordenes.cambios), seguimiento);
            final.estado = EstadoDeRevision(hallazgos);
            final.resumen =
                ordenes.tsv ? LineasDeHallazgos(ruta, hallazgos) : TablaDeHallazgos(ruta, hallazgos);
        });
        for (const auto& linea : final.errores) {
            consola.errores << linea << '\n';
        }
        consola.salida << final.resumen;
        peor = Peor(peor, final.estado);
    }
    return peor;
}

} // namespace varo
