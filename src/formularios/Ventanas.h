// The life cycle of the windows: creation on first touch, showing, hiding, unloading, activation and focus.
#pragma once

#include "basico/ErrorEjecucion.h"
#include "formularios/Formulario.h"
#include "formularios/Servicios.h"

#include <exception>
#include <functional>
#include <memory>
#include <typeindex>
#include <typeinfo>
#include <vector>

namespace varo {

/// A fault after which the program cannot go on: the person is told and the process ends.
class ErrorFatal : public ErrorEjecucion {
public:
    explicit ErrorFatal(const ErrorEjecucion& causa) : ErrorEjecucion{causa} {}
};

/// Keeps each window once. One visible window is active: showing another one, or a person's click, moves the
/// activation and runs Deactivate of the old one, then Activate of the new one. Hiding or unloading the
/// active one passes it to the visible window that was last active.
class Ventanas {
public:
    explicit Ventanas(Servicios& servicios) : servicios_{servicios} {}
    Ventanas(const Ventanas&) = delete;
    Ventanas& operator=(const Ventanas&) = delete;
    virtual ~Ventanas();

    [[nodiscard]] Servicios& servicios() const { return servicios_; }

    /// The window F. One that is not there is made hidden, in its design state, by `F{contexto}`, and runs
    /// its Form_Load.
    template <class F, class Contexto>
    F& tocarEn(Contexto& contexto) {
        if (F* const ventana = cargada<F>()) {
            return *ventana;
        }
        return static_cast<F&>(cargar(typeid(F), std::make_unique<F>(contexto)));
    }

    /// The window F, or null while it is not loaded.
    template <class F>
    [[nodiscard]] F* cargada() const {
        return static_cast<F*>(buscar(typeid(F)));
    }

    /// Unloads the window F when it is loaded. False when it refused.
    template <class F>
    bool descargar() {
        F* const ventana = cargada<F>();
        return ventana == nullptr || descargar(*ventana);
    }

    /// Unloads a window: QueryUnload may refuse (false); otherwise Form_Unload runs and the window is gone.
    /// The main window takes its children with it and ends the program.
    bool descargar(Formulario& ventana);

    /// Makes a loaded window visible and active; an unloaded one throws 364.
    void mostrar(Formulario& ventana);
    void ocultar(Formulario& ventana);
    /// Makes a visible window the active one. The control with the focus in the old one loses it; going back
    /// to that window does not bring it back.
    void activar(Formulario& ventana);
    [[nodiscard]] Formulario* activa() const { return activa_; }
    /// The loaded windows in the order of their loading.
    [[nodiscard]] std::vector<Formulario*> todas() const;

    /// Moves the focus to a control of a visible window. LostFocus of the control that had it runs first and
    /// may take the focus back; then it stays there.
    void darFoco(Control& control);
    /// Takes the focus from the control, if it has it.
    void quitarFoco(Control& control);
    [[nodiscard]] Control* foco() const { return foco_; }
    /// The control is going: no handler runs.
    void olvidarFoco(const Control& control);

    /// Runs an act that a person, or the platform, set off. A run-time fault ends it and is told; one that is
    /// cancelled ends without a word. Windows unloaded on the way are destroyed when the outermost act is
    /// over.
    void atender(const std::function<void()>& acto);

    /// True while an act is going on.
    [[nodiscard]] bool atendiendo() const { return profundidad_ > 0; }

    /// True once the main window is closed, or after a fatal fault.
    [[nodiscard]] bool terminado() const { return terminado_; }
    /// True after a fatal fault: the process ends with a status that says so.
    [[nodiscard]] bool conFalloFatal() const { return conFalloFatal_; }

    /// Called for each window that is loaded, and for each that is about to go.
    std::function<void(Formulario&)> alCargar;
    std::function<void(Formulario&)> alDescargar;
    /// Called for each control that a window gets after it was loaded, and for each that is about to go while
    /// its window stays.
    std::function<void(Control&)> alCrearControl;
    std::function<void(Control&)> alQuitarControl;
    /// Called when a window has become active, before its handlers run.
    std::function<void(Formulario&)> alActivar;
    /// Called when the outermost act is over.
    std::function<void()> alTerminarActo;

private:
    struct Cargada {
        std::type_index clase;
        std::unique_ptr<Formulario> ventana;
    };

    std::exception_ptr correr(const std::function<void()>& acto);
    [[nodiscard]] Formulario* buscar(std::type_index clase) const;
    Formulario& cargar(std::type_index clase, std::unique_ptr<Formulario> ventana);
    [[nodiscard]] bool estaCargada(const Formulario* ventana) const;
    bool descargarHijas();
    void quitar(Formulario& ventana);
    void soltarFoco(const Formulario& ventana);
    void olvidarFoco(const Formulario& ventana);
    void hacerActiva(Formulario* ventana);
    void cederActivacion(Formulario& antigua, bool avisarAntigua);

    Servicios& servicios_;
    std::vector<Cargada> cargadas_;
    std::vector<std::unique_ptr<Formulario>> retiradas_; ///< unloaded while their handlers may still run
    std::vector<Formulario*> descargando_;
    std::vector<Formulario*> recientes_; ///< by activation, the latest last
    Formulario* activa_ = nullptr;
    Control* foco_ = nullptr;
    int profundidad_ = 0;
    bool terminado_ = false;
    bool conFalloFatal_ = false;
};

} // namespace varo
