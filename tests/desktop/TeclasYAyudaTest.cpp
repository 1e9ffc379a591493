// The keys of the main window, and its menu Ayuda.
#include "desktop/OrdenDeArranque.h"
#include "desktop/Pantalla.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTextBrowser>

namespace varo::prueba {

class TeclasYAyuda : public Pantalla {
protected:
    static void tecla(QWidget& widget, Qt::Key tecla, Qt::KeyboardModifiers con = Qt::ControlModifier) {
        widget.window()->activateWindow();
        Reposar();
        QTest::keyClick(&widget, tecla, con);
        Reposar();
    }
    QWidget* manual() const { return ventana("VAROMAIN").findChild<QWidget*>("Manual"); }
};

TEST_F(TeclasYAyuda, ControlOAbreYControlWCierraElArchivo) {
    contestador.preparar([](QWidget& dialogo) {
        EXPECT_EQ(dialogo.objectName(), "DlogoAbrir");
        QTest::keyClick(&dialogo, Qt::Key_Escape);
    });
    tecla(escritorio.marco(), Qt::Key_O);
    llegarA(Etapa::Hoja);
    tecla(rejilla(), Qt::Key_O);
    EXPECT_TRUE(alaVista("Hojadedatos")); // no file opens over another one
    tecla(rejilla(), Qt::Key_W);
    EXPECT_EQ(modelo("Hojadedatos"), nullptr);
    EXPECT_EQ(menusHabilitados(), "mnuAbrir");
    tecla(escritorio.marco(), Qt::Key_W);
    EXPECT_EQ(ventanasALaVista(), std::vector<std::string>{"VAROMAIN"});
}

TEST_F(TeclasYAyuda, ControlWDesdeElMapaCierraElArchivoYNoSoloLaVentana) {
    llegarA(Etapa::Mapa);
    tecla(ventana("FrmMapa"), Qt::Key_W);
    EXPECT_EQ(modelo("FrmMapa"), nullptr);
    EXPECT_EQ(modelo("Hojadedatos"), nullptr);
}

TEST_F(TeclasYAyuda, ControlQPreguntaSiSeSale) {
    contestador.pulsar("No");
    tecla(escritorio.marco(), Qt::Key_Q);
    ASSERT_EQ(contestador.cajas().size(), 1U);
    EXPECT_EQ(contestador.cajas()[0].texto, "¿Realmente quieres salir del programa?");
    EXPECT_EQ(terminaciones, 0);
}

TEST_F(TeclasYAyuda, DesdeUnaVentanaSueltaSeAbreYSeSalePeroNoSeCierraElArchivo) {
    llegarA(Etapa::Opciones);
    tecla(ventana("OpcionesPrograma"), Qt::Key_W);
    EXPECT_TRUE(alaVista("Hojadedatos"));
    EXPECT_TRUE(alaVista("OpcionesPrograma"));
    contestador.pulsar("No");
    tecla(ventana("OpcionesPrograma"), Qt::Key_Q);
    ASSERT_EQ(contestador.cajas().size(), 1U);
    EXPECT_EQ(contestador.cajas()[0].texto, "¿Realmente quieres salir del programa?");
}

TEST_F(TeclasYAyuda, BajoUnaPreguntaNingunaTeclaHaceNada) {
    llegarA(Etapa::Hoja);
    contestador.preparar([this](QWidget& caja) {
        for (const Qt::Key pulsada : {Qt::Key_Q, Qt::Key_W, Qt::Key_O}) {
            QTest::keyClick(&caja, pulsada, Qt::ControlModifier);
            QTest::keyClick(&escritorio.marco(), pulsada, Qt::ControlModifier);
        }
        QTest::keyClick(&caja, Qt::Key_F1);
        Reposar();
        PulsarBoton(caja, "No");
    });
    tecla(escritorio.marco(), Qt::Key_Q);
    EXPECT_EQ(contestador.cajas().size(), 1U);
    EXPECT_TRUE(alaVista("Hojadedatos"));
    EXPECT_EQ(manual(), nullptr);
}

TEST_F(TeclasYAyuda, LaVersionEsUnaSolaEnElTituloYEnLaLineaDeOrdenes) {
    EXPECT_EQ(escritorio.marco().windowTitle().toStdString(), "VARO " + VersionDelPrograma());
}

TEST_F(TeclasYAyuda, ElMenuAyudaEsElUltimoDeLaBarra) {
    const auto arriba = escritorio.marco().menuBar()->actions();
    EXPECT_EQ(arriba.back(), &menu("Ayuda"));
    EXPECT_EQ(menu("Ayuda").text(), "A&yuda");
    EXPECT_EQ(menu("AyudaManual").text(), "&Manual");
    EXPECT_EQ(menu("AyudaAcercaDe").text(), "&Acerca de VARO");
}

TEST_F(TeclasYAyuda, F1MuestraElManualYLasVentanasSiguenUsandose) {
    llegarA(Etapa::Seleccion);
    tecla(ventana("FrmSeleccion"), Qt::Key_F1, Qt::NoModifier);
    ASSERT_NE(manual(), nullptr);
    EXPECT_TRUE(manual()->isVisible());
    EXPECT_FALSE(manual()->isModal());
    const QString texto = manual()->findChild<QTextBrowser*>()->toPlainText();
    EXPECT_TRUE(texto.contains("La última columna de la hoja no se lee."));
    for (const char* apartado : {"La hoja de la parcela", "El archivo de resultados", "Teclas"}) {
        EXPECT_TRUE(texto.contains(apartado)) << apartado;
    }
    aceptarHoja();
    EXPECT_TRUE(alaVista("Hojadedatos"));
    tecla(*manual(), Qt::Key_Escape, Qt::NoModifier);
    EXPECT_FALSE(manual()->isVisible());
    clicMenu("VAROMAIN", "AyudaManual");
    EXPECT_TRUE(manual()->isVisible());
}

TEST_F(TeclasYAyuda, AcercaDeDiceElProgramaYSuVersion) {
    contestador.pulsar("Aceptar");
    clicMenu("VAROMAIN", "AyudaAcercaDe");
    ASSERT_EQ(contestador.cajas().size(), 1U);
    EXPECT_EQ(contestador.cajas()[0].titulo, "Acerca de VARO");
    EXPECT_TRUE(contestador.cajas()[0].texto.startsWith("VARO, versión "));
}

// --- Supr in a list of functions ---

class SuprEnUnaLista : public TeclasYAyuda {
protected:
    SuprEnUnaLista() {
        llegarA(Etapa::Opciones);
        clicFicha(3);
        clic("OpcionesPrograma", "ChAOIActivar");
        for (const char* termino : {"1", "2", "3", "4"}) {
            Escribir(widget("OpcionesPrograma", "TxtRm(0)"), termino);
            clic("OpcionesPrograma", "CmdAñadir");
        }
    }
    QListWidget& lista() const { return widget<QListWidget>("OpcionesPrograma", "LstAOI"); }
    QStringList terminos() const {
        QStringList textos;
        for (int i = 0; i < lista().count(); ++i) {
            textos << lista().item(i)->text().section(';', 0, 0);
        }
        return textos;
    }
    void marcar(int linea, Qt::KeyboardModifiers con = Qt::NoModifier) const {
        QTest::mouseClick(lista().viewport(), Qt::LeftButton, con,
                          lista().visualItemRect(lista().item(linea)).center());
        Reposar();
    }
};

TEST_F(SuprEnUnaLista, QuitaLasMarcadasComoSuBotonYElFocoSigueEnLaLista) {
    ASSERT_EQ(terminos(), (QStringList{"a: 1,0000", "a: 2,0000", "a: 3,0000", "a: 4,0000"}));
    marcar(1);
    marcar(3, Qt::ControlModifier);
    tecla(lista(), Qt::Key_Delete, Qt::NoModifier);
    EXPECT_EQ(terminos(), (QStringList{"a: 1,0000", "a: 3,0000"}));
    EXPECT_TRUE(lista().hasFocus());
    marcar(0);
    tecla(lista(), Qt::Key_Delete, Qt::NoModifier);
    EXPECT_EQ(terminos(), QStringList{"a: 3,0000"});
}

TEST_F(SuprEnUnaLista, SinNingunaMarcadaNoQuitaNada) {
    lista().setFocus();
    tecla(lista(), Qt::Key_Delete, Qt::NoModifier);
    EXPECT_EQ(terminos().size(), 4);
}

TEST_F(SuprEnUnaLista, EnUnCampoBorraLetras) {
    auto& campo = widget<QLineEdit>("OpcionesPrograma", "TxtRm(0)");
    marcar(1);
    Escribir(campo, "25");
    QTest::keyClick(&campo, Qt::Key_Home);
    QTest::keyClick(&campo, Qt::Key_Delete);
    EXPECT_EQ(campo.text(), "5");
    EXPECT_EQ(terminos().size(), 4);
}

} // namespace varo::prueba
