// The real windows of the program: makes one for each model window that is loaded and keeps the two in step.
#pragma once

#include "desktop/ServiciosQt.h"
#include "shell/Programa.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QObject>
#include <QRect>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <vector>

class QMdiArea;
class QMdiSubWindow;

namespace varo {

class Vinculos;

/// Activation, focus, closing and size go both ways: what a person does with a real window goes to its model,
/// and what the model does shows at once. While an act is going on the model has the word: the events that
/// its own doings raise in the toolkit are not a person's. When the act is over the real windows are brought
/// in line with it.
class Escritorio : public QObject {
public:
    explicit Escritorio(ServiciosQt& servicios);
    ~Escritorio() override;

    [[nodiscard]] Programa& programa() { return programa_; }
    [[nodiscard]] QMainWindow& marco() { return marco_; }
    /// The real window of a model window; null when it is not loaded.
    [[nodiscard]] QWidget* ventanaDe(const Formulario& modelo) const;
    /// The widget of a control; null when it has none.
    [[nodiscard]] QWidget* widgetDe(const Control& control) const;

    /// Told when the program is over; it ends the event loop.
    std::function<void()> alTerminar = [] { QCoreApplication::exit(); };

    bool eventFilter(QObject* objeto, QEvent* suceso) override;

private:
    struct Vista {
        QWidget* ventana = nullptr; ///< the frame itself, a subwindow of it, or a dialog
        std::unique_ptr<Vinculos> vinculos;
        int observador = 0;
        QRect medidas;  ///< what the model last asked for, in twips
        int estado = 0; ///< the window state that the model last asked for
    };

    void alCargar(Formulario& modelo);
    void alDescargar(Formulario& modelo);
    void alTerminarActo();
    void soltarRetiradas();
    void ponerEncima(Formulario& modelo);
    void darActivacion();
    void darFoco();

    QWidget* crearVentana(Formulario& modelo, Vinculos& vinculos);
    QWidget* crearHija(QWidget& contenido, const Formulario& modelo);
    QWidget* crearDialogo(QWidget& contenido);
    void mostrar(Formulario& modelo);
    void aplicarEstado(Formulario& modelo, Vista& vista);
    void aplicarMedidas(const Formulario& modelo, Vista& vista);

    void alEnfocarse(QWidget* widget);
    void alActivarse(const QObject* ventana);
    void activarModelo(Formulario& modelo);
    void cerrar(Formulario& modelo);
    void medir(Formulario& modelo);
    void anotarEstado(Formulario& modelo);
    /// Hands on what a person did with a window, unless it is the program's own doing.
    void actuar(const std::function<void()>& acto);

    [[nodiscard]] Formulario* modeloDe(const QObject* ventana) const;
    [[nodiscard]] Control* controlDe(QWidget* widget) const;
    [[nodiscard]] Formulario* modeloActivoDelMarco() const;

    ServiciosQt& servicios_;
    Programa programa_;
    QMainWindow marco_;
    QMdiArea* zona_;
    std::map<Formulario*, Vista> vistas_;
    std::vector<Vista> retiradas_; ///< unloaded by the act that goes on
    bool desdeElModelo_ = false;
    bool cambioDeActiva_ = false; ///< the act that goes on has moved the activation
    QWidget* pedida_ = nullptr;   ///< the window that was asked to become active and has not yet
    QTimer esperaDePedida_;
};

} // namespace varo
