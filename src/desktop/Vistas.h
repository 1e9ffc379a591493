// Which real window shows which model, and which widget which control.
#pragma once

#include "desktop/Vinculos.h"
#include "desktop/widgets/RelojDeArena.h"

#include <QPoint>
#include <QRect>

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace varo {

/// The real window of one model.
struct Vista {
    QWidget* ventana; ///< the frame itself, a subwindow of it, or a dialog
    std::unique_ptr<Vinculos> vinculos;
    int observador = 0;
    QRect medidas;                       ///< what the model last asked for, in twips
    int estado = 0;                      ///< the window state that the model last asked for
    std::unique_ptr<RelojDeArena> reloj; ///< while the model has it
    std::optional<QPoint> lugar;         ///< where a free window stood when it was hidden
};

class Vistas {
public:
    /// A model has one view at most.
    Vista& poner(Formulario& modelo, QWidget& ventana, std::unique_ptr<Vinculos> vinculos);
    /// Takes out the view of a loaded model.
    [[nodiscard]] Vista sacar(Formulario& modelo);
    /// The view of a loaded model.
    [[nodiscard]] Vista& de(Formulario& modelo);
    [[nodiscard]] std::map<Formulario*, Vista, std::less<>>& todas() { return vistas_; }

    /// The real window of a model, null when it has none.
    [[nodiscard]] QWidget* ventanaDe(const Formulario& modelo) const;
    /// The widget of a control, null when it has none.
    [[nodiscard]] QWidget* widgetDe(const Control& control) const;
    /// The bindings of the window of a control, null when that has no view.
    [[nodiscard]] Vinculos* vinculosDe(const Control& control) const;
    /// The model that a window shows, null when it shows none.
    [[nodiscard]] Formulario* modeloDe(const QObject* ventana) const;
    /// The control whose widget it is, or lies around it: the field of a drop-down, the bar of a tabbed
    /// dialog. Null when there is none, and for a frame or a label, which take no focus.
    [[nodiscard]] Control* controlDe(const QWidget* widget) const;

private:
    std::map<Formulario*, Vista, std::less<>> vistas_;
};

} // namespace varo
