#include "lote/recorrido/ArchivoEntero.h"

#include "basico/ErrorEjecucion.h"

#include <cassert>
#include <random>
#include <string>
#include <system_error>

namespace varo {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void NoSePuede(const std::string& que, const fs::path& ruta) {
    throw ErrorEjecucion{fallo::accesoAlArchivo, "No se puede " + que + " «" + ruta.string() + "»"};
}

fs::path CarpetaDe(const fs::path& archivo) {
    return archivo.has_parent_path() ? archivo.parent_path() : fs::path{"."};
}

/// Makes a folder with a new name.
fs::path CarpetaNueva(const fs::path& donde) {
    std::random_device azar;
    std::error_code error;
    constexpr int intentos = 100;
    for (int i = 0; i < intentos && !error; ++i) {
        fs::path nueva = donde / (".varo-" + std::to_string(azar()));
        if (fs::create_directory(nueva, error)) {
            return nueva;
        }
    }
    NoSePuede("escribir en la carpeta", donde);
}

} // namespace

ArchivoEntero::ArchivoEntero(const fs::path& destino) : destino_{destino} {
    std::error_code error;
    if (fs::exists(destino, error)) {
        if (!fs::is_regular_file(destino, error)) {
            NoSePuede("escribir en", destino);
        }
        destino_ = fs::canonical(destino, error); // behind a link it is the file that is replaced
        if (error) {
            NoSePuede("escribir en", destino);
        }
    }
    const fs::path carpeta = CarpetaDe(destino_);
    fs::create_directories(carpeta, error);
    if (!fs::is_directory(carpeta, error)) {
        NoSePuede("crear la carpeta", carpeta);
    }
    carpeta_ = CarpetaNueva(carpeta);
}

ArchivoEntero::~ArchivoEntero() {
    std::error_code sinRemedio;
    fs::remove_all(carpeta_, sinRemedio);
}

void ArchivoEntero::publicar() {
    assert(!publicado_);
    std::error_code error;
    fs::rename(provisional(), destino_, error);
    if (error) {
        NoSePuede("escribir en", destino_);
    }
    publicado_ = true;
}

} // namespace varo
