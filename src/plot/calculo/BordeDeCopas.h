// The plot boundary as crowns of ellipse meet it, in a run that passes over what fails: how near its sides
// are, and which samples of a net lie in it.
#pragma once

#include "plot/calculo/MallaDeCopa.h"
#include "plot/calculo/Module1.h"

#include <vector>

namespace varo {

/// What becomes of a sample whose test faults, as all do once a side is vertical.
enum class PruebaFallida { CuentaDentro, CuentaFuera };

class BordeDeCopas {
public:
    explicit BordeDeCopas(const ContornoXY& contorno);

    /// AlturaTriangulo over the nearest side: some side is nearer than a radius when this is less than the
    /// radius. Meant: a side whose height faults counts as near, whatever the radius.
    [[nodiscard]] double alturaMenor(double x, double y) const;

    /// The rows of each column of the net for which PuntoEnPoligono answers true: at one x these make one
    /// run, above a lower side and below the upper ones.
    [[nodiscard]] std::vector<FilasTapadas> filasDentro(const MallaDeCopa& malla, PruebaFallida prueba) const;

private:
    struct LadoDelBorde {
        double desde = 0, hasta = 0; ///< x
        bool falla = false;
        double m = 0, b = 0;
    };
    struct Tramo { ///< of one column, its ends outside
        double sobre = 0, bajo = 0;
        bool falla = false;
    };

    [[nodiscard]] Tramo tramo(double x) const;

    ContornoXY contorno_;
    std::vector<LadoDelBorde> lados_;
};

} // namespace varo
