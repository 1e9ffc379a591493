// Activation and focus of the real windows reach the models once each, and the reverse.
#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "desktop/Pantalla.h"
#include "desktop/Sonda.h"
#include "map/FrmMapa.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QTest>

namespace varo::prueba {

namespace {

using Cuenta = std::pair<int, int>;

template <class V>
Cuenta CuentaDe(const Sonda<V>& sonda) {
    return {sonda.activadas, sonda.desactivadas};
}

} // namespace

/// Two children of the main window and a free one, which starts active.
class TresVentanas : public Pantalla {
protected:
    TresVentanas() {
        programa.atender([this] {
            hoja.MSFlexGrid1.Visible = true;
            hoja.Show();
            otra.Show();
            libre.Show();
        });
        libre.CmdAceptar.Click = [this] { ++clics; };
        libre.CboHoja.LostFocus = [this] { ++salidas; };
        Reposar();
        olvidar();
    }
    void olvidar() {
        hoja.olvidar();
        otra.olvidar();
        libre.olvidar();
    }
    /// Activates a window of another program, and then the free one again.
    void irAOtroProgramaYVolver() const {
        QWidget ajena;
        ajena.show();
        ajena.activateWindow();
        Reposar();
        ASSERT_TRUE(ajena.isActiveWindow());
        EXPECT_EQ(programa.activa(), &libre);
        EXPECT_EQ(salidas, 0);
        ventana("FrmSeleccion").activateWindow();
        Reposar();
    }
    QLineEdit& campo() const { return *widget<QComboBox>("FrmSeleccion", "CboHoja").lineEdit(); }
    QWidget& boton() const { return widget("FrmSeleccion", "CmdAceptar"); }

