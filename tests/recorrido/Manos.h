// A person at a real screen: mouse and keyboard of the X server, and eyes on the windows.
#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

#include <functional>
#include <string>
#include <thread>

namespace varo::prueba {

/// Runs beside the thread of the windows, so a message box that waits for an answer does not hold it up. What
/// does not happen in time throws std::runtime_error.
class Manos {
public:
    /// The point of a widget where a person would press it.
    using Sitio = std::function<QPoint(QWidget&)>;

    /// Presses a control of a window with the mouse, in its middle unless told otherwise.
    void clic(const QString& ventana, const QString& control, const Sitio& sitio = enElCentro,
              int veces = 1) const;
    /// Presses the left button at one point of a control and releases it at another.
    void arrastrar(const QString& ventana, const QString& control, const Sitio& desde,
                   const Sitio& hasta) const;
    /// Presses a key or a chord: "Return", "alt+a".
    void tecla(const std::string& nombre) const;
    /// Types a text with the keyboard.
    void teclear(const std::string& texto) const;
    /// Replaces the text of a field by typing, once the field has the focus. A list that opens below it may
    /// take the focus away for a moment, and with it some letters: types again then.
    void escribir(const QString& ventana, const QString& campo, const std::string& texto) const;

    /// Waits until a window is visible and active.
    void esperarVentana(const QString& ventana) const;
    void esperarQueSeVaya(const QString& ventana) const;
    /// Waits until a condition holds, looked at on the thread of the windows. A fault names it by `que`.
    void esperar(const std::string& que, const std::function<bool()>& condicion) const;

    /// Reads something from a widget on the thread of the windows; nothing when there is no such widget.
    QString leer(const QString& ventana, const QString& control,
                 const std::function<QString(QWidget&)>& lectura) const;

    /// Waits until the screen shows the active window as it is now: a part that nobody repaints fails here.
    /// Then `fotoEnMarcha`.
    void foto(const std::string& nombre) const;
    /// Saves a picture of the screen in the folder that VARO_FOTOS names, if it names one.
    void fotoEnMarcha(const std::string& nombre) const;

    static QPoint enElCentro(QWidget& widget) { return widget.rect().center(); }
};

/// A control of a window, or the window itself for an empty name; null when there is none. Runs on the thread
/// of the windows.
QWidget* ControlDe(const QString& ventana, const QString& control);

/// Runs an act beside the event loop, which ends with it. What the act throws fails the test.
void ConLasManos(const std::function<void(const Manos&)>& acto);

} // namespace varo::prueba
