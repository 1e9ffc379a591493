// Text boxes, lists and drop-downs with their widgets, both ways.
#include "desktop/UnControlYSuWidget.h"

namespace varo::prueba {

namespace {

using Seleccion = std::vector<bool>;

Seleccion SeleccionDe(const Lista& lista) {
    return {lista.Selected(0), lista.Selected(1), lista.Selected(2)};
}

Seleccion SeleccionDe(const QListWidget& lista) {
    return {lista.item(0)->isSelected(), lista.item(1)->isSelected(), lista.item(2)->isSelected()};
}

} // namespace

// --- Texts ---

TEST_F(UnControlYSuWidget, UnaCajaMuestraElTextoDelModelo) {
    EXPECT_EQ(caja->text(), "texto");
    modelo.caja.Text = "1,5 m²";
    EXPECT_EQ(caja->text().toStdString(), "1,5 m²");
    EXPECT_EQ(modelo.cambios, 1);
}

TEST_F(UnControlYSuWidget, CadaTeclaDeUnaCajaCambiaElTextoUnaVez) {
    modelo.caja.Text = "";
    modelo.cambios = 0;
    Clic(*caja);
    QTest::keyClicks(caja, "12,5");
    EXPECT_EQ(modelo.caja.Text(), "12,5");
    EXPECT_EQ(modelo.cambios, 4);
    EXPECT_EQ(ventanas.foco(), &modelo.caja);
}

TEST_F(UnControlYSuWidget, LoQueElCambioCorrigeSeVeCorregido) {
    modelo.caja.Change = [this] { modelo.caja.Text = "0"; };
    Clic(*caja);
    QTest::keyClicks(caja, "7");
    EXPECT_EQ(modelo.caja.Text(), "0");
    EXPECT_EQ(caja->text(), "0");
}

TEST_F(UnControlYSuWidget, UnaTeclaRechazadaDejaLaCajaComoElModelo) {
    modelo.retenerFoco();
    Clic(*caja);
    QTest::keyClicks(caja, "x");
    EXPECT_EQ(modelo.caja.Text(), "texto");
    EXPECT_EQ(caja->text(), "texto");
    EXPECT_EQ(modelo.cambios, 0);
}

TEST_F(UnControlYSuWidget, UnaCajaInhabilitadaNoTomaTeclas) {
    modelo.caja.Enabled = false;
    Clic(*caja);
    QTest::keyClicks(caja, "x");
    EXPECT_EQ(modelo.caja.Text(), "texto");
    EXPECT_EQ(caja->text(), "texto");
}

// --- Lists ---

TEST_F(UnControlYSuWidget, UnaListaMuestraLasLineasDelModeloYSusCambios) {
    ASSERT_EQ(una->count(), 3);
    EXPECT_EQ(una->item(2)->text(), "dos");
    modelo.una.AddItem("tres");
    ASSERT_EQ(una->count(), 4);
    EXPECT_EQ(una->item(3)->text(), "tres");
    modelo.una.RemoveItem(0);
    ASSERT_EQ(una->count(), 3);
    EXPECT_EQ(una->item(0)->text(), "uno");
    EXPECT_EQ(una->item(2)->text(), "tres");
    modelo.una.Clear();
    EXPECT_EQ(una->count(), 0);
}

TEST_F(UnControlYSuWidget, LoSeleccionadoPorElProgramaSeVe) {
    modelo.varias.Selected(0, true);
    modelo.varias.Selected(2, true);
    EXPECT_EQ(SeleccionDe(*varias), (Seleccion{true, false, true}));
    modelo.una.Selected(0, true);
    modelo.una.Selected(1, true);
    EXPECT_EQ(SeleccionDe(*una), (Seleccion{false, true, false}));
}

TEST_F(UnControlYSuWidget, AlQuitarUnaLineaLaSeleccionSigueALaSuya) {
    modelo.varias.Selected(1, true);
    modelo.varias.RemoveItem(0);
    EXPECT_TRUE(varias->item(0)->isSelected());
    EXPECT_FALSE(varias->item(1)->isSelected());
}

TEST_F(UnControlYSuWidget, EnUnaListaDeUnaSolaCadaClicLlegaUnaVez) {
    clicEnLinea(*una, 0);
    EXPECT_EQ(SeleccionDe(modelo.una), (Seleccion{true, false, false}));
    EXPECT_EQ(modelo.clics, 1);
    clicEnLinea(*una, 2);
    EXPECT_EQ(SeleccionDe(modelo.una), (Seleccion{false, false, true}));
    EXPECT_EQ(SeleccionDe(*una), (Seleccion{false, false, true}));
    EXPECT_EQ(modelo.clics, 2);
}

TEST_F(UnControlYSuWidget, EnUnaListaDeUnaSolaTambienLlegaElClicEnLaElegida) {
    clicEnLinea(*una, 1);
    clicEnLinea(*una, 1);
    EXPECT_EQ(SeleccionDe(modelo.una), (Seleccion{false, true, false}));
    EXPECT_EQ(modelo.clics, 2);
}

TEST_F(UnControlYSuWidget, EnUnaListaDeUnaSolaNoSeDejaNingunaElegida) {
    clicEnLinea(*una, 1);
    clicEnLinea(*una, 1, Qt::ControlModifier);
    EXPECT_EQ(SeleccionDe(modelo.una), (Seleccion{false, true, false}));
    EXPECT_EQ(SeleccionDe(*una), (Seleccion{false, true, false}));
}

TEST_F(UnControlYSuWidget, EnUnaListaDeVariasSeAnadenConControl) {
    clicEnLinea(*varias, 0);
    clicEnLinea(*varias, 2, Qt::ControlModifier);
    EXPECT_EQ(SeleccionDe(modelo.varias), (Seleccion{true, false, true}));
    EXPECT_EQ(SeleccionDe(*varias), (Seleccion{true, false, true}));
    EXPECT_EQ(modelo.clics, 2);
    clicEnLinea(*varias, 0, Qt::ControlModifier);
    EXPECT_EQ(SeleccionDe(modelo.varias), (Seleccion{false, false, true}));
}

TEST_F(UnControlYSuWidget, EnUnaListaDeVariasUnClicSoloDejaLaSuya) {
    clicEnLinea(*varias, 0);
    clicEnLinea(*varias, 1);
    EXPECT_EQ(SeleccionDe(modelo.varias), (Seleccion{false, true, false}));
    EXPECT_EQ(SeleccionDe(*varias), (Seleccion{false, true, false}));
}

TEST_F(UnControlYSuWidget, UnaEleccionRechazadaDejaLaListaComoElModelo) {
    modelo.retenerFoco();
    clicEnLinea(*una, 1);
    clicEnLinea(*varias, 1);
    EXPECT_EQ(SeleccionDe(modelo.una), (Seleccion{false, false, false}));
    EXPECT_EQ(SeleccionDe(*una), (Seleccion{false, false, false}));
    EXPECT_EQ(SeleccionDe(modelo.varias), (Seleccion{false, false, false}));
    EXPECT_EQ(SeleccionDe(*varias), (Seleccion{false, false, false}));
    EXPECT_EQ(modelo.clics, 0);
}

// --- Drop-down lists ---

TEST_F(UnControlYSuWidget, UnDesplegableMuestraLineasYTextoDelModelo) {
    ASSERT_EQ(combo->count(), 3);
    EXPECT_EQ(combo->itemText(1), "uno");
    modelo.combo.Text = "(ninguna)";
    EXPECT_EQ(combo->currentText(), "(ninguna)");
    modelo.combo.AddItem("tres");
    EXPECT_EQ(combo->itemText(3), "tres");
    EXPECT_EQ(combo->currentText(), "(ninguna)");
    modelo.combo.Clear();
    EXPECT_EQ(combo->count(), 0);
    EXPECT_EQ(combo->currentText(), "(ninguna)");
    EXPECT_EQ(modelo.cambios, 1);
}

TEST_F(UnControlYSuWidget, EnUnDesplegableSePuedeEscribirUnNombreQueNoEstaEnLaLista) {
    Clic(*combo->lineEdit());
    QTest::keyClicks(combo->lineEdit(), "unos");
    EXPECT_EQ(modelo.combo.Text(), "unos");
    EXPECT_EQ(combo->currentText(), "unos");
    EXPECT_EQ(combo->count(), 3);
    EXPECT_EQ(modelo.cambios, 4);
    EXPECT_EQ(modelo.clics, 0);
}

TEST_F(UnControlYSuWidget, UnaLineaDelDesplegableElegidaConElTecladoLlegaUnaVez) {
    modelo.combo.Text = "cero";
    modelo.cambios = 0;
    Clic(*combo->lineEdit());
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(modelo.combo.Text(), "uno");
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
    EXPECT_EQ(modelo.combo.Text(), "dos");
    EXPECT_EQ(combo->currentText(), "dos");
    EXPECT_EQ(modelo.cambios, 1);
    EXPECT_EQ(modelo.clics, 1);
}

TEST_F(UnControlYSuWidget, UnTextoRechazadoDejaElDesplegableComoElModelo) {
    modelo.combo.Text = "(ninguna)";
    modelo.cambios = 0;
    modelo.retenerFoco();
    Clic(*combo->lineEdit());
    QTest::keyClicks(combo->lineEdit(), "x");
    EXPECT_EQ(modelo.combo.Text(), "(ninguna)");
    EXPECT_EQ(combo->currentText(), "(ninguna)");
    EXPECT_EQ(modelo.cambios, 0);
}

TEST_F(UnControlYSuWidget, UnDesplegableConAperturaPropiaLaPideUnaVezYNoMuestraLista) {
    Clic(*colores, {colores->width() - 8, colores->height() / 2});
    EXPECT_EQ(modelo.desplegados, 1);
    EXPECT_FALSE(colores->view()->isVisible());
}

TEST_F(UnControlYSuWidget, ElColorElegidoSeVeEnElCampo) {
    modelo.colores.BackColor = 0x00402010; // blue 0x40, green 0x20, red 0x10
    EXPECT_EQ(colores->palette().color(QPalette::Base), QColor(0x10, 0x20, 0x40));
    EXPECT_EQ(colores->palette().color(QPalette::Text), QColor(Qt::white));
}

} // namespace varo::prueba
