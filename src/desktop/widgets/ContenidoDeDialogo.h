// The content of a window with buttons.
#pragma once

#include <QHBoxLayout>
#include <QPushButton>
#include <QWidget>

#include <map>

namespace varo {

/// Enter presses the button with the focus, or the button that the field with the focus has for it, or the
/// first one at the foot; that button wears the ring. Escape presses the second one at the foot.
class ContenidoDeDialogo : public QWidget {
public:
    ContenidoDeDialogo();

    /// The row of the two buttons at the foot. A window has one at most.
    QLayout* crearPie(QPushButton* aceptar, QPushButton* cancelar);
    /// Enter in this field presses that button.
    void ponerBotonDe(const QWidget& campo, QPushButton& boton) { botonesDeCampos_[&campo] = &boton; }

protected:
    void keyPressEvent(QKeyEvent* suceso) override;

private:
    void seguirAlFoco(QWidget* conFoco);
    void ponerAnillo(QPushButton* boton);

    QPushButton* aceptar_ = nullptr;
    QPushButton* cancelar_ = nullptr;
    QPushButton* conAnillo_ = nullptr; ///< what Enter presses
    std::map<const QWidget*, QPushButton*> botonesDeCampos_;
};

} // namespace varo
