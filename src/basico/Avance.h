// How a long computation tells how far it is, and how whoever listens ends it.
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>

namespace varo {

/// Ends a computation that nobody wants any more. It is no fault, and no std::exception either: what passes
/// over faults, or tells them, lets it through.
class Cancelado {};

/// How far a computation is.
struct Marcha {
    std::string etapa;                              ///< "DR, columna 12 de 40"
    std::size_t hechos = 0;                         ///< steps done
    std::size_t pasos = 0;                          ///< how many there are; 0 when nobody knows
    std::chrono::steady_clock::time_point comienzo; ///< of the first step

    /// From 0 to 1.
    [[nodiscard]] double parte() const;
    /// By the pace so far; nothing while it tells too little: in the first second of the first twentieth.
    [[nodiscard]] std::optional<std::chrono::seconds>
    queda(std::chrono::steady_clock::time_point ahora) const;
};

/// "menos de 1 s", "45 s", "2 min 5 s", "1 h 10 min".
std::string TextoDeDuracion(std::chrono::seconds duracion);

/// Hears a computation, on its thread.
class OyenteDeAvance {
public:
    OyenteDeAvance() = default;
    OyenteDeAvance(const OyenteDeAvance&) = delete;
    OyenteDeAvance& operator=(const OyenteDeAvance&) = delete;
    virtual ~OyenteDeAvance() = default;

protected:
    /// Called at each step, which may be a very short one: a clock tells whether it is time to look. True
    /// ends the computation.
    virtual bool oir(const Marcha& marcha) = 0;

private:
    friend class Avance;

    Marcha marcha_;
};

/// What a computation talks to. By default nobody hears it.
class Avance {
public:
    Avance() = default;
    explicit Avance(OyenteDeAvance& oyente) : oyente_{&oyente} {}

    /// Names what is computed now.
    void etapa(std::string nombre) const {
        if (oyente_ != nullptr) {
            oyente_->marcha_.etapa = std::move(nombre);
        }
    }
    /// Begins to count: so many steps are to come.
    void empezar(std::size_t pasos) const {
        if (oyente_ != nullptr) {
            contarDesdeCero(pasos);
        }
    }
    /// Steps that are done. Throws Cancelado.
    void paso(std::size_t cuantos = 1) const {
        if (oyente_ != nullptr) {
            avanzar(cuantos);
        }
    }

private:
    void contarDesdeCero(std::size_t pasos) const;
    void avanzar(std::size_t cuantos) const;

    OyenteDeAvance* oyente_ = nullptr;
};

/// Runs `acto` and hands on what it gives. Where it is cancelled, `reaccion` puts things in order first.
template <class Reaccion, class Acto>
decltype(auto) AlCancelar(Reaccion&& reaccion, Acto&& acto) {
    try {
        return std::forward<Acto>(acto)();
    } catch (const Cancelado&) {
        std::forward<Reaccion>(reaccion)();
        throw;
    }
}

} // namespace varo
