#include "desktop/widgets/Desplazable.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace varo {

Desplazable::Desplazable(QWidget* contenido) {
    setWidget(contenido);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // the arrow keys belong to the controls and the tabs
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    contenido->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    for (QWidget* const widget : contenido->findChildren<QWidget*>()) {
        widget->installEventFilter(this);
    }
}

QSize Desplazable::sizeHint() const {
    return {minimumSizeHint().width(), widget()->sizeHint().height()};
}

QSize Desplazable::minimumSizeHint() const {
    constexpr int altoMinimo = 120;
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(), altoMinimo};
}

bool Desplazable::eventFilter(QObject* objeto, QEvent* suceso) {
    auto* const widget = qobject_cast<QWidget*>(objeto);
    if (widget != nullptr && suceso->type() == QEvent::ShowToParent && isVisible()) {
        if (aparecidos_.empty()) { // wait until all that one act shows is there
            QMetaObject::invokeMethod(
                this, [this] { llevarALaVista(); }, Qt::QueuedConnection);
        }
        aparecidos_.emplace_back(widget);
    }
    return QScrollArea::eventFilter(objeto, suceso);
}

/// Where not all of it has room, its beginning is in view.
void Desplazable::llevarALaVista() {
    constexpr int margen = 6;
    QRect todo;
    for (const QPointer<QWidget>& aparecido : aparecidos_) {
        if (aparecido != nullptr && aparecido->isVisible() && widget()->isAncestorOf(aparecido)) {
            todo |= QRect{aparecido->mapTo(widget(), QPoint{}), aparecido->size()};
        }
    }
    aparecidos_.clear();
    if (!todo.isNull()) {
        QScrollBar& barra = *verticalScrollBar();
        const int alMenos = todo.bottom() + margen - viewport()->height();
        barra.setValue(std::min(std::max(barra.value(), alMenos), todo.top() - margen));
    }
}

} // namespace varo
