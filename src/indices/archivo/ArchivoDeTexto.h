// A text file opened for output.
#pragma once

#include "formularios/Servicios.h"

#include <memory>
#include <string>

namespace varo {

/// Printing to a file that is not open throws 52. Texts are UTF-8 here and Windows-1252 in the file.
class ArchivoDeTexto {
public:
    explicit ArchivoDeTexto(Servicios& servicios) : servicios_{servicios} {}

    /// Opens the file; one that is there stays as it is until `cerrar`. A name with characters that no file
    /// name may have throws 52.
    void abrir(const std::string& ruta);
    /// Writes a line and its CR LF. After a write that fails nothing takes the file's place.
    void Print(const std::string& linea);
    /// Puts the file in its place, if it is open and all of it was written.
    void cerrar();

private:
    Servicios& servicios_;
    std::unique_ptr<ArchivoNuevo> archivo_;
    bool entero_ = true;
};

} // namespace varo