    Sonda<Hojadedatos>& hoja = programa.tocarEn<Sonda<Hojadedatos>>(programa);
    Sonda<FrmMapa2>& otra = programa.tocarEn<Sonda<FrmMapa2>>(programa);
    Sonda<FrmSeleccion>& libre = programa.tocarEn<Sonda<FrmSeleccion>>(programa);
    int clics = 0;
    int salidas = 0;
};

TEST_F(TresVentanas, LaMostradaEnUltimoLugarEstaActiva) {
    EXPECT_EQ(programa.activa(), &libre);
    EXPECT_TRUE(ventana("FrmSeleccion").isActiveWindow());
}

TEST_F(TresVentanas, PulsarUnaHijaDesactivaLaLibreYActivaEsaUnaVez) {
    activar("Hojadedatos");
    EXPECT_EQ(programa.activa(), &hoja);
    EXPECT_EQ(CuentaDe(hoja), Cuenta(1, 0));
    EXPECT_EQ(CuentaDe(libre), Cuenta(0, 1));
    EXPECT_EQ(CuentaDe(otra).first, CuentaDe(otra).second); // Qt may activate it on the way
    EXPECT_LE(CuentaDe(otra).first, 1);
}

TEST_F(TresVentanas, DeUnaHijaAOtraCadaUnaSeEnteraUnaVez) {
    activar("Hojadedatos");
    olvidar();
    activar("FrmMapa2");
    EXPECT_EQ(programa.activa(), &otra);
    EXPECT_EQ(CuentaDe(hoja), Cuenta(0, 1));
    EXPECT_EQ(CuentaDe(otra), Cuenta(1, 0));
    EXPECT_EQ(CuentaDe(libre), Cuenta(0, 0));
}

TEST_F(TresVentanas, PulsarDentroDeUnaHijaLaActivaUnaVez) {
    activar("FrmMapa2");
    olvidar();
    Clic(*widget<QTableView>("Hojadedatos", "MSFlexGrid1").viewport());
    EXPECT_EQ(programa.activa(), &hoja);
    EXPECT_EQ(CuentaDe(hoja), Cuenta(1, 0));
    EXPECT_EQ(CuentaDe(otra), Cuenta(0, 1));
}

TEST_F(TresVentanas, PulsarEnLaActivaNoLaActivaDeNuevo) {
    Clic(widget("FrmSeleccion", "Label1"));
    Clic(boton());
    EXPECT_EQ(CuentaDe(libre), Cuenta(0, 0));
    EXPECT_EQ(clics, 1);
}

TEST_F(TresVentanas, IrAUnaLibreYVolverAlMarcoActivaLaHijaQueEstabaActiva) {
    activar("Hojadedatos");
    activar("FrmSeleccion");
    olvidar();
    escritorio.marco().activateWindow();
    Reposar();
    EXPECT_EQ(programa.activa(), &hoja);
    EXPECT_EQ(CuentaDe(hoja), Cuenta(1, 0));
    EXPECT_EQ(CuentaDe(libre), Cuenta(0, 1));
    EXPECT_EQ(CuentaDe(otra), Cuenta(0, 0));
}

TEST_F(TresVentanas, OtroProgramaNoDesactivaNada) {
    irAOtroProgramaYVolver();
    EXPECT_EQ(CuentaDe(libre), Cuenta(0, 0));
    EXPECT_EQ(CuentaDe(hoja), Cuenta(0, 0));
}

TEST_F(TresVentanas, UnaCajaDeMensajeNoDesactivaNada) {
    contestador.pulsar("Aceptar");
    programa.atender([this] { servicios.mensaje("x", "t", mensaje::aceptar); });
    Reposar();
    EXPECT_EQ(CuentaDe(libre), Cuenta(0, 0));
    EXPECT_EQ(programa.activa(), &libre);
    EXPECT_TRUE(ventana("FrmSeleccion").isActiveWindow());
}

TEST_F(TresVentanas, LaVentanaQueElProgramaMuestraEsLaQueEstaAlFrente) {
    programa.atender([this] { hoja.Show(); });
    Reposar();
    EXPECT_EQ(programa.activa(), &hoja);
    EXPECT_TRUE(escritorio.marco().isActiveWindow());
    EXPECT_EQ(CuentaDe(hoja), Cuenta(1, 0));
    EXPECT_EQ(CuentaDe(libre), Cuenta(0, 1));
    EXPECT_EQ(CuentaDe(otra), Cuenta(0, 0));
}

TEST_F(TresVentanas, AlOcultarseLaActivaVuelveLaDeAntes) {
    activar("Hojadedatos");
    activar("FrmSeleccion");
    olvidar();
    programa.atender([this] { libre.Hide(); });
    Reposar();
    EXPECT_EQ(programa.activa(), &hoja);
    EXPECT_TRUE(escritorio.marco().isActiveWindow());
    EXPECT_EQ(CuentaDe(libre), Cuenta(0, 1));
    EXPECT_EQ(CuentaDe(hoja), Cuenta(1, 0));
}

// --- The focus ---

TEST_F(TresVentanas, ElTabuladorDejaElCampoUnaVez) {
    Clic(campo());
    EXPECT_EQ(programa.foco(), &libre.CboHoja);
    QTest::keyClick(&campo(), Qt::Key_Tab);
    Reposar();
    EXPECT_EQ(salidas, 1);
    EXPECT_EQ(programa.foco(), &libre.CmdAceptar);
}

TEST_F(TresVentanas, PulsarUnBotonDejaElCampoUnaVezYLuegoSePulsa) {
    Clic(campo());
    libre.CboHoja.LostFocus = [this] {
        ++salidas;
        EXPECT_EQ(clics, 0);
    };
    Clic(boton());
    EXPECT_EQ(salidas, 1);
    EXPECT_EQ(clics, 1);
}

TEST_F(TresVentanas, IrAOtraVentanaDejaElCampoUnaVez) {
    Clic(campo());
    activar("Hojadedatos");
    EXPECT_EQ(salidas, 1);
    EXPECT_EQ(programa.activa(), &hoja);
}

TEST_F(TresVentanas, PulsarEnElFondoNoDejaElCampo) {
    Clic(campo());
    Clic(widget("FrmSeleccion", "Label1"));
    EXPECT_EQ(salidas, 0);
    EXPECT_EQ(programa.foco(), &libre.CboHoja);
}

TEST_F(TresVentanas, OtroProgramaNoDejaElCampo) {
    Clic(campo());
    irAOtroProgramaYVolver();
    EXPECT_EQ(salidas, 0);
    EXPECT_EQ(programa.foco(), &libre.CboHoja);
}

TEST_F(TresVentanas, ElCampoQueRecuperaElFocoTrasUnMensajeLoTieneDeVerdad) {
    Clic(campo());
    libre.CboHoja.LostFocus = [this] {
        ++salidas;
        servicios.mensaje("El valor debe ser numérico", "Valor erróneo", mensaje::exclamacion);
        libre.CboHoja.SetFocus();
    };
    contestador.pulsar("Aceptar");
    QTest::mousePress(&boton(), Qt::LeftButton); // the box comes up before the release
    Reposar();
    EXPECT_EQ(salidas, 1);
    EXPECT_EQ(clics, 0);
    EXPECT_EQ(programa.foco(), &libre.CboHoja);
    EXPECT_TRUE(campo().hasFocus());
    libre.CboHoja.LostFocus = nullptr;
}

TEST_F(TresVentanas, ElTabuladorVuelveAlCampoQueRecuperaElFoco) {
    Clic(campo());
    libre.CboHoja.LostFocus = [this] {
        ++salidas;
        libre.CboHoja.SetFocus();
    };
    QTest::keyClick(&campo(), Qt::Key_Tab);
    Reposar();
    EXPECT_EQ(salidas, 1);
    EXPECT_TRUE(campo().hasFocus());
    libre.CboHoja.LostFocus = nullptr;
}

TEST_F(TresVentanas, UnNombreEscritoComoUnaLineaNoEsUnaEleccionYElBotonSePulsa) {
    int elecciones = 0;
    libre.CboHoja.AddItem("Notas$");
    libre.CboHoja.AddItem("Parcela1$");
    libre.CboHoja.Click = [&elecciones] { ++elecciones; };
    Escribir(campo(), "Parcela1$");
    int cambios = 0;
    libre.CboHoja.Change = [&cambios] { ++cambios; };
    Clic(boton());
    EXPECT_EQ(clics, 1);
    EXPECT_EQ(salidas, 1);
    EXPECT_EQ(elecciones, 0);
    EXPECT_EQ(cambios, 0);
    EXPECT_EQ(programa.foco(), &libre.CmdAceptar);
    EXPECT_TRUE(boton().hasFocus());
    EXPECT_EQ(libre.CboHoja.Text(), "Parcela1$");
    libre.CboHoja.Click = nullptr;
    libre.CboHoja.Change = nullptr;
}

TEST_F(TresVentanas, ElFocoQueDaElProgramaSeVe) {
    programa.atender([this] { libre.CmdCancelar.SetFocus(); });
    Reposar();
    EXPECT_TRUE(widget("FrmSeleccion", "CmdCancelar").hasFocus());
}

// --- The program's own windows ---

class ActivacionDeLosDialogos : public Pantalla {};

TEST_F(ActivacionDeLosDialogos, ElDeColumnasSePreparaCadaVezQueSeActiva) {
    llegarA(Etapa::Columnas);
    EXPECT_EQ(widget<QAbstractButton>("SelCol4R", "CmdDAP").text(), "CAP");
    EXPECT_EQ(programa.sesion.UltimaColumna, 7);
    programa.sesion.UltimaColumna = 0;
    clicColumna(3);
    EXPECT_EQ(programa.sesion.UltimaColumna, 0); // the dialog is visible, but the sheet is active
    clic("SelCol4R", "Label1");
    EXPECT_EQ(programa.sesion.UltimaColumna, 7);
}

TEST_F(ActivacionDeLosDialogos, TrasElegirArchivoLaSeleccionDeHojaEstaActivaSinPasarPorElDeColumnas) {
    llegarA(Etapa::Columnas);
    cerrar("Hojadedatos");
    clic("SelCol4R", "List1"); // the focus of the frame lies in it
    ASSERT_EQ(programa.activa(), modelo("SelCol4R"));
    programa.sesion.UltimaColumna = 0;
    abrirArchivo();
    EXPECT_EQ(programa.activa(), modelo("FrmSeleccion"));
    EXPECT_TRUE(ventana("FrmSeleccion").isActiveWindow());
    EXPECT_EQ(programa.sesion.UltimaColumna, 0); // its activation would have set it
    clic("SelCol4R", "Label1");
    EXPECT_EQ(programa.sesion.UltimaColumna, 7);
}

TEST_F(ActivacionDeLosDialogos, LaRejillaSePulsaJuntoAlDialogoDeColumnas) {
    llegarA(Etapa::Columnas);
    clicColumna(2);
    clic("SelCol4R", "Command1(0)");
    ASSERT_EQ(dynamic_cast<SelColumnas&>(*modelo("SelCol4R")).List1.ListCount(), 1);
    EXPECT_EQ(dynamic_cast<SelColumnas&>(*modelo("SelCol4R")).List1.List(0), "Coordenada X: Columna: 3 (X)");
    EXPECT_FALSE(widget("SelCol4R", "Command1(0)").isEnabled());
    EXPECT_TRUE(alaVista("SelCol4R"));
}

TEST_F(ActivacionDeLosDialogos, SinCodigoDeEspecieSuBotonSeInhabilitaAlDejarLasOpcionesNoAntes) {
    llegarA(Etapa::Columnas);
    clicMenu("VAROMAIN", "mnuOpciones");
    clicFicha(0);
    ASSERT_TRUE(widget("SelCol4R", "Command1(7)").isEnabled());
    clic("OpcionesPrograma", "ChCodigo");
    EXPECT_TRUE(widget("SelCol4R", "Command1(7)").isEnabled());
    activar("Hojadedatos");
    EXPECT_FALSE(widget("SelCol4R", "Command1(7)").isEnabled());
    EXPECT_FALSE(widget("SelCol2D", "Command1(5)").isEnabled());
    EXPECT_FALSE(widget("SelColRM", "Command1(4)").isEnabled());
    EXPECT_TRUE(alaVista("OpcionesPrograma"));
    EXPECT_EQ(menusHabilitados(), "mnuCerrar");
}

} // namespace varo::prueba
