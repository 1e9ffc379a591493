// Answers the modal windows that hold up everything else until a person answers them.
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

/// The answers are used up in the order in which they were prepared. A modal window that nobody prepared for
/// is dismissed and fails the test, and so does an answer that nobody asked for.
class Contestador : public QObject {
public:
    using Acto = std::function<void(QWidget&)>;

    Contestador();
    ~Contestador() override;

    /// What is done with the next modal window. When it stays open the next act gets it again.
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
    std::vector<QWidget*> enCurso_; ///< being answered at this moment
    const QWidget* anotada_ = nullptr;
    std::vector<CajaVista> cajas_;
};

/// Presses the button of that caption, with the mouse. Throws std::runtime_error when there is none.
void PulsarBoton(QWidget& ventana, const QString& leyenda);

} // namespace varo::prueba
