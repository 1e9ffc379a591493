#include "desktop/Vistas.h"

#include "formularios/Formulario.h"

#include <QWidget>

#include <algorithm>
#include <cassert>
#include <utility>

namespace varo {

Vista& Vistas::poner(Formulario& modelo, QWidget& ventana, std::unique_ptr<Vinculos> vinculos) {
    assert(!vistas_.contains(&modelo));
    return vistas_[&modelo] = {&ventana, std::move(vinculos), 0, QRect{}, 0, nullptr, std::nullopt};
}

Vista Vistas::sacar(Formulario& modelo) {
    const auto lugar = vistas_.find(&modelo);
    assert(lugar != vistas_.end());
    Vista vista = std::move(lugar->second);
    vistas_.erase(lugar);
    return vista;
}

Vista& Vistas::de(Formulario& modelo) {
    assert(vistas_.contains(&modelo));
    return vistas_.at(&modelo);
}

QWidget* Vistas::ventanaDe(const Formulario& modelo) const {
    const auto vista = vistas_.find(&modelo);
    return vista == vistas_.end() ? nullptr : vista->second.ventana;
}

Vinculos* Vistas::vinculosDe(const Control& control) const {
    const auto vista = vistas_.find(&control.ventana());
    return vista == vistas_.end() ? nullptr : vista->second.vinculos.get();
}

QWidget* Vistas::widgetDe(const Control& control) const {
    const Vinculos* const vinculos = vinculosDe(control);
    return vinculos == nullptr ? nullptr : vinculos->widgetDe(control);
}

Formulario* Vistas::modeloDe(const QObject* ventana) const {
    const auto vista = std::find_if(vistas_.begin(), vistas_.end(),
                                    [&](const auto& par) { return par.second.ventana == ventana; });
    return vista == vistas_.end() ? nullptr : vista->first;
}

Control* Vistas::controlDe(const QWidget* widget) const {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        for (const auto& [modelo, vista] : vistas_) {
            Control* const control = vista.vinculos->controlDe(*widget);
            if (control != nullptr) {
                const bool sinFoco =
                    control->tipo() == TipoControl::Marco || control->tipo() == TipoControl::Etiqueta;
                return sinFoco ? nullptr : control;
            }
        }
    }
    return nullptr;
}

} // namespace varo
