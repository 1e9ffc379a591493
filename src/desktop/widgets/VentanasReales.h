// Real windows around a content: a child of the main window, or a free window over it.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

class QMdiArea;
class QMdiSubWindow;
class QWidget;

namespace varo {

/// The largest size of a window on its screen: the rest is for the frame and the panels of the system.
QSize SitioEnPantalla(const QWidget& ventana);

/// Where a window of that size covers least of what it stands beside: beside the frame, or else in a corner
/// of the screen.
QPoint LugarAlLado(QSize tamano, const QRect& marco, const QRect& aLaVista, const QRect& pantalla);

/// A hidden child. Its buttons to minimise and maximise it are there on demand.
QMdiSubWindow* CrearHija(QMdiArea& zona, QWidget& contenido, bool sePuedeAgrandar);

/// A free window over the main one, as large as its content or as its screen allows.
QWidget* CrearDialogo(QWidget& marco, QWidget& contenido);

} // namespace varo
