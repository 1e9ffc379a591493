// Each kind of control with its widget, both ways: what the model does shows at once, and what a person does
// reaches the model once.
#include "desktop/Vinculos.h"
#include "desktop/Pantalla.h"
#include "formularios/ServiciosPreparados.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

namespace varo::prueba {

namespace {

/// A window with a control of each kind.
class VentanaDeTodo : public Formulario {
public:
    explicit VentanaDeTodo(Ventanas& ventanas)
        : Formulario{ventanas, "VentanaDeTodo", TipoVentana::Libre, "Todo"} {
        for (const char* linea : {"cero", "uno", "dos"}) {
            Una.AddItem(linea);
            Varias.AddItem(linea);
            Combo.AddItem(linea);
        }
        rejilla.Cols(3);
        rejilla.Rows(3);
        for (Control* const control : controles()) {
            control->Click = [this] { ++clics; };
        }
        mnuUno.Click = [this] { ++clics; };
        Caja.Change = [this] { ++cambios; };
        Combo.Change = [this] { ++cambios; };
        Colores.DropDown = [this] { ++desplegados; };
    }

    Menu mnuTodo{*this, "mnuTodo", "&Todo"};
    Menu mnuUno{*this, "mnuUno", "&Uno", &mnuTodo};
    Menu mnuSuelto{*this, "mnuSuelto", "&Suelto"};
    Etiqueta etiqueta{*this, "Etiqueta", "rótulo"};
    Boton boton{*this, "Boton", "&Pulsa"};
    CajaTexto Caja{*this, "Caja", "texto"};
    Casilla casilla{*this, "Casilla", "casilla"};
    GrupoOpciones grupo;
    Opcion Primera{*this, "Primera", "primera", grupo, true};
    Opcion Segunda{*this, "Segunda", "segunda", grupo};
    Lista Una{*this, "Una", false};
    Lista Varias{*this, "Varias"};
    Desplegable Combo{*this, "Combo"};
    Desplegable Colores{*this, "Colores"};
    Marco marco{*this, "Marco", "marco"};
    Fichas fichas{*this, "Fichas", {"a", "b"}, 0};
    Rejilla rejilla{*this, "Rejilla"};
    CajaTexto Celosa{*this, "Celosa"}; ///< a field that may refuse to be left

    int clics = 0;
    int cambios = 0;
    int desplegados = 0;

