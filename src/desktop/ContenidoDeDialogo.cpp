#include "desktop/ContenidoDeDialogo.h"

#include <QKeyEvent>

namespace varo {

QLayout* ContenidoDeDialogo::pie(QPushButton* aceptar, QPushButton* cancelar) {
    aceptar_ = aceptar;
    cancelar_ = cancelar;
    aceptar->setDefault(true);
    auto* const fila = new QHBoxLayout;
    fila->addStretch();
    fila->addWidget(aceptar);
    fila->addWidget(cancelar);
    return fila;
}

void ContenidoDeDialogo::keyPressEvent(QKeyEvent* suceso) {
    switch (suceso->key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return: {
        auto* const enfocado = qobject_cast<QPushButton*>(focusWidget());
        (enfocado != nullptr && enfocado->hasFocus() ? enfocado : aceptar_)->click();
        break;
    }
    case Qt::Key_Escape:
        cancelar_->click();
        break;
    default:
        QWidget::keyPressEvent(suceso);
        break;
    }
}

} // namespace varo
