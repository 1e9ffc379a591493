// Controls as plain state: values, flags and the events that a change of them raises.
#pragma once

#include "formularios/Observable.h"
#include "formularios/Servicios.h"
#include "lienzo/Color.h"
#include "lienzo/Fuente.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace varo {

class Formulario;
class Marco;

enum class TipoControl {
    Etiqueta,
    CajaTexto,
    Casilla,
    Opcion,
    Lista,
    Desplegable,
    Boton,
    Marco,
    Imagen,
    Menu,
    Rejilla,
    Fichas
};

/// The name of a kind of control, as in the type itself.
std::string_view NombreTipo(TipoControl tipo);

using Suceso = std::function<void()>;

/// Raises an event, if anybody waits for it.
inline void Lanzar(const Suceso& suceso) {
    if (suceso) {
        suceso();
    }
}

/// What a control that is dragged does over another one. The numbers are the platform's.
enum class PasoDeArrastre { Entra = 0, Sale = 1 };

/// What a control is called: its name and, for a member of an array of controls, its index.
struct Identidad {
    static constexpr int sinIndice = -1;

    std::string nombre;
    int indice = sinIndice;

    Identidad(const char* nombre_,
              int indice_ = sinIndice) // NOLINT(google-explicit-constructor): a name alone
        : nombre{nombre_}, indice{indice_} {}
    Identidad(std::string nombre_, int indice_ = sinIndice) // NOLINT(google-explicit-constructor)
        : nombre{std::move(nombre_)}, indice{indice_} {}

    /// "TxtBAF1(6)", or the name alone.
    [[nodiscard]] std::string completa() const;
};

class Control;

/// Raised at the control over which `origen` is dragged.
using SucesoDeArrastre = std::function<void(Control& origen, PasoDeArrastre paso)>;

/// A control of a window. It enters the window's register when it is made. Measures are in the units of its
/// window: twips, unless the window has a scale of its own.
class Control : public Observable {
public:
    Control(Formulario& ventana, Identidad identidad, TipoControl tipo, std::string leyenda = {});

    [[nodiscard]] const std::string& Name() const { return identidad_.nombre; }
    /// -1 for a control that is no member of an array.
    [[nodiscard]] int Index() const { return identidad_.indice; }
    /// "TxtBAF1(6)", or the name alone.
    [[nodiscard]] std::string nombreCompleto() const { return identidad_.completa(); }
    [[nodiscard]] TipoControl tipo() const { return tipo_; }
    [[nodiscard]] Formulario& ventana() const { return ventana_; }

    /// The frame in which the control lies; null on the window itself.
    Marco* contenedor = nullptr;

    Propiedad<std::string> Caption;
    Propiedad<bool> Enabled{*this, true};
    Propiedad<bool> Visible{*this, true};
    Propiedad<double> Left{*this};
    Propiedad<double> Top{*this};
    Propiedad<double> Width{*this};
    Propiedad<double> Height{*this};
    std::string Tag;
    /// A press on the control begins to drag it.
    bool arrastrable = false;
    /// The picture of the pointer while the control is dragged: the name of a resource.
    Propiedad<std::string> DragIcon{*this};

    Suceso Click;
    Suceso DblClick;
    Suceso LostFocus;
    SucesoDeArrastre DragOver;

    /// Gives the control the focus; the one that had it loses it.
    void SetFocus();

    /// Does what a person's click does.
    virtual void pulsar() { Lanzar(Click); }

private:
    Formulario& ventana_;
    Identidad identidad_;
    TipoControl tipo_;
};

class Etiqueta : public Control {
public:
    Etiqueta(Formulario& ventana, Identidad identidad, std::string leyenda = {})
        : Control{ventana, std::move(identidad), TipoControl::Etiqueta, std::move(leyenda)} {}

    Propiedad<Fuente> Font{*this};
    Propiedad<Color> ForeColor{*this, 0};
    /// Nothing: what lies behind shows through.
    Propiedad<std::optional<Color>> BackColor{*this};
    /// The label takes the size of its text whenever that, or its font, changes.
    Propiedad<bool> AutoSize{*this, false};