    /// From now on the focus does not leave Celosa: no act of a person reaches another control.
    void retenerFoco() {
        Celosa.SetFocus();
        Celosa.LostFocus = [this] { Celosa.SetFocus(); };
    }
};

class UnControlYSuWidget : public testing::Test {
protected:
    UnControlYSuWidget() {
        columna_->setMenuBar(barra);
        vinculos->menus(*barra, modelo);
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
    static std::vector<bool> seleccion(const Lista& lista) {
        return {lista.Selected(0), lista.Selected(1), lista.Selected(2)};
    }
    static std::vector<bool> seleccion(const QListWidget& lista) {
        return {lista.item(0)->isSelected(), lista.item(1)->isSelected(), lista.item(2)->isSelected()};
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
    QLabel* etiqueta = vinculos->etiqueta(modelo.etiqueta);
    QPushButton* boton = vinculos->boton(modelo.boton);
    QLineEdit* caja = vinculos->caja(modelo.Caja);
    QCheckBox* casilla = vinculos->casilla(modelo.casilla);
    QRadioButton* primera = vinculos->opcion(modelo.Primera);
    QRadioButton* segunda = vinculos->opcion(modelo.Segunda);
    QListWidget* una = vinculos->lista(modelo.Una);
    QListWidget* varias = vinculos->lista(modelo.Varias);
    QComboBox* combo = vinculos->desplegable(modelo.Combo);
    QComboBox* colores = vinculos->desplegable(modelo.Colores);
    QGroupBox* marco = vinculos->marco(modelo.marco);
    QTabWidget* fichas = vinculos->fichas(modelo.fichas, {new QWidget, new QWidget});
    QTableView* rejilla = vinculos->rejilla(modelo.rejilla);
};

using Seleccion = std::vector<bool>;

} // namespace

TEST_F(UnControlYSuWidget, CadaWidgetLlevaElNombreYSigueElEstadoDeSuControl) {
    int vistos = 0;
    for (Control* const control : modelo.controles()) {
        QWidget* const widget = vinculos->widgetDe(*control);
        if (widget == nullptr) {
            continue;
        }
        SCOPED_TRACE(control->nombreCompleto());
        ++vistos;
        EXPECT_EQ(widget->objectName().toStdString(), control->nombreCompleto());
        EXPECT_EQ(vinculos->controlDe(*widget), control);
        EXPECT_TRUE(widget->isVisible());
        EXPECT_TRUE(widget->isEnabled());
        control->Enabled = false;
        EXPECT_FALSE(widget->isEnabled());
        control->Visible = false;
        EXPECT_FALSE(widget->isVisible());
        control->Enabled = true;
        control->Visible = true;
        EXPECT_TRUE(widget->isEnabled());
        EXPECT_TRUE(widget->isVisible());
    }
    EXPECT_EQ(vistos, 13);
}

TEST_F(UnControlYSuWidget, UnControlSinWidgetNoTieneNinguno) {
    EXPECT_EQ(vinculos->widgetDe(modelo.Celosa), nullptr);
    EXPECT_EQ(vinculos->controlDe(ventana), nullptr);
}

TEST_F(UnControlYSuWidget, LosRotulosMuestranSuLeyendaYLaQueSeLesDe) {
    EXPECT_EQ(etiqueta->text().toStdString(), "rótulo");
    EXPECT_EQ(boton->text(), "&Pulsa");
    EXPECT_EQ(casilla->text(), "casilla");
    EXPECT_EQ(primera->text(), "primera");
    EXPECT_EQ(marco->title(), "marco");
    for (Control* const control : std::initializer_list<Control*>{
             &modelo.etiqueta, &modelo.boton, &modelo.casilla, &modelo.Primera, &modelo.marco}) {
        control->Caption = "otra ñ";
    }
    EXPECT_EQ(etiqueta->text().toStdString(), "otra ñ");
    EXPECT_EQ(boton->text().toStdString(), "otra ñ");
    EXPECT_EQ(casilla->text().toStdString(), "otra ñ");
    EXPECT_EQ(primera->text().toStdString(), "otra ñ");
    EXPECT_EQ(marco->title().toStdString(), "otra ñ");
}

TEST_F(UnControlYSuWidget, UnRotuloSeVeComoEstaEscrito) {
    modelo.etiqueta.Caption = "<b>x</b>";
    EXPECT_EQ(etiqueta->text(), "<b>x</b>");
    EXPECT_GE(etiqueta->sizeHint().width(), etiqueta->fontMetrics().horizontalAdvance("<b>x</b>"));
}

// --- Buttons, checks and options ---

TEST_F(UnControlYSuWidget, UnBotonPulsadoLlegaUnaVez) {
    Clic(*boton);
    EXPECT_EQ(modelo.clics, 1);
    EXPECT_EQ(ventanas.foco(), &modelo.boton);
}

TEST_F(UnControlYSuWidget, UnBotonSePulsaTambienConElTeclado) {
    boton->setFocus();
    QTest::keyClick(boton, Qt::Key_Space);
    EXPECT_EQ(modelo.clics, 1);
}

TEST_F(UnControlYSuWidget, UnBotonInhabilitadoNoSePulsa) {
    modelo.boton.Enabled = false;
    Clic(*boton);
    EXPECT_EQ(modelo.clics, 0);
}

TEST_F(UnControlYSuWidget, UnBotonCuyoActoSeRechazaNoLlega) {
    modelo.retenerFoco();
    Clic(*boton);
    EXPECT_EQ(modelo.clics, 0);
    EXPECT_EQ(ventanas.foco(), &modelo.Celosa);
}

TEST_F(UnControlYSuWidget, UnaCasillaPulsadaCambiaUnaVez) {
    Clic(*casilla);
    EXPECT_EQ(modelo.casilla.Value(), 1);
    EXPECT_TRUE(casilla->isChecked());
    EXPECT_EQ(modelo.clics, 1);
    Clic(*casilla);
    EXPECT_EQ(modelo.casilla.Value(), 0);
    EXPECT_FALSE(casilla->isChecked());
    EXPECT_EQ(modelo.clics, 2);
}

TEST_F(UnControlYSuWidget, UnaCasillaMarcadaPorElProgramaSeVeYAvisaUnaVez) {
    modelo.casilla.Value = 1;
    EXPECT_TRUE(casilla->isChecked());
    EXPECT_EQ(modelo.clics, 1);
}

TEST_F(UnControlYSuWidget, UnaCasillaQueSuPropioClicDesmarcaQuedaDesmarcada) {
    modelo.casilla.Click = [this] { modelo.casilla.Value = 0; };
    Clic(*casilla);
    EXPECT_EQ(modelo.casilla.Value(), 0);
    EXPECT_FALSE(casilla->isChecked());
}

TEST_F(UnControlYSuWidget, UnaCasillaCuyoActoSeRechazaSigueComoElModelo) {
    modelo.retenerFoco();
    Clic(*casilla);
    EXPECT_EQ(modelo.casilla.Value(), 0);
    EXPECT_FALSE(casilla->isChecked());
    EXPECT_EQ(modelo.clics, 0);
}

TEST_F(UnControlYSuWidget, DeUnGrupoSoloHayUnaOpcionEncendida) {
    EXPECT_TRUE(primera->isChecked());
    Clic(*segunda);
    EXPECT_TRUE(modelo.Segunda.Value());
    EXPECT_TRUE(segunda->isChecked());
    EXPECT_FALSE(modelo.Primera.Value());
    EXPECT_FALSE(primera->isChecked());
    EXPECT_EQ(modelo.clics, 1);
}

TEST_F(UnControlYSuWidget, UnaOpcionEncendidaSigueEncendidaAlPulsarla) {
    Clic(*primera);
    EXPECT_TRUE(modelo.Primera.Value());
    EXPECT_TRUE(primera->isChecked());
    EXPECT_EQ(modelo.clics, 0);
}

TEST_F(UnControlYSuWidget, UnaOpcionEncendidaPorElProgramaSeVe) {
    modelo.Segunda.Value = true;
    EXPECT_TRUE(segunda->isChecked());
    EXPECT_FALSE(primera->isChecked());
}

TEST_F(UnControlYSuWidget, UnaOpcionCuyoActoSeRechazaSigueApagada) {
    modelo.retenerFoco();
    Clic(*segunda);
    EXPECT_FALSE(modelo.Segunda.Value());
    EXPECT_FALSE(segunda->isChecked());
    EXPECT_TRUE(primera->isChecked());
}

// --- Texts ---

TEST_F(UnControlYSuWidget, UnaCajaMuestraElTextoDelModelo) {
    EXPECT_EQ(caja->text(), "texto");
    modelo.Caja.Text = "1,5 m²";
    EXPECT_EQ(caja->text().toStdString(), "1,5 m²");
    EXPECT_EQ(modelo.cambios, 1);
}

TEST_F(UnControlYSuWidget, CadaTeclaDeUnaCajaCambiaElTextoUnaVez) {
    modelo.Caja.Text = "";
    modelo.cambios = 0;
    Clic(*caja);
    QTest::keyClicks(caja, "12,5");
    EXPECT_EQ(modelo.Caja.Text(), "12,5");
    EXPECT_EQ(modelo.cambios, 4);
    EXPECT_EQ(ventanas.foco(), &modelo.Caja);
}

TEST_F(UnControlYSuWidget, LoQueElCambioCorrigeSeVeCorregido) {
    modelo.Caja.Change = [this] { modelo.Caja.Text = "0"; };
    Clic(*caja);
    QTest::keyClicks(caja, "7");
    EXPECT_EQ(modelo.Caja.Text(), "0");
    EXPECT_EQ(caja->text(), "0");
}

TEST_F(UnControlYSuWidget, UnaTeclaRechazadaDejaLaCajaComoElModelo) {
    modelo.retenerFoco();
    Clic(*caja);
    QTest::keyClicks(caja, "x");
    EXPECT_EQ(modelo.Caja.Text(), "texto");
    EXPECT_EQ(caja->text(), "texto");
    EXPECT_EQ(modelo.cambios, 0);
}

TEST_F(UnControlYSuWidget, UnaCajaInhabilitadaNoTomaTeclas) {
    modelo.Caja.Enabled = false;
    Clic(*caja);
    QTest::keyClicks(caja, "x");
    EXPECT_EQ(modelo.Caja.Text(), "texto");
    EXPECT_EQ(caja->text(), "texto");
}

// --- Lists ---

TEST_F(UnControlYSuWidget, UnaListaMuestraLasLineasDelModeloYSusCambios) {
    ASSERT_EQ(una->count(), 3);
    EXPECT_EQ(una->item(2)->text(), "dos");
    modelo.Una.AddItem("tres");
    ASSERT_EQ(una->count(), 4);
    EXPECT_EQ(una->item(3)->text(), "tres");
    modelo.Una.RemoveItem(0);
    ASSERT_EQ(una->count(), 3);
    EXPECT_EQ(una->item(0)->text(), "uno");
    EXPECT_EQ(una->item(2)->text(), "tres");
    modelo.Una.Clear();
    EXPECT_EQ(una->count(), 0);
}

TEST_F(UnControlYSuWidget, LoSeleccionadoPorElProgramaSeVe) {
    modelo.Varias.Selected(0, true);
    modelo.Varias.Selected(2, true);
    EXPECT_EQ(seleccion(*varias), (Seleccion{true, false, true}));
    modelo.Una.Selected(0, true);
    modelo.Una.Selected(1, true);
    EXPECT_EQ(seleccion(*una), (Seleccion{false, true, false}));
}

TEST_F(UnControlYSuWidget, AlQuitarUnaLineaLaSeleccionSigueALaSuya) {
    modelo.Varias.Selected(1, true);
    modelo.Varias.RemoveItem(0);
    EXPECT_TRUE(varias->item(0)->isSelected());
    EXPECT_FALSE(varias->item(1)->isSelected());
}

TEST_F(UnControlYSuWidget, EnUnaListaDeUnaSolaCadaClicLlegaUnaVez) {
    clicEnLinea(*una, 0);
    EXPECT_EQ(seleccion(modelo.Una), (Seleccion{true, false, false}));
    EXPECT_EQ(modelo.clics, 1);
    clicEnLinea(*una, 2);
    EXPECT_EQ(seleccion(modelo.Una), (Seleccion{false, false, true}));
    EXPECT_EQ(seleccion(*una), (Seleccion{false, false, true}));
    EXPECT_EQ(modelo.clics, 2);
}

TEST_F(UnControlYSuWidget, EnUnaListaDeUnaSolaTambienLlegaElClicEnLaElegida) {
    clicEnLinea(*una, 1);
    clicEnLinea(*una, 1);
    EXPECT_EQ(seleccion(modelo.Una), (Seleccion{false, true, false}));
    EXPECT_EQ(modelo.clics, 2);
}

TEST_F(UnControlYSuWidget, EnUnaListaDeUnaSolaNoSeDejaNingunaElegida) {
    clicEnLinea(*una, 1);
    clicEnLinea(*una, 1, Qt::ControlModifier);
    EXPECT_EQ(seleccion(modelo.Una), (Seleccion{false, true, false}));
    EXPECT_EQ(seleccion(*una), (Seleccion{false, true, false}));
}

TEST_F(UnControlYSuWidget, EnUnaListaDeVariasSeAnadenConControl) {
    clicEnLinea(*varias, 0);
    clicEnLinea(*varias, 2, Qt::ControlModifier);
    EXPECT_EQ(seleccion(modelo.Varias), (Seleccion{true, false, true}));
    EXPECT_EQ(seleccion(*varias), (Seleccion{true, false, true}));
    EXPECT_EQ(modelo.clics, 2);
    clicEnLinea(*varias, 0, Qt::ControlModifier);
    EXPECT_EQ(seleccion(modelo.Varias), (Seleccion{false, false, true}));
}

TEST_F(UnControlYSuWidget, EnUnaListaDeVariasUnClicSoloDejaLaSuya) {
    clicEnLinea(*varias, 0);
    clicEnLinea(*varias, 1);
    EXPECT_EQ(seleccion(modelo.Varias), (Seleccion{false, true, false}));
    EXPECT_EQ(seleccion(*varias), (Seleccion{false, true, false}));
}

TEST_F(UnControlYSuWidget, UnaEleccionRechazadaDejaLaListaComoElModelo) {
    modelo.retenerFoco();
    clicEnLinea(*una, 1);
    clicEnLinea(*varias, 1);
    EXPECT_EQ(seleccion(modelo.Una), (Seleccion{false, false, false}));
    EXPECT_EQ(seleccion(*una), (Seleccion{false, false, false}));
    EXPECT_EQ(seleccion(modelo.Varias), (Seleccion{false, false, false}));
    EXPECT_EQ(seleccion(*varias), (Seleccion{false, false, false}));
    EXPECT_EQ(modelo.clics, 0);
}

// --- Drop-down lists ---

TEST_F(UnControlYSuWidget, UnDesplegableMuestraLineasYTextoDelModelo) {
    ASSERT_EQ(combo->count(), 3);
    EXPECT_EQ(combo->itemText(1), "uno");
    modelo.Combo.Text = "(ninguna)";
    EXPECT_EQ(combo->currentText(), "(ninguna)");
    modelo.Combo.AddItem("tres");
    EXPECT_EQ(combo->itemText(3), "tres");
    EXPECT_EQ(combo->currentText(), "(ninguna)");
    modelo.Combo.Clear();
    EXPECT_EQ(combo->count(), 0);
    EXPECT_EQ(combo->currentText(), "(ninguna)");
    EXPECT_EQ(modelo.cambios, 1);
}

TEST_F(UnControlYSuWidget, EnUnDesplegableSePuedeEscribirUnNombreQueNoEstaEnLaLista) {
    Clic(*combo->lineEdit());
    QTest::keyClicks(combo->lineEdit(), "unos");
    EXPECT_EQ(modelo.Combo.Text(), "unos");
    EXPECT_EQ(combo->currentText(), "unos");
    EXPECT_EQ(combo->count(), 3);
    EXPECT_EQ(modelo.cambios, 4);
    EXPECT_EQ(modelo.clics, 0);
}

TEST_F(UnControlYSuWidget, UnaLineaDelDesplegableElegidaConElTecladoLlegaUnaVez) {
    modelo.Combo.Text = "cero";
    modelo.cambios = 0;
    Clic(*combo->lineEdit());
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(modelo.Combo.Text(), "uno");
    EXPECT_EQ(combo->currentText(), "uno");
    EXPECT_EQ(modelo.cambios, 1);
    EXPECT_EQ(modelo.clics, 1);
}

TEST_F(UnControlYSuWidget, UnaLineaDelDesplegableElegidaConElRatonLlegaUnaVez) {
    combo->showPopup();
    Reposar();
    const QRect lugar = combo->view()->visualRect(combo->model()->index(2, 0));
    QTest::mouseMove(combo->view()->viewport(), lugar.center());
    QTest::mouseClick(combo->view()->viewport(), Qt::LeftButton, Qt::NoModifier, lugar.center());
    Reposar();
    EXPECT_EQ(modelo.Combo.Text(), "dos");
    EXPECT_EQ(combo->currentText(), "dos");
    EXPECT_EQ(modelo.cambios, 1);
    EXPECT_EQ(modelo.clics, 1);
}

TEST_F(UnControlYSuWidget, UnTextoRechazadoDejaElDesplegableComoElModelo) {
    modelo.Combo.Text = "(ninguna)";
    modelo.cambios = 0;
    modelo.retenerFoco();
    Clic(*combo->lineEdit());
    QTest::keyClicks(combo->lineEdit(), "x");
    EXPECT_EQ(modelo.Combo.Text(), "(ninguna)");
    EXPECT_EQ(combo->currentText(), "(ninguna)");
    EXPECT_EQ(modelo.cambios, 0);
}

TEST_F(UnControlYSuWidget, UnDesplegableConAperturaPropiaLaPideUnaVezYNoMuestraLista) {
    Clic(*colores, {colores->width() - 8, colores->height() / 2});
    EXPECT_EQ(modelo.desplegados, 1);
    EXPECT_FALSE(colores->view()->isVisible());
}

TEST_F(UnControlYSuWidget, ElColorElegidoSeVeEnElCampo) {
    modelo.Colores.BackColor = 0x00402010; // blue 0x40, green 0x20, red 0x10
    EXPECT_EQ(colores->palette().color(QPalette::Base), QColor(0x10, 0x20, 0x40));
    EXPECT_EQ(colores->palette().color(QPalette::Text), QColor(Qt::white));
}

// --- Tabs, grid and menus ---

TEST_F(UnControlYSuWidget, LasFichasVanConElModelo) {
    EXPECT_EQ(fichas->currentIndex(), 0);
    modelo.fichas.Tab = 1;
    EXPECT_EQ(fichas->currentIndex(), 1);
    Clic(*fichas->tabBar(), fichas->tabBar()->tabRect(0).center());
    EXPECT_EQ(modelo.fichas.Tab(), 0);
    EXPECT_EQ(fichas->currentIndex(), 0);
}

TEST_F(UnControlYSuWidget, UnaFichaRechazadaNoSeMuestra) {
    modelo.retenerFoco();
    Clic(*fichas->tabBar(), fichas->tabBar()->tabRect(1).center());
    EXPECT_EQ(modelo.fichas.Tab(), 0);
    EXPECT_EQ(fichas->currentIndex(), 0);
}

TEST_F(UnControlYSuWidget, UnaColumnaDeLaRejillaSeEligeEnCualquierCelda) {
    Clic(*rejilla->viewport(), celda(1, 2));
    EXPECT_EQ(modelo.rejilla.ColSel(), 2);
    Clic(*rejilla->viewport(), celda(0, 1));
    EXPECT_EQ(modelo.rejilla.ColSel(), 1);
    EXPECT_TRUE(rejilla->selectionModel()->isColumnSelected(1));
    EXPECT_FALSE(rejilla->selectionModel()->isColumnSelected(2));
}

TEST_F(UnControlYSuWidget, LaColumnaQueEligeElProgramaSeVeElegida) {
    modelo.rejilla.ColSel = 2;
    EXPECT_TRUE(rejilla->selectionModel()->isColumnSelected(2));
    EXPECT_FALSE(rejilla->selectionModel()->isColumnSelected(0));
}

TEST_F(UnControlYSuWidget, UnaColumnaRechazadaNoQuedaElegida) {
    modelo.retenerFoco();
    Clic(*rejilla->viewport(), celda(1, 2));
    EXPECT_EQ(modelo.rejilla.ColSel(), 0);
    EXPECT_FALSE(rejilla->selectionModel()->isColumnSelected(2));
}

TEST_F(UnControlYSuWidget, LosMenusSiguenAlModeloYSuClicLlegaUnaVez) {
    auto* const todo = barra->actions().at(0);
    auto* const suelto = barra->actions().at(1);
    ASSERT_NE(todo->menu(), nullptr);
    auto* const uno = todo->menu()->actions().at(0);
    EXPECT_EQ(todo->text(), "&Todo");
    EXPECT_EQ(uno->text(), "&Uno");
    EXPECT_EQ(suelto->text(), "&Suelto");
    Clic(*barra, barra->actionGeometry(suelto).center());
    EXPECT_EQ(modelo.clics, 1);
    uno->trigger();
    EXPECT_EQ(modelo.clics, 2);
    modelo.mnuSuelto.Enabled = false;
    EXPECT_FALSE(suelto->isEnabled());
    Clic(*barra, barra->actionGeometry(suelto).center());
    EXPECT_EQ(modelo.clics, 2);
    modelo.mnuUno.Visible = false;
    EXPECT_FALSE(uno->isVisible());
    modelo.mnuTodo.Caption = "&Nada";
    EXPECT_EQ(todo->text(), "&Nada");
}

TEST_F(UnControlYSuWidget, UnMenuSeEligeConSuAcelerador) {
    QTest::keyClick(&ventana, Qt::Key_S, Qt::AltModifier);
    Reposar();
    EXPECT_EQ(modelo.clics, 1);
}

// --- When the window is gone ---

TEST_F(UnControlYSuWidget, LosWidgetsDeUnaVentanaDescargadaNoHacenNada) {
    ventanas.alDescargar = [this](Formulario&) { vinculos->soltar(); };
    modelo.boton.Click = [this] { ventanas.descargar(modelo); };
    Clic(*boton); // the window goes in the middle of the act of its own widget
    ASSERT_TRUE(ventanas.todas().empty());
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{etiqueta, boton, casilla, primera, segunda, marco}) {
        Clic(*widget);
    }
    QTest::keyClicks(caja, "x");
    QTest::keyClicks(combo->lineEdit(), "x");
    QTest::keyClick(combo, Qt::Key_Down);
    Clic(*colores, {colores->width() - 8, colores->height() / 2});
    clicEnLinea(*una, 1);
    clicEnLinea(*varias, 1);
    Clic(*fichas->tabBar(), fichas->tabBar()->tabRect(1).center());
    Clic(*rejilla->viewport());
    Clic(*rejilla->horizontalHeader()->viewport());
    Clic(*barra, barra->actionGeometry(barra->actions().at(1)).center());
    EXPECT_EQ(vinculos->controlDe(*boton), nullptr);
    EXPECT_EQ(rejilla->model(), nullptr);
}

TEST_F(UnControlYSuWidget, UnaVistaSueltaNoSigueAlModelo) {
    vinculos->soltar();
    modelo.Caja.Text = "otro";
    modelo.boton.Caption = "otro";
    modelo.boton.Enabled = false;
    modelo.Una.Clear();
    EXPECT_EQ(caja->text(), "texto");
    EXPECT_EQ(boton->text(), "&Pulsa");
    EXPECT_TRUE(boton->isEnabled());
    EXPECT_EQ(una->count(), 3);
    Clic(*casilla);
    EXPECT_EQ(modelo.casilla.Value(), 0);
    EXPECT_EQ(modelo.clics, 0);
}

} // namespace varo::prueba
