#include "plot/calculo/ElipsesDeFilas.h"

#include "basico/Aritmetica.h"

#include <algorithm>

namespace varo {

namespace {

using Radio = double Copa::*;
constexpr std::array<Radio, 4> radios{&Copa::N, &Copa::E, &Copa::S, &Copa::W};

} // namespace

double ElipseDeFila::radioMayor() const {
    return std::max({copa.N, copa.E, copa.S, copa.W});
}

ElipseDeFila ElipseDeFila::trasLaFila(std::size_t primera) const {
    ElipseDeFila vista = *this;
    for (std::size_t r = 0; r < radios.size(); ++r) {
        if (filaDelRadio[r] <= primera) {
            vista.copa.*radios[r] = 0;
            vista.filaDelRadio[r] = 0;
        }
    }
    return vista;
}

std::vector<ElipseDeFila> ElipsesDeFilas(const FilasDeCopas& filas) {
    const bool cuatroRadios = filas.datos == DatosDeCopa::CuatroRadios;
    const int divisor = cuatroRadios ? filas.FactorRadios : 2 * filas.FactorRadios;
    std::vector<ElipseDeFila> elipses;
    ElipseDeFila elipse;
    for (const FilaDeCopa& fila : filas.filas) {
        ++elipse.fila;
        if (fila.sinTamano || !fila.x.esNumero() || !fila.y.esNumero()) {
            continue;
        }
        elipse.copa.x = fila.x.numero();
        elipse.copa.y = fila.y.numero();
        for (std::size_t r = 0; r < radios.size(); ++r) {
            const CeldaLeida& celda = fila.medidas[cuatroRadios ? r : r % 2];
            if (celda.esNumero()) {
                elipse.copa.*radios[r] = Dividir(celda.numero(), divisor);
                elipse.filaDelRadio[r] = elipse.fila;
            }
        }
        elipses.push_back(elipse);
    }
    return elipses;
}

} // namespace varo
