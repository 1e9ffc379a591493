#include "desktop/Vinculos.h"

#include "desktop/Texto.h"
#include "desktop/widgets/VistaDeRejilla.h"
#include "desktop/widgets/Widgets.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTableView>

#include <algorithm>

namespace varo {

namespace {

void MostrarEstado(QWidget& widget, const Control& control) {
    widget.setEnabled(control.Enabled());
    // Shown before it lies in a window it would be a window of its own.
    if (widget.parentWidget() != nullptr || !control.Visible()) {
        widget.setVisible(control.Visible());
    }
}

QStringList Lineas(const ConLineas& control) {
    QStringList lineas;
    for (int i = 0; i < control.ListCount(); ++i) {
        lineas << AQt(control.List(i));
    }
    return lineas;
}

QStringList LineasDe(const QComboBox& widget) {
    QStringList lineas;
    for (int i = 0; i < widget.count(); ++i) {
        lineas << widget.itemText(i);
    }
    return lineas;
}

void MostrarLista(QListWidget& widget, const Lista& control) {
    const QSignalBlocker sinSenales{widget};
    const QStringList lineas = Lineas(control);
    while (widget.count() > lineas.size()) {
        delete widget.takeItem(widget.count() - 1);
    }
    for (int i = 0; i < control.ListCount(); ++i) {
        if (i == widget.count()) {
            widget.addItem(lineas[i]);
        }
        widget.item(i)->setText(lineas[i]);
        widget.item(i)->setSelected(control.Selected(i));
    }
}

std::vector<bool> Seleccion(const QListWidget& widget) {
    std::vector<bool> seleccion;
    seleccion.reserve(static_cast<std::size_t>(widget.count()));
    for (int i = 0; i < widget.count(); ++i) {
        seleccion.push_back(widget.item(i)->isSelected());
    }
    return seleccion;
}

/// What a person has selected in the widget goes to the list; where one line is selected at a time, also the
/// one that is selected already.
void Elegir(Usuario& usuario, const QListWidget& widget, Lista& control) {
    const std::vector<bool> seleccion = Seleccion(widget);
    for (int i = 0; i < control.ListCount() && i < static_cast<int>(seleccion.size()); ++i) {
        const bool elegida = seleccion[static_cast<std::size_t>(i)];
        if (control.variasALaVez() ? control.Selected(i) != elegida : elegida) {
            usuario.elegir(control, i, elegida);
        }
    }
}

/// The option of the group, `paso` places on, that a person could use.
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
    for (const auto& [control, widget] : widgets_) {
        if (auto* const tabla = qobject_cast<QTableView*>(widget)) {
            tabla->setModel(nullptr); // it would read the cells of a grid that is gone
        }
    }
    widgets_.clear();
    controles_.clear();
}

void Vinculos::seguir(Observable& observado, const std::function<void()>& mostrar) {
    mostrar();
    observados_.emplace_back(&observado, observado.observar(mostrar));
}

void Vinculos::enlazar(QWidget& widget, Control& control, const std::function<void()>& mostrar) {
    widget.setObjectName(AQt(control.nombreCompleto()));
    widgets_[&control] = &widget;
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
    const auto encontrado = widgets_.find(&control);
    return encontrado == widgets_.end() ? nullptr : encontrado->second;
}

Control* Vinculos::controlDe(const QWidget& widget) const {
    const auto encontrado = controles_.find(&widget);
    return encontrado == controles_.end() ? nullptr : encontrado->second;
}

void Vinculos::actuar(const std::function<void(Usuario&)>& acto, const std::function<void()>& mostrar) {
    if (suelto_) {
        return;
    }
    try {
        acto(usuario_);
    } catch (const ActoImposible& imposible) {
        qWarning("%s", imposible.what());
    }
    if (!suelto_) {
        mostrar();
    }
}

/// A press that does not get past the field that was left, since a box told of it and took the release, does
/// not leave the button pressed.
void Vinculos::noHundir(QAbstractButton& widget, const Control& control) {
    connect(&widget, &QAbstractButton::pressed, this, [this, &widget, &control] {
        const Control* const foco = suelto_ ? nullptr : ventanas_.foco();
        if (foco != nullptr && foco != &control && &foco->ventana() == &control.ventana()) {
            widget.setDown(false);
        }
    });
}

QLabel* Vinculos::etiqueta(Etiqueta& control) {
    auto* const widget = new QLabel;
    widget->setTextFormat(Qt::PlainText); // a tree code of the sheet stays as it is written
    enlazar(*widget, control, [widget, &control] { widget->setText(AQt(control.Caption())); });
    return widget;
}

QPushButton* Vinculos::boton(Boton& control) {
    auto* const widget = new QPushButton;
    enlazar(*widget, control, [widget, &control] { widget->setText(AQt(control.Caption())); });
    connect(widget, &QPushButton::clicked, this,
            [this, &control] { actuar([&](Usuario& usuario) { usuario.clic(control); }); });
    noHundir(*widget, control);
    return widget;
}

QLineEdit* Vinculos::caja(CajaTexto& control) {
    auto* const widget = new QLineEdit;
    const auto mostrar = [widget, &control] {
        const QString texto = AQt(control.Text());
        if (widget->text() != texto) {
            const QSignalBlocker sinSenales{widget};
            widget->setText(texto);
        }
    };
    enlazar(*widget, control, mostrar);
    connect(widget, &QLineEdit::textEdited, this, [this, &control, mostrar](const QString& texto) {
        actuar([&](Usuario& usuario) { usuario.escribir(control, DeQt(texto)); }, mostrar);
    });
    return widget;
}

QCheckBox* Vinculos::casilla(Casilla& control) {
    auto* const widget = new QCheckBox;
    const auto mostrar = [widget, &control] {
        widget->setText(AQt(control.Caption()));
        widget->setChecked(control.Value() == 1);
    };
    enlazar(*widget, control, mostrar);
    connect(widget, &QCheckBox::clicked, this,
            [this, &control, mostrar] { actuar([&](Usuario& usuario) { usuario.clic(control); }, mostrar); });
    noHundir(*widget, control);
    return widget;
}

QRadioButton* Vinculos::opcion(Opcion& control) {
    auto* const widget = new BotonDeOpcion;
    const auto mostrar = [widget, &control] {
        widget->setText(AQt(control.Caption()));
        widget->setChecked(control.Value());
    };
    enlazar(*widget, control, mostrar);
    connect(widget, &QRadioButton::clicked, this,
            [this, &control, mostrar] { actuar([&](Usuario& usuario) { usuario.clic(control); }, mostrar); });
    widget->alMover = [this, &control, mostrar](int paso) {
        actuar([&](Usuario& usuario) { usuario.clic(Siguiente(control, paso)); }, mostrar);
    };
    noHundir(*widget, control);
    return widget;
}

QListWidget* Vinculos::lista(Lista& control) {
    auto* const widget = new ListaDeLineas;
    widget->setSelectionMode(control.variasALaVez() ? QAbstractItemView::ExtendedSelection
                                                    : QAbstractItemView::SingleSelection);
    const auto mostrar = [widget, &control] { MostrarLista(*widget, control); };
    enlazar(*widget, control, mostrar);
    widget->alElegir = [this, widget, &control, mostrar] {
        actuar([&](Usuario& usuario) { Elegir(usuario, *widget, control); }, mostrar);
    };
    if (control.DblClick) {
        widget->alActivar = [this, &control, mostrar] {
            actuar([&](Usuario& usuario) { usuario.dobleClic(control); }, mostrar);
        };
    }
    return widget;
}

namespace {

QColor ColorLegible(const QColor& fondo) {
    constexpr int medio = 128;
    return qGray(fondo.rgb()) < medio ? Qt::white : Qt::black;
}

/// The field in the colour that was chosen.
void MostrarColor(QComboBox& widget, const Desplegable& control) {
    QPalette colores;
    if (control.BackColor() != Desplegable::blanco) {
        colores.setColor(QPalette::Base, ColorQt(control.BackColor));
        colores.setColor(QPalette::Text, ColorLegible(ColorQt(control.BackColor)));
    }
    widget.setPalette(colores);
}

} // namespace

QComboBox* Vinculos::desplegable(Desplegable& control) {
    auto* const widget = new Combo;
    widget->setEditable(control.editable());
    widget->setInsertPolicy(QComboBox::NoInsert);
    widget->setCompleter(nullptr); // a name that is typed stays as it is typed
    const auto mostrar = [widget, &control] {
        const QSignalBlocker sinSenales{widget};
        const QStringList lineas = Lineas(control);
        if (LineasDe(*widget) != lineas) {
            widget->clear();
            widget->addItems(lineas);
        }
        const QString texto = AQt(control.Text());
        if (widget->currentText() != texto) {
            widget->setCurrentIndex(widget->findText(texto, Qt::MatchExactly | Qt::MatchCaseSensitive));
            widget->setEditText(texto);
        }
        MostrarColor(*widget, control);
    };
    enlazar(*widget, control, mostrar);
    if (control.DropDown) {
        widget->alDesplegar = [this, &control, mostrar] {
            actuar([&](Usuario& usuario) { usuario.desplegar(control); }, mostrar);
        };
    }
    if (control.editable()) {
        connect(widget->lineEdit(), &QLineEdit::textEdited, this,
                [this, &control, mostrar](const QString& texto) {
                    actuar([&](Usuario& usuario) { usuario.escribir(control, DeQt(texto)); }, mostrar);
                });
    }
    connect(widget, &QComboBox::activated, this, [this, &control, mostrar](int linea) {
        actuar(
            [&](Usuario& usuario) {
                // A field that is left with the text of a line tells it too, and nobody has chosen it.
                if (control.Text() != control.List(linea)) {
                    usuario.elegir(control, linea);
                }
            },
            mostrar);
    });
    return widget;
}

QGroupBox* Vinculos::marco(Marco& control) {
    auto* const widget = new QGroupBox;
    enlazar(*widget, control, [widget, &control] { widget->setTitle(AQt(control.Caption())); });
    return widget;
}

QTabWidget* Vinculos::fichas(Fichas& control, const std::vector<QWidget*>& paginas) {
    auto* const widget = new FichasPedidas;
    for (int i = 0; i < control.Tabs(); ++i) {
        widget->addTab(paginas[static_cast<std::size_t>(i)], AQt(control.TabCaption(i)));
    }
    const auto mostrar = [widget, &control] { widget->setCurrentIndex(control.Tab()); };
    enlazar(*widget, control, mostrar);
    widget->alPedir = [this, &control, mostrar](int ficha) {
        actuar([&](Usuario& usuario) { usuario.mostrarFicha(control, ficha); }, mostrar);
    };
    return widget;
}

QTableView* Vinculos::rejilla(Rejilla& control) {
    auto* const widget = new VistaDeRejilla{control};
    enlazar(*widget, control, [widget] { widget->mostrar(); });
    widget->alElegirColumna = [this, widget, &control](int columna) {
        actuar([&](Usuario& usuario) { usuario.seleccionarColumna(control, columna); },
               [widget] { widget->mostrar(); });
    };
    return widget;
}

void Vinculos::menus(QMenuBar& barra, const Formulario& ventana) {
    std::map<const Control*, QMenu*> padres;
    const auto& controles = ventana.controles();
    for (Control* const control : controles) {
        if (control->tipo() != TipoControl::Menu) {
            continue;
        }
        auto& menu = static_cast<Menu&>(*control);
        const bool tieneHijos = std::any_of(controles.begin(), controles.end(), [&](const Control* otro) {
            return otro->tipo() == TipoControl::Menu && static_cast<const Menu*>(otro)->padre() == &menu;
        });
        QAction* accion = nullptr;
        if (tieneHijos) {
            padres[&menu] = barra.addMenu(AQt(menu.Caption()));
            accion = padres[&menu]->menuAction();
        } else {
            accion = menu.padre() == nullptr ? barra.addAction(AQt(menu.Caption()))
                                             : padres.at(menu.padre())->addAction(AQt(menu.Caption()));
            connect(accion, &QAction::triggered, this,
                    [this, &menu] { actuar([&](Usuario& usuario) { usuario.clic(menu); }); });
        }
        accion->setObjectName(AQt(menu.nombreCompleto()));
        const auto mostrar = [accion, &menu] {
            accion->setText(AQt(menu.Caption()));
            accion->setEnabled(menu.Enabled());
            accion->setVisible(menu.Visible());
        };
        seguir(menu, mostrar);
    }
}

} // namespace varo