    /// Takes the size of its text now.
    void ajustar();

protected:
    void alCambiar(const void* propiedad) override;
};

class Boton : public Control {
public:
    Boton(Formulario& ventana, Identidad identidad, std::string leyenda = {})
        : Control{ventana, std::move(identidad), TipoControl::Boton, std::move(leyenda)} {}
};

/// A frame. What lies in a disabled or invisible frame cannot be used by a person.
class Marco : public Control {
public:
    Marco(Formulario& ventana, Identidad identidad, std::string leyenda = {})
        : Control{ventana, std::move(identidad), TipoControl::Marco, std::move(leyenda)} {}
};

class Imagen : public Control {
public:
    Imagen(Formulario& ventana, Identidad identidad)
        : Control{ventana, std::move(identidad), TipoControl::Imagen} {}
};

/// A menu entry; `padre` is the entry under which it stands, null at the top.
class Menu : public Control {
public:
    Menu(Formulario& ventana, Identidad identidad, std::string leyenda, const Menu* padre = nullptr)
        : Control{ventana, std::move(identidad), TipoControl::Menu, std::move(leyenda)}, padre_{padre} {}

    [[nodiscard]] const Menu* padre() const { return padre_; }

private:
    const Menu* padre_;
};

/// A text field. A changed Text raises Change.
class CajaTexto : public Control {
public:
    CajaTexto(Formulario& ventana, Identidad identidad, std::string texto = {})
        : Control{ventana, std::move(identidad), TipoControl::CajaTexto}, Text{*this, std::move(texto)} {}

    Propiedad<std::string> Text;
    Suceso Change;

protected:
    void alCambiar(const void* propiedad) override;
};

/// A two-state check, 0 or 1. A changed Value raises Click.
class Casilla : public Control {
public:
    Casilla(Formulario& ventana, Identidad identidad, std::string leyenda = {}, int valor = 0)
        : Control{ventana, std::move(identidad), TipoControl::Casilla, std::move(leyenda)}, Value{*this,
                                                                                                  valor} {}

    Propiedad<int> Value;

    void pulsar() override { Value = Value() == 0 ? 1 : 0; }

protected:
    void alCambiar(const void* propiedad) override;
};

class Opcion;

/// Options of which at most one is on.
using GrupoOpciones = std::vector<Opcion*>;

/// An exclusive option. Turning it on turns off the others of its group and raises its Click.
class Opcion : public Control {
public:
    Opcion(Formulario& ventana, Identidad identidad, std::string leyenda, GrupoOpciones& grupo,
           bool valor = false);

    Propiedad<bool> Value;

    void pulsar() override { Value = true; }
    [[nodiscard]] const GrupoOpciones& grupo() const { return grupo_; }

protected:
    void alCambiar(const void* propiedad) override;

private:
    GrupoOpciones& grupo_;
};

/// Lines of text in order; what a list and a drop-down share. A line out of bounds throws 5.
class ConLineas : public Control {
public:
    using Control::Control;

    [[nodiscard]] int ListCount() const { return static_cast<int>(lineas_.size()); }
    [[nodiscard]] const std::string& List(int linea) const { return lineas_[comprobada(linea)].texto; }
    void AddItem(std::string texto);
    void RemoveItem(int linea);
    void Clear();
    /// Puts these lines in place of all.
    void lineas(const std::vector<std::string>& textos);

protected:
    struct Renglon {
        std::string texto;
        bool seleccionada = false;
    };
    [[nodiscard]] std::size_t comprobada(int linea) const;

    std::vector<Renglon> lineas_;
};

/// A list in which several lines may be selected at once, or only one.
class Lista : public ConLineas {
public:
    Lista(Formulario& ventana, Identidad identidad, bool variasALaVez = true)
        : ConLineas{ventana, std::move(identidad), TipoControl::Lista}, variasALaVez_{variasALaVez} {}

    [[nodiscard]] bool variasALaVez() const { return variasALaVez_; }
    [[nodiscard]] bool Selected(int linea) const { return lineas_[comprobada(linea)].seleccionada; }
    void Selected(int linea, bool seleccionada);

private:
    bool variasALaVez_;
};

