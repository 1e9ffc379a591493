// A window with a control of each kind, and the widgets of its controls in a real window.
#pragma once

#include "desktop/Pantalla.h"
#include "desktop/Vinculos.h"
#include "formularios/ServiciosPreparados.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>

namespace varo::prueba {

/// Counts the clicks, the changes and the openings of its controls.
class VentanaDeTodo : public Formulario {
public:
    explicit VentanaDeTodo(Ventanas& ventanas)
        : Formulario{ventanas, "VentanaDeTodo", TipoVentana::Libre, "Todo"} {
        for (const char* linea : {"cero", "uno", "dos"}) {
            una.AddItem(linea);
            varias.AddItem(linea);
            combo.AddItem(linea);
        }
        rejilla.Cols(3);
        rejilla.Rows(3);
        for (Control* const control : controles()) {
            control->Click = [this] { ++clics; };
        }
        caja.Change = [this] { ++cambios; };
        combo.Change = [this] { ++cambios; };
        colores.DropDown = [this] { ++desplegados; };
    }

    Menu mnuTodo{*this, "mnuTodo", "&Todo"};
    Menu mnuUno{*this, "mnuUno", "&Uno", &mnuTodo};
    Menu mnuSuelto{*this, "mnuSuelto", "&Suelto"};
    Etiqueta etiqueta{*this, "Etiqueta", "rótulo"};
    Boton boton{*this, "Boton", "&Pulsa"};
    CajaTexto caja{*this, "Caja", "texto"};
    Casilla casilla{*this, "Casilla", "casilla"};
    GrupoOpciones grupo;
    Opcion primera{*this, "Primera", "primera", grupo, true};
    Opcion segunda{*this, "Segunda", "segunda", grupo};
    Lista una{*this, "Una", false};
    Lista varias{*this, "Varias"};
    Desplegable combo{*this, "Combo"};
    Desplegable colores{*this, "Colores"};
    Marco marco{*this, "Marco", "marco"};
    Fichas fichas{*this, "Fichas", {"a", "b"}, 0};
    Rejilla rejilla{*this, "Rejilla"};
    CajaTexto celosa{*this, "Celosa"}; ///< has no widget; may keep the focus

    int clics = 0;
    int cambios = 0;
    int desplegados = 0;

    /// From now on the focus stays in `celosa`: no act of a person reaches another control.
    void retenerFoco() {
        celosa.SetFocus();
        celosa.LostFocus = [this] { celosa.SetFocus(); };
    }
};

class UnControlYSuWidget : public testing::Test {
protected:
    UnControlYSuWidget() {
        columna_->setMenuBar(barra);
        vinculos->crearMenus(*barra, modelo);
        for (QWidget* const widget :
             std::initializer_list<QWidget*>{etiqueta, boton, caja, casilla, primera, segunda, una, varias,
                                             combo, colores, marco, fichas, rejilla}) {
            columna_->addWidget(widget);
        }
        ventanas.atender([this] { modelo.Show(); });
        ventana.show();
        ventana.activateWindow();
        Reposar();
    }
    ~UnControlYSuWidget() override { vinculos->soltar(); }

    void clicEnLinea(QListWidget& lista, int linea, Qt::KeyboardModifiers teclas = Qt::NoModifier) {
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, teclas,
                          lista.visualItemRect(lista.item(linea)).center());
        Reposar();
    }
    QPoint celda(int fila, int lugar) const {
        return rejilla->visualRect(rejilla->model()->index(fila, lugar)).center();
    }

    ServiciosPreparados servicios;
    Ventanas ventanas{servicios};
    VentanaDeTodo& modelo = ventanas.tocarEn<VentanaDeTodo>(ventanas);
    std::unique_ptr<Vinculos> vinculos = std::make_unique<Vinculos>(ventanas);
    QWidget ventana;

private:
    QVBoxLayout* columna_ = new QVBoxLayout{&ventana};

protected:
    QMenuBar* barra = new QMenuBar;
    QLabel* etiqueta = vinculos->crearEtiqueta(modelo.etiqueta);
    QPushButton* boton = vinculos->crearBoton(modelo.boton);
    QLineEdit* caja = vinculos->crearCaja(modelo.caja);
    QCheckBox* casilla = vinculos->crearCasilla(modelo.casilla);
    QRadioButton* primera = vinculos->crearOpcion(modelo.primera);
    QRadioButton* segunda = vinculos->crearOpcion(modelo.segunda);
    QListWidget* una = vinculos->crearLista(modelo.una);
    QListWidget* varias = vinculos->crearLista(modelo.varias);
    QComboBox* combo = vinculos->crearDesplegable(modelo.combo);
    QComboBox* colores = vinculos->crearDesplegable(modelo.colores);
    QGroupBox* marco = vinculos->crearMarco(modelo.marco);
    QTabWidget* fichas = vinculos->crearFichas(modelo.fichas, {new QWidget, new QWidget});
    QTableView* rejilla = vinculos->crearRejilla(modelo.rejilla);
};

} // namespace varo::prueba
