// Paints the list of shapes of a canvas.
#pragma once

#include "lienzo/AspectoDeEtiqueta.h"
#include "lienzo/Lienzo.h"
#include "pintura/Encuadre.h"

#include <QFont>
#include <QRectF>

#include <set>
#include <string>

class QPainter;

namespace varo {

/// What is painted: the shapes, and how their labels look. The canvas lives longer.
struct Dibujo {
    const Lienzo& lienzo;
    LeerAspecto aspecto;
};

/// How fine the strokes are, in units of the paper.
struct Pluma {
    double grosor = 1;     ///< of lines and outlines
    double porPunto = 1;   ///< a typographic point, as fonts are measured
    bool conCurvas = true; ///< arcs as curves; without it as lines that no eye tells from them
    int masEtiquetas = -1; ///< with more labels of one name in sight than this, none of those; -1: all always

    /// By design the whole canvas is 1,000 units of a line wide, and 750 points.
    static Pluma para(double anchoDelLienzo) { return {anchoDelLienzo / 1000, anchoDelLienzo / 750}; }
};

/// The font with letters of that size; a font that is not installed is replaced by one without serifs.
QFont LetraDe(const Fuente& fuente, const Pluma& pluma);

/// Where the text of a label is painted, in units of the paper; one without text is as wide as it is itself.
QRectF LugarDeEtiqueta(const AspectoDeEtiqueta& aspecto, const Encuadre& encuadre, const Pluma& pluma);

/// Of which labels more are in sight than the pen paints, by their name: none of those is painted.
std::set<std::string> NombresCallados(const Dibujo& dibujo, const Encuadre& encuadre, const Pluma& pluma,
                                      const QRectF& visible);

/// Paints the background over all of `visible`, and the shapes that touch it, in their order.
void Pintar(QPainter& pintor, const Dibujo& dibujo, const Encuadre& encuadre, const Pluma& pluma,
            const QRectF& visible);

} // namespace varo
