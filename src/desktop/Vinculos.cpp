#include "desktop/Vinculos.h"

#include "desktop/Intentar.h"
#include "desktop/Texto.h"
#include "desktop/widgets/GrupoEnmarcado.h"
#include "desktop/widgets/VistaDeRejilla.h"
#include "desktop/widgets/Widgets.h"

#include <QGroupBox>
#include <QLabel>
#include <QTabWidget>
#include <QTableView>

#include <cassert>

namespace varo {

namespace {

void MostrarEstado(QWidget& widget, const Control& control) {
    widget.setEnabled(control.Enabled());
    // A widget without a parent would show as a window.
    if (widget.parentWidget() != nullptr || !control.Visible()) {
        widget.setVisible(control.Visible());
    }
}

} // namespace

Vinculos::Vinculos(Ventanas& ventanas) : ventanas_{ventanas}, usuario_{ventanas} {}

Vinculos::~Vinculos() {
    soltar();
}

void Vinculos::soltar() {
    suelto_ = true;
    for (const auto& [observado, numero] : observados_) {
        observado->dejarDeObservar(numero);
    }
    observados_.clear();
    for (const auto& [widget, aviso] : std::exchange(alSoltar_, {})) {
        if (widget != nullptr) {
            aviso();
        }
    }
    vinculos_.clear();
    controles_.clear();
}

void Vinculos::soltar(const Control& control) {
    std::erase_if(observados_, [&](const auto& observado) {
        if (observado.first != &control) {
            return false;
        }
        observado.first->dejarDeObservar(observado.second);
        return true;
    });
    const auto vinculo = vinculos_.find(&control);
    if (vinculo == vinculos_.end()) {
        return;
    }
    QWidget* const widget = vinculo->second.widget;
    controles_.erase(widget);
    vinculos_.erase(vinculo);
    widget->disconnect(this);
    widget->hide();
    widget->deleteLater(); // a signal of it may still be on its way
}

void Vinculos::alSoltar(QWidget& widget, std::function<void()> aviso) {
    alSoltar_.emplace_back(&widget, std::move(aviso));
}

void Vinculos::seguir(Observable& observado, const std::function<void()>& mostrar) {
    assert(!suelto_);
    mostrar();
    observados_.emplace_back(&observado, observado.observar(mostrar));
}

void Vinculos::enlazar(QWidget& widget, Control& control, const std::function<void()>& mostrar) {
    assert(!vinculos_.contains(&control));
    widget.setObjectName(AQt(control.nombreCompleto()));
    vinculos_[&control] = {&widget, mostrar};
    controles_[&widget] = &control;
    seguir(control, [&widget, &control, mostrar] {
        mostrar();
        MostrarEstado(widget, control);
    });
}

void Vinculos::seguirEstado(QWidget& widget, Control& control) {
    enlazar(widget, control, [] {});
}

QWidget* Vinculos::widgetDe(const Control& control) const {
    const auto vinculo = vinculos_.find(&control);
    return vinculo == vinculos_.end() ? nullptr : vinculo->second.widget;
}

Control* Vinculos::controlDe(const QWidget& widget) const {
    const auto control = controles_.find(&widget);
    return control == controles_.end() ? nullptr : control->second;
}

void Vinculos::actuar(const Control& control, const std::function<void(Usuario&)>& acto) {
    if (suelto_) {
        return;
    }
    Intentar([&] { acto(usuario_); });
    const auto vinculo = vinculos_.find(&control);
    if (vinculo != vinculos_.end()) { // the act may have unloaded the window; a menu shows itself
        const auto mostrar = vinculo->second.mostrar;
        mostrar();
    }
}

void Vinculos::pulsar(Control& control) {
    actuar(control, [&](Usuario& usuario) { usuario.clic(control); });
}

QLabel* Vinculos::crearEtiqueta(Etiqueta& control) {
    auto* const widget = new QLabel;
    widget->setTextFormat(Qt::PlainText); // a tree code of the sheet may look like markup
    enlazar(*widget, control, [widget, &control] { widget->setText(AQt(control.Caption())); });
    return widget;
}

QGroupBox* Vinculos::crearMarco(Marco& control) {
    auto* const widget = new GrupoEnmarcado;
    enlazar(*widget, control, [widget, &control] { widget->setTitle(AQt(control.Caption())); });
    return widget;
}

QTableView* Vinculos::crearRejilla(Rejilla& control) {
    auto* const widget = new VistaDeRejilla{control};
    enlazar(*widget, control, [widget] { widget->mostrar(); });
    alSoltar(*widget, [widget] { widget->setModel(nullptr); }); // it reads the cells of the grid
    widget->alElegirColumna = [this, &control](int columna) {
        actuar(control, [&](Usuario& usuario) { usuario.seleccionarColumna(control, columna); });
    };
    return widget;
}

QTabWidget* Vinculos::crearFichas(Fichas& control, const std::vector<QWidget*>& paginas) {
    assert(static_cast<int>(paginas.size()) == control.Tabs());
    auto* const widget = new FichasPedidas;
    int ficha = 0;
    for (QWidget* const pagina : paginas) {
        widget->addTab(pagina, AQt(control.TabCaption(ficha++)));
    }
    enlazar(*widget, control, [widget, &control] { widget->setCurrentIndex(control.Tab()); });
    widget->alPedir = [this, &control](int pedida) {
        actuar(control, [&](Usuario& usuario) { usuario.mostrarFicha(control, pedida); });
    };
    return widget;
}

} // namespace varo
