#include "desktop/widgets/Widgets.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

namespace varo {

namespace {

/// The step of an arrow key: back, on, or 0 for any other key.
int PasoDe(const QKeyEvent& suceso) {
    switch (suceso.key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        return -1;
    case Qt::Key_Down:
    case Qt::Key_Right:
        return 1;
    default:
        return 0;
    }
}

} // namespace

void ListaDeLineas::mousePressEvent(QMouseEvent* suceso) {
    {
        const QScopedValueRollback conElRaton{elegidaConElRaton_, true};
        QListWidget::mousePressEvent(suceso);
    }
    if (alElegir && itemAt(suceso->position().toPoint()) != nullptr) {
        alElegir();
    }
}

void ListaDeLineas::selectionChanged(const QItemSelection& nueva, const QItemSelection& antigua) {
    QListWidget::selectionChanged(nueva, antigua);
    if (alElegir && !elegidaConElRaton_ && !signalsBlocked()) {
        alElegir();
    }
}

void Combo::showPopup() {
    if (!alDesplegar) {
        QComboBox::showPopup();
        return;
    }
    // Wait for the end of the mouse press: what opens may be a dialog.
    QMetaObject::invokeMethod(this, alDesplegar, Qt::QueuedConnection);
}

void BotonDeOpcion::keyPressEvent(QKeyEvent* suceso) {
    const int paso = PasoDe(*suceso);
    if (paso != 0 && alMover) {
        alMover(paso);
        return;
    }
    QRadioButton::keyPressEvent(suceso);
}

class FichasPedidas::Barra : public QTabBar {
public:
    explicit Barra(const FichasPedidas& fichas) : fichas_{fichas} {}

protected:
    void mousePressEvent(QMouseEvent* suceso) override {
        const int ficha = tabAt(suceso->position().toPoint());
        if (suceso->button() == Qt::LeftButton && ficha >= 0) {
            fichas_.pedir(ficha);
        }
    }
    void keyPressEvent(QKeyEvent* suceso) override {
        if (const int paso = PasoDe(*suceso); paso != 0) {
            fichas_.pedirLaSiguiente(paso);
        } else {
            suceso->ignore();
        }
    }
    void wheelEvent(QWheelEvent* suceso) override { suceso->ignore(); }

private:
    const FichasPedidas& fichas_;
};

FichasPedidas::FichasPedidas() {
    setTabBar(new Barra{*this});
}

void FichasPedidas::pedir(int ficha) const {
    if (alPedir && ficha != currentIndex()) {
        alPedir(ficha);
    }
}

void FichasPedidas::pedirLaSiguiente(int paso) const {
    pedir((currentIndex() + paso + count()) % count());
}

void FichasPedidas::keyPressEvent(QKeyEvent* suceso) {
    const bool conControl = suceso->modifiers().testFlag(Qt::ControlModifier);
    if (conControl && (suceso->key() == Qt::Key_Tab || suceso->key() == Qt::Key_Backtab)) {
        pedirLaSiguiente(suceso->key() == Qt::Key_Tab ? 1 : -1);
        return;
    }
    QTabWidget::keyPressEvent(suceso);
}

} // namespace varo
