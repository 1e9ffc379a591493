#include "sistema/Senales.h"

#include "apoyo/Jornada.h"
#include "sistema/ArchivoEntero.h"

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

namespace fs = std::filesystem;

constexpr int otroFinal = 7; ///< the exit status of a process that no signal has ended

std::ptrdiff_t Entradas(const fs::path& carpeta) {
    return std::distance(fs::directory_iterator{carpeta}, fs::directory_iterator{});
}

/// Waits up to ten seconds.
bool Espera(const std::function<bool()>& condicion) {
    constexpr int veces = 1000;
    for (int i = 0; i < veces; ++i) {
        if (condicion()) {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds{10});
    }
    return false;
}

/// A process that watches its signals and does the act, then ends with `otroFinal`.
class Escritor {
public:
    explicit Escritor(const std::function<void()>& acto) : hijo_{fork()} {
        if (hijo_ == 0) {
            {
                const VigiaDeSenales vigia;
                acto();
            }
            _exit(otroFinal);
        }
    }
    void senalar(int senal) const { EXPECT_EQ(kill(hijo_, senal), 0); }
    /// How it ended, as `waitpid` tells it.
    [[nodiscard]] int final() const {
        int como = 0;
        EXPECT_EQ(waitpid(hijo_, &como, 0), hijo_);
        return como;
    }

private:
    pid_t hijo_;
};

/// A process that writes "salida.txt" and does not come to its end.
Escritor AMediasEn(const CarpetaTemporal& carpeta) {
    carpeta.Escribir("salida.txt", "lo de antes");
    return Escritor{[&] {
        ArchivoEntero archivo{carpeta / "salida.txt"};
        archivo.escribir("a medias");
        std::this_thread::sleep_for(std::chrono::minutes{5});
    }};
}

TEST(VigiaDeSenales, UnaSenalAcabaConQuienEscribeYNoDejaNada) {
    for (const int senal : {SIGINT, SIGTERM, SIGHUP}) {
        const CarpetaTemporal carpeta;
        const Escritor escritor = AMediasEn(carpeta);
        ASSERT_TRUE(Espera([&] { return Entradas(carpeta.ruta()) == 2; }));
        escritor.senalar(senal);
        const int final = escritor.final();
        ASSERT_TRUE(WIFSIGNALED(final)) << senal;
        EXPECT_EQ(WTERMSIG(final), senal);
        EXPECT_EQ(Entradas(carpeta.ruta()), 1);
        EXPECT_EQ(LeerArchivo(carpeta / "salida.txt"), "lo de antes");
    }
}

TEST(VigiaDeSenales, LoQueDejaUnaMuerteSubitaLoBarreLaSiguiente) {
    const CarpetaTemporal carpeta;
    const Escritor escritor = AMediasEn(carpeta);
    ASSERT_TRUE(Espera([&] { return Entradas(carpeta.ruta()) == 2; }));
    {
        const ArchivoEntero mientras{carpeta / "otra.txt"};
        EXPECT_EQ(Entradas(carpeta.ruta()), 3) << "el que vive conserva el suyo";
    }
    escritor.senalar(SIGKILL);
    EXPECT_TRUE(WIFSIGNALED(escritor.final()));
    EXPECT_EQ(Entradas(carpeta.ruta()), 2);
    { const ArchivoEntero despues{carpeta / "otra.txt"}; }
    EXPECT_EQ(Entradas(carpeta.ruta()), 1);
    EXPECT_EQ(LeerArchivo(carpeta / "salida.txt"), "lo de antes");
}

TEST(VigiaDeSenales, LaSenalQueSeMandoIgnorarSigueIgnorada) {
    const auto antes = std::signal(SIGHUP, SIG_IGN);
    const Escritor escritor{[] {
        EXPECT_EQ(kill(getpid(), SIGHUP), 0);
        std::this_thread::sleep_for(std::chrono::milliseconds{200});
    }};
    std::signal(SIGHUP, antes);
    const int final = escritor.final();
    ASSERT_TRUE(WIFEXITED(final));
    EXPECT_EQ(WEXITSTATUS(final), otroFinal);
}

TEST(VigiaDeSenales, SinNadaQueVigilarTodoSigueComoEstaba) {
    sigset_t antes{};
    sigset_t despues{};
    pthread_sigmask(SIG_BLOCK, nullptr, &antes);
    { const VigiaDeSenales vigia; }
    pthread_sigmask(SIG_BLOCK, nullptr, &despues);
    for (const int senal : {SIGINT, SIGTERM, SIGHUP, SIGUSR1}) {
        EXPECT_EQ(sigismember(&antes, senal), sigismember(&despues, senal));
    }
}

} // namespace
} // namespace varo::prueba
