#include "apoyo/Proceso.h"

#include "apoyo/Jornada.h"

#include <array>
#include <cstddef>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace varo::prueba {

namespace {

/// Where the three standard streams of a child go.
class Redirecciones {
public:
    Redirecciones(const std::string& salida, const std::string& errores) {
        posix_spawn_file_actions_init(&acciones_);
        posix_spawn_file_actions_addopen(&acciones_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&acciones_, STDOUT_FILENO, salida.c_str(), crear, permisos);
        posix_spawn_file_actions_addopen(&acciones_, STDERR_FILENO, errores.c_str(), crear, permisos);
    }
    Redirecciones(const Redirecciones&) = delete;
    Redirecciones& operator=(const Redirecciones&) = delete;
    ~Redirecciones() { posix_spawn_file_actions_destroy(&acciones_); }

    [[nodiscard]] const posix_spawn_file_actions_t* acciones() const { return &acciones_; }

private:
    static constexpr int crear = O_WRONLY | O_CREAT | O_TRUNC;
    static constexpr mode_t permisos = 0600;
    posix_spawn_file_actions_t acciones_{};
};

} // namespace

namespace {

pid_t Lanzar(const std::filesystem::path& programa, const std::vector<std::string>& argumentos,
             const Redirecciones& redirecciones) {
    std::vector<std::string> textos{programa.string()};
    textos.insert(textos.end(), argumentos.begin(), argumentos.end());
    std::vector<char*> punteros;
    punteros.reserve(textos.size() + 1);
    for (auto& texto : textos) {
        punteros.push_back(texto.data());
    }
    punteros.push_back(nullptr);
    pid_t hijo = 0;
    if (posix_spawn(&hijo, textos.front().c_str(), redirecciones.acciones(), nullptr, punteros.data(),
                    environ) != 0) {
        throw std::runtime_error{"no se puede ejecutar " + programa.string()};
    }
    return hijo;
}

int EstadoDe(pid_t hijo) {
    int final = 0;
    if (waitpid(hijo, &final, 0) != hijo) {
        throw std::runtime_error{"se ha perdido el proceso " + std::to_string(hijo)};
    }
    return WIFEXITED(final) ? WEXITSTATUS(final) : -1;
}

/// Both ends of a terminal. The near one is read to its end, which comes when nobody holds the far one.
class Terminal {
public:
    Terminal() : cerca_{posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)} {
        if (cerca_ < 0 || grantpt(cerca_) != 0 || unlockpt(cerca_) != 0) {
            throw std::runtime_error{"no hay terminales"};
        }
        winsize medidas{};
        medidas.ws_col = 100;
        ioctl(cerca_, TIOCSWINSZ, &medidas); // NOLINT(*-vararg)
        nombre_ = ptsname(cerca_);           // NOLINT(concurrency-mt-unsafe)
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;
    ~Terminal() { close(cerca_); }

    [[nodiscard]] const std::string& nombre() const { return nombre_; }
    [[nodiscard]] std::string leerHastaElFinal() const {
        std::string leido;
        std::array<char, 4096> trozo{};
        for (ssize_t n = read(cerca_, trozo.data(), trozo.size()); n > 0;
             n = read(cerca_, trozo.data(), trozo.size())) {
            leido.append(trozo.data(), static_cast<std::size_t>(n));
        }
        return leido;
    }

private:
    int cerca_;
    std::string nombre_;
};

} // namespace

Proceso Ejecutar(const std::filesystem::path& programa, const std::vector<std::string>& argumentos) {
    const CarpetaTemporal carpeta;
    const Redirecciones redirecciones{carpeta.archivo("salida"), carpeta.archivo("errores")};
    const int estado = EstadoDe(Lanzar(programa, argumentos, redirecciones));
    return {estado, LeerArchivo(carpeta.ruta() / "salida"), LeerArchivo(carpeta.ruta() / "errores")};
}

Proceso EjecutarEnTerminal(const std::filesystem::path& programa,
                           const std::vector<std::string>& argumentos) {
    const CarpetaTemporal carpeta;
    const Terminal terminal;
    const Redirecciones redirecciones{carpeta.archivo("salida"), terminal.nombre()};
    const pid_t hijo = Lanzar(programa, argumentos, redirecciones);
    const std::string errores = terminal.leerHastaElFinal();
    return {EstadoDe(hijo), LeerArchivo(carpeta.ruta() / "salida"), errores};
}

} // namespace varo::prueba
