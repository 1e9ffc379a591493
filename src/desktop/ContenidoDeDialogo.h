// What lies in a window that a person ends with "Aceptar" or "Cancelar".
#pragma once

#include <QHBoxLayout>
#include <QPushButton>
#include <QWidget>

namespace varo {

/// Enter presses the first button, unless another one has the focus, and Escape the second.
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
