#include "recorrido/Manos.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QLineEdit>
#include <QProcess>
#include <QScreen>
#include <QScrollArea>
#include <QThread>

#include <gtest/gtest.h>

#include <cstdlib>
#include <exception>
#include <stdexcept>

namespace varo::prueba {

namespace {

constexpr int plazo = 30'000; ///< in milliseconds; a test that goes well never uses it up
constexpr int pausa = 5;      ///< in milliseconds, between two looks
constexpr int asiento = 150;  ///< in milliseconds, for the last act to reach the windows before a picture

template <class F>
auto EnElHiloDeLasVentanas(const F& lectura) {
    decltype(lectura()) valor{};
    QMetaObject::invokeMethod(
        qApp, [&] { valor = lectura(); }, Qt::BlockingQueuedConnection);
    return valor;
}

QWidget* Ventana(const QString& nombre) {
    for (QWidget* const superior : QApplication::topLevelWidgets()) {
        if (superior->objectName() == nombre) {
            return superior;
        }
        if (auto* const dentro = superior->findChild<QWidget*>(nombre)) {
            return dentro;
        }
    }
    return nullptr;
}

void Xdotool(const QStringList& argumentos) {
    QProcess proceso;
    proceso.start("xdotool", argumentos);
    if (!proceso.waitForFinished(plazo) || proceso.exitCode() != 0) {
        throw std::runtime_error{"xdotool " + argumentos.join(' ').toStdString() + ": " +
                                 proceso.readAllStandardError().toStdString()};
    }
}

/// Scrolls a page until the widget is in view, as a person does before pressing it.
void LlevarALaVista(QWidget& widget) {
    for (QWidget* exterior = widget.parentWidget(); exterior != nullptr;
         exterior = exterior->parentWidget()) {
        if (auto* const pagina = qobject_cast<QScrollArea*>(exterior)) {
            pagina->ensureWidgetVisible(&widget);
        }
    }
}

/// Null where nobody asked for pictures.
const char* CarpetaDeFotos() {
    return std::getenv("VARO_FOTOS");
}

/// The screen shows of the active window what the window would paint now.
bool PintadaComoEsta() {
    QWidget* const ventana = QApplication::activeWindow();
    if (ventana == nullptr) {
        return true;
    }
    const QImage pintada = ventana->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QImage vista = ventana->screen()->grabWindow(ventana->winId()).toImage();
    return vista.convertToFormat(QImage::Format_RGB32) == pintada;
}

} // namespace

QWidget* ControlDe(const QString& ventana, const QString& control) {
    QWidget* const donde = Ventana(ventana);
    if (donde == nullptr || control.isEmpty()) {
        return donde;
    }
    return donde->findChild<QWidget*>(control);
}

namespace {

/// Tells whether a condition comes to hold within some milliseconds.
bool Llega(int espera, const std::function<bool()>& condicion) {
    const QDeadlineTimer limite{espera};
    while (!EnElHiloDeLasVentanas(condicion)) {
        if (limite.hasExpired()) {
            return false;
        }
        QThread::msleep(pausa);
    }
    return true;
}

} // namespace

void Manos::esperar(const std::string& que, const std::function<bool()>& condicion) const {
    if (!Llega(plazo, condicion)) {
        fotoEnMarcha("fallo");
        throw std::runtime_error{"no llega: " + que};
    }
}

void Manos::esperarVentana(const QString& ventana) const {
    esperar(ventana.toStdString() + " a la vista", [&] {
        QWidget* const widget = Ventana(ventana);
        return widget != nullptr && widget->isVisible() && widget->isActiveWindow();
    });
}

void Manos::esperarQueSeVaya(const QString& ventana) const {
    esperar("que se vaya " + ventana.toStdString(), [&] {
        QWidget* const widget = Ventana(ventana);
        return widget == nullptr || !widget->isVisible();
    });
}

namespace {

/// The words for xdotool to bring the pointer to a point of a control that is ready for the mouse.
QStringList Ir(const Manos& manos, const QString& ventana, const QString& control,
               const Manos::Sitio& sitio) {
    manos.esperar((ventana + "." + control).toStdString() + " listo para el ratón", [&] {
        QWidget* const widget = ControlDe(ventana, control);
        return widget != nullptr && widget->isVisible() && widget->isEnabled();
    });
    const QPoint punto = EnElHiloDeLasVentanas([&] {
        QWidget* const widget = ControlDe(ventana, control);
        LlevarALaVista(*widget);
        return (QPointF{widget->mapToGlobal(sitio(*widget))} * widget->devicePixelRatio()).toPoint();
    });
    return {"mousemove", QString::number(punto.x()), QString::number(punto.y())};
}

} // namespace

void Manos::clic(const QString& ventana, const QString& control, const Sitio& sitio, int veces) const {
    Xdotool(Ir(*this, ventana, control, sitio) +
            QStringList{"click", "--repeat", QString::number(veces), "--delay", "20", "1"});
}

void Manos::arrastrar(const QString& ventana, const QString& control, const Sitio& desde,
                      const Sitio& hasta) const {
    Xdotool(Ir(*this, ventana, control, desde) + QStringList{"mousedown", "1"});
    Xdotool(Ir(*this, ventana, control, hasta) + QStringList{"mouseup", "1"});
}

void Manos::tecla(const std::string& nombre) const {
    Xdotool({"key", "--clearmodifiers", QString::fromStdString(nombre)});
}

void Manos::teclear(const std::string& texto) const {
    Xdotool({"type", "--clearmodifiers", "--delay", "5", QString::fromStdString(texto)});
}

void Manos::escribir(const QString& ventana, const QString& campo, const std::string& texto) const {
    constexpr int intentos = 8;
    constexpr int espera = 4'000; // in milliseconds
    const auto estaEscrito = [&] {
        const auto* const caja = qobject_cast<QLineEdit*>(ControlDe(ventana, campo));
        return caja != nullptr && caja->text().toStdString() == texto;
    };
    for (int intento = 0; intento < intentos; ++intento) {
        esperar("el foco en " + campo.toStdString(), [&] {
            const QWidget* const widget = ControlDe(ventana, campo);
            return widget != nullptr && widget->hasFocus();
        });
        tecla("ctrl+a");
        teclear(texto);
        if (Llega(espera, estaEscrito)) {
            return;
        }
    }
    esperar("«" + texto + "» en " + campo.toStdString(), estaEscrito);
}

QString Manos::leer(const QString& ventana, const QString& control,
                    const std::function<QString(QWidget&)>& lectura) const {
    return EnElHiloDeLasVentanas([&] {
        QWidget* const widget = ControlDe(ventana, control);
        return widget == nullptr ? QString{} : lectura(*widget);
    });
}

void Manos::foto(const std::string& nombre) const {
    if (CarpetaDeFotos() != nullptr) {
        QThread::msleep(asiento);
    }
    esperar("que se pinte lo de «" + nombre + "»", PintadaComoEsta);
    fotoEnMarcha(nombre);
}

void Manos::fotoEnMarcha(const std::string& nombre) const {
    if (const char* const carpeta = CarpetaDeFotos()) {
        EnElHiloDeLasVentanas([&] {
            return QApplication::primaryScreen()->grabWindow(0).save(QString{carpeta} + "/" +
                                                                     QString::fromStdString(nombre) + ".png");
        });
    }
}

void ConLasManos(const std::function<void(const Manos&)>& acto) {
    std::string fallo;
    std::thread manos{[&] {
        try {
            acto(Manos{});
        } catch (const std::exception& error) {
            fallo = error.what();
        }
        QMetaObject::invokeMethod(
            qApp, [] { QApplication::exit(); }, Qt::QueuedConnection);
    }};
    QApplication::exec();
    manos.join();
    EXPECT_EQ(fallo, "");
}

} // namespace varo::prueba
