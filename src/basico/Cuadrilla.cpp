#include "basico/Cuadrilla.h"

#include "basico/AlSalir.h"

#include <algorithm>
#include <cassert>

namespace varo {

Cuadrilla::Cuadrilla(std::size_t hilos) {
    assert(hilos >= 1);
    obreros_.reserve(hilos - 1);
    for (std::size_t numero = 1; numero < hilos; ++numero) {
        obreros_.emplace_back([this, numero] { atender(numero); });
    }
}

Cuadrilla::~Cuadrilla() {
    const std::lock_guard turno{turno_};
    cerrada_ = true;
    hayTarea_.notify_all();
}

std::size_t Cuadrilla::losDeLaMaquina() {
    return std::max<std::size_t>(1, std::thread::hardware_concurrency());
}

void Cuadrilla::correr(const std::function<void(std::size_t)>& tarea) {
    {
        const std::lock_guard turno{turno_};
        assert(trabajando_ == 0 && "one work at a time");
        tarea_ = &tarea;
        trabajando_ = obreros_.size();
        ++tareas_;
    }
    hayTarea_.notify_all();
    const AlSalir esperar{[this] {
        std::unique_lock turno{turno_};
        acabada_.wait(turno, [this] { return trabajando_ == 0; });
    }};
    tarea(0);
}

void Cuadrilla::atender(std::size_t numero) {
    std::uint64_t hechas = 0;
    std::unique_lock turno{turno_};
    for (;;) {
        hayTarea_.wait(turno, [&] { return cerrada_ || tareas_ > hechas; });
        if (cerrada_) {
            return;
        }
        ++hechas;
        const auto& tarea = *tarea_;
        turno.unlock();
        tarea(numero);
        turno.lock();
        if (--trabajando_ == 0) {
            acabada_.notify_one();
        }
    }
}

} // namespace varo
