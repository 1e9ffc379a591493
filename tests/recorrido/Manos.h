// A person's hands at a real screen: the mouse and the keyboard of the X server, and eyes on the windows.
#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

#include <functional>
#include <string>
#include <thread>

namespace varo::prueba {

/// Works on a thread of its own while the windows live on the main one: a message box that waits for an
/// answer holds up nobody. Whatever does not come about in good time throws std::runtime_error.
class Manos {
public:
    /// The point of a widget where a person would press it.
    using Sitio = std::function<QPoint(QWidget&)>;

    /// Presses a control of a window with the mouse, in its middle unless told otherwise.
    void clic(const QString& ventana, const QString& control, const Sitio& sitio = enElCentro,
              int veces = 1) const;
    /// Presses a key or a chord: "Return", "alt+a".
    void tecla(const std::string& nombre) const;
    /// Types a text with the keyboard.
    void teclear(const std::string& texto) const;

    /// Waits until a window is there, can be seen and has the activation.
    void esperarVentana(const QString& ventana) const;
    void esperarQueSeVaya(const QString& ventana) const;
    /// Waits until something holds, looked at on the thread of the windows.
    void esperar(const std::string& que, const std::function<bool()>& condicion) const;

    /// Something read from a widget, on the thread of the windows.
    QString leer(const QString& ventana, const QString& control,
                 const std::function<QString(QWidget&)>& lectura) const;

    /// A picture of the whole screen in the folder that VARO_FOTOS names; without it none is taken.
    void foto(const std::string& nombre) const;

    static QPoint enElCentro(QWidget& widget) { return widget.rect().center(); }
};

/// A control of a window, or the window itself when it has no name; null when there is none. To be asked on
/// the thread of the windows.
QWidget* ControlDe(const QString& ventana, const QString& control);

/// Runs what the hands do while the windows live; what it throws fails the test. The event loop ends with it.
void ConLasManos(const std::function<void(const Manos&)>& acto);

} // namespace varo::prueba
