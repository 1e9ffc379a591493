// A canvas on the screen, at any scale.
#pragma once

#include "pintura/Pintor.h"

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include <optional>

namespace varo {

/// Shows the whole canvas until a person moves it: the wheel makes it larger and smaller about the pointer,
/// the middle button drags it. A picture that takes long is stretched from the last one until the hand rests.
/// Texts keep their size.
class VistaDeLienzo : public QWidget {
public:
    /// The canvas lives longer than the view, or until soltar().
    explicit VistaDeLienzo(Dibujo dibujo);

    /// The canvas has changed.
    void ponerAlDia();
    void verTodo();
    /// The canvas is about to go: the view stays blank.
    void soltar();

    [[nodiscard]] Encuadre encuadre() const;
    [[nodiscard]] Pluma pluma() const;
    /// Nothing once the canvas is gone.
    [[nodiscard]] const std::optional<Dibujo>& dibujo() const { return dibujo_; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* suceso) override;
    void resizeEvent(QResizeEvent* suceso) override;
    void wheelEvent(QWheelEvent* suceso) override;
    void mousePressEvent(QMouseEvent* suceso) override;
    void mouseMoveEvent(QMouseEvent* suceso) override;
    void mouseReleaseEvent(QMouseEvent* suceso) override;

private:
    [[nodiscard]] Encuadre encuadreEntero() const;
    void mover(const Encuadre& nuevo);
    void pintarImagen();

    std::optional<Dibujo> dibujo_;
    std::optional<Encuadre> movido_; ///< by a person; its origin is the middle of the view
    std::optional<QPointF> agarre_;  ///< where the middle button holds the canvas
    QPixmap imagen_;
    std::optional<Encuadre> encuadreDeImagen_; ///< nothing while the picture is out of date
    qint64 tardanza_ = 0;                      ///< of the last picture, in milliseconds
    QTimer reposo_;
};

} // namespace varo
