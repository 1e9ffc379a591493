// The main window: its title and menus, what stands inside it and what beside it, and its hourglass.
#include "desktop/Pantalla.h"

#include <QApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace varo::prueba {

class ElMarco : public Pantalla {
protected:
    bool conReloj(const std::string& nombre) const {
        return ventana(nombre).cursor().shape() == Qt::WaitCursor;
    }
    QMdiArea& zona() const { return widget<QMdiArea>("VAROMAIN", ""); }
    void esperarDentro(const std::string& nombre) const {
        auto* const hija = qobject_cast<QMdiSubWindow*>(&ventana(nombre));
        ASSERT_NE(hija, nullptr) << nombre;
        EXPECT_TRUE(zona().subWindowList().contains(hija)) << nombre;
        EXPECT_FALSE(hija->isWindow()) << nombre;
    }
    void esperarFuera(const std::string& nombre) const {
        EXPECT_TRUE(ventana(nombre).isWindow()) << nombre;
        EXPECT_EQ(qobject_cast<QMdiSubWindow*>(&ventana(nombre)), nullptr) << nombre;
        EXPECT_FALSE(ventana(nombre).isModal()) << nombre;
    }
    void cancelarApertura() {
        contestador.tecla(Qt::Key_Escape);
        clicMenu("VAROMAIN", "mnuAbrir");
    }
};

TEST_F(ElMarco, SeLlamaVaro) {
    EXPECT_EQ(ventana("VAROMAIN").windowTitle(), "VARO 1.0");
    EXPECT_EQ(&ventana("VAROMAIN"), &escritorio.marco());
}

TEST_F(ElMarco, LlevaSusMenusEnOrdenConSusAceleradores) {
    const auto arriba = escritorio.marco().menuBar()->actions();
    ASSERT_EQ(arriba.size(), 4);
    EXPECT_EQ(arriba[0]->text(), "&Archivo");
    EXPECT_EQ(arriba[1]->text(), "&Mapa de copas");
    EXPECT_EQ(arriba[2]->text(), "&Opciones");
    EXPECT_EQ(arriba[3]->text(), "A&yuda"); // behind them, not one of theirs
    ASSERT_NE(arriba[0]->menu(), nullptr);
    const auto archivo = arriba[0]->menu()->actions();
    ASSERT_GE(archivo.size(), 4);
    EXPECT_EQ(archivo[0]->text(), "&Abrir");
    EXPECT_EQ(archivo[1]->text(), "&Cerrar");
    EXPECT_EQ(archivo[2]->text(), "&Salir");
    EXPECT_TRUE(archivo[3]->isSeparator()); // below stand the files opened last
}

TEST_F(ElMarco, AlEmpezarSoloSePuedeAbrirYSalir) {
    EXPECT_TRUE(menu("mnuArchivo").isEnabled());
    EXPECT_TRUE(menu("mnuAbrir").isEnabled());
    EXPECT_FALSE(menu("mnuCerrar").isEnabled());
    EXPECT_TRUE(menu("mnuSalir").isEnabled());
    EXPECT_FALSE(menu("mnuMapa").isEnabled());
    EXPECT_FALSE(menu("mnuOpciones").isEnabled());
}

TEST_F(ElMarco, UnMenuInhabilitadoNoHaceNada) {
    clicMenu("VAROMAIN", "mnuOpciones");
    clicMenu("VAROMAIN", "mnuCerrar");
    EXPECT_EQ(ventanasALaVista(), (std::vector<std::string>{"VAROMAIN"}));
}

TEST_F(ElMarco, LasHijasEstanDentroYLasDemasFuera) {
    llegarA(Etapa::CrearArchivo);
    for (const char* nombre : {"Hojadedatos", "SelCol4R", "FrmFormato", "FrmMapa", "FrmMapa2"}) {
        esperarDentro(nombre);
    }
    for (const char* nombre : {"FrmSeleccion", "OpcionesPrograma", "FrmCrearArchivo"}) {
        esperarFuera(nombre);
    }
}

