#include "indices/archivo/ArchivoDeTexto.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Texto.h"

#include <filesystem>
#include <system_error>

namespace varo {

void ArchivoDeTexto::abrir(const std::string& ruta) {
    const std::filesystem::path camino{ruta};
    if (camino.filename().string().find_first_of("*?\"<>|") != std::string::npos) {
        throw ErrorEjecucion{fallo::nombreDeArchivo}.en("archivo «" + ruta + "»");
    }
    std::error_code error;
    if (!std::filesystem::is_directory(camino.parent_path(), error)) {
        throw ErrorEjecucion{fallo::rutaNoEncontrada}.en("archivo «" + ruta + "»");
    }
    archivo_.open(camino, std::ios::binary | std::ios::trunc);
    if (!archivo_.is_open()) {
        throw ErrorEjecucion{fallo::accesoAlArchivo}.en("archivo «" + ruta + "»");
    }
}

void ArchivoDeTexto::Print(const std::string& linea) {
    if (!archivo_.is_open()) {
        throw ErrorEjecucion{fallo::nombreDeArchivo};
    }
    if (!(archivo_ << AWindows1252(linea) << "\r\n")) {
        throw ErrorEjecucion{fallo::discoLleno};
    }
}

void ArchivoDeTexto::cerrar() {
    if (!archivo_.is_open()) {
        return;
    }
    archivo_.close();
    if (archivo_.fail()) {
        throw ErrorEjecucion{fallo::discoLleno};
    }
}

} // namespace varo
