#include "lote/recorrido/EscribirResultados.h"

#include "indices/archivo/FrmCrearArchivo.h"
#include "lote/recorrido/ArchivoEntero.h"
#include "map/FrmMapa.h"

#include <algorithm>
#include <cassert>
#include <fstream>
#include <string>

namespace varo {

namespace {

int ColumnasDe(const std::filesystem::path& resultados) {
    std::ifstream archivo{resultados, std::ios::binary};
    std::string cabecera;
    std::getline(archivo, cabecera, '\r');
    return static_cast<int>(std::count(cabecera.begin(), cabecera.end(), '\t')) + 1;
}

/// Names the file in the dialog and accepts it. The writing passes over its faults but records them; the
/// first one is thrown here.
void Guardar(PuestoDeTrabajo& puesto, const ArchivoEntero& archivo) {
    auto& dialogo = puesto.programa.tocar<FrmCrearArchivo>();
    dialogo.DirLista.Path(archivo.carpeta().string());
    puesto.usuario.escribir(dialogo.TxtLista, archivo.nombre().string());
    puesto.servicios.esperarMensaje(archivo.provisional().string() + " fue creado correctamente");
    try {
        puesto.usuario.clic(dialogo.CmdAceptar);
    } catch (const MensajeInesperado&) {
        if (puesto.programa.fallosAlGuardar.empty()) {
            throw;
        }
    }
    if (!puesto.programa.fallosAlGuardar.empty()) {
        throw ErrorEjecucion{puesto.programa.fallosAlGuardar.front()};
    }
}

} // namespace

int EscribirResultados(PuestoDeTrabajo& puesto, const SalidaPedida& salida) {
    auto& mapa = puesto.programa.tocar<FrmMapa>();
    assert(mapa.Visible());
    puesto.empezar("calculando los índices");
    puesto.hacer({"cálculo de los índices"}, [&] { puesto.usuario.clic(mapa.mnuIndices); });
    puesto.empezar("escribiendo " + salida.ruta.string());
    int columnas = 0;
    puesto.hacer(
        {"salida.resultados", salida.linea},
        [&] {
            ArchivoEntero archivo{salida.ruta};
            Guardar(puesto, archivo);
            columnas = ColumnasDe(archivo.provisional());
            archivo.publicar();
        },
        Estado::ErrorDeArchivo);
    return columnas;
}

} // namespace varo
