// The overlap of circular crowns as it is told: each row with each row behind it. The fast one is compared
// with it.
#pragma once

#include "basico/Aritmetica.h"
#include "plot/calculo/AreaInterseccionCirculos.h"
#include "plot/calculo/FilasDeCopas.h"
#include "plot/calculo/SolapeDeCopas.h"

#include <cstddef>

namespace varo::prueba {

class SolapeLiteral {
public:
    SolapeLiteral(const FilasDeCopas& copas, SolapeDeCopas& solape) : copas_{copas}, solape_{solape} {}

    void AreaTotalIntersCopas() {
        solape_.NumParesCopas = -1;
        solape_.ParesCopas = {};
        const std::size_t rows = copas_.filas.size() + 1;
        for (std::size_t i = 1; i + 1 < rows; ++i) {
            const FilaDeCopa& arbol = copas_.filas[i - 1];
            if (arbol.sinTamano) {
                continue;
            }
            ponerRadio(radioI_, arbol);
            for (std::size_t j = i + 1; j < rows; ++j) {
                if (!copas_.filas[j - 1].sinTamano) {
                    ponerRadio(radioJ_, copas_.filas[j - 1]);
                    cruzar(i, j);
                }
            }
        }
        solape_.AreaIntersecCopas = 0;
        for (const ParDeCopas& par : solape_.ParesCopas) {
            solape_.AreaIntersecCopas = solape_.AreaIntersecCopas + par.area;
        }
    }

private:
    void cruzar(std::size_t i, std::size_t j) {
        const FilaDeCopa& a = copas_.filas[i - 1];
        const FilaDeCopa& b = copas_.filas[j - 1];
        try {
            area_ = AreaInterseccionCirculos(a.x.numero(), a.y.numero(), b.x.numero(), b.y.numero(),
                                             static_cast<double>(radioI_), static_cast<double>(radioJ_));
        } catch (const ErrorEjecucion& /*saltado*/) {
        }
        if (area_ != 0) {
            solape_.NumParesCopas += 1;
            solape_.ParesCopas.push_back({static_cast<double>(i), static_cast<double>(j), area_});
        }
    }

    void ponerRadio(float& radio, const FilaDeCopa& arbol) const {
        const double F = copas_.FactorRadios;
        try {
            double r1 = 0, r2 = 0, r3 = 0, r4 = 0;
            if (copas_.datos == DatosDeCopa::CuatroRadios) {
                r1 = arbol.medidas[0].numero() / F;
                r2 = arbol.medidas[1].numero() / F;
                r3 = arbol.medidas[2].numero() / F;
                r4 = arbol.medidas[3].numero() / F;
            } else if (copas_.datos == DatosDeCopa::DosDiametros) {
                r1 = r3 = arbol.medidas[0].numero() / (2 * F);
                r2 = r4 = arbol.medidas[1].numero() / (2 * F);
            } else {
                r1 = (arbol.medidas[0].numero() * 4.0) / F;
            }
            const double media = (((r2 + r1) + r3) + r4) / 4.0;
            ExigirFinito(static_cast<double>(static_cast<float>(media)));
            radio = static_cast<float>(media);
        } catch (const ErrorEjecucion& /*saltado*/) {
        }
    }

    const FilasDeCopas& copas_;
    SolapeDeCopas& solape_;
    float radioI_ = 0, radioJ_ = 0;
    double area_ = 0;
};

} // namespace varo::prueba
