// Answers modal windows, which hold up everything else.
#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <functional>
#include <vector>

namespace varo::prueba {

/// A message box as a person saw it.
struct CajaVista {
    QString titulo;
    QString texto;
    QMessageBox::Icon icono = QMessageBox::NoIcon;
    QStringList botones; ///< without their accelerators
};

/// Gives the prepared answers in their order. A modal window without an answer is dismissed and fails the
/// test, and so does an answer without a window.
class Contestador : public QObject {
public:
    using Acto = std::function<void(QWidget&)>;

    Contestador();
    ~Contestador() override;

    /// Does this with the next modal window. If the window stays open, the next act gets it too.
    void preparar(Acto acto) { actos_.push_back(std::move(acto)); }
    /// Presses the button of that caption.
    void pulsar(const QString& boton);
    void tecla(Qt::Key tecla);

    /// The message boxes that came up, in order.
    [[nodiscard]] const std::vector<CajaVista>& cajas() const { return cajas_; }
    [[nodiscard]] bool todoPedido() const { return actos_.empty(); }

private:
    void mirar();
    void responder(QWidget& modal);
    void anotar(const QWidget& modal);

    QTimer reloj_;
    bool llamado_ = false;
    std::deque<Acto> actos_;
    std::vector<QWidget*> enCurso_; ///< windows whose answer is running
    const QWidget* anotada_ = nullptr;
    std::vector<CajaVista> cajas_;
};

/// Presses the button of that caption with the mouse. Throws std::runtime_error when there is none.
void PulsarBoton(QWidget& ventana, const QString& leyenda);

} // namespace varo::prueba
