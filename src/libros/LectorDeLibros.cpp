#include "libros/LectorDeLibros.h"

#include "libros/ArchivoZip.h"
#include "libros/ClaseDeComprimido.h"
#include "libros/ods/LectorOds.h"
#include "libros/xlsx/LectorXlsx.h"
#include "libros/xlsx/LibroXlsx.h"
#include "motor/lectores/TablasDeLibro.h"

namespace varo {
namespace {

std::vector<Tabla> LeerComprimido(Bytes bytes, const std::string& archivo, const Avance& avance) {
    const ArchivoZip comprimido{bytes};
    if (EsOds(comprimido)) {
        return LeerOds(comprimido, archivo, avance);
    }
    const auto principal = PartePrincipal(comprimido);
    if (principal && !principal->ends_with(".bin")) {
        return LeerXlsx(comprimido, *principal, archivo, avance);
    }
    throw ErrorMotor{fallo::formatoNoReconocido, QueComprimidoEs(comprimido)};
}

} // namespace

bool PareceLibroComprimido(std::span<const std::byte> bytes) {
    return ArchivoZip::esZip(bytes);
}

std::vector<Tabla> LeerLibroComprimido(std::span<const std::byte> bytes, const std::string& archivo,
                                       const Avance& avance) {
    try {
        return LeerComprimido(bytes, archivo, avance);
    } catch (const ErrorMotor& error) {
        throw ErrorMotor{error.numero(), "No se puede leer «" + archivo + "»: " + DefectoConRemedio(error)};
    }
}

} // namespace varo
