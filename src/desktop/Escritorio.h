// The real windows of the program: makes one for each model that is loaded and keeps the two in step.
#pragma once

#include "desktop/ServiciosQt.h"
#include "desktop/Vistas.h"
#include "shell/Programa.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QObject>
#include <QTimer>

#include <cstdlib>
#include <functional>
#include <vector>

class QMdiArea;

namespace varo {

/// Activation, focus, closing and size go both ways: what a person does with a real window goes to its model,
/// and what the model does shows at once. During an act the model has the word: what Qt reports then is the
/// act's doing, not a person's. At the end of the act the real windows are brought in line with the model.
/// The application object lives longer than the desktop.
class Escritorio : public QObject {
public:
    explicit Escritorio(ServiciosQt& servicios);
    ~Escritorio() override;

    [[nodiscard]] Programa& programa() { return programa_; }
    [[nodiscard]] QMainWindow& marco() { return marco_; }
    /// The real window of a model, null while the model is not loaded.
    [[nodiscard]] QWidget* ventanaDe(const Formulario& modelo) const { return vistas_.ventanaDe(modelo); }
    /// The widget of a control, null when it has none.
    [[nodiscard]] QWidget* widgetDe(const Control& control) const { return vistas_.widgetDe(control); }

    /// Puts the real window of a loaded model above its sisters. No window becomes active by it.
    void alzar(Formulario& modelo);

    /// Told when the program is over. Ends the event loop, with status 1 after a fatal fault.
    std::function<void()> alTerminar = [this] {
        QCoreApplication::exit(programa_.conFalloFatal() ? EXIT_FAILURE : EXIT_SUCCESS);
    };

    bool eventFilter(QObject* objeto, QEvent* suceso) override;

private:
    void seguirAlModelo();
    void seguirALaPersona();

    void alCargar(Formulario& modelo);
    void alDescargar(Formulario& modelo);
    void alTerminarActo();
    void soltarRetiradas();
    void ponerEncima(Formulario& modelo);
    void darActivacion();
    void darFoco();

    QWidget* crearVentana(Formulario& modelo, Vinculos& vinculos);
    void mostrar(Formulario& modelo);
    void aplicarEstado(Formulario& modelo, Vista& vista);
    void aplicarMedidas(const Formulario& modelo, Vista& vista);
    void separarHijas();

    void alzarLaActiva(const QObject* pulsado) const;
    void alEnfocarse(const QWidget* widget);
    void alActivarse(const QObject* ventana);
    bool alPedirCierre(const QObject* ventana);
    void alMoverse(const QObject* ventana);
    void alCambiarEstado(const QObject* ventana);
    void activarModelo(Formulario& modelo);
    void medir(Formulario& modelo);
    /// Hands on what a person did with a window, unless it is the program's doing.
    void actuar(const std::function<void()>& acto);

    [[nodiscard]] Formulario* modeloActivoDelMarco() const;
    [[nodiscard]] bool esperaOtra(const QObject* ventana) const;

    ServiciosQt& servicios_;
    Programa programa_;
    QMainWindow marco_;
    QMdiArea* zona_;
    Vistas vistas_;
    std::vector<Vista> retiradas_; ///< unloaded by the present act
    bool desdeElModelo_ = false;   ///< what Qt reports now comes from the model
    bool cambioDeActiva_ = false;  ///< the present act has moved the activation
    bool recolocadas_ = false;     ///< the present act has placed a child
    QWidget* pedida_ = nullptr;    ///< the window that was asked to become active and has not yet
    QTimer esperaDePedida_;
};

} // namespace varo
