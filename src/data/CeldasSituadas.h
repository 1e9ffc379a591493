// The cells of the data grid as numbers, with the place in every fault.
#pragma once

#include "basico/EnLugar.h"
#include "basico/Numeros.h"
#include "data/FilasDeArboles.h"
#include "plot/calculo/Padron.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace varo {

/// A cell that is no number throws 13 with its column, its row in the sheet and its tree.
class CeldasSituadas {
public:
    CeldasSituadas(const Rejilla& rejilla, Padron padron) : rejilla_{rejilla}, padron_{std::move(padron)} {}

    [[nodiscard]] const std::string& texto(int fila, int columna) const {
        return rejilla_.TextMatrix(fila, columna);
    }

    [[nodiscard]] double numero(int fila, int columna) const {
        return AlFallar([&](ErrorEjecucion& error) { situar(error, fila, columna); },
                        [&] { return ANumero(texto(fila, columna)); });
    }

    void situar(ErrorEjecucion& error, int fila, int columna) const {
        padron_.situar(error.en("columna «" + texto(0, columna) + "»"), static_cast<std::size_t>(fila) - 1);
    }

    [[nodiscard]] std::vector<double> columna(int columna) const {
        return PorArbol(rejilla_, [&](int fila) { return numero(fila, columna); });
    }

private:
    const Rejilla& rejilla_;
    Padron padron_;
};

} // namespace varo
