#include "lote/recorrido/CarpetaDeSalida.h"

#include "basico/ErrorEjecucion.h"
#include "sistema/ArchivoEntero.h"

#include <string>
#include <system_error>

namespace varo {

namespace fs = std::filesystem;

namespace {

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

} // namespace

fs::path CrearCarpetaDe(const fs::path& ruta) {
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

void EscribirEntero(const fs::path& ruta, const std::string& bytes) {
    CrearCarpetaDe(ruta);
    ArchivoEntero archivo{ruta.string()};
    archivo.escribir(bytes);
    archivo.publicar();
}

} // namespace varo
