#include "desktop/widgets/ContenidoDeDialogo.h"

#include <QApplication>
#include <QKeyEvent>

#include <cassert>

namespace varo {

QLayout* ContenidoDeDialogo::crearPie(QPushButton* aceptar, QPushButton* cancelar) {
    assert(aceptar_ == nullptr);
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
    QPushButton* pulsado = nullptr;
    switch (suceso->key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return:
        pulsado = qobject_cast<QPushButton*>(QApplication::focusWidget());
        if (pulsado == nullptr) {
            pulsado = aceptar_;
        }
        break;
    case Qt::Key_Escape:
        pulsado = cancelar_;
        break;
    default:
        break;
    }
    if (pulsado == nullptr) {
        QWidget::keyPressEvent(suceso);
    } else {
        pulsado->click();
    }
}

} // namespace varo
