#include "desktop/widgets/ContenidoDeDialogo.h"

#include <QApplication>
#include <QKeyEvent>

#include <cassert>

namespace varo {

ContenidoDeDialogo::ContenidoDeDialogo() {
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* /*antes*/, QWidget* ahora) {
        if (ahora != nullptr && isAncestorOf(ahora)) {
            seguirAlFoco(ahora);
        }
    });
}

QLayout* ContenidoDeDialogo::crearPie(QPushButton* aceptar, QPushButton* cancelar) {
    assert(aceptar_ == nullptr);
    aceptar_ = aceptar;
    cancelar_ = cancelar;
    ponerAnillo(aceptar);
    auto* const fila = new QHBoxLayout;
    fila->addStretch();
    fila->addWidget(aceptar);
    fila->addWidget(cancelar);
    return fila;
}

void ContenidoDeDialogo::seguirAlFoco(QWidget* conFoco) {
    const auto propio = botonesDeCampos_.find(conFoco);
    auto* const boton = qobject_cast<QPushButton*>(conFoco);
    if (boton != nullptr) {
        ponerAnillo(boton);
    } else {
        ponerAnillo(propio == botonesDeCampos_.end() ? aceptar_ : propio->second);
    }
}

void ContenidoDeDialogo::ponerAnillo(QPushButton* boton) {
    if (conAnillo_ != nullptr) {
        conAnillo_->setDefault(false);
    }
    conAnillo_ = boton;
    if (conAnillo_ != nullptr) {
        conAnillo_->setDefault(true);
    }
}

void ContenidoDeDialogo::keyPressEvent(QKeyEvent* suceso) {
    QPushButton* pulsado = nullptr;
    switch (suceso->key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return:
        pulsado = conAnillo_;
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
