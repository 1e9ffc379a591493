// The canvas: a surface with user coordinates that keeps what was drawn on it as a list of shapes, and
// answers the colour at a point from the shapes themselves, whatever their size on a screen.
#pragma once

#include "lienzo/Escala.h"
#include "lienzo/Figuras.h"
#include "lienzo/Reticula.h"

#include <cstddef>
#include <string>
#include <vector>

namespace varo {

/// Coordinates are 64-bit. What is drawn takes the colours that stand at that moment.
class Lienzo {
public:
    static constexpr Color fueraDeLaSuperficie = -1;

    Color BackColor = 0x00FFFFFF;
    Color ForeColor = 0; ///< of lines, outlines, points, and of filled crowns
    Relleno FillColor;   ///< inside of arcs and circles

    [[nodiscard]] const Escala& escala() const { return escala_; }
    /// The shapes stay.
    void escala(const Escala& nueva) { escala_ = nueva; }

    /// Takes away all shapes. Scale and colours stay.
    void Cls();
    void linea(double x1, double y1, double x2, double y2);
    /// Angles and aspect as in `Arco`.
    void arco(double x, double y, double radio, double inicio, double fin, double aspecto);
    void circulo(double x, double y, double radio);
    void punto(double x, double y);
    /// Fills a crown with `ForeColor`; a radius of 0 is painted as half a metre.
    void copa(const Copa& copa);
    /// Says that the label of this name is shown now; `indice` is that of a member of an array.
    void etiqueta(std::string nombre, int indice = EtiquetaMostrada::sinIndice);

    /// The colour of the last filled shape that covers the point, the background where there is none, -1
    /// outside the surface. It costs the shapes near the point.
    Color Point(double x, double y);

    /// In the order of drawing.
    [[nodiscard]] const std::vector<Figura>& figuras() const { return figuras_; }

private:
    void poner(Figura figura);

    Escala escala_;
    std::vector<Figura> figuras_;
    std::vector<std::size_t> llenas_; ///< the shapes that have a fill
    Reticula reticula_;               ///< over those
};

} // namespace varo
