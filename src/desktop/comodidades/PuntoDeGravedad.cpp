#include "desktop/comodidades/PuntoDeGravedad.h"

#include <QColor>
#include <QPainter>
#include <QPixmap>

namespace varo {

namespace {

/// In pixels; the dot leaves a margin of a third around it.
constexpr int lado = 16;

QPixmap Punto(const QColor& color, int escala) {
    QPixmap imagen{QSize{lado, lado} * escala};
    imagen.setDevicePixelRatio(escala);
    imagen.fill(Qt::transparent);
    QPainter pintor{&imagen};
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(color);
    constexpr double radio = lado / 3.0;
    pintor.drawEllipse(QPointF{lado / 2.0, lado / 2.0}, radio, radio);
    return imagen;
}

} // namespace

QIcon PuntoDeGravedad(Gravedad gravedad) {
    if (gravedad == Gravedad::Mirar) {
        return {};
    }
    const QColor color = gravedad == Gravedad::Fallo ? QColor{226, 55, 50} : QColor{214, 120, 0};
    QIcon punto;
    for (const int escala : {1, 2, 3}) {
        punto.addPixmap(Punto(color, escala));
    }
    return punto;
}

} // namespace varo
