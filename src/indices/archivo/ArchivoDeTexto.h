// A text file opened for output.
#pragma once

#include <fstream>
#include <string>

namespace varo {

/// Printing to a file that is not open throws 52. Texts are UTF-8 here and Windows-1252 in the file.
class ArchivoDeTexto {
public:
    /// Opens the file and empties it. A name with characters that no file name may have throws 52; a folder
    /// that is not there 76, a refused access 75.
    void abrir(const std::string& ruta);
    /// Writes a line and its CR LF. A write that fails throws 61.
    void Print(const std::string& linea);
    /// Closes the file, if it is open. What could not be written throws 61.
    void cerrar();

private:
    std::ofstream archivo_;
};

} // namespace varo
