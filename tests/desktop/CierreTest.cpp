// Ways of closing: each window by its close box at each stage of a session, and the whole program.
#include "desktop/Pantalla.h"
#include "options/OpcionesPrograma.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSet>
#include <QTest>

#include <array>

namespace varo::prueba {

namespace {

constexpr std::array etapas{Etapa::Inicio,   Etapa::Seleccion, Etapa::Hoja, Etapa::Opciones,
                            Etapa::Columnas, Etapa::Formato,   Etapa::Mapa, Etapa::CrearArchivo};

using Nombres = std::vector<std::string>;

} // namespace

class Cierre : public Pantalla {
protected:
    void esperarArchivoCerrado() const {
        EXPECT_EQ(menusHabilitados(), "mnuAbrir");
        for (const char* nombre :
             {"Hojadedatos", "FrmSeleccion", "FrmFormato", "OpcionesPrograma", "FrmMapa"}) {
            EXPECT_FALSE(alaVista(nombre)) << nombre;
        }
        EXPECT_EQ(modelo("Hojadedatos"), nullptr);
    }
};

// --- The sheet ---

TEST(CierreEnCadaEtapa, ElAspaDeLaHojaEsComoElMenuEnTodaEtapa) {
    for (const Etapa etapa : etapas) {
        if (etapa < Etapa::Hoja) {
            continue;
        }
        SCOPED_TRACE(static_cast<int>(etapa));
        Nombres quedanConAspa;
        {
            Puesto conAspa;
            conAspa.llegarA(etapa);
            conAspa.cerrar("Hojadedatos");
            EXPECT_EQ(conAspa.menusHabilitados(), "mnuAbrir");
            quedanConAspa = conAspa.ventanasALaVista();
        }
        Puesto conMenu;
        conMenu.llegarA(etapa);
        conMenu.clicMenu("VAROMAIN", "mnuCerrar");
        EXPECT_EQ(conMenu.menusHabilitados(), "mnuAbrir");
        EXPECT_EQ(conMenu.ventanasALaVista(), quedanConAspa);
    }
}

TEST_F(Cierre, LaHojaSeLlevaLasVentanasQueDependenDeElla) {
    llegarA(Etapa::Mapa);
    std::vector<QPointer<QWidget>> antiguas;
    for (const char* nombre : {"Hojadedatos", "FrmSeleccion", "FrmFormato", "OpcionesPrograma", "FrmMapa"}) {
        antiguas.emplace_back(&ventana(nombre));
    }
    cerrar("Hojadedatos");
    esperarArchivoCerrado();
    for (const auto& antigua : antiguas) {
        EXPECT_TRUE(antigua.isNull());
    }
    EXPECT_EQ(ventanasALaVista(), (Nombres{"VAROMAIN"}));
    EXPECT_NE(modelo("SelCol4R"), nullptr);
    EXPECT_NE(modelo("FrmMapa2"), nullptr);
}

TEST_F(Cierre, ElDialogoDeColumnasSigueAbiertoConSusLineas) {
    llegarA(Etapa::Columnas);
    clicColumna(2);
    clic("SelCol4R", "Command1(0)");
    cerrar("Hojadedatos");
    esperarArchivoCerrado();
    EXPECT_EQ(ventanasALaVista(), (Nombres{"VAROMAIN", "SelCol4R"}));
    EXPECT_EQ(dynamic_cast<SelColumnas&>(*modelo("SelCol4R")).List1.ListCount(), 1);
}

TEST_F(Cierre, LaVentanaDelArchivoDeIndicesSigueAbierta) {
    llegarA(Etapa::CrearArchivo);
    cerrar("Hojadedatos");
    EXPECT_EQ(ventanasALaVista(), (Nombres{"VAROMAIN", "FrmCrearArchivo"}));
}

TEST_F(Cierre, ConElArchivoCerradoSePuedeAbrirOtroYLasOpcionesSonLasDelPrincipio) {
    llegarA(Etapa::Opciones);
    clicFicha(0);
    clic("OpcionesPrograma", "Optmetro");
    clic("OpcionesPrograma", "CmdAceptar");
    cerrar("Hojadedatos");
    llegarA(Etapa::Opciones);
    EXPECT_FALSE(dynamic_cast<OpcionesPrograma&>(*modelo("OpcionesPrograma")).Optmetro.Value());
    clicFicha(0);
    EXPECT_TRUE(widget<QAbstractButton>("OpcionesPrograma", "Optdecim").isChecked());
}

// --- The dialogs ---

TEST_F(Cierre, ElAspaDeLasOpcionesLasOcultaConSusValores) {
    llegarA(Etapa::Opciones);
    clicFicha(0);
    clic("OpcionesPrograma", "Optmetro");
    const QPointer<QWidget> real = &ventana("OpcionesPrograma");
    cerrar("OpcionesPrograma");
    EXPECT_FALSE(alaVista("OpcionesPrograma"));
    ASSERT_FALSE(real.isNull());
    EXPECT_EQ(menusHabilitados(), "mnuCerrar mnuMapa mnuOpciones");
    clicMenu("VAROMAIN", "mnuOpciones");
    EXPECT_TRUE(real->isVisible());
    EXPECT_TRUE(widget<QAbstractButton>("OpcionesPrograma", "Optmetro").isChecked());
}

TEST_F(Cierre, EscaparDeLasOpcionesEsCancelarYEntrarEsAceptar) {
    llegarA(Etapa::Opciones);
    for (const Qt::Key tecla : {Qt::Key_Escape, Qt::Key_Return}) {
        QTest::keyClick(ventana("OpcionesPrograma").focusWidget(), tecla);
        Reposar();
        EXPECT_FALSE(alaVista("OpcionesPrograma"));
        EXPECT_EQ(menusHabilitados(), "mnuCerrar mnuMapa mnuOpciones");
        clicMenu("VAROMAIN", "mnuOpciones");
        ASSERT_TRUE(alaVista("OpcionesPrograma"));
    }
}

TEST_F(Cierre, EscaparDeLaSeleccionDeHojaEsCancelar) {
    llegarA(Etapa::Seleccion);
    const QPointer<QWidget> real = &ventana("FrmSeleccion");
    QTest::keyClick(widget<QComboBox>("FrmSeleccion", "CboHoja").lineEdit(), Qt::Key_Escape);
    Reposar();
    EXPECT_TRUE(real.isNull());
    EXPECT_EQ(modelo("FrmSeleccion"), nullptr);
    EXPECT_NE(modelo("Hojadedatos"), nullptr);
    EXPECT_FALSE(alaVista("Hojadedatos"));
    EXPECT_EQ(menusHabilitados(), "mnuAbrir");
}

TEST_F(Cierre, EntrarEnLaSeleccionDeHojaEsAceptar) {
    llegarA(Etapa::Seleccion);
    Escribir(*widget<QComboBox>("FrmSeleccion", "CboHoja").lineEdit(), "Parcela1$");
    QTest::keyClick(widget<QComboBox>("FrmSeleccion", "CboHoja").lineEdit(), Qt::Key_Return);
    Reposar();
    EXPECT_EQ(ventanasALaVista(), (Nombres{"VAROMAIN", "Hojadedatos"}));
}

TEST_F(Cierre, UnaHojaQueNoEstaSeDiceYSePuedeIntentarOtraVez) {
    llegarA(Etapa::Seleccion);
    contestador.pulsar("Aceptar");
    clic("FrmSeleccion", "CmdAceptar"); // "(ninguna)" is in the box
    ASSERT_EQ(contestador.cajas().size(), 1U);
    const CajaVista& caja = contestador.cajas()[0];
    EXPECT_EQ(caja.texto, "No se ha encontrado la hoja seleccionada. Intente de nuevo");
    EXPECT_EQ(caja.titulo, "Hoja no encontrada");
    EXPECT_EQ(caja.icono, QMessageBox::Warning);
    EXPECT_TRUE(alaVista("FrmSeleccion"));
    aceptarHoja();
    EXPECT_TRUE(alaVista("Hojadedatos"));
}

TEST_F(Cierre, CancelarElFormatoDejaLosMenusInhabilitados) {
    llegarA(Etapa::Formato);
    const QPointer<QWidget> real = &ventana("FrmFormato");
    clic("FrmFormato", "CmdCancelar");
    EXPECT_TRUE(real.isNull());
    EXPECT_EQ(menusHabilitados(), "mnuCerrar");
}

TEST_F(Cierre, ElAspaDelDialogoDeColumnasLoDescargaYHabilitaLosMenus) {
    llegarA(Etapa::Columnas);
    const QPointer<QWidget> real = &ventana("SelCol4R");
    cerrar("SelCol4R");
    EXPECT_TRUE(real.isNull());
    EXPECT_EQ(modelo("SelCol4R"), nullptr);
    EXPECT_EQ(menusHabilitados(), "mnuCerrar mnuMapa mnuOpciones");
}

TEST_F(Cierre, ElAspaDelMapaHabilitaSuMenu) {
    llegarA(Etapa::Mapa);
    cerrar("FrmMapa");
    EXPECT_EQ(modelo("FrmMapa"), nullptr);
    EXPECT_EQ(menusHabilitados(), "mnuCerrar mnuMapa mnuOpciones");
    EXPECT_EQ(ventanasALaVista(), (Nombres{"VAROMAIN", "Hojadedatos"}));
}

// --- The program ---

TEST_F(Cierre, LaPreguntaDeSalir) {
    contestador.pulsar("No");
    cerrar("VAROMAIN");
    ASSERT_EQ(contestador.cajas().size(), 1U);
    const CajaVista& caja = contestador.cajas()[0];
    EXPECT_EQ(caja.texto.toStdString(), "¿Realmente quieres salir del programa?");
    EXPECT_EQ(caja.titulo, "VARO 1.0");
    EXPECT_EQ(caja.icono, QMessageBox::Question);
    EXPECT_EQ(QSet<QString>(caja.botones.begin(), caja.botones.end()),
              (QSet<QString>{QString::fromUtf8("Sí"), "No"}));
}

TEST(CierreEnCadaEtapa, QuienDiceQueNoSigueComoEstabaEnTodaEtapa) {
    for (const Etapa etapa : etapas) {
        SCOPED_TRACE(static_cast<int>(etapa));
        Puesto puesto;
        puesto.llegarA(etapa);
        const auto antes = puesto.ventanasALaVista();
        const auto menus = puesto.menusHabilitados();
        puesto.contestador.pulsar("No");
        puesto.cerrar("VAROMAIN");
        puesto.contestador.pulsar("No");
        puesto.clicMenu("VAROMAIN", "mnuSalir");
        EXPECT_EQ(puesto.contestador.cajas().size(), 2U);
        EXPECT_EQ(puesto.ventanasALaVista(), antes);
        EXPECT_EQ(puesto.menusHabilitados(), menus);
        EXPECT_EQ(puesto.terminaciones, 0);
        EXPECT_FALSE(puesto.programa.terminado());
    }
}

TEST(CierreEnCadaEtapa, QuienDiceQueSiAcabaEnTodaEtapa) {
    for (const Etapa etapa : etapas) {
        SCOPED_TRACE(static_cast<int>(etapa));
        Puesto puesto;
        puesto.llegarA(etapa);
        puesto.contestador.pulsar(QString::fromUtf8("Sí"));
        puesto.cerrar("VAROMAIN");
        EXPECT_EQ(puesto.contestador.cajas().size(), 1U);
        EXPECT_EQ(puesto.terminaciones, 1);
        EXPECT_TRUE(puesto.programa.terminado());
    }
}

TEST_F(Cierre, SalirPorElMenuPreguntaUnaVezYAcaba) {
    llegarA(Etapa::Mapa);
    contestador.pulsar(QString::fromUtf8("Sí"));
    clicMenu("VAROMAIN", "mnuSalir");
    EXPECT_EQ(contestador.cajas().size(), 1U);
    EXPECT_EQ(terminaciones, 1);
}

TEST(CierreEnCadaEtapa, CadaVentanaSePuedeCerrarEnTodaEtapaYLasDemasDespues) {
    int cierres = 0;
    for (const Etapa etapa : etapas) {
        Nombres ventanas;
        {
            Puesto puesto;
            puesto.llegarA(etapa);
            ventanas = puesto.ventanasALaVista();
        }
        for (const auto& primera : ventanas) {
            if (primera == "VAROMAIN") {
                continue; // the program is over with it
            }
            SCOPED_TRACE(std::to_string(static_cast<int>(etapa)) + " " + primera);
            Puesto puesto;
            puesto.llegarA(etapa);
            puesto.cerrar(primera);
            EXPECT_FALSE(puesto.alaVista(primera));
            for (const auto& despues : puesto.ventanasALaVista()) {
                if (despues != "VAROMAIN" && puesto.alaVista(despues)) {
                    puesto.cerrar(despues);
                    EXPECT_FALSE(puesto.alaVista(despues)) << despues;
                }
            }
            EXPECT_EQ(puesto.ventanasALaVista(), (Nombres{"VAROMAIN"}));
            puesto.contestador.pulsar(QString::fromUtf8("Sí"));
            puesto.cerrar("VAROMAIN");
            EXPECT_EQ(puesto.terminaciones, 1);
            ++cierres;
        }
    }
    EXPECT_EQ(cierres, 1 + 1 + 2 + 2 + 2 + 2 + 3); // the windows beside the frame, from the second stage on
}

} // namespace varo::prueba
