#include "libros/xlsx/LectorXlsx.h"

#include "libros/xlsx/HojaXlsx.h"
#include "libros/xlsx/LibroXlsx.h"
#include "motor/lectores/TablasDeLibro.h"

#include <set>

namespace varo {
namespace {

/// How many bytes the sheets have. No two may stand in one part: many of them would take long to read.
std::size_t BytesDeHojas(const ArchivoZip& comprimido, const LibroXlsx& libro) {
    std::set<std::string> partes;
    std::size_t bytes = 0;
    for (const auto& hoja : libro.hojas) {
        if (hoja.deCalculo && !hoja.parte.empty()) {
            if (!partes.insert(hoja.parte).second) {
                ArchivoDanado("unas hojas pisan a otras");
            }
            bytes += comprimido.tamano(hoja.parte);
        }
    }
    return bytes;
}

} // namespace

std::vector<Tabla> LeerXlsx(const ArchivoZip& comprimido, const std::string& parte,
                            const std::string& archivo, const Avance& avance) {
    const auto libro = LeerLibroXlsx(comprimido, parte);
    const auto bytes = BytesDeHojas(comprimido, libro);
    LimitesDeLectura limites{0}; // grows with what is there, whatever the archive says
    avance.empezar(bytes);
    TablasDeLibro tablas{archivo, libro.nombres, limites};
    for (const auto& hoja : libro.hojas) {
        if (hoja.deCalculo) {
            tablas.anadirHoja(hoja.nombre, [&] {
                if (hoja.parte.empty()) {
                    ArchivoDanado("el libro no dice dónde está la hoja");
                }
                return LeerHojaXlsx(comprimido, hoja.parte, libro, limites, avance);
            });
        }
    }
    return tablas.acabar();
}

} // namespace varo
