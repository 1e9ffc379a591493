#include "apoyo/Proceso.h"

#include "apoyo/Jornada.h"

#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
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

Proceso Ejecutar(const std::filesystem::path& programa, const std::vector<std::string>& argumentos) {
    const CarpetaTemporal carpeta;
    const Redirecciones redirecciones{carpeta.archivo("salida"), carpeta.archivo("errores")};
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
    int final = 0;
    if (waitpid(hijo, &final, 0) != hijo) {
        throw std::runtime_error{"se ha perdido " + programa.string()};
    }
    return {WIFEXITED(final) ? WEXITSTATUS(final) : -1, LeerArchivo(carpeta.ruta() / "salida"),
            LeerArchivo(carpeta.ruta() / "errores")};
}

} // namespace varo::prueba
