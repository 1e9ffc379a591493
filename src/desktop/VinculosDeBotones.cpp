// The controls that a person presses: buttons, checks, options and menu entries.
#include "desktop/Texto.h"
#include "desktop/Vinculos.h"
#include "desktop/widgets/Widgets.h"

#include <QAction>
#include <QCheckBox>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <cassert>

namespace varo {

namespace {

/// The next option of the group, `paso` places on, that a person could use.
Opcion& Siguiente(Opcion& actual, int paso) {
    const GrupoOpciones& grupo = actual.grupo();
    const auto lugar = std::find(grupo.begin(), grupo.end(), &actual) - grupo.begin();
    const auto cuantas = static_cast<std::ptrdiff_t>(grupo.size());
    auto siguiente = lugar;
    do {
        siguiente = (siguiente + paso + cuantas) % cuantas;
    } while (siguiente != lugar && Usuario::impedimento(*grupo[static_cast<std::size_t>(siguiente)]));
    return *grupo[static_cast<std::size_t>(siguiente)];
}

} // namespace

void Vinculos::enlazarBoton(QAbstractButton& widget, Control& control, const std::function<void()>& mostrar) {
    enlazar(widget, control, mostrar);
    connect(&widget, &QAbstractButton::clicked, this, [this, &control] { pulsar(control); });
    // If leaving a field opens a message box, the box swallows the mouse release; pop the button up again.
    connect(&widget, &QAbstractButton::pressed, this, [this, &widget, &control] {
        const Control* const foco = suelto_ ? nullptr : ventanas_.foco();
        const bool loTieneOtro =
            foco != nullptr && foco != &control && &foco->ventana() == &control.ventana();
        if (loTieneOtro && !widget.hasFocus()) {
            widget.setDown(false);
        }
    });
}

QPushButton* Vinculos::crearBoton(Boton& control) {
    auto* const widget = new QPushButton;
    widget->setAutoDefault(false); // Qt hands no ring out: the window does
    enlazarBoton(*widget, control, [widget, &control] { widget->setText(AQt(control.Caption())); });
    return widget;
}

QCheckBox* Vinculos::crearCasilla(Casilla& control) {
    auto* const widget = new QCheckBox;
    enlazarBoton(*widget, control, [widget, &control] {
        widget->setText(AQt(control.Caption()));
        widget->setChecked(control.Value() == 1);
    });
    return widget;
}

QRadioButton* Vinculos::crearOpcion(Opcion& control) {
    auto* const widget = new BotonDeOpcion;
    enlazarBoton(*widget, control, [widget, &control] {
        widget->setText(AQt(control.Caption()));
        widget->setChecked(control.Value());
    });
    widget->alMover = [this, &control](int paso) {
        actuar(control, [&](Usuario& usuario) { usuario.clic(Siguiente(control, paso)); });
    };
    return widget;
}

void Vinculos::crearMenus(QMenuBar& barra, const Formulario& ventana) {
    std::vector<Menu*> menus;
    for (Control* const control : ventana.controles()) {
        if (auto* const menu = dynamic_cast<Menu*>(control)) {
            menus.push_back(menu);
        }
    }
    std::map<const Menu*, QWidget*> sitios{{nullptr, &barra}};
    for (Menu* const menu : menus) {
        const bool tieneEntradas =
            std::any_of(menus.begin(), menus.end(), [&](const Menu* otro) { return otro->padre() == menu; });
        crearMenu(*menu, tieneEntradas, sitios);
    }
}

/// `sitios` holds the menus in which entries may stand, the bar itself under null.
void Vinculos::crearMenu(Menu& menu, bool tieneEntradas, std::map<const Menu*, QWidget*>& sitios) {
    assert(sitios.contains(menu.padre()));
    QWidget* const sitio = sitios.at(menu.padre());
    QAction* accion = nullptr;
    if (tieneEntradas) {
        auto* const entradas = new QMenu{sitio};
        sitios[&menu] = entradas;
        accion = entradas->menuAction();
    } else {
        accion = new QAction{sitio};
        connect(accion, &QAction::triggered, this, [this, &menu] { pulsar(menu); });
    }
    accion->setObjectName(AQt(menu.nombreCompleto()));
    seguir(menu, [accion, &menu] {
        accion->setText(AQt(menu.Caption()));
        accion->setEnabled(menu.Enabled());
        accion->setVisible(menu.Visible());
    });
    sitio->addAction(accion);
}

} // namespace varo
