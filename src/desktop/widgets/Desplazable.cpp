#include "desktop/widgets/Desplazable.h"

#include <QScrollBar>

namespace varo {

Desplazable::Desplazable(QWidget* contenido) {
    setWidget(contenido);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // the arrow keys belong to the controls and the tabs
    contenido->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

QSize Desplazable::sizeHint() const {
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(),
            widget()->sizeHint().height()};
}

QSize Desplazable::minimumSizeHint() const {
    constexpr QSize minimo{320, 120};
    return minimo;
}

} // namespace varo
