// The content of a window with buttons.
#pragma once

#include <QHBoxLayout>
#include <QPushButton>
#include <QWidget>

namespace varo {

/// Enter presses the button with the focus. With two buttons at the foot, Enter presses the first one when no
/// button has the focus, and Escape presses the second.
class ContenidoDeDialogo : public QWidget {
public:
    using QWidget::QWidget;

    /// The row of the two buttons at the foot. A window has one at most.
    QLayout* crearPie(QPushButton* aceptar, QPushButton* cancelar);

protected:
    void keyPressEvent(QKeyEvent* suceso) override;

private:
    QPushButton* aceptar_ = nullptr;
    QPushButton* cancelar_ = nullptr;
};

} // namespace varo
