// Another kind of crown data after the choice of columns: a box tells it once, and the choice starts again.
#include "desktop/Pantalla.h"

#include <QPointer>

namespace varo::prueba {

class CambioDelTipoDeDatos : public Pantalla {
protected:
    void abrirOpciones() {
        clicMenu("VAROMAIN", "mnuOpciones");
        clicFicha(0);
    }
    void opcionesTrasElegirUnaColumna() {
        llegarA(Etapa::Columnas);
        clicColumna(2);
        clic("SelCol4R", "Command1(0)");
        abrirOpciones();
    }
    void esperarAviso() const {
        ASSERT_EQ(contestador.cajas().size(), 1U);
        const CajaVista& caja = contestador.cajas()[0];
        EXPECT_EQ(caja.titulo, "Cambiaste el tipo de datos de entrada");
        EXPECT_EQ(caja.texto, "Cambiaste el tipo de datos de entrada. Debes seleccionar de nuevo las "
                              "columnas de entrada");
        EXPECT_EQ(caja.icono, QMessageBox::Warning);
        EXPECT_EQ(caja.botones, QStringList{"Aceptar"});
        EXPECT_FALSE(alaVista("OpcionesPrograma"));
        EXPECT_EQ(modelo("SelCol4R"), nullptr);
        EXPECT_EQ(menusHabilitados(), "mnuCerrar mnuMapa mnuOpciones");
    }
};

TEST_F(CambioDelTipoDeDatos, AlAceptarSeAvisaUnaVezYElDialogoAntiguoSeVa) {
    opcionesTrasElegirUnaColumna();
    const QPointer<QWidget> antiguo = &ventana("SelCol4R");
    clic("OpcionesPrograma", "OptRM");
    contestador.pulsar("Aceptar");
    clic("OpcionesPrograma", "CmdAceptar");
    esperarAviso();
    EXPECT_TRUE(antiguo.isNull());
    clicMenu("VAROMAIN", "mnuMapa");
    EXPECT_TRUE(alaVista("SelColRM"));
}

TEST_F(CambioDelTipoDeDatos, CancelarNoDevuelveElTipoYTambienAvisa) {
    opcionesTrasElegirUnaColumna();
    clic("OpcionesPrograma", "Opt2D");
    contestador.pulsar("Aceptar");
    clic("OpcionesPrograma", "CmdCancelar");
    esperarAviso();
    clicMenu("VAROMAIN", "mnuMapa");
    EXPECT_TRUE(alaVista("SelCol2D"));
}

TEST_F(CambioDelTipoDeDatos, ElAspaDeCerrarTambienAvisa) {
    opcionesTrasElegirUnaColumna();
    clic("OpcionesPrograma", "OptRM");
    contestador.pulsar("Aceptar");
    cerrar("OpcionesPrograma");
    esperarAviso();
}

TEST_F(CambioDelTipoDeDatos, PulsarEnLaHojaTambienAvisaYOcultaLasOpciones) {
    opcionesTrasElegirUnaColumna();
    clic("OpcionesPrograma", "OptRM");
    contestador.pulsar("Aceptar");
    clicColumna(3);
    esperarAviso();
}

TEST_F(CambioDelTipoDeDatos, ElTipoDeAntesPasaSinAviso) {
    opcionesTrasElegirUnaColumna();
    clic("OpcionesPrograma", "OptRM");
    clic("OpcionesPrograma", "Opt4R");
    clic("OpcionesPrograma", "CmdAceptar");
    EXPECT_TRUE(contestador.cajas().empty());
    EXPECT_NE(modelo("SelCol4R"), nullptr);
}

TEST_F(CambioDelTipoDeDatos, AntesDePrepararColumnasNoHayAviso) {
    llegarA(Etapa::Hoja);
    abrirOpciones();
    clic("OpcionesPrograma", "OptRM");
    clic("OpcionesPrograma", "CmdAceptar");
    EXPECT_TRUE(contestador.cajas().empty());
    EXPECT_FALSE(alaVista("OpcionesPrograma"));
}

} // namespace varo::prueba
