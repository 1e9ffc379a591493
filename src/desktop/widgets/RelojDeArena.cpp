#include "desktop/widgets/RelojDeArena.h"

#include <QEvent>
#include <QMdiSubWindow>
#include <QScopedValueRollback>

namespace varo {

namespace {

/// True for what belongs to another window than `ventana`: a dialog over it, or a child of a main window.
bool EsDeOtra(const QWidget& widget, const QWidget& ventana) {
    for (const QWidget* eslabon = &widget; eslabon != &ventana; eslabon = eslabon->parentWidget()) {
        if (eslabon->isWindow() || qobject_cast<const QMdiSubWindow*>(eslabon) != nullptr) {
            return true;
        }
    }
    return false;
}

std::optional<QCursor> PunteroPropio(const QWidget& widget) {
    return widget.testAttribute(Qt::WA_SetCursor) ? std::optional{widget.cursor()} : std::nullopt;
}

} // namespace

RelojDeArena::RelojDeArena(QWidget& ventana) {
    cubrir(ventana);
    for (QWidget* const widget : ventana.findChildren<QWidget*>()) {
        if (!EsDeOtra(*widget, ventana)) {
            cubrir(*widget);
        }
    }
}

RelojDeArena::~RelojDeArena() {
    poniendo_ = true; // a widget may tell another one of its new pointer
    for (const auto& [objeto, cubierto] : cubiertos_) {
        if (cubierto.widget == nullptr) {
            continue;
        }
        cubierto.widget->removeEventFilter(this);
        if (cubierto.propio) {
            cubierto.widget->setCursor(*cubierto.propio);
        } else {
            cubierto.widget->unsetCursor();
        }
    }
}

void RelojDeArena::cubrir(QWidget& widget) {
    const QScopedValueRollback poniendo{poniendo_, true};
    cubiertos_[&widget] = {&widget, PunteroPropio(widget)};
    widget.installEventFilter(this);
    widget.setCursor(Qt::WaitCursor);
}

/// A widget that changes its pointer meanwhile (a title bar under the mouse) gets the new one afterwards.
bool RelojDeArena::eventFilter(QObject* objeto, QEvent* suceso) {
    const auto cubierto = cubiertos_.find(objeto);
    if (suceso->type() != QEvent::CursorChange || poniendo_ || cubierto == cubiertos_.end()) {
        return QObject::eventFilter(objeto, suceso);
    }
    QWidget& widget = *cubierto->second.widget;
    if (widget.cursor().shape() != Qt::WaitCursor) {
        const QScopedValueRollback poniendo{poniendo_, true};
        cubierto->second.propio = PunteroPropio(widget);
        widget.setCursor(Qt::WaitCursor);
    }
    return QObject::eventFilter(objeto, suceso);
}

} // namespace varo
