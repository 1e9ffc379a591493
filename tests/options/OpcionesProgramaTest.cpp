// What the options window does as a person uses it: the kind of crown data, the species code, and what the
// loss of activation sets off.
#include "options/OpcionesPrograma.h"
#include "data/SelColumnas.h"
#include "formularios/ServiciosPreparados.h"
#include "formularios/Usuario.h"
#include "shell/Programa.h"
#include "shell/VAROMAIN.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace varo {

namespace {

const std::string tituloCambio = "Cambiaste el tipo de datos de entrada";
const std::string textoCambio = tituloCambio + ". Debes seleccionar de nuevo las columnas de entrada";

class OpcionesALaVista : public testing::Test {
protected:
    void SetUp() override {
        principal.Show();
        principal.mnuOpciones.Enabled = true; // as with an open plot file
        principal.mnuMapa.Enabled = true;
        abrir();
    }
    void TearDown() override { EXPECT_TRUE(servicios.todoPedido()); }

    void abrir() { usuario.clic(principal.mnuOpciones); }

    void haberElegidoColumnas() { programa.sesion.UltimaColumna = 7; }

    void esperarMenus(bool habilitados) {
        EXPECT_EQ(principal.mnuMapa.Enabled(), habilitados);
        EXPECT_EQ(principal.mnuOpciones.Enabled(), habilitados);
    }

    void esperarBotonesDeCodigo(bool habilitados) {
        EXPECT_EQ(programa.tocar<SelCol4R>().Command1(7).Enabled(), habilitados);
        EXPECT_EQ(programa.tocar<SelCol2D>().Command1(5).Enabled(), habilitados);
        EXPECT_EQ(programa.tocar<SelColRM>().Command1(4).Enabled(), habilitados);
    }

    ServiciosPreparados servicios;
    Programa programa{servicios};
    Usuario usuario{programa};
    VAROMAIN& principal = programa.tocar<VAROMAIN>();
    OpcionesPrograma& opciones = programa.tocar<OpcionesPrograma>();
};

/// What a person can use at this moment of what lies on a tab, in its frames too.
std::vector<std::string> utilizables(const OpcionesPrograma& opciones, int ficha) {
    std::vector<std::string> nombres;
    const auto& contenido = opciones.SSTab1.contenido(ficha);
    for (const Control* control : opciones.controles()) {
        const Control* exterior = control;
        while (exterior->contenedor != nullptr) {
            exterior = exterior->contenedor;
        }
        const bool enLaFicha = std::find(contenido.begin(), contenido.end(), exterior) != contenido.end();
        const bool decorativo = control->tipo() == TipoControl::Marco ||
                                control->tipo() == TipoControl::Imagen ||
                                control->tipo() == TipoControl::Etiqueta;
        if (enLaFicha && !decorativo && !Usuario::impedimento(*control)) {
            nombres.push_back(control->nombreCompleto());
        }
    }
    return nombres;
}

} // namespace

TEST_F(OpcionesALaVista, LaPrimeraVezSoloSePuedeActivarLaDensidadPuntual) {
    EXPECT_TRUE(opciones.Visible());
    ASSERT_EQ(opciones.SSTab1.Tab(), 4);
    EXPECT_EQ(utilizables(opciones, 4), std::vector<std::string>{"ChIDPActivar"});
}

TEST_F(OpcionesALaVista, DeLasDemasFamiliasConActivarTampocoSePuedeUsarOtraCosa) {
    EXPECT_EQ(utilizables(opciones, 2), std::vector<std::string>{"ChSupCopa"});
    EXPECT_EQ(utilizables(opciones, 3), std::vector<std::string>{"ChAOIActivar"});
    EXPECT_EQ(utilizables(opciones, 5), std::vector<std::string>{"ChDRActivar"});
    EXPECT_EQ(utilizables(opciones, 6), std::vector<std::string>{"ChAPA"});
}

TEST_F(OpcionesALaVista, UnRadioMedioSoloDaCirculos) {
    usuario.clic(opciones.OptRM);
    EXPECT_TRUE(opciones.Optcirc.Value());
    EXPECT_FALSE(opciones.OptElipse.Value());
    EXPECT_THROW(usuario.clic(opciones.OptElipse), ActoImposible);
}

