#include "lienzo/Lienzo.h"

#include <utility>

namespace varo {

void Lienzo::Cls() {
    figuras_.clear();
    llenas_.clear();
    reticula_.vaciar();
}

void Lienzo::linea(double x1, double y1, double x2, double y2) {
    poner(Linea{x1, y1, x2, y2, ForeColor});
}

void Lienzo::arco(double x, double y, double radio, double inicio, double fin, double aspecto) {
    poner(Arco{x, y, radio, inicio, fin, aspecto, ForeColor, FillColor});
}

void Lienzo::circulo(double x, double y, double radio) {
    poner(Circulo{x, y, radio, ForeColor, FillColor});
}

void Lienzo::punto(double x, double y) {
    poner(Punto{x, y, ForeColor});
}

void Lienzo::copa(const Copa& copa) {
    poner(CopaLlena{Pintada(copa), ForeColor});
}

void Lienzo::etiqueta(std::string nombre, int indice) {
    poner(EtiquetaMostrada{std::move(nombre), indice});
}

void Lienzo::poner(Figura figura) {
    if (RellenoDe(figura)) {
        llenas_.push_back(figuras_.size());
        reticula_.anadir(RecuadroDe(figura));
    }
    figuras_.push_back(std::move(figura));
}

Color Lienzo::Point(double x, double y) {
    if (!escala_.contiene(x, y)) {
        return fueraDeLaSuperficie;
    }
    const auto llena = [&](Reticula::Numero numero) -> const Figura& { return figuras_[llenas_[numero]]; };
    const auto numero = reticula_.ultimaEn(x, y, [&](Reticula::Numero n) { return Cubre(llena(n), x, y); });
    return numero ? *RellenoDe(llena(*numero)) : BackColor;
}

} // namespace varo