TEST_F(ElMarco, ElDialogoDeColumnasNoSeMinimizaNiMaximizaYLaHojaSi) {
    llegarA(Etapa::Columnas);
    const auto dialogo = ventana("SelCol4R").windowFlags();
    EXPECT_FALSE(dialogo.testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_FALSE(dialogo.testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_TRUE(dialogo.testFlag(Qt::WindowCloseButtonHint));
    const auto hoja = ventana("Hojadedatos").windowFlags();
    EXPECT_TRUE(hoja.testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_TRUE(hoja.testFlag(Qt::WindowMaximizeButtonHint));
}

TEST_F(ElMarco, LaSeleccionDeHojaNoSeMinimizaNiMaximiza) {
    llegarA(Etapa::Seleccion);
    const auto dialogo = ventana("FrmSeleccion").windowFlags();
    EXPECT_FALSE(dialogo.testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_FALSE(dialogo.testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_TRUE(dialogo.testFlag(Qt::WindowCloseButtonHint));
}

TEST_F(ElMarco, ElModeloConoceLasMedidasDelMarcoEnTwips) {
    EXPECT_EQ(modelo("VAROMAIN")->Width(), static_cast<float>(escritorio.marco().width() * 15));
    escritorio.marco().resize(1000, 700);
    Reposar();
    EXPECT_EQ(modelo("VAROMAIN")->Width(), 15000.0F);
    EXPECT_EQ(modelo("VAROMAIN")->Height(), 10500.0F);
}

// --- The hourglass ---

TEST_F(ElMarco, AlEmpezarNoHayReloj) {
    EXPECT_FALSE(conReloj("VAROMAIN"));
}

TEST_F(ElMarco, MientrasSeEligeElArchivoHayReloj) {
    contestador.preparar([this](QWidget& dialogo) {
        EXPECT_TRUE(conReloj("VAROMAIN"));
        QTest::keyClick(&dialogo, Qt::Key_Escape);
    });
    clicMenu("VAROMAIN", "mnuAbrir");
}

TEST_F(ElMarco, TrasUnaAperturaCanceladaElRelojSeQueda) {
    cancelarApertura();
    EXPECT_TRUE(conReloj("VAROMAIN"));
    EXPECT_EQ(menusHabilitados(), "mnuAbrir");
    EXPECT_EQ(ventanasALaVista(), (std::vector<std::string>{"VAROMAIN"}));
}

TEST_F(ElMarco, LaAperturaSiguienteQuitaElReloj) {
    cancelarApertura();
    llegarA(Etapa::Seleccion);
    EXPECT_FALSE(conReloj("VAROMAIN"));
    EXPECT_TRUE(alaVista("FrmSeleccion"));
}

TEST_F(ElMarco, UnaHojaQueNoSeEncuentraQuitaElRelojAntesDeDecirlo) {
    llegarA(Etapa::Seleccion);
    contestador.preparar([this](QWidget& caja) {
        EXPECT_FALSE(conReloj("FrmSeleccion"));
        PulsarBoton(caja, "Aceptar");
    });
    clic("FrmSeleccion", "CmdAceptar");
    EXPECT_FALSE(conReloj("FrmSeleccion"));
}

TEST_F(ElMarco, TrasUnaHojaQueNoSeEncuentraElFocoEstaEnSuCampo) {
    llegarA(Etapa::Seleccion);
    contestador.pulsar("Aceptar");
    clic("FrmSeleccion", "CmdAceptar");
    const auto& hojas = widget<QComboBox>("FrmSeleccion", "CboHoja");
    EXPECT_TRUE(hojas.hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "Parcela1$");
    EXPECT_EQ(hojas.currentText(), "Parcela1$");
}

TEST_F(ElMarco, ElRelojDeUnaVentanaSeVeEnTodaElla) {
    llegarA(Etapa::Seleccion);
    const QWidget& campo = *widget<QComboBox>("FrmSeleccion", "CboHoja").lineEdit();
    ASSERT_EQ(campo.cursor().shape(), Qt::IBeamCursor);
    modelo("FrmSeleccion")->MousePointer = Formulario::relojDeArena;
    for (const QWidget* const widget : ventana("FrmSeleccion").findChildren<QWidget*>()) {
        EXPECT_TRUE(widget->window() != &ventana("FrmSeleccion") ||
                    widget->cursor().shape() == Qt::WaitCursor)
            << widget->objectName().toStdString();
    }
    modelo("FrmSeleccion")->MousePointer = Formulario::punteroNormal;
    EXPECT_EQ(campo.cursor().shape(), Qt::IBeamCursor);
    EXPECT_EQ(ventana("FrmSeleccion").cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ElMarco, ElRelojDeUnaHijaSeVeTambienEnSuTitulo) {
    llegarA(Etapa::Hoja);
    QWidget& hoja = ventana("Hojadedatos");
    modelo("Hojadedatos")->MousePointer = Formulario::relojDeArena;
    for (const QPoint punto : {QPoint{hoja.width() / 2, 8}, QPoint{1, hoja.height() / 2},
                               QPoint{hoja.width() / 2, hoja.height() - 1}, QPoint{hoja.width() / 2, 60}}) {
        QTest::mouseMove(&hoja, punto);
        Reposar();
        EXPECT_TRUE(conReloj("Hojadedatos")) << punto.x() << " " << punto.y();
    }
    modelo("Hojadedatos")->MousePointer = Formulario::punteroNormal;
    QTest::mouseMove(&hoja, {hoja.width() / 2, 8});
    Reposar();
    EXPECT_FALSE(conReloj("Hojadedatos"));
}

// --- What cannot go on ---

TEST_F(ElMarco, UnArchivoQueNoSeEntiendeSeDiceYElProgramaTermina) {
    carpeta.Escribir("roto.xls", "esto no es un libro");
    const QString ruta = QString::fromStdString(carpeta.archivo("roto.xls"));
    contestador.preparar([ruta](QWidget& dialogo) {
        auto* const campo = dialogo.findChild<QLineEdit*>("fileNameEdit");
        QTest::keyClicks(campo, ruta);
        QTest::keyClick(campo, Qt::Key_Return);
    });
    contestador.preparar([](QWidget& caja) {
        EXPECT_EQ(caja.objectName(), "CajaDeFallo");
        EXPECT_TRUE(dynamic_cast<QMessageBox&>(caja).text().endsWith(
            QString::fromUtf8("\n\nEl programa se cerrará.")));
        PulsarBoton(caja, "Aceptar");
    });
    clicMenu("VAROMAIN", "mnuAbrir");
    EXPECT_EQ(terminaciones, 1);
    EXPECT_TRUE(programa.conFalloFatal());
    EXPECT_TRUE(programa.terminado());
}

} // namespace varo::prueba