TEST_F(OpcionesALaVista, DosDiametrosTrasUnRadioMedioSiguenEnCirculosConLaElipseDisponible) {
    usuario.clic(opciones.OptRM);
    usuario.clic(opciones.Opt2D);
    EXPECT_TRUE(opciones.Optcirc.Value());
    EXPECT_FALSE(opciones.OptElipse.Value());
    usuario.clic(opciones.OptElipse);
    EXPECT_TRUE(opciones.OptElipse.Value());
    EXPECT_FALSE(opciones.Optcirc.Value());
}

TEST_F(OpcionesALaVista, CuatroRadiosTrasUnRadioMedioSiguenEnCirculosConLaElipseDisponible) {
    usuario.clic(opciones.OptRM);
    usuario.clic(opciones.Opt4R);
    EXPECT_TRUE(opciones.OptElipse.Enabled());
    EXPECT_FALSE(opciones.OptElipse.Value());
    EXPECT_TRUE(opciones.Optcirc.Value());
}

TEST_F(OpcionesALaVista, DosDiametrosDejanLaElipseComoEstaba) {
    usuario.clic(opciones.Opt2D);
    EXPECT_TRUE(opciones.OptElipse.Value());
    EXPECT_TRUE(opciones.OptElipse.Enabled());
}

TEST_F(OpcionesALaVista, CancelarNoDeshaceLoCambiado) {
    usuario.clic(opciones.Optmetro);
    usuario.clic(opciones.CmdCancelar);
    EXPECT_FALSE(opciones.Visible());
    EXPECT_TRUE(opciones.Optmetro.Value());
    EXPECT_FALSE(opciones.Optdecim.Value());
}

TEST_F(OpcionesALaVista, LosMenusEstanInhabilitadosHastaAceptar) {
    esperarMenus(false);
    usuario.clic(opciones.CmdAceptar);
    esperarMenus(true);
    EXPECT_FALSE(opciones.Visible());
    EXPECT_EQ(programa.activa(), &principal);
}

TEST_F(OpcionesALaVista, CancelarHabilitaLosMenusComoAceptar) {
    usuario.clic(opciones.CmdCancelar);
    esperarMenus(true);
    EXPECT_EQ(programa.activa(), &principal);
}

TEST_F(OpcionesALaVista, AceptarConservaLaVentanaConSusValores) {
    usuario.clic(opciones.Optcm);
    usuario.clic(opciones.CmdAceptar);
    ASSERT_EQ(programa.cargada<OpcionesPrograma>(), &opciones);
    abrir();
    EXPECT_TRUE(opciones.Visible());
    EXPECT_TRUE(opciones.Optcm.Value());
}

TEST_F(OpcionesALaVista, SinColumnasElegidasElCambioDeTipoNoDaMensaje) {
    usuario.clic(opciones.OptRM);
    usuario.clic(opciones.CmdAceptar);
    EXPECT_TRUE(servicios.mensajes().empty());
    EXPECT_NE(programa.cargada<SelCol4R>(), nullptr);
}

TEST_F(OpcionesALaVista, ConColumnasElegidasElCambioDeTipoAvisaUnaVezAlAceptar) {
    haberElegidoColumnas();
    servicios.esperarMensaje(textoCambio);
    usuario.clic(opciones.OptRM);
    EXPECT_TRUE(servicios.mensajes().empty());
    usuario.clic(opciones.CmdAceptar);

    const std::vector<ServiciosPreparados::Mensaje> avisos{{textoCambio, tituloCambio, 48}};
    EXPECT_EQ(servicios.mensajes(), avisos);
    EXPECT_FALSE(opciones.Visible());
    esperarMenus(true);
}

TEST_F(OpcionesALaVista, CancelarUnCambioDeTipoAvisaTambien) {
    haberElegidoColumnas();
    servicios.esperarMensaje(textoCambio);
    usuario.clic(opciones.Opt2D);
    usuario.clic(opciones.CmdCancelar);
    EXPECT_EQ(servicios.mensajes().size(), 1U);
    EXPECT_TRUE(opciones.Opt2D.Value());
}

