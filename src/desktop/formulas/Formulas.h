// The formulas of the options dialog, and the widget that shows one.
#pragma once

#include "desktop/formulas/CajaDeFormula.h"

#include <QWidget>

namespace varo {

/// Paints a formula in the colours of its state, with the axis at half height, level with texts beside it.
/// Its accessible name is the formula on one line.
class CuadroDeFormula : public QWidget {
public:
    explicit CuadroDeFormula(Parte formula, QWidget* padre = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* suceso) override;

private:
    [[nodiscard]] QFont letra() const;
    [[nodiscard]] double medioAlto() const;

    Parte formula_;
};

namespace formula {

/// Overlap of the areas of influence.
Parte SuperposicionDeAreas();
/// Point density, without and with the central tree.
Parte DensidadSinCentral();
Parte DensidadConCentral();
/// Size ratios, weighted by a function of distance.
Parte RazonPonderada();
/// Radius of influence as a function of stem size.
Parte RadioDeInfluencia();
/// Distance as a function of stem size.
Parte DistanciaDeRichards();
Parte DistanciaHiperbolica();
/// Weight of a competitor at a distance.
Parte PesoExponencial();
Parte PesoHiperbolico();
/// Weight of distances for the area potentially available.
Parte FactorDePonderacion();

} // namespace formula

} // namespace varo
