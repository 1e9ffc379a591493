#include "basico/Avance.h"

#include <algorithm>

namespace varo {

using std::chrono::duration;
using std::chrono::seconds;

double Marcha::parte() const {
    return pasos == 0 ? 0 : std::min(1.0, static_cast<double>(hechos) / static_cast<double>(pasos));
}

std::optional<seconds> Marcha::queda(std::chrono::steady_clock::time_point ahora) const {
    constexpr double mucho = 1E+9;  // s
    constexpr double bastantes = 1; // s
    constexpr double bastante = 0.05;
    const double hecha = parte();
    const double pasados = duration<double>{ahora - comienzo}.count();
    if (!(hecha > 0) || (hecha < bastante && pasados < bastantes)) {
        return std::nullopt;
    }
    return seconds{static_cast<seconds::rep>(std::min(mucho, pasados / hecha * (1 - hecha)))};
}

std::string TextoDeDuracion(seconds duracion) {
    constexpr int minuto = 60;
    constexpr int hora = 60 * minuto;
    const auto total = duracion.count();
    if (total < 1) {
        return "menos de 1 s";
    }
    if (total < minuto) {
        return std::to_string(total) + " s";
    }
    if (total < hora) {
        return std::to_string(total / minuto) + " min " + std::to_string(total % minuto) + " s";
    }
    return std::to_string(total / hora) + " h " + std::to_string(total % hora / minuto) + " min";
}

void Avance::contarDesdeCero(std::size_t pasos) const {
    Marcha& marcha = oyente_->marcha_;
    marcha.hechos = 0;
    marcha.pasos = pasos;
    marcha.comienzo = std::chrono::steady_clock::now();
}

void Avance::avanzar(std::size_t cuantos) const {
    oyente_->marcha_.hechos += cuantos;
    if (oyente_->oir(oyente_->marcha_)) {
        throw Cancelado{};
    }
}

} // namespace varo