TEST_F(OpcionesALaVista, ElCambioDeTipoDescargaSoloElDialogoDelTipoAntiguo) {
    struct Cambio {
        Opcion& antes;
        Opcion& despues;
        bool queda4R, queda2D, quedaRM;
    };
    const std::vector<Cambio> cambios{{opciones.Opt4R, opciones.Opt2D, false, true, true},
                                      {opciones.Opt2D, opciones.OptRM, true, false, true},
                                      {opciones.OptRM, opciones.Opt4R, true, true, false}};
    haberElegidoColumnas();
    for (const Cambio& cambio : cambios) {
        SCOPED_TRACE(cambio.antes.Name() + " a " + cambio.despues.Name());
        ASSERT_TRUE(cambio.antes.Value());
        servicios.esperarMensaje(textoCambio);
        usuario.clic(cambio.despues);
        usuario.clic(opciones.CmdAceptar);
        EXPECT_EQ(programa.cargada<SelCol4R>() != nullptr, cambio.queda4R);
        EXPECT_EQ(programa.cargada<SelCol2D>() != nullptr, cambio.queda2D);
        EXPECT_EQ(programa.cargada<SelColRM>() != nullptr, cambio.quedaRM);
        abrir();
    }
}

TEST_F(OpcionesALaVista, ElDialogoDelTipoAntiguoPierdeSusLineas) {
    programa.tocar<SelCol4R>().List1.AddItem("Coordenada X: Columna: 2 (X)");
    programa.tocar<SelCol2D>().List1.AddItem("Coordenada Y: Columna: 3 (Y)");
    haberElegidoColumnas();
    servicios.esperarMensaje(textoCambio);
    usuario.clic(opciones.OptRM);
    usuario.clic(opciones.CmdAceptar);
    EXPECT_EQ(programa.tocar<SelCol4R>().List1.ListCount(), 0);
    EXPECT_EQ(programa.tocar<SelCol2D>().List1.ListCount(), 1);
}

TEST_F(OpcionesALaVista, LasColumnasDeLaSesionQuedanTrasElCambioDeTipo) {
    haberElegidoColumnas();
    programa.sesion.Columnas.redimensionarConservando(7);
    programa.sesion.Columnas(2) = 4;
    servicios.esperarMensaje(textoCambio);
    usuario.clic(opciones.OptRM);
    usuario.clic(opciones.CmdAceptar);
    EXPECT_EQ(programa.sesion.UltimaColumna.valor(), 7);
    EXPECT_EQ(programa.sesion.Columnas(2).valor(), 4);
}

TEST_F(OpcionesALaVista, UnCambioDeshechoAntesDeSalirPasaInadvertido) {
    haberElegidoColumnas();
    usuario.clic(opciones.OptRM);
    usuario.clic(opciones.Opt4R);
    usuario.clic(opciones.CmdAceptar);
    EXPECT_TRUE(servicios.mensajes().empty());
    EXPECT_NE(programa.cargada<SelCol4R>(), nullptr);
}

TEST_F(OpcionesALaVista, PulsarEnOtraVentanaConElTipoCambiadoCierraLasOpciones) {
    haberElegidoColumnas();
    servicios.esperarMensaje(textoCambio);
    usuario.clic(opciones.OptRM);
    usuario.activar(principal);
    EXPECT_EQ(servicios.mensajes().size(), 1U);
    EXPECT_FALSE(opciones.Visible());
    esperarMenus(true);
    EXPECT_EQ(programa.cargada<SelCol4R>(), nullptr);
}

TEST_F(OpcionesALaVista, PulsarEnOtraVentanaSinCambioDeTipoDejaLasOpcionesAbiertas) {
    haberElegidoColumnas();
    usuario.clic(opciones.Optmetro);
    usuario.activar(principal);
    EXPECT_TRUE(opciones.Visible());
    esperarMenus(false);
}

TEST_F(OpcionesALaVista, ElTipoSeComparaDesdeLaUltimaActivacion) {
    usuario.clic(opciones.OptRM);
    usuario.activar(principal); // no columns yet: the change passes
    haberElegidoColumnas();
    usuario.activar(opciones);
    usuario.clic(opciones.CmdAceptar);
    EXPECT_TRUE(servicios.mensajes().empty());
}

