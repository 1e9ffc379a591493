// Each control and its widget, both ways: what the model does shows at once, and what a person does reaches
// the model once. Texts and lists stand in VinculosDeTextosTest.cpp.
#include "desktop/UnControlYSuWidget.h"

#include <QHeaderView>
#include <QMenu>
#include <QTabBar>

namespace varo::prueba {

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
    EXPECT_EQ(vinculos->widgetDe(modelo.celosa), nullptr);
    EXPECT_EQ(vinculos->controlDe(ventana), nullptr);
}

TEST_F(UnControlYSuWidget, LosRotulosMuestranSuLeyendaYLaQueSeLesDe) {
    EXPECT_EQ(etiqueta->text().toStdString(), "rótulo");
    EXPECT_EQ(boton->text(), "&Pulsa");
    EXPECT_EQ(casilla->text(), "casilla");
    EXPECT_EQ(primera->text(), "primera");
    EXPECT_EQ(marco->title(), "marco");
    for (Control* const control : std::initializer_list<Control*>{
             &modelo.etiqueta, &modelo.boton, &modelo.casilla, &modelo.primera, &modelo.marco}) {
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
    EXPECT_EQ(ventanas.foco(), &modelo.celosa);
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
    EXPECT_TRUE(modelo.segunda.Value());
    EXPECT_TRUE(segunda->isChecked());
    EXPECT_FALSE(modelo.primera.Value());
    EXPECT_FALSE(primera->isChecked());
    EXPECT_EQ(modelo.clics, 1);
}

TEST_F(UnControlYSuWidget, UnaOpcionEncendidaSigueEncendidaAlPulsarla) {
    Clic(*primera);
    EXPECT_TRUE(modelo.primera.Value());
    EXPECT_TRUE(primera->isChecked());
    EXPECT_EQ(modelo.clics, 0);
}

TEST_F(UnControlYSuWidget, UnaOpcionEncendidaPorElProgramaSeVe) {
    modelo.segunda.Value = true;
    EXPECT_TRUE(segunda->isChecked());
    EXPECT_FALSE(primera->isChecked());
}

TEST_F(UnControlYSuWidget, UnaOpcionCuyoActoSeRechazaSigueApagada) {
    modelo.retenerFoco();
    Clic(*segunda);
    EXPECT_FALSE(modelo.segunda.Value());
    EXPECT_FALSE(segunda->isChecked());
    EXPECT_TRUE(primera->isChecked());
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
    Clic(*boton); // the window goes during the act of its widget
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
    modelo.caja.Text = "otro";
    modelo.boton.Caption = "otro";
    modelo.boton.Enabled = false;
    modelo.una.Clear();
    EXPECT_EQ(caja->text(), "texto");
    EXPECT_EQ(boton->text(), "&Pulsa");
    EXPECT_TRUE(boton->isEnabled());
    EXPECT_EQ(una->count(), 3);
    Clic(*casilla);
    EXPECT_EQ(modelo.casilla.Value(), 0);
    EXPECT_EQ(modelo.clics, 0);
}

} // namespace varo::prueba
