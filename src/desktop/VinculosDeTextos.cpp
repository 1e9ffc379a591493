// The controls whose texts a person writes or chooses: text boxes, lists and drop-downs.
#include "desktop/Texto.h"
#include "desktop/Vinculos.h"
#include "desktop/widgets/Widgets.h"
#include "pintura/Colores.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>

namespace varo {

namespace {

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

/// Hands the selection of the widget on to the list. In a list of one line at a time, a click on the selected
/// line counts too.
void Elegir(Usuario& usuario, const QListWidget& widget, Lista& control) {
    const std::vector<bool> seleccion = Seleccion(widget);
    for (int i = 0; i < control.ListCount() && i < static_cast<int>(seleccion.size()); ++i) {
        const bool elegida = seleccion[static_cast<std::size_t>(i)];
        if (control.variasALaVez() ? control.Selected(i) != elegida : elegida) {
            usuario.elegir(control, i, elegida);
        }
    }
}

QColor ColorLegible(const QColor& fondo) {
    constexpr int medio = 128;
    return qGray(fondo.rgb()) < medio ? Qt::white : Qt::black;
}

/// Paints the field in the colour of the control.
void MostrarColor(QComboBox& widget, const Desplegable& control) {
    QPalette colores;
    if (control.BackColor() != Desplegable::blanco) {
        colores.setColor(QPalette::Base, ColorQt(control.BackColor));
        colores.setColor(QPalette::Text, ColorLegible(ColorQt(control.BackColor)));
    }
    widget.setPalette(colores);
}

void MostrarDesplegable(QComboBox& widget, const Desplegable& control) {
    const QSignalBlocker sinSenales{widget};
    const QStringList lineas = Lineas(control);
    if (LineasDe(widget) != lineas) {
        widget.clear();
        widget.addItems(lineas);
    }
    const QString texto = AQt(control.Text());
    if (widget.currentText() != texto) {
        widget.setCurrentIndex(widget.findText(texto, Qt::MatchExactly | Qt::MatchCaseSensitive));
        widget.setEditText(texto);
    }
    MostrarColor(widget, control);
}

} // namespace

QLineEdit* Vinculos::crearCaja(CajaTexto& control) {
    auto* const widget = new QLineEdit;
    enlazarCaja(*widget, control);
    return widget;
}

void Vinculos::enlazarCaja(QLineEdit& widget, CajaTexto& control) {
    enlazar(widget, control, [&widget, &control] {
        const QString texto = AQt(control.Text());
        if (widget.text() != texto) {
            const QSignalBlocker sinSenales{&widget};
            widget.setText(texto);
        }
    });
    connect(&widget, &QLineEdit::textEdited, this, [this, &control](const QString& texto) {
        actuar(control, [&](Usuario& usuario) { usuario.escribir(control, DeQt(texto)); });
    });
}

QListWidget* Vinculos::crearLista(Lista& control) {
    auto* const widget = new ListaDeLineas;
    widget->setSelectionMode(control.variasALaVez() ? QAbstractItemView::ExtendedSelection
                                                    : QAbstractItemView::SingleSelection);
    enlazar(*widget, control, [widget, &control] { MostrarLista(*widget, control); });
    widget->alElegir = [this, widget, &control] {
        actuar(control, [&](Usuario& usuario) { Elegir(usuario, *widget, control); });
    };
    return widget;
}

QComboBox* Vinculos::crearDesplegable(Desplegable& control) {
    auto* const widget = new Combo;
    widget->setEditable(control.editable());
    widget->setInsertPolicy(QComboBox::NoInsert);
    widget->setCompleter(nullptr); // a typed name stays as typed
    enlazar(*widget, control, [widget, &control] { MostrarDesplegable(*widget, control); });
    if (control.DropDown) {
        widget->alDesplegar = [this, &control] {
            actuar(control, [&](Usuario& usuario) { usuario.desplegar(control); });
        };
    }
    if (control.editable()) {
        connect(widget->lineEdit(), &QLineEdit::textEdited, this, [this, &control](const QString& texto) {
            actuar(control, [&](Usuario& usuario) { usuario.escribir(control, DeQt(texto)); });
        });
    }
    connect(widget, &QComboBox::activated, this, [this, &control](int linea) {
        actuar(control, [&](Usuario& usuario) {
            // Qt reports a line too when a person leaves the field after typing its text: no choice was made.
            if (control.Text() != control.List(linea)) {
                usuario.elegir(control, linea);
            }
        });
    });
    return widget;
}

} // namespace varo