TEST_F(OpcionesALaVista, QuitarElCodigoInhabilitaLosBotonesAlPerderLaActivacionYNoAntes) {
    esperarBotonesDeCodigo(true);
    usuario.clic(opciones.ChCodigo);
    ASSERT_EQ(opciones.ChCodigo.Value(), 0);
    esperarBotonesDeCodigo(true);
    usuario.activar(principal);
    esperarBotonesDeCodigo(false);
}

TEST_F(OpcionesALaVista, ReponerElCodigoHabilitaLosBotonesAlPerderLaActivacion) {
    usuario.clic(opciones.ChCodigo);
    usuario.activar(principal);
    usuario.clic(opciones.ChCodigo);
    esperarBotonesDeCodigo(false);
    usuario.clic(opciones.CmdAceptar);
    esperarBotonesDeCodigo(true);
}

TEST_F(OpcionesALaVista, CadaDesactivacionEscribeLosBotonesAunqueNadaCambie) {
    programa.tocar<SelCol2D>().Command1(5).Enabled = false;
    usuario.activar(principal);
    esperarBotonesDeCodigo(true);
}

TEST_F(OpcionesALaVista, ElDialogoAntiguoSeRecreaConSuBotonDeCodigoHabilitado) {
    haberElegidoColumnas();
    servicios.esperarMensaje(textoCambio);
    usuario.clic(opciones.ChCodigo);
    usuario.clic(opciones.OptRM);
    usuario.clic(opciones.CmdAceptar);
    // The buttons are disabled before the window of the four radii is unloaded.
    EXPECT_TRUE(programa.tocar<SelCol4R>().Command1(7).Enabled());
    EXPECT_FALSE(programa.tocar<SelCol2D>().Command1(5).Enabled());
    EXPECT_FALSE(programa.tocar<SelColRM>().Command1(4).Enabled());
}

TEST_F(OpcionesALaVista, CadaClicEnElCodigoCuentaYOlvidaLosCodigos) {
    programa.sesion.NumCodigos = 3;
    usuario.clic(opciones.ChCodigo);
    EXPECT_EQ(programa.sesion.CambiosCodigo.valor(), 1);
    EXPECT_EQ(programa.sesion.NumCodigos.valor(), 0);
    usuario.clic(opciones.ChCodigo);
    EXPECT_EQ(programa.sesion.CambiosCodigo.valor(), 2);
}

TEST_F(OpcionesALaVista, LosClicsEnElCodigoDesbordanTras32767) {
    programa.sesion.CambiosCodigo = 32767;
    programa.sesion.NumCodigos = 3;
    servicios.esperarFallo(6);
    usuario.clic(opciones.ChCodigo);
    EXPECT_EQ(programa.sesion.CambiosCodigo.valor(), 32767);
    EXPECT_EQ(programa.sesion.NumCodigos.valor(), 3);
}

TEST(OpcionesPrograma, QuienLeePrimeroVeLosValoresDeDiseno) {
    ServiciosPreparados servicios;
    Programa programa{servicios};
    ASSERT_EQ(programa.cargada<OpcionesPrograma>(), nullptr);
    EXPECT_TRUE(programa.tocar<OpcionesPrograma>().Optdecim.Value());
    EXPECT_FALSE(programa.cargada<OpcionesPrograma>()->Visible());
}

TEST(OpcionesPrograma, DescargadaVuelveASusValoresDeDiseno) {
    ServiciosPreparados servicios;
    Programa programa{servicios};
    auto& opciones = programa.tocar<OpcionesPrograma>();
    opciones.OptRM.Value = true;
    opciones.TxtBAF1(6).Text = "2,50";
    programa.descargar<OpcionesPrograma>();

    auto& otraVez = programa.tocar<OpcionesPrograma>();
    EXPECT_TRUE(otraVez.Opt4R.Value());
    EXPECT_TRUE(otraVez.OptElipse.Value());
    EXPECT_TRUE(otraVez.OptElipse.Enabled());
    EXPECT_EQ(otraVez.TxtBAF1(6).Text(), "0,00");
}

TEST(OpcionesPrograma, LaRazonDeAlturasDeAOIQuedaFueraDelGrupo) {
    ServiciosPreparados servicios;
    Programa programa{servicios};
    auto& opciones = programa.tocar<OpcionesPrograma>();
    opciones.OptHjHi.Value = true;
    EXPECT_TRUE(opciones.OptAOIDjDi.Value());
}

} // namespace varo
