#include "pintura/Pintor.h"

#include "pintura/Colores.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QString>

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace varo {

namespace {

constexpr double giro = 2 * std::numbers::pi;

QString EnQt(const std::string& texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

/// The angle through which an arc turns, counter-clockwise.
double Apertura(const Arco& arco) {
    const double apertura = arco.fin - arco.inicio;
    return apertura > 0 ? apertura : apertura + giro;
}

/// Finding a font takes longer than drawing a label with it.
struct Letra {
    Fuente fuente;
    QFont letra;
    QFontMetricsF medidas;
};

QRectF LugarDe(const AspectoDeEtiqueta& aspecto, const Encuadre& encuadre, const QFontMetricsF& medidas) {
    const double ancho = aspecto.texto.empty() ? aspecto.ancho * encuadre.porMetro
                                               : medidas.horizontalAdvance(EnQt(aspecto.texto));
    QPointF lugar = encuadre.enPapel(aspecto.izquierda, aspecto.arriba);
    if (aspecto.centrada) {
        lugar.rx() += (aspecto.ancho * encuadre.porMetro - ancho) / 2;
    }
    return {lugar, QSizeF{ancho, medidas.height()}};
}

/// The shapes of one canvas, one call each, with the colours of each.
class Pintor {
public:
    Pintor(QPainter& pintor, const Dibujo& dibujo, const Encuadre& encuadre, const Pluma& pluma,
           const QRectF& visible)
        : pintor_{pintor}, dibujo_{dibujo}, encuadre_{encuadre}, pluma_{pluma}, visible_{visible.adjusted(
                                                                                    -margen(), -margen(),
                                                                                    margen(), margen())} {}

    /// Labels of the names that are kept quiet are left out.
    void pintar(const std::set<std::string>& callados);

    void operator()(const Linea& linea) {
        const QPointF desde = encuadre_.enPapel(linea.x1, linea.y1);
        const QPointF hasta = encuadre_.enPapel(linea.x2, linea.y2);
        if (seVe(QRectF{desde, hasta}.normalized())) {
            pintor_.setPen(trazo(linea.color));
            pintor_.drawLine(desde, hasta);
        }
    }
    void operator()(const Circulo& circulo) {
        const double radio = circulo.radio * encuadre_.porMetro;
        const QPointF centro = encuadre_.enPapel(circulo.x, circulo.y);
        if (seVe({centro.x() - radio, centro.y() - radio, 2 * radio, 2 * radio})) {
            pintor_.setPen(trazo(circulo.color));
            pintor_.setBrush(circulo.relleno ? QBrush{ColorQt(*circulo.relleno)} : QBrush{Qt::NoBrush});
            pintor_.drawEllipse(centro, radio, radio);
        }
    }
    void operator()(const Punto& punto) {
        constexpr double radioDePunto = 1.4; // in widths of a line
        const double radio = radioDePunto * pluma_.grosor;
        const QPointF centro = encuadre_.enPapel(punto.x, punto.y);
        if (seVe({centro.x() - radio, centro.y() - radio, 2 * radio, 2 * radio})) {
            pintor_.setPen(Qt::NoPen);
            pintor_.setBrush(ColorQt(punto.color));
            pintor_.drawEllipse(centro, radio, radio);
        }
    }
    void operator()(const CopaLlena& llena);
    /// Labels come through `rotular`.
    void operator()(const EtiquetaMostrada& /*etiqueta*/) {}
    /// Arcs come through `arcos`.
    void operator()(const Arco& arco) { arcos({&arco}); }

private:
    [[nodiscard]] double margen() const { return 2 * pluma_.grosor; }
    [[nodiscard]] bool seVe(const QRectF& lugar) const {
        return lugar.left() <= visible_.right() && lugar.right() >= visible_.left() &&
               lugar.top() <= visible_.bottom() && lugar.bottom() >= visible_.top();
    }
    [[nodiscard]] QPen trazo(Color color) const {
        return {ColorQt(color), pluma_.grosor, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
    }
    [[nodiscard]] QRectF elipseDe(const Arco& arco) const;
    [[nodiscard]] QPainterPath caminoDe(const Arco& arco) const;
    [[nodiscard]] QPolygonF puntosDe(const Arco& arco) const;
    /// The arcs of one crown: all fills before all outlines, so that no quarter covers the outline of
    /// another.
    void arcos(const std::vector<const Arco*>& juntos);
    void rellenar(const Arco& arco, Color color);
    void rotular(const EtiquetaMostrada& etiqueta);

    QPainter& pintor_;
    const Dibujo& dibujo_;
    const Encuadre& encuadre_;
    const Pluma& pluma_;
    const QRectF visible_;
    std::optional<Letra> letra_; ///< of the last label
};

/// Labels lie over the drawing, whenever they were shown: no filled crown hides one.
void Pintor::pintar(const std::set<std::string>& callados) {
    const auto& figuras = dibujo_.lienzo.figuras();
    std::vector<const Arco*> juntos;
    for (const Figura& figura : figuras) {
        const auto* const arco = std::get_if<Arco>(&figura);
        const bool seJunta =
            arco != nullptr && (juntos.empty() || (arco->x == juntos.back()->x &&
                                                   arco->y == juntos.back()->y && juntos.size() < 4));
        if (!seJunta && !juntos.empty()) {
            arcos(juntos);
            juntos.clear();
        }
        if (arco != nullptr) {
            juntos.push_back(arco);
        } else {
            std::visit(*this, figura);
        }
    }
    if (!juntos.empty()) {
        arcos(juntos);
    }
    for (const Figura& figura : figuras) {
        const auto* const etiqueta = std::get_if<EtiquetaMostrada>(&figura);
        if (etiqueta != nullptr && !callados.contains(etiqueta->nombre)) {
            rotular(*etiqueta);
        }
    }
}

QRectF Pintor::elipseDe(const Arco& arco) const {
    const QPointF centro = encuadre_.enPapel(arco.x, arco.y);
    const double a = arco.semiejeX() * encuadre_.porMetro;
    const double b = arco.semiejeY() * encuadre_.porMetro;
    return {centro.x() - a, centro.y() - b, 2 * a, 2 * b};
}

QPainterPath Pintor::caminoDe(const Arco& arco) const {
    constexpr double enGrados = 180 / std::numbers::pi;
    QPainterPath camino;
    const QRectF elipse = elipseDe(arco);
    camino.arcMoveTo(elipse, arco.inicio * enGrados);
    camino.arcTo(elipse, arco.inicio * enGrados, Apertura(arco) * enGrados);
    return camino;
}

QPolygonF Pintor::puntosDe(const Arco& arco) const {
    constexpr double tolerancia = 0.1; // between the arc and its chords, in units of the paper
    const QRectF elipse = elipseDe(arco);
    const double a = elipse.width() / 2;
    const double b = elipse.height() / 2;
    const double apertura = Apertura(arco);
    const double pasoMayor = std::sqrt(8 * tolerancia / std::max({a, b, tolerancia}));
    const int cuerdas = std::max(2, static_cast<int>(std::ceil(apertura / pasoMayor)));
    QPolygonF puntos;
    puntos.reserve(cuerdas + 1);
    for (int i = 0; i <= cuerdas; ++i) {
        const double angulo = arco.inicio + apertura * i / cuerdas;
        puntos << elipse.center() + QPointF{a * std::cos(angulo), -b * std::sin(angulo)};
    }
    return puntos;
}

void Pintor::arcos(const std::vector<const Arco*>& juntos) {
    const bool aLaVista =
        std::ranges::any_of(juntos, [this](const Arco* arco) { return seVe(elipseDe(*arco)); });
    if (!aLaVista) {
        return;
    }
    for (const Arco* const arco : juntos) {
        if (arco->relleno) {
            rellenar(*arco, *arco->relleno);
        }
    }
    pintor_.setBrush(Qt::NoBrush);
    for (const Arco* const arco : juntos) {
        pintor_.setPen(trazo(arco->color));
        if (pluma_.conCurvas) {
            pintor_.drawPath(caminoDe(*arco));
        } else {
            pintor_.drawPolyline(puntosDe(*arco));
        }
    }
}

/// A sector down to the centre, drawn around with its own colour: no hair stays between one quarter and the
/// next.
void Pintor::rellenar(const Arco& arco, Color color) {
    pintor_.setPen(trazo(color));
    pintor_.setBrush(ColorQt(color));
    const QPointF centro = elipseDe(arco).center();
    if (pluma_.conCurvas) {
        QPainterPath sector = caminoDe(arco);
        sector.lineTo(centro);
        sector.closeSubpath();
        pintor_.drawPath(sector);
    } else {
        pintor_.drawPolygon(puntosDe(arco) << centro);
    }
}

void Pintor::operator()(const CopaLlena& llena) {
    const Copa& copa = llena.copa;
    constexpr double cuarto = giro / 4;
    const auto cuartoDe = [&](double horizontal, double vertical, int numero) {
        rellenar({copa.x, copa.y, std::max(horizontal, vertical), numero * cuarto, (numero + 1) * cuarto,
                  vertical / horizontal, llena.color},
                 llena.color);
    };
    cuartoDe(copa.E, copa.N, 0);
    cuartoDe(copa.W, copa.N, 1);
    cuartoDe(copa.W, copa.S, 2);
    cuartoDe(copa.E, copa.S, 3);
}

void Pintor::rotular(const EtiquetaMostrada& etiqueta) {
    const AspectoDeEtiqueta aspecto = dibujo_.aspecto(etiqueta);
    if (aspecto.texto.empty()) {
        return;
    }
    if (!letra_ || letra_->fuente != aspecto.fuente) {
        const QFont letra = LetraDe(aspecto.fuente, pluma_);
        letra_.emplace(Letra{aspecto.fuente, letra, QFontMetricsF{letra}});
    }
    const QRectF lugar = LugarDe(aspecto, encuadre_, letra_->medidas);
    if (!seVe(lugar)) {
        return;
    }
    if (aspecto.fondo) {
        pintor_.fillRect(lugar, ColorQt(*aspecto.fondo));
    }
    pintor_.setFont(letra_->letra);
    pintor_.setPen(ColorQt(aspecto.color));
    pintor_.drawText(lugar.topLeft() + QPointF{0, letra_->medidas.ascent()}, EnQt(aspecto.texto));
}

} // namespace

QFont LetraDe(const Fuente& fuente, const Pluma& pluma) {
    QFont letra{EnQt(fuente.nombre)};
    letra.setStyleHint(QFont::SansSerif);
    constexpr double letraMayor = 20'000; // larger than any paper
    const double tamano = static_cast<double>(fuente.tamano) * pluma.porPunto;
    letra.setPixelSize(static_cast<int>(std::lround(std::clamp(tamano, 1.0, letraMayor))));
    letra.setBold(fuente.negrita);
    letra.setItalic(fuente.cursiva);
    letra.setStrikeOut(fuente.tachado);
    letra.setUnderline(fuente.subrayado);
    return letra;
}

QRectF LugarDeEtiqueta(const AspectoDeEtiqueta& aspecto, const Encuadre& encuadre, const Pluma& pluma) {
    return LugarDe(aspecto, encuadre, QFontMetricsF{LetraDe(aspecto.fuente, pluma)});
}

std::set<std::string> NombresCallados(const Dibujo& dibujo, const Encuadre& encuadre, const Pluma& pluma,
                                      const QRectF& visible) {
    if (pluma.masEtiquetas < 0) {
        return {};
    }
    std::map<std::string, int> cuantas;
    for (const Figura& figura : dibujo.lienzo.figuras()) {
        const auto* const etiqueta = std::get_if<EtiquetaMostrada>(&figura);
        if (etiqueta == nullptr) {
            continue;
        }
        const AspectoDeEtiqueta aspecto = dibujo.aspecto(*etiqueta);
        if (visible.contains(encuadre.enPapel(aspecto.izquierda, aspecto.arriba))) {
            ++cuantas[etiqueta->nombre];
        }
    }
    std::set<std::string> callados;
    for (const auto& [nombre, numero] : cuantas) {
        if (numero > pluma.masEtiquetas) {
            callados.insert(nombre);
        }
    }
    return callados;
}

void Pintar(QPainter& pintor, const Dibujo& dibujo, const Encuadre& encuadre, const Pluma& pluma,
            const QRectF& visible) {
    pintor.save();
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setRenderHint(QPainter::TextAntialiasing);
    pintor.fillRect(visible, ColorQt(dibujo.lienzo.BackColor));
    Pintor{pintor, dibujo, encuadre, pluma, visible}.pintar(
        NombresCallados(dibujo, encuadre, pluma, visible));
    pintor.restore();
}

} // namespace varo
