#include "desktop/Contestador.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace varo::prueba {

namespace {

QString SinAcelerador(QString leyenda) {
    return leyenda.remove('&');
}

void Despachar(QWidget& modal) {
    if (auto* const dialogo = qobject_cast<QDialog*>(&modal)) {
        dialogo->done(QDialog::Rejected);
    } else {
        modal.close();
    }
}

} // namespace

void PulsarBoton(QWidget& ventana, const QString& leyenda) {
    for (QAbstractButton* const boton : ventana.findChildren<QAbstractButton*>()) {
        if (boton->isVisible() && SinAcelerador(boton->text()) == leyenda) {
            QTest::mouseClick(boton, Qt::LeftButton);
            return;
        }
    }
    throw std::runtime_error{"no hay botón «" + leyenda.toStdString() + "»"};
}

Contestador::Contestador() {
    // Queue the look: inside its own slot the timer does not fire again while an answer holds a box open.
    connect(&reloj_, &QTimer::timeout, this, [this] {
        if (!llamado_) {
            llamado_ = true;
            QMetaObject::invokeMethod(
                this, [this] { mirar(); }, Qt::QueuedConnection);
        }
    });
    reloj_.start(0);
}

Contestador::~Contestador() {
    EXPECT_TRUE(actos_.empty()) << actos_.size() << " respuestas sin pedir";
}

void Contestador::pulsar(const QString& boton) {
    preparar([boton](QWidget& modal) { PulsarBoton(modal, boton); });
}

void Contestador::tecla(Qt::Key tecla) {
    preparar([tecla](QWidget& modal) { QTest::keyClick(&modal, tecla); });
}

void Contestador::mirar() {
    llamado_ = false;
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal == nullptr || !modal->isVisible() ||
        std::find(enCurso_.begin(), enCurso_.end(), modal) != enCurso_.end()) {
        return;
    }
    if (!modal->isActiveWindow()) {
        modal->activateWindow(); // the platform activates it later; look again then
        return;
    }
    if (modal != anotada_) {
        anotada_ = modal;
        anotar(*modal);
    }
    const QPointer<QWidget> debajo =
        modal->parentWidget() == nullptr ? nullptr : modal->parentWidget()->window();
    enCurso_.push_back(modal);
    responder(*modal);
    std::erase(enCurso_, modal);
    if (!modal->isVisible() && !debajo.isNull() && debajo->isVisible()) {
        debajo->activateWindow(); // as a window manager does
    }
    if (QApplication::activeModalWidget() != modal) {
        anotada_ = nullptr;
    }
}

void Contestador::responder(QWidget& modal) {
    if (actos_.empty()) {
        const auto* const caja = qobject_cast<QMessageBox*>(&modal);
        ADD_FAILURE() << "nadie esperaba «" << modal.windowTitle().toStdString()
                      << "»: " << (caja == nullptr ? std::string{} : caja->text().toStdString());
        Despachar(modal);
        return;
    }
    const Acto acto = std::move(actos_.front());
    actos_.pop_front();
    try {
        acto(modal);
    } catch (const std::exception& error) {
        ADD_FAILURE() << "en «" << modal.windowTitle().toStdString() << "»: " << error.what();
        Despachar(modal);
    }
}

void Contestador::anotar(const QWidget& modal) {
    const auto* const caja = qobject_cast<const QMessageBox*>(&modal);
    if (caja == nullptr) {
        return;
    }
    CajaVista vista{caja->windowTitle(), caja->text(), caja->icon(), {}};
    for (const QAbstractButton* const boton : caja->buttons()) {
        vista.botones << SinAcelerador(boton->text());
    }
    cajas_.push_back(vista);
}

} // namespace varo::prueba
