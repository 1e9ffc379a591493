#include "revision/Cuaderno.h"

#include <algorithm>

namespace varo {

namespace {

std::string Filas(const std::vector<int>& filas) {
    constexpr std::size_t bastantes = 30;
    std::string texto;
    for (std::size_t i = 0; i < filas.size() && i < bastantes; ++i) {
        texto += (i == 0 ? "" : ", ") + std::to_string(filas[i]);
    }
    return texto + (filas.size() > bastantes ? ", …" : "");
}

/// The finding that stands for those that were only counted.
Hallazgo PorLosDemas(const Hallazgo& ultimo, const std::vector<int>& callados) {
    Hallazgo resto;
    resto.gravedad = ultimo.gravedad;
    resto.sospecha = ultimo.sospecha;
    resto.fila = callados.front();
    resto.columna = ultimo.columna;
    resto.numeroDeColumna = ultimo.numeroDeColumna;
    resto.que = callados.size() == 1
                    ? "Lo mismo pasa en una fila más: "
                    : "Lo mismo pasa en otras " + std::to_string(callados.size()) + " filas: ";
    resto.que += Filas(callados) + ".";
    resto.efecto = ultimo.efecto;
    resto.remedio = ultimo.remedio;
    return resto;
}

} // namespace

std::vector<Hallazgo> Cuaderno::cerrar() && {
    for (const auto& [clave, cuenta] : cuentas_) {
        if (!cuenta.callados.empty()) {
            hallazgos_.push_back(PorLosDemas(hallazgos_[cuenta.ultimo], cuenta.callados));
        }
    }
    std::ranges::stable_sort(hallazgos_, [](const Hallazgo& uno, const Hallazgo& otro) {
        return std::pair{uno.gravedad, uno.fila} < std::pair{otro.gravedad, otro.fila};
    });
    return std::move(hallazgos_);
}

} // namespace varo
