// A small plot in the middle of a boundary far away, for results computed by hand. Sizes are diameters in
// metres, so that d is the number in the cell.
#pragma once

#include "indices/vecinos/ParcelaAlAzar.h"
#include "indices/vecinos/Seleccion.h"

#include <memory>

namespace varo::prueba {

struct ArbolDado {
    std::string x, y, tamano;
    std::string copa = "1"; ///< mean crown radius, m
};

class Parcelita {
public:
    /// The boundary is a square of side 2 * `medioLado` about the origin.
    explicit Parcelita(const std::vector<ArbolDado>& dados, double medioLado = 100) {
        parcela.unidades = {false, UnidadLongitud::Metros};
        parcela.copa.resize(1);
        for (const auto& dado : dados) {
            parcela.x.push_back(dado.x);
            parcela.y.push_back(dado.y);
            parcela.tamano.push_back(dado.tamano);
            parcela.copa[0].push_back(dado.copa);
        }
        const double m = medioLado;
        parcela.contornoX = {-m, -m, m, m, -m};
        parcela.contornoY = {-m, m, m, -m, -m};
        arboles = std::make_unique<Arboles>(ArbolesDe(parcela));
        vecindad = std::make_unique<Vecindad>(*arboles, parcela.contorno());
    }

    ParcelaLiteral parcela;
    std::unique_ptr<Arboles> arboles;
    std::unique_ptr<Vecindad> vecindad;
};

} // namespace varo::prueba
