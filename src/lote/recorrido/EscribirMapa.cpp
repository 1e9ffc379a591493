#include "lote/recorrido/EscribirMapa.h"

#include "lote/recorrido/CarpetaDeSalida.h"
#include "map/FrmMapa.h"
#include "map/TextoDelMapa.h"
#include "sistema/ArchivoEntero.h"

#include <cassert>

namespace varo {

void EscribirMapa(PuestoDeTrabajo& puesto, const SalidaPedida& salida, PintorDeMapas* pintor) {
    const auto& mapa = puesto.programa.tocar<FrmMapa>();
    const Lugar lugar{"salida.mapa", salida.linea};
    const std::string extension = ExtensionDe(salida.ruta);
    puesto.empezar("escribiendo " + salida.ruta.string());
    std::string bytes;
    if (EsDeDibujo(extension)) {
        assert(pintor != nullptr && "a job that asks for a picture without a painter was refused");
        const auto avisar = [&](const std::string& aviso) { puesto.avisar(lugar, aviso); };
        puesto.hacer(lugar, [&] { bytes = pintor->pintar(mapa, extension, avisar); });
    } else {
        bytes = TextoDelMapa(mapa);
    }
    puesto.hacer(
        lugar,
        [&] {
            CrearCarpetaDe(salida.ruta);
            ArchivoEntero archivo{salida.ruta.string()};
            archivo.escribir(bytes);
            archivo.publicar();
        },
        Estado::ErrorDeArchivo);
}

} // namespace varo
