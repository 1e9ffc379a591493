#include "desktop/widgets/VentanasReales.h"

#include <QAction>
#include <QDialog>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <limits>

namespace varo {

namespace {

/// Title, menu and close box, without buttons to minimise and maximise.
constexpr Qt::WindowFlags sinAgrandar =
    Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

/// Treats Escape as its close box.
class Dialogo : public QDialog {
public:
    using QDialog::QDialog;
    void reject() override { close(); }
};

} // namespace

QSize SitioEnPantalla(const QWidget& ventana) {
    constexpr QSize marcos{40, 80};
    return ventana.screen()->availableGeometry().size() - marcos;
}

QPoint LugarAlLado(QSize tamano, const QRect& marco, const QRect& aLaVista, const QRect& pantalla) {
    constexpr QSize borde{12, 40}; // of the window, which is not known before it shows
    const QSize conBorde = tamano + borde;
    const int derecha = pantalla.right() + 1 - conBorde.width();
    const int abajo = pantalla.bottom() + 1 - conBorde.height();
    const int aLaAltura = std::clamp(aLaVista.top(), pantalla.top(), std::max(pantalla.top(), abajo));
    const std::array lugares{QPoint{marco.right() + 1, aLaAltura},
                             QPoint{marco.left() - conBorde.width(), aLaAltura},
                             QPoint{derecha, abajo},
                             QPoint{pantalla.left(), abajo},
                             QPoint{derecha, pantalla.top()},
                             QPoint{pantalla.left(), pantalla.top()}};
    const auto tapado = [&](const QPoint& lugar) {
        const QRect suyo{lugar, conBorde};
        const QSize comun = suyo.intersected(aLaVista).size();
        return pantalla.contains(suyo) ? comun.width() * comun.height() : std::numeric_limits<int>::max();
    };
    const auto mejor = std::ranges::min_element(lugares, {}, tapado);
    return tapado(*mejor) == std::numeric_limits<int>::max() ? pantalla.topLeft() : *mejor;
}

namespace {

/// Ctrl+F4 closes a child, and nothing else does by the keyboard.
void PonerTeclaDeCierre(QMdiSubWindow& hija) {
    for (QAction* const accion : hija.systemMenu()->actions()) {
        if (accion->shortcuts() == QKeySequence::keyBindings(QKeySequence::Close)) {
            accion->setShortcut(Qt::CTRL | Qt::Key_F4);
            accion->setShortcutContext(Qt::WidgetWithChildrenShortcut);
            hija.addAction(accion);
        }
    }
}

} // namespace

QMdiSubWindow* CrearHija(QMdiArea& zona, QWidget& contenido, bool sePuedeAgrandar) {
    auto* const hija = new QMdiSubWindow;
    hija->setWidget(&contenido);
    if (!sePuedeAgrandar) {
        hija->setWindowFlags(Qt::SubWindow | sinAgrandar);
    }
    PonerTeclaDeCierre(*hija);
    zona.addSubWindow(hija, hija->windowFlags());
    hija->hide();
    return hija;
}

QWidget* CrearDialogo(QWidget& marco, QWidget& contenido) {
    auto* const dialogo = new Dialogo{&marco};
    dialogo->setWindowFlags(Qt::Dialog | sinAgrandar);
    auto* const columna = new QVBoxLayout{dialogo};
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(&contenido);
    dialogo->resize(dialogo->sizeHint().boundedTo(SitioEnPantalla(marco)));
    return dialogo;
}

} // namespace varo
