// What lies in a window that a person works through by its buttons.
#pragma once

#include <QHBoxLayout>
#include <QPushButton>
#include <QWidget>

namespace varo {

/// Enter presses the button that has the focus. At the foot there may be two more: Enter presses the first
/// one when no button has the focus, and Escape the second.
class ContenidoDeDialogo : public QWidget {
public:
    using QWidget::QWidget;

    /// The row of the two buttons at the foot.
    QLayout* pie(QPushButton* aceptar, QPushButton* cancelar);

protected:
    void keyPressEvent(QKeyEvent* suceso) override;

private:
    QPushButton* aceptar_ = nullptr;
    QPushButton* cancelar_ = nullptr;
};

} // namespace varo
