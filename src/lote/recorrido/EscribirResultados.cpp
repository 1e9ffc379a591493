#include "lote/recorrido/EscribirResultados.h"

#include "indices/archivo/FrmCrearArchivo.h"
#include "lote/recorrido/CarpetaDeSalida.h"
#include "map/FrmMapa.h"

#include <algorithm>
#include <cassert>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

namespace varo {

namespace {

int ColumnasDe(const std::filesystem::path& resultados) {
    std::ifstream archivo{resultados, std::ios::binary};
    std::string cabecera;
    std::getline(archivo, cabecera, '\r');
    return static_cast<int>(std::count(cabecera.begin(), cabecera.end(), '\t')) + 1;
}

namespace fs = std::filesystem;

/// Names the file in the dialog and accepts it. The writing passes over its faults but records them; the
/// first one is thrown here.
void Guardar(PuestoDeTrabajo& puesto, const fs::path& ruta) {
    auto& dialogo = puesto.programa.tocar<FrmCrearArchivo>();
    const fs::path carpeta = CrearCarpetaDe(ruta);
    const std::string nombre = ruta.filename().string();
    dialogo.DirLista.Path(carpeta.string());
    puesto.usuario.escribir(dialogo.TxtLista, nombre);
    std::error_code sinAcceso;
    if (fs::exists(carpeta / nombre, sinAcceso)) {
        puesto.servicios.esperarMensaje(nombre + " ya existe. ¿Desea escribir sobre él?",
                                        mensaje::respondeSi);
    }
    puesto.servicios.esperarMensaje((carpeta / nombre).string() + " fue creado correctamente");
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
    puesto.servicios.publicarArchivo();
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
            Guardar(puesto, salida.ruta);
            columnas = ColumnasDe(salida.ruta);
        },
        Estado::ErrorDeArchivo);
    return columnas;
}

} // namespace varo
