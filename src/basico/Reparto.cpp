#include "basico/Reparto.h"

#include "basico/Cuadrilla.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <vector>

namespace varo {

namespace {

void HacerUnoTrasOtro(std::size_t cuantos, const Avance& avance, const Hacer& hacer, const Hacer& enOrden) {
    for (std::size_t i = 0; i < cuantos; ++i) {
        hacer(i);
        if (enOrden) {
            enOrden(i);
        }
        avance.paso();
    }
}

/// Elements go out in small runs of neighbours, in their order.
class Reparticion {
public:
    Reparticion(std::size_t cuantos, const Faena& faena, const std::function<Hacer()>& crear,
                const Hacer& enOrden)
        : cuantos_{cuantos}, avance_{faena.avance}, crear_{crear}, enOrden_{enOrden},
          tanda_{std::clamp<std::size_t>(cuantos / (8 * faena.cuadrilla->hilos()), 1, 32)}, limite_{cuantos},
          hechas_((cuantos + tanda_ - 1) / tanda_) {}

    void correr(Cuadrilla& cuadrilla) {
        cuadrilla.correr([this](std::size_t hilo) { hilo == 0 ? mandar() : obedecer(); });
        contarHasta(limite_);
        if (fallo_) {
            std::rethrow_exception(fallo_);
        }
    }

private:
    /// What the caller's thread does: its part, and the talking.
    void mandar() {
        try {
            trabajar([this] { contarLasHechas(); });
        } catch (...) {
            limite_ = 0; // nobody waits for the rest
            throw;
        }
    }

    void obedecer() {
        trabajar([] {});
    }

    template <class TrasTanda>
    void trabajar(const TrasTanda& trasTanda) {
        Hacer hacer;
        for (std::size_t tanda = siguiente_++; tanda < hechas_.size(); tanda = siguiente_++) {
            const std::size_t desde = tanda * tanda_;
            const std::size_t hasta = std::min(desde + tanda_, cuantos_);
            if (desde >= limite_ || !hacerTanda(hacer, desde, hasta)) {
                return;
            }
            hechas_[tanda].store(true, std::memory_order_release);
            trasTanda();
        }
    }

    /// False where something failed, or did so before.
    bool hacerTanda(Hacer& hacer, std::size_t desde, std::size_t hasta) {
        std::size_t i = desde;
        try {
            if (!hacer) {
                hacer = crear_();
            }
            for (; i < hasta && i < limite_.load(std::memory_order_relaxed); ++i) {
                hacer(i);
            }
        } catch (...) {
            anotarFallo(i);
        }
        return i == hasta;
    }

    void anotarFallo(std::size_t i) {
        const std::lock_guard turno{turno_};
        if (i < limite_) {
            fallo_ = std::current_exception();
            limite_ = i;
        }
    }

    void contarLasHechas() {
        while (contados_ < limite_ && hechas_[contados_ / tanda_].load(std::memory_order_acquire)) {
            contarHasta(std::min({contados_ + tanda_, cuantos_, limite_.load()}));
        }
    }

    void contarHasta(std::size_t hasta) {
        while (contados_ < hasta) {
            const std::size_t i = contados_++;
            if (enOrden_) {
                enOrden_(i);
            }
            avance_.paso();
        }
    }

    const std::size_t cuantos_;
    const Avance avance_;
    const std::function<Hacer()>& crear_;
    const Hacer& enOrden_;
    const std::size_t tanda_;
    std::atomic<std::size_t> siguiente_{0};
    std::atomic<std::size_t> limite_; ///< from here on nobody needs an element
    std::vector<std::atomic<bool>> hechas_;
    std::mutex turno_;
    std::exception_ptr fallo_;
    std::size_t contados_ = 0; ///< on the caller's thread
};

} // namespace

void Repartir(std::size_t cuantos, const Faena& faena, const std::function<Hacer()>& crear,
              const Hacer& enOrden) {
    if (faena.cuadrilla == nullptr || faena.cuadrilla->hilos() == 1 || cuantos < 2) {
        HacerUnoTrasOtro(cuantos, faena.avance, crear(), enOrden);
        return;
    }
    Reparticion{cuantos, faena, crear, enOrden}.correr(*faena.cuadrilla);
}

} // namespace varo
