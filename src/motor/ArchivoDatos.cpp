#include "motor/ArchivoDatos.h"

#include "basico/ErrorEjecucion.h"
#include "motor/FormatosDeArchivo.h"
#include "motor/lectores/LectorCsv.h"
#include "motor/lectores/LectorMdb.h"
#include "motor/lectores/LectorXls.h"
#include "motor/lectores/OtrosFormatos.h"

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <system_error>

namespace varo {

namespace {

/// Far beyond any plot: what is larger is some other kind of file, and is not read into memory. Ten times as
/// much and 64 MB, which is what reading takes at most, stay below 2 GB.
constexpr std::uintmax_t tamanoMaximo = std::uintmax_t{192} * 1024 * 1024;

std::string NombreDe(const std::filesystem::path& archivo) {
    const auto utf8 = archivo.u8string();
    return {utf8.begin(), utf8.end()};
}

[[noreturn]] void NoSeAbre(int numero, const std::string& nombre, const std::string& motivo) {
    throw ErrorMotor{numero, "No se puede abrir «" + nombre + "»: " + motivo};
}

/// The size of a plain file that is there.
std::uintmax_t TamanoDe(const std::filesystem::path& archivo, const std::string& nombre) {
    std::error_code error;
    const auto estado = std::filesystem::status(archivo, error);
    if (estado.type() == std::filesystem::file_type::not_found) {
        NoSeAbre(fallo::archivoNoEncontrado, nombre, "el archivo no existe");
    }
    if (std::filesystem::is_directory(estado)) {
        NoSeAbre(fallo::accesoAlArchivo, nombre, "es una carpeta");
    }
    if (!std::filesystem::is_regular_file(estado)) {
        NoSeAbre(fallo::accesoAlArchivo, nombre, "no es un archivo corriente o no se puede llegar a él");
    }
    const auto tamano = std::filesystem::file_size(archivo, error);
    if (error) {
        NoSeAbre(fallo::accesoAlArchivo, nombre, "no se puede saber su tamaño");
    }
    return tamano;
}

std::vector<std::byte> LeerBytes(const std::filesystem::path& archivo, const std::string& nombre) {
    const auto tamano = TamanoDe(archivo, nombre);
    if (tamano == 0) {
        NoSeAbre(fallo::formatoNoReconocido, nombre, "está vacío");
    }
    if (tamano > tamanoMaximo) {
        NoSeAbre(fallo::formatoNoReconocido, nombre,
                 "es demasiado grande para ser el inventario de una parcela");
    }
    std::ifstream entrada{archivo, std::ios::binary};
    if (!entrada) {
        NoSeAbre(fallo::permisoDenegado, nombre, "no hay permiso para leerlo o lo usa otro programa");
    }
    std::vector<std::byte> bytes(static_cast<std::size_t>(tamano));
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the stream's characters are the bytes
    entrada.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (!entrada) {
        NoSeAbre(fallo::accesoAlArchivo, nombre, "no se ha podido leer entero");
    }
    return bytes;
}

} // namespace

std::vector<Tabla> LeerArchivoDatos(const std::filesystem::path& archivo, const Avance& avance) {
    const auto nombre = NombreDe(archivo);
    const auto bytes = LeerBytes(archivo, nombre);
    if (PareceXls(bytes)) {
        return LeerXls(bytes, nombre, avance);
    }
    if (PareceMdb(bytes)) {
        return LeerMdb(bytes, nombre, avance);
    }
    if (const auto* const formato = FormatoRegistrado(bytes)) {
        return formato->leer(bytes, nombre, avance);
    }
    if (const auto ajeno = QueArchivoEs(bytes)) {
        NoSeAbre(fallo::formatoNoReconocido, nombre, *ajeno);
    }
    return LeerCsv(bytes, nombre, NombreDe(archivo.stem()), avance);
}

} // namespace varo
