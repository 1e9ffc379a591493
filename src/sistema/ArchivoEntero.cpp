#include "sistema/ArchivoEntero.h"

#include "basico/ErrorEjecucion.h"

#include <algorithm>
#include <cassert>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace varo {

namespace {

namespace fs = std::filesystem;

constexpr unsigned bitsDeModo = 07777;
constexpr unsigned bitsDeEscritura = 0222;
constexpr unsigned modoNuevo = 0666;
constexpr unsigned modoPropio = 0600; ///< nobody reads what replaces a file before it has that file's mode

[[noreturn]] void NoEscrito(const fs::path& ruta, const std::string& porque, int numero) {
    throw ErrorEjecucion{numero, "No se ha escrito «" + ruta.string() + "»: " + porque};
}

/// Tells what the system has refused.
[[noreturn]] void NoEscrito(const fs::path& ruta, int error) {
    switch (error) {
    case ENOSPC:
    case EDQUOT:
        NoEscrito(ruta, "disco lleno", fallo::discoLleno);
    case ENOENT:
    case ENOTDIR:
        NoEscrito(ruta, "no existe su carpeta", fallo::rutaNoEncontrada);
    case EACCES:
    case EPERM:
        NoEscrito(ruta, "no hay permiso para escribir en su carpeta", fallo::accesoAlArchivo);
    case EROFS:
        NoEscrito(ruta, "su disco es de solo lectura", fallo::accesoAlArchivo);
    case EISDIR:
        NoEscrito(ruta, "es una carpeta", fallo::accesoAlArchivo);
    case ELOOP:
        NoEscrito(ruta, "sus enlaces dan vueltas", fallo::accesoAlArchivo);
    case EFBIG:
        NoEscrito(ruta, "pasa del tamaño que el sistema permite a un archivo", fallo::accesoAlArchivo);
    case ENAMETOOLONG:
        NoEscrito(ruta, "su nombre es demasiado largo", fallo::accesoAlArchivo);
    default:
        NoEscrito(ruta, "el sistema da el error " + std::to_string(error), fallo::accesoAlArchivo);
    }
}

fs::path CarpetaDe(const fs::path& archivo) {
    return archivo.has_parent_path() ? archivo.parent_path() : fs::path{"."};
}

/// The file behind a link, and behind the links behind it, whether it is there or not.
fs::path DetrasDeEnlaces(fs::path ruta) {
    constexpr int demasiados = 40; // as for the system, which refuses what is left then
    std::error_code noEsEnlace;
    for (int i = 0; i < demasiados && fs::is_symlink(ruta, noEsEnlace); ++i) {
        ruta = CarpetaDe(ruta) / fs::read_symlink(ruta, noEsEnlace);
    }
    return ruta;
}

/// Puts the change of names on the disk. A file system that cannot do so for a folder has no way to be told.
void AsentarCarpeta(const fs::path& carpeta) {
    const int descriptor = open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
}

} // namespace

ArchivoEntero::ArchivoEntero(const fs::path& destino) : pedido_{destino}, destino_{destino} {
    mirarDestino();
    const fs::path carpeta = CarpetaDe(destino_);
    BarrerProvisionales(carpeta);
    provisional_ = CrearProvisional(carpeta, anteriores_ ? modoPropio : modoNuevo);
    if (provisional_.descriptor < 0) {
        NoEscrito(pedido_, errno);
    }
}

ArchivoEntero::~ArchivoEntero() {
    soltar();
}

void ArchivoEntero::mirarDestino() {
    if (!destino_.has_filename()) {
        NoEscrito(pedido_, "falta el nombre del archivo", fallo::accesoAlArchivo);
    }
    destino_ = DetrasDeEnlaces(destino_);
    struct stat estado {};
    if (stat(destino_.c_str(), &estado) != 0) {
        if (errno != ENOENT) {
            NoEscrito(pedido_, errno);
        }
        return;
    }
    if (!S_ISREG(estado.st_mode)) {
        NoEscrito(pedido_, S_ISDIR(estado.st_mode) ? "es una carpeta" : "no es un archivo corriente",
                  fallo::accesoAlArchivo);
    }
    anteriores_ = Permisos{estado.st_mode & bitsDeModo, estado.st_uid, estado.st_gid};
    if ((anteriores_->modo & bitsDeEscritura) == 0) {
        NoEscrito(pedido_, "es de solo lectura", fallo::accesoAlArchivo);
    }
    if (access(destino_.c_str(), W_OK) != 0) {
        NoEscrito(pedido_, "no hay permiso para escribir en él", fallo::accesoAlArchivo);
    }
}

void ArchivoEntero::escribir(const std::string& bytes) {
    assert(provisional_.descriptor >= 0);
    std::string_view pendiente{bytes};
    while (!pendiente.empty()) {
        const ssize_t escritos = write(provisional_.descriptor, pendiente.data(), pendiente.size());
        if (escritos < 0 && errno != EINTR) {
            NoEscrito(pedido_, errno);
        }
        pendiente.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(escritos, 0)));
    }
}

void ArchivoEntero::conservarPermisos() const {
    if (!anteriores_) {
        return;
    }
    const int descriptor = provisional_.descriptor;
    // Who may write in the file of another keeps what they write, as the system lets nobody give files away.
    static_cast<void>(fchown(descriptor, anteriores_->dueno, anteriores_->grupo) == 0);
    if (fchmod(descriptor, anteriores_->modo) != 0) {
        NoEscrito(pedido_, errno);
    }
}

void ArchivoEntero::publicar() {
    assert(provisional_.descriptor >= 0);
    conservarPermisos();
    if (fsync(provisional_.descriptor) != 0) {
        NoEscrito(pedido_, errno);
    }
    const bool colocado = Colocar(
        provisional_.ruta, [this] { return std::rename(provisional_.ruta.c_str(), destino_.c_str()) == 0; });
    if (!colocado) {
        NoEscrito(pedido_, errno);
    }
    close(std::exchange(provisional_.descriptor, -1));
    AsentarCarpeta(CarpetaDe(destino_));
}

void ArchivoEntero::soltar() {
    if (provisional_.descriptor >= 0) {
        Descartar(provisional_.ruta);
        close(provisional_.descriptor);
    }
}

} // namespace varo
