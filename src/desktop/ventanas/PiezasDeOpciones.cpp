#include "desktop/ventanas/PiezasDeOpciones.h"

#include "desktop/formulas/Formulas.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>

#include <cassert>
#include <utility>

namespace varo {

namespace {

constexpr int espacio = 6; ///< between the parts of one piece, in pixels

/// Supr presses the button; the focus stays in the list.
void PonerTeclaDeQuitar(QListWidget& lista, QPushButton& boton) {
    auto* const tecla =
        new QShortcut{QKeySequence{Qt::Key_Delete}, &lista, nullptr, nullptr, Qt::WidgetShortcut};
    QObject::connect(tecla, &QShortcut::activated, &lista, [&lista, &boton] {
        if (!lista.selectedItems().isEmpty()) {
            boton.click();
            lista.setFocus();
        }
    });
}

} // namespace

PiezasDeOpciones::Pagina PiezasDeOpciones::crearPagina(Marco& marco, Pie pie) const {
    auto* const pagina = new QWidget;
    auto* const columna = new QVBoxLayout{pagina};
    QGroupBox* const grupo = vinculos_.crearMarco(marco);
    columna->addWidget(grupo);
    if (pie == Pie::BajoElContenido) {
        columna->addStretch(1);
    }
    auto* const contenido = new QVBoxLayout{grupo};
    contenido->setSpacing(separacion);
    return {pagina, contenido};
}

QLayout* PiezasDeOpciones::crearFila(QWidget* primera, int hueco, QWidget* segunda) {
    auto* const fila = new QHBoxLayout;
    fila->addWidget(primera);
    fila->addSpacing(hueco);
    fila->addWidget(segunda);
    fila->addStretch(1);
    return fila;
}

void PiezasDeOpciones::reservarSitio(QWidget& widget) {
    QSizePolicy politica = widget.sizePolicy();
    politica.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(politica);
}

QLineEdit* PiezasDeOpciones::crearCampo(CajaTexto& control) const {
    auto* const campo = vinculos_.crearCaja(control);
    campo->setAlignment(Qt::AlignRight);
    campo->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    campo->setFixedWidth(campo->fontMetrics().horizontalAdvance(QStringLiteral("00000,0000")));
    return campo;
}

QWidget* PiezasDeOpciones::crearFormula(Imagen& imagen, Parte formula) const {
    auto* const cuadro = new CuadroDeFormula{std::move(formula)};
    vinculos_.seguirEstado(*cuadro, imagen);
    return conSitioFijo(cuadro);
}

QGroupBox* PiezasDeOpciones::crearIntervalo(Marco& marco, const std::array<Etiqueta*, 3>& rotulos,
                                            const std::vector<int>& miembros) const {
    const std::array<const Matriz<CajaTexto>*, 3> campos{&ventana_.TxtBAF1, &ventana_.TxtBAF2,
                                                         &ventana_.TxtBAF3};
    assert(!miembros.empty());
    auto* const grupo = vinculos_.crearMarco(marco);
    auto* const rejilla = new QGridLayout{grupo};
    int columna = 0;
    for (std::size_t i = 0; i < campos.size(); ++i) {
        QLabel* const rotulo = vinculos_.crearEtiqueta(*rotulos[i]);
        rejilla->addWidget(rotulo, 0, columna++);
        for (const int miembro : miembros) {
            QLineEdit* const caja = conSitioFijo(crearCampo((*campos[i])(miembro)));
            rejilla->addWidget(caja, 0, columna);
            if (miembro == miembros.front()) {
                rotulo->setBuddy(caja);
            }
            caja->lower();
        }
        ++columna;
    }
    rejilla->setColumnStretch(columna, 1);
    rejilla->setRowStretch(1, 1);
    return grupo;
}

QLayout* PiezasDeOpciones::crearParametros(const std::vector<Renglon>& renglones) const {
    auto* const rejilla = new QGridLayout;
    rejilla->setSpacing(espacio);
    int fila = 0;
    int columna = 0;
    for (const Renglon& renglon : renglones) {
        columna = 0;
        for (const auto& [rotulo, control] : renglon) {
            QLabel* const etiqueta = vinculos_.crearEtiqueta(rotulo);
            QLineEdit* const caja = crearCampo(control);
            etiqueta->setBuddy(caja);
            etiqueta->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            rejilla->addWidget(etiqueta, fila, columna++);
            rejilla->addWidget(caja, fila, columna++);
        }
        ++fila;
    }
    rejilla->setColumnStretch(columna, 1);
    return rejilla;
}

QLayout* PiezasDeOpciones::crearLista(Lista& lista, const BotonesDeLista& botones) const {
    auto* const fila = new QHBoxLayout;
    QListWidget* const lineas = vinculos_.crearLista(lista);
    lineas->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    fila->addWidget(conSitioFijo(lineas), 1);
    auto* const columna = new QVBoxLayout;
    columna->setSpacing(espacio);
    for (Boton* const boton : {&botones.anadir, &botones.quitar, &botones.vaciar}) {
        QPushButton* const pulsador = conSitioFijo(vinculos_.crearBoton(*boton));
        columna->addWidget(pulsador);
        if (boton == &botones.quitar) {
            PonerTeclaDeQuitar(*lineas, *pulsador);
        }
    }
    columna->addStretch();
    fila->addLayout(columna);
    return fila;
}

} // namespace varo
