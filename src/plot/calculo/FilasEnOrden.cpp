#include "plot/calculo/FilasEnOrden.h"

namespace varo {

void FilasEnOrden::vaciarEn(std::vector<Fila>& filas, Fila menosEsta) {
    for (std::size_t n = 0; n < cuantas_; ++n) {
        tomar(halladas_[n]);
    }
    palabras_[menosEsta / bits] &= ~(Palabra{1} << menosEsta % bits);
    filas.resize(cuantas_);
    cuantas_ = 0;
    std::size_t salidas = 0;
    for (std::size_t grupo = 0; grupo < conBits_.size(); ++grupo) {
        for (Palabra quedan = conBits_[grupo]; quedan != 0; quedan &= quedan - 1) {
            const std::size_t palabra = grupo * bits + static_cast<std::size_t>(std::countr_zero(quedan));
            for (Palabra suyos = palabras_[palabra]; suyos != 0; suyos &= suyos - 1) {
                const std::size_t fila = palabra * bits + static_cast<std::size_t>(std::countr_zero(suyos));
                filas[salidas++] = static_cast<Fila>(fila);
            }
            palabras_[palabra] = 0;
        }
        conBits_[grupo] = 0;
    }
    filas.resize(salidas);
}

} // namespace varo
