#include "lote/recorrido/EscribirResultados.h"

#include "indices/archivo/FrmCrearArchivo.h"
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

std::string PorQueNoHayCarpeta(const std::error_code& error) {
    if (!error || error == std::errc::not_a_directory || error == std::errc::file_exists) {
        return "en su sitio, o en el de una carpeta de encima, hay un archivo";
    }
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted) {
        return "no hay permiso para crearla";
    }
    if (error == std::errc::read_only_file_system) {
        return "su disco es de solo lectura";
    }
    if (error == std::errc::no_space_on_device) {
        return "disco lleno";
    }
    return error == std::errc::filename_too_long ? "su nombre es demasiado largo"
                                                 : "el sistema da el error " + std::to_string(error.value());
}

/// Makes the folder of the file when it is missing, and hands it back.
fs::path CarpetaDe(const fs::path& ruta) {
    fs::path carpeta = ruta.has_parent_path() ? ruta.parent_path() : fs::path{"."};
    std::error_code error;
    fs::create_directories(carpeta, error);
    std::error_code noSeSabe;
    if (!fs::is_directory(carpeta, noSeSabe)) {
        throw ErrorEjecucion{fallo::accesoAlArchivo, "No se puede crear la carpeta «" + carpeta.string() +
                                                         "»: " + PorQueNoHayCarpeta(error)};
    }
    return carpeta;
}

/// Names the file in the dialog and accepts it. The writing passes over its faults but records them; the
/// first one is thrown here.
void Guardar(PuestoDeTrabajo& puesto, const fs::path& ruta) {
    auto& dialogo = puesto.programa.tocar<FrmCrearArchivo>();
    const fs::path carpeta = CarpetaDe(ruta);
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
