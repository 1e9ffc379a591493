#include "desktop/Desplazable.h"

#include <QScrollBar>

namespace varo {

Desplazable::Desplazable(QWidget* contenido) {
    setWidget(contenido);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    contenido->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

QSize Desplazable::sizeHint() const {
    return {minimumSizeHint().width(), widget()->sizeHint().height()};
}

QSize Desplazable::minimumSizeHint() const {
    constexpr int altoMinimo = 120;
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(), altoMinimo};
}

} // namespace varo
