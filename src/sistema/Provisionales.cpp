#include "sistema/Provisionales.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <mutex>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace varo {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view comienzo = ".varo-";
constexpr std::string_view cola = ".tmp";
constexpr std::size_t cifras = 16;

struct Abiertos {
    std::mutex turno;
    std::set<fs::path> rutas;
};

Abiertos& LosAbiertos() {
    static Abiertos abiertos;
    return abiertos;
}

std::string NombreNuevo() {
    std::random_device azar;
    std::string nombre{comienzo};
    for (std::size_t i = 0; i < cifras; ++i) {
        nombre += "0123456789abcdef"[azar() % 16];
    }
    nombre += cola;
    return nombre;
}

bool EsDeProvisional(std::string_view nombre) {
    return nombre.size() == comienzo.size() + cifras + cola.size() && nombre.starts_with(comienzo) &&
           nombre.ends_with(cola) &&
           nombre.substr(comienzo.size(), cifras).find_first_not_of("0123456789abcdef") ==
               std::string_view::npos;
}

/// True while the name stands for the open file.
bool SeLlama(int descriptor, const fs::path& ruta) {
    struct stat abierto {};
    struct stat nombrado {};
    return fstat(descriptor, &abierto) == 0 && lstat(ruta.c_str(), &nombrado) == 0 &&
           abierto.st_dev == nombrado.st_dev && abierto.st_ino == nombrado.st_ino;
}

/// Locks the new file; false when a sweep of another process was quicker and took it away. Where the file
/// system has no locks nobody sweeps.
bool Cerrojo(int descriptor, const fs::path& ruta) {
    flock(descriptor, LOCK_EX);
    return SeLlama(descriptor, ruta);
}

void BarrerUno(const fs::path& ruta) {
    const int descriptor = open(ruta.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        return;
    }
    struct stat estado {};
    if (fstat(descriptor, &estado) == 0 && S_ISREG(estado.st_mode) &&
        flock(descriptor, LOCK_EX | LOCK_NB) == 0 && SeLlama(descriptor, ruta)) {
        unlink(ruta.c_str());
    }
    close(descriptor);
}

} // namespace

Provisional CrearProvisional(const fs::path& carpeta, unsigned modo) {
    constexpr int intentos = 100;
    for (int i = 0; i < intentos; ++i) {
        const fs::path ruta = carpeta / NombreNuevo();
        const std::lock_guard turno{LosAbiertos().turno};
        const int descriptor = open(ruta.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, modo);
        if (descriptor < 0 && errno != EEXIST) {
            break;
        }
        if (descriptor >= 0 && Cerrojo(descriptor, ruta)) {
            LosAbiertos().rutas.insert(ruta);
            return {ruta, descriptor};
        }
        if (descriptor >= 0) {
            close(descriptor);
        }
    }
    return {};
}

bool Colocar(const fs::path& provisional, const std::function<bool()>& acto) {
    const std::lock_guard turno{LosAbiertos().turno};
    if (!acto()) {
        return false;
    }
    LosAbiertos().rutas.erase(provisional);
    return true;
}

void Descartar(const fs::path& provisional) {
    const std::lock_guard turno{LosAbiertos().turno};
    unlink(provisional.c_str());
    LosAbiertos().rutas.erase(provisional);
}

void BarrerProvisionales(const fs::path& carpeta) {
    std::error_code error;
    fs::directory_iterator entrada{carpeta, error};
    for (; !error && entrada != fs::directory_iterator{}; entrada.increment(error)) {
        if (EsDeProvisional(entrada->path().filename().native())) {
            BarrerUno(entrada->path());
        }
    }
}

void AcabarSinProvisionales(const std::function<void()>& fin) {
    const std::lock_guard turno{LosAbiertos().turno}; // held to the end: nothing takes its place from here on
    for (const auto& ruta : LosAbiertos().rutas) {
        unlink(ruta.c_str());
    }
    fin();
    std::_Exit(EXIT_FAILURE);
}

} // namespace varo
