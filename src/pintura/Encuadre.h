// Which part of a canvas is seen, and where on the paper or the screen.
#pragma once

#include "lienzo/Escala.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <algorithm>

namespace varo {

/// From user units (y upward) to those of the paper (y downward), and back. A metre is as long in x as in y.
/// Only differences are scaled, so that coordinates of millions keep their millimetres.
struct Encuadre {
    double x0 = 0, y0 = 0; ///< the user point that is seen at `origen`
    QPointF origen{};      ///< in units of the paper
    double porMetro = 1;   ///< units of the paper in a user unit

    /// The whole of the surface in the middle of the paper; a surface without extent counts as one metre.
    static Encuadre entero(const Escala& escala, QSizeF papel) {
        Encuadre encuadre;
        encuadre.x0 = (escala.izquierda + escala.derecha) / 2;
        encuadre.y0 = (escala.abajo + escala.arriba) / 2;
        encuadre.origen = {papel.width() / 2, papel.height() / 2};
        if (!escala.sinExtension()) {
            encuadre.porMetro = std::min(papel.width() / escala.ancho(), papel.height() / -escala.alto());
        }
        return encuadre;
    }

    [[nodiscard]] QPointF enPapel(double x, double y) const {
        return {origen.x() + (x - x0) * porMetro, origen.y() - (y - y0) * porMetro};
    }
    [[nodiscard]] QRectF enPapel(const Escala& escala) const {
        return {enPapel(escala.izquierda, escala.arriba), enPapel(escala.derecha, escala.abajo)};
    }
    [[nodiscard]] double xDe(QPointF papel) const { return x0 + (papel.x() - origen.x()) / porMetro; }
    [[nodiscard]] double yDe(QPointF papel) const { return y0 - (papel.y() - origen.y()) / porMetro; }

    friend bool operator==(const Encuadre&, const Encuadre&) = default;
};

} // namespace varo
