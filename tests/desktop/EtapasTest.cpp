// The stages of a session in real windows: what a person sees at each of them.
#include "desktop/Pantalla.h"

namespace varo::prueba {

namespace {

using Nombres = std::vector<std::string>;

} // namespace

class EtapasDeUnaSesion : public Pantalla {};

TEST_F(EtapasDeUnaSesion, AlEmpezarSoloEstaElMarco) {
    EXPECT_EQ(ventanasALaVista(), (Nombres{"VAROMAIN"}));
    EXPECT_EQ(menusHabilitados(), "mnuAbrir");
}

TEST_F(EtapasDeUnaSesion, TrasAbrirUnArchivoSePideLaHoja) {
    llegarA(Etapa::Seleccion);
    EXPECT_EQ(ventanasALaVista(), (Nombres{"VAROMAIN", "FrmSeleccion"}));
    EXPECT_EQ(ventana("FrmSeleccion").windowTitle().toStdString(), "Localización de los datos");
    EXPECT_EQ(widget<QComboBox>("FrmSeleccion", "CboHoja").currentText(), "(ninguna)");
    EXPECT_EQ(widget<QComboBox>("FrmSeleccion", "CboHoja").itemText(0), "Parcela1$");
    EXPECT_EQ(menusHabilitados(), "mnuAbrir");
}

TEST_F(EtapasDeUnaSesion, LaHojaAceptadaApareceEnElMarcoYLaSeleccionSeVa) {
    llegarA(Etapa::Hoja);
    EXPECT_EQ(ventanasALaVista(), (Nombres{"VAROMAIN", "Hojadedatos"}));
    EXPECT_EQ(ventana("Hojadedatos").windowTitle(), "Parcela1$ parcela.xls");
    EXPECT_EQ(menusHabilitados(), "mnuCerrar mnuMapa mnuOpciones");
}

TEST_F(EtapasDeUnaSesion, LasOpcionesInhabilitanSusMenus) {
    llegarA(Etapa::Opciones);
    EXPECT_EQ(ventanasALaVista(), (Nombres{"VAROMAIN", "Hojadedatos", "OpcionesPrograma"}));
    EXPECT_EQ(ventana("OpcionesPrograma").windowTitle(), "Opciones del programa");
    EXPECT_EQ(menusHabilitados(), "mnuCerrar");
}

TEST_F(EtapasDeUnaSesion, ElDialogoDeColumnasEstaJuntoALaHoja) {
    llegarA(Etapa::Columnas);
    EXPECT_EQ(ventanasALaVista(), (Nombres{"VAROMAIN", "Hojadedatos", "SelCol4R"}));
    EXPECT_EQ(ventana("SelCol4R").windowTitle().toStdString(), "Selección de columnas");
    EXPECT_EQ(menusHabilitados(), "mnuCerrar mnuOpciones");
}

TEST_F(EtapasDeUnaSesion, ElFormatoOcultaElDialogoDeColumnas) {
    llegarA(Etapa::Formato);
    EXPECT_EQ(ventanasALaVista(), (Nombres{"VAROMAIN", "Hojadedatos", "FrmFormato"}));
    EXPECT_EQ(menusHabilitados(), "mnuCerrar");
}

TEST_F(EtapasDeUnaSesion, ElMapaOcultaElFormatoYLlevaElNombreDeLaParcela) {
    llegarA(Etapa::Mapa);
    EXPECT_EQ(ventanasALaVista(), (Nombres{"VAROMAIN", "Hojadedatos", "FrmMapa"}));
    EXPECT_EQ(ventana("FrmMapa").windowTitle(), "Mapa de la parcela Parcela1");
    EXPECT_EQ(menusHabilitados(), "mnuCerrar mnuOpciones");
}

TEST_F(EtapasDeUnaSesion, TrasLosIndicesSePideElArchivo) {
    llegarA(Etapa::CrearArchivo);
    EXPECT_EQ(ventanasALaVista(), (Nombres{"VAROMAIN", "Hojadedatos", "FrmMapa", "FrmCrearArchivo"}));
}

} // namespace varo::prueba
