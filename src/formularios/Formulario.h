// A window: its properties, its register of controls and the handlers of its life.
#pragma once

#include "formularios/Control.h"

#include <string>
#include <vector>

namespace varo {

class Ventanas;

enum class TipoVentana {
    Marco, ///< the main window, with the children inside it
    Hija,  ///< a child of the main window
    Libre  ///< a free top-level window
};

/// The state of a window. Ventanas makes it on its first touch, hidden and in its design state, and destroys
/// it when it is unloaded. Measures are in twips.
class Formulario : public Observable {
public:
    Formulario(Ventanas& ventanas, std::string nombre, TipoVentana tipo, std::string leyenda);

    [[nodiscard]] const std::string& nombre() const { return nombre_; }
    [[nodiscard]] TipoVentana tipo() const { return tipo_; }
    [[nodiscard]] bool Visible() const { return visible_(); }

    Propiedad<std::string> Caption;
    Propiedad<int> MousePointer{*this, punteroNormal};
    Propiedad<int> WindowState{*this, 0};
    Propiedad<float> Left{*this};
    Propiedad<float> Top{*this};
    Propiedad<float> Width{*this};
    Propiedad<float> Height{*this};

    static constexpr int punteroNormal = 0;
    static constexpr int relojDeArena = 11;

    /// Makes the window visible and active.
    void Show();
    /// Makes it invisible; it stays loaded with its values.
    void Hide();

    /// The controls in the order of their making.
    [[nodiscard]] const std::vector<Control*>& controles() const { return controles_; }
    /// Null when there is no such control.
    [[nodiscard]] Control* buscarControl(const std::string& nombre, int indice = Identidad::sinIndice) const;
    /// Throws 340 when there is no such control.
    [[nodiscard]] Control& control(const std::string& nombre, int indice = Identidad::sinIndice) const;

    /// A person, or the platform, gave the window another size: sets it and runs Form_Resize.
    void redimensionar(float ancho, float alto);

    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Deactivate() {}
    virtual void Form_Resize() {}
    /// False refuses the unloading.
    virtual bool Form_QueryUnload() { return true; }
    virtual void Form_Unload() {}
    /// Does what the close box does: unloads the window, unless the window says otherwise.
    virtual void pulsarCierre();
    /// A person has dropped a control of the window on its free surface, at a point in its units.
    virtual void Form_DragDrop(Control& /*Source*/, double /*X*/, double /*Y*/) {}

    /// Twips in the units in which the window measures its controls.
    [[nodiscard]] virtual double enUnidades(double twips) const { return twips; }

protected:
    [[nodiscard]] Ventanas& ventanas() const { return ventanas_; }

private:
    friend class Control;
    friend class Ventanas;
    friend void AnunciarMiembro(Control& miembro);
    friend void RetirarMiembro(Control& miembro);

    void registrar(Control& control) { controles_.push_back(&control); }
    void anunciar(Control& control);
    void retirar(Control& control);
    void darFoco(Control& control);

    Ventanas& ventanas_;
    std::string nombre_;
    TipoVentana tipo_;
    Propiedad<bool> visible_{*this, false};
    std::vector<Control*> controles_;
    bool anunciada_ = false; ///< views know of the window, and of the controls that it had then
};

} // namespace varo
