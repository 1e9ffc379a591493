#include "indices/archivo/ArchivoDeTexto.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Texto.h"

#include <filesystem>

namespace varo {

void ArchivoDeTexto::abrir(const std::string& ruta) {
    const std::string nombre = std::filesystem::path{ruta}.filename().string();
    if (nombre.find_first_of("*?\"<>|") != std::string::npos) {
        throw ErrorEjecucion{fallo::nombreDeArchivo,
                             "No se ha escrito «" + ruta + "»: su nombre no puede llevar * ? \" < > |"};
    }
    archivo_ = servicios_.crearArchivo(ruta);
}

void ArchivoDeTexto::Print(const std::string& linea) {
    if (!archivo_) {
        throw ErrorEjecucion{fallo::nombreDeArchivo};
    }
    const bool antes = entero_;
    entero_ = false;
    archivo_->escribir(AWindows1252(linea) + "\r\n");
    entero_ = antes;
}

void ArchivoDeTexto::cerrar() {
    if (archivo_ && entero_) {
        archivo_->publicar();
    }
    archivo_.reset();
}

} // namespace varo
