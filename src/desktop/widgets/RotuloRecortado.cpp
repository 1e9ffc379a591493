#include "desktop/widgets/RotuloRecortado.h"

#include "desktop/widgets/Pista.h"

#include <QPainter>

#include <algorithm>

namespace varo {

namespace {

constexpr int margen = 6; ///< on both sides, in pixels

} // namespace

RotuloRecortado::RotuloRecortado(int letras) : letras_{letras} {
    setSizePolicy(letras == 0 ? QSizePolicy::Ignored : QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void RotuloRecortado::poner(const QString& texto, const QString& detalle) {
    setVisible(letras_ == 0 || !texto.isEmpty());
    const QString entero = detalle.isEmpty() ? texto : detalle;
    if (texto == texto_ && entero == accessibleName()) {
        return;
    }
    texto_ = texto;
    setToolTip(TextoDePista(entero));
    setAccessibleName(entero);
    updateGeometry();
    update();
}

QSize RotuloRecortado::sizeHint() const {
    const int entero = fontMetrics().horizontalAdvance(texto_) + 1;
    const int limite = fontMetrics().averageCharWidth() * letras_;
    return {(letras_ == 0 ? entero : std::min(entero, limite)) + 2 * margen, fontMetrics().height() + 4};
}

QSize RotuloRecortado::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void RotuloRecortado::paintEvent(QPaintEvent* /*suceso*/) {
    QPainter pintor{this};
    const QRect sitio = rect().adjusted(margen, 0, -margen, 0);
    pintor.setPen(palette().color(foregroundRole()));
    pintor.drawText(sitio, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                    fontMetrics().elidedText(texto_, Qt::ElideMiddle, sitio.width()));
}

} // namespace varo
