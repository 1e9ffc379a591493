// Rows with crowns, as a test writes them.
#pragma once

#include "plot/calculo/FilasDeCopas.h"

#include <string>
#include <vector>

namespace varo::prueba {

/// The texts of x, of y and of the measures of the crown.
struct FilaDada {
    std::vector<std::string> celdas;
    bool sinTamano = false;
};

/// One row of the grid after the other; measures in metres unless told otherwise.
inline FilasDeCopas FilasDe(const std::vector<FilaDada>& dadas, DatosDeCopa datos = DatosDeCopa::CuatroRadios,
                            int FactorRadios = 1) {
    FilasDeCopas filas{datos, FactorRadios, {}};
    for (const auto& dada : dadas) {
        FilaDeCopa fila;
        fila.x = CeldaLeida{dada.celdas.at(0)};
        fila.y = CeldaLeida{dada.celdas.at(1)};
        fila.sinTamano = dada.sinTamano;
        for (std::size_t medida = 2; medida < dada.celdas.size(); ++medida) {
            fila.medidas.at(medida - 2) = CeldaLeida{dada.celdas[medida]};
        }
        filas.filas.push_back(fila);
    }
    return filas;
}

} // namespace varo::prueba
