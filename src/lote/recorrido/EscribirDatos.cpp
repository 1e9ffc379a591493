#include "lote/recorrido/EscribirDatos.h"

#include "lote/recorrido/CarpetaDeSalida.h"
#include "map/FrmMapa.h"
#include "plot/FrmResultados.h"
#include "plot/TextoDeDatos.h"

#include <cassert>

namespace varo {

void EscribirDatos(PuestoDeTrabajo& puesto, const SalidaPedida& salida) {
    auto& mapa = puesto.programa.tocar<FrmMapa>();
    assert(mapa.Visible());
    puesto.empezar("calculando los datos de parcela");
    puesto.hacer({"datos de parcela"}, [&] { puesto.usuario.clic(mapa.mnuDatos); });
    puesto.empezar("escribiendo " + salida.ruta.string());
    puesto.hacer(
        {"salida.datos", salida.linea},
        [&] { EscribirEntero(salida.ruta, TextoDeDatos(puesto.programa.tocar<FrmResultados>())); },
        Estado::ErrorDeArchivo);
}

} // namespace varo