/// A drop-down list; editable ones take a typed Text too. A changed Text raises Change.
class Desplegable : public ConLineas {
public:
    Desplegable(Formulario& ventana, Identidad identidad, bool editable = true)
        : ConLineas{ventana, std::move(identidad), TipoControl::Desplegable}, editable_{editable} {}

    Propiedad<std::string> Text{*this};
    Propiedad<Fuente> Font{*this};
    Propiedad<Color> BackColor{*this, blanco};
    Suceso Change;
    Suceso DropDown;

    static constexpr Color blanco = 0x00FFFFFF;

    [[nodiscard]] bool editable() const { return editable_; }

protected:
    void alCambiar(const void* propiedad) override;

private:
    bool editable_;
};

/// A tabbed dialog: its captions, the tab on show and what lies on each. A control on a hidden tab is within
/// reach, since a person may show any tab.
class Fichas : public Control {
public:
    Fichas(Formulario& ventana, Identidad identidad, std::vector<std::string> leyendas, int ficha)
        : Control{ventana, std::move(identidad), TipoControl::Fichas}, Tab{*this, ficha}, leyendas_{std::move(
                                                                                              leyendas)},
          contenido_(leyendas_.size()) {}

    Propiedad<int> Tab;

    [[nodiscard]] int Tabs() const { return static_cast<int>(leyendas_.size()); }
    [[nodiscard]] const std::string& TabCaption(int ficha) const {
        return leyendas_.at(static_cast<std::size_t>(ficha));
    }
    void poner(int ficha, Control& control) {
        contenido_.at(static_cast<std::size_t>(ficha)).push_back(&control);
    }
    [[nodiscard]] const std::vector<Control*>& contenido(int ficha) const {
        return contenido_.at(static_cast<std::size_t>(ficha));
    }

private:
    std::vector<std::string> leyendas_;
    std::vector<std::vector<Control*>> contenido_;
};

[[noreturn]] void FaltaMiembro(const std::string& nombre, int indice);
[[noreturn]] void SobraMiembro(const std::string& nombre, int indice);
/// Tell the window of a member that came or is about to go.
void AnunciarMiembro(Control& miembro);
void RetirarMiembro(Control& miembro);

/// An array of controls that share a name: TxtBAF1(6). A member that is not there throws 340; making one that
/// is there already throws 360.
template <class C>
class Matriz {
public:
    Matriz(Formulario& ventana, std::string nombre) : ventana_{ventana}, nombre_{std::move(nombre)} {}

    template <class... Argumentos>
    C& crear(int indice, Argumentos&&... argumentos) {
        if (tiene(indice)) {
            SobraMiembro(nombre_, indice);
        }
        auto miembro = std::make_unique<C>(ventana_, Identidad{nombre_, indice},
                                           std::forward<Argumentos>(argumentos)...);
        C& nuevo = *miembros_.emplace(indice, std::move(miembro)).first->second;
        AnunciarMiembro(nuevo);
        return nuevo;
    }

    /// Takes a member away: it leaves the register of its window and the focus, and views hear of it. Its
    /// own handlers may not call this.
    void quitar(int indice) {
        static_assert(!std::is_base_of_v<Opcion, C>, "an option would stay in its group");
        RetirarMiembro((*this)(indice));
        miembros_.erase(indice);
    }

    /// Takes away the members from `primero` on.
    void quitarDesde(int primero) {
        while (!miembros_.empty() && miembros_.rbegin()->first >= primero) {
            quitar(miembros_.rbegin()->first); // the latest ones first: they stand last in the register
        }
    }

    C& operator()(int indice) const {
        const auto miembro = miembros_.find(indice);
        if (miembro == miembros_.end()) {
            FaltaMiembro(nombre_, indice);
        }
        return *miembro->second;
    }

    [[nodiscard]] bool tiene(int indice) const { return miembros_.contains(indice); }
    [[nodiscard]] const std::map<int, std::unique_ptr<C>>& miembros() const { return miembros_; }

private:
    Formulario& ventana_;
    std::string nombre_;
    std::map<int, std::unique_ptr<C>> miembros_;
};

} // namespace varo
