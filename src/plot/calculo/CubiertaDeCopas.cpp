#include "plot/calculo/CubiertaDeCopas.h"

#include "basico/Aritmetica.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace varo {

namespace {

/// In metres. Diameters are halved behind the conversion.
double Radio(const CeldaLeida& celda, const FilasDeCopas& filas) {
    const double metros = celda.vacia() ? 0 : Dividir(celda.numero(), filas.FactorRadios);
    return filas.datos == DatosDeCopa::DosDiametros ? metros / 2 : metros;
}

} // namespace

void PintarCopas(const FilasDeCopas& filas, bool elipses, Lienzo& superficie, const Avance& avance) {
    constexpr Color negro = 0;
    superficie.Cls();
    superficie.ForeColor = negro;
    superficie.FillColor = negro;
    const auto cuantas = static_cast<std::size_t>(MedidasDeCopa(filas.datos));
    std::array<double, 4> radios{};
    avance.empezar(filas.filas.size());
    for (const FilaDeCopa& fila : filas.filas) {
        avance.paso();
        if (!fila.x.esNumero() || !fila.y.esNumero()) {
            continue;
        }
        const auto celdas = std::span{fila.medidas}.first(cuantas);
        if (std::ranges::all_of(celdas, [](const auto& c) { return c.vacia() || c.esNumero(); })) {
            for (std::size_t r = 0; r < radios.size(); ++r) {
                radios[r] = Radio(celdas[r % cuantas], filas);
            }
        }
        const auto& [N, E, S, W] = radios;
        const double x = fila.x.numero();
        const double y = fila.y.numero();
        if (filas.datos == DatosDeCopa::RadioMedio) {
            superficie.circulo(x, y, N);
        } else if (elipses) {
            superficie.copa({x, y, N, E, S, W});
        } else {
            superficie.circulo(x, y, (N + E + S + W) / 4);
        }
    }
}

} // namespace varo
