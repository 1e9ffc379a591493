// The threads of the program that compute side by side.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace varo {

/// Waits for work, and does it together with the thread that asks for it, one work at a time.
class Cuadrilla {
public:
    /// `hilos` counts the one that asks, so that 1 has no other.
    explicit Cuadrilla(std::size_t hilos);
    Cuadrilla(const Cuadrilla&) = delete;
    Cuadrilla& operator=(const Cuadrilla&) = delete;
    ~Cuadrilla();

    /// As many as the machine runs at once.
    static std::size_t losDeLaMaquina();

    [[nodiscard]] std::size_t hilos() const { return obreros_.size() + 1; }

    /// Runs `tarea` once on each thread, with its number; 0 is the one that asks. It comes back when all have
    /// ended. Only on thread 0 `tarea` may throw; that comes out then.
    void correr(const std::function<void(std::size_t)>& tarea);

private:
    void atender(std::size_t numero);

    std::mutex turno_;
    std::condition_variable hayTarea_, acabada_;
    const std::function<void(std::size_t)>* tarea_ = nullptr;
    std::uint64_t tareas_ = 0; ///< how many were begun
    std::size_t trabajando_ = 0;
    bool cerrada_ = false;
    std::vector<std::jthread> obreros_; ///< last of all: they end first
};

} // namespace varo
