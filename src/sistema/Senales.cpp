#include "sistema/Senales.h"

#include "sistema/Provisionales.h"

#include <pthread.h>

namespace varo {

namespace {

/// Wakes the watching thread at its end; never ignored, as it goes to that thread alone.
constexpr int relevo = SIGUSR1;

bool Ignorada(int senal) {
    struct sigaction accion {};
    return sigaction(senal, nullptr, &accion) == 0 && accion.sa_handler == SIG_IGN;
}

[[noreturn]] void Acabar(int senal) {
    AcabarSinProvisionales([senal] {
        std::signal(senal, SIG_DFL);
        sigset_t una{};
        sigemptyset(&una);
        sigaddset(&una, senal);
        pthread_sigmask(SIG_UNBLOCK, &una, nullptr);
        std::raise(senal);
    });
}

} // namespace

VigiaDeSenales::VigiaDeSenales() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    sigemptyset(&vigiadas_);
    sigaddset(&vigiadas_, relevo);
    for (const int senal : {SIGINT, SIGTERM, SIGHUP}) {
        if (!Ignorada(senal)) {
            sigaddset(&vigiadas_, senal);
        }
    }
    pthread_sigmask(SIG_BLOCK, &vigiadas_, &antes_);
    hilo_ = std::thread{[this] { esperar(); }};
}

VigiaDeSenales::~VigiaDeSenales() {
    relevado_ = true;
    pthread_kill(hilo_.native_handle(), relevo);
    hilo_.join();
    pthread_sigmask(SIG_SETMASK, &antes_, nullptr);
}

void VigiaDeSenales::esperar() const {
    while (!relevado_) {
        int senal = 0;
        if (sigwait(&vigiadas_, &senal) == 0 && senal != relevo) {
            Acabar(senal);
        }
    }
}

} // namespace varo
