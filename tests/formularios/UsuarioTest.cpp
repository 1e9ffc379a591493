#include "formularios/Usuario.h"

#include "formularios/VentanasDePrueba.h"

#include <gtest/gtest.h>

namespace varo {

namespace {

struct ConUsuario {
    ServiciosPreparados servicios;
    ProgramaDePrueba programa{servicios};
    Usuario usuario{programa};

    template <class F>
    F& mostrada() {
        F& ventana = programa.tocar<F>();
        ventana.Show();
        programa.visto();
        return ventana;
    }
    Suceso anotador(std::string linea) {
        return [this, linea = std::move(linea)] { programa.anotar(linea); };
    }
    Diario visto() { return programa.visto(); }
};

/// A window with one control of each kind, a frame within a frame and a grid.
struct VentanaSurtida : VentanaAnotada {
    explicit VentanaSurtida(ProgramaDePrueba& programa) : VentanaAnotada{programa, "S", TipoVentana::Libre} {
        Dentro.contenedor = &Fuera;
        Opt1.contenedor = &Dentro;
        Opt2.contenedor = &Dentro;
        LstAOI.AddItem("primera");
        LstAOI.AddItem("segunda");
        CboHoja.AddItem("Hoja1$");
        CboHoja.AddItem("Hoja2$");
        MSFlexGrid1.Cols(3);
    }

    GrupoOpciones grupo;
    Marco Fuera{*this, "Fuera"};
    Marco Dentro{*this, "Dentro"};
    Opcion Opt1{*this, "Opt1", "Una", grupo, true};
    Opcion Opt2{*this, "Opt2", "Otra", grupo};
    Casilla Ch{*this, "Ch", "Casilla"};
    Etiqueta Lb{*this, "Lb", "Etiqueta"};
    Lista LstAOI{*this, "LstAOI"};
    Desplegable CboHoja{*this, "CboHoja"};
    Desplegable CboFijo{*this, "CboFijo", false};
    Rejilla MSFlexGrid1{*this, "MSFlexGrid1"};
    Fichas SSTab1{*this, "SSTab1", {"Una", "Dos", "Tres"}, 0};
};

/// A window whose close box only hides it.
struct VentanaQueSeEsconde : VentanaAnotada {
    explicit VentanaQueSeEsconde(ProgramaDePrueba& programa)
        : VentanaAnotada{programa, "E", TipoVentana::Libre} {}
    void pulsarCierre() override { Hide(); }
};

/// Why an act was refused; empty when it was not.
std::string negativa(const Suceso& acto) {
    try {
        acto();
    } catch (const ActoImposible& imposible) {
        return imposible.what();
    }
    return {};
}

} // namespace

TEST(Usuario, PulsaUnBoton) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaA>();
    ventana.Cmd.Click = banco.anotador("Click");
    banco.usuario.clic(ventana.Cmd);
    banco.usuario.clic(ventana.Cmd);
    EXPECT_EQ(banco.visto(), (Diario{"Click", "Click"}));
    EXPECT_EQ(banco.programa.foco(), &ventana.Cmd);
}

TEST(Usuario, PulsarLoQueNoTieneManejadorNoHaceNada) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    banco.usuario.clic(ventana.Cmd);
    banco.usuario.dobleClic(ventana.Lb);
    banco.usuario.desplegar(ventana.CboHoja);
    EXPECT_EQ(banco.visto(), Diario{});
}

TEST(Usuario, CadaClicEnUnaCasillaLaCambia) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    ventana.Ch.Click = [&] { banco.programa.anotar("Click " + std::to_string(ventana.Ch.Value())); };
    banco.usuario.clic(ventana.Ch);
    banco.usuario.clic(ventana.Ch);
    EXPECT_EQ(banco.visto(), (Diario{"Click 1", "Click 0"}));
}

TEST(Usuario, UnClicEnUnaOpcionLaEnciendeYEnLaEncendidaNoHaceNada) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    ventana.Opt2.Click = banco.anotador("Click Opt2");
    banco.usuario.clic(ventana.Opt2);
    EXPECT_TRUE(ventana.Opt2.Value);
    EXPECT_FALSE(ventana.Opt1.Value);
    banco.usuario.clic(ventana.Opt2);
    EXPECT_TRUE(ventana.Opt2.Value);
    EXPECT_EQ(banco.visto(), Diario{"Click Opt2"});
}

TEST(Usuario, UnDobleClicCorreDblClickYNoClick) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    ventana.Lb.Click = banco.anotador("Click");
    ventana.Lb.DblClick = banco.anotador("DblClick");
    banco.usuario.dobleClic(ventana.Lb);
    EXPECT_EQ(banco.visto(), Diario{"DblClick"});
}

TEST(Usuario, EscribirTomaElFocoYCambiaElTextoDeUnaVez) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaA>();
    ventana.Texto.Change = [&] { banco.programa.anotar("Change " + ventana.Texto.Text()); };
    banco.usuario.escribir(ventana.Texto, "2,50");
    EXPECT_EQ(banco.visto(), Diario{"Change 2,50"});
    EXPECT_EQ(banco.programa.foco(), &ventana.Texto);
    banco.usuario.escribir(ventana.Texto, "2,50");
    EXPECT_EQ(banco.visto(), Diario{});
}

TEST(Usuario, EscribeEnUnDesplegableEditableYNoEnElQueNoLoEs) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    banco.usuario.escribir(ventana.CboHoja, "Hoja9$");
    EXPECT_EQ(ventana.CboHoja.Text(), "Hoja9$");
    EXPECT_EQ(negativa([&] { banco.usuario.escribir(ventana.CboFijo, "azul"); }),
              "CboFijo: no se puede escribir en él");
    EXPECT_EQ(ventana.CboFijo.Text(), "");
}

TEST(Usuario, DesplegarUnaListaCorreDropDown) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    ventana.CboFijo.DropDown = banco.anotador("DropDown");
    banco.usuario.desplegar(ventana.CboFijo);
    EXPECT_EQ(banco.visto(), Diario{"DropDown"});
    ventana.CboFijo.Enabled = false;
    EXPECT_NE(negativa([&] { banco.usuario.desplegar(ventana.CboFijo); }), "");
    EXPECT_EQ(banco.visto(), Diario{});
}

TEST(Usuario, ElegirEnUnDesplegablePoneElTextoDeLaLineaYPulsa) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    ventana.CboHoja.Click = [&] { banco.programa.anotar("Click " + ventana.CboHoja.Text()); };
    banco.usuario.elegir(ventana.CboHoja, 1);
    EXPECT_EQ(banco.visto(), Diario{"Click Hoja2$"});
}

TEST(Usuario, SeleccionaYDeseleccionaLineasDeUnaLista) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    ventana.LstAOI.Click = banco.anotador("Click");
    banco.usuario.elegir(ventana.LstAOI, 0);
    banco.usuario.elegir(ventana.LstAOI, 1);
    EXPECT_TRUE(ventana.LstAOI.Selected(0));
    EXPECT_TRUE(ventana.LstAOI.Selected(1));
    banco.usuario.elegir(ventana.LstAOI, 0, false);
    EXPECT_FALSE(ventana.LstAOI.Selected(0));
    EXPECT_EQ(banco.visto(), (Diario{"Click", "Click", "Click"}));
}

TEST(Usuario, NoEligeUnaLineaNiUnaColumnaQueNoHay) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    EXPECT_EQ(negativa([&] { banco.usuario.elegir(ventana.LstAOI, 2); }), "LstAOI: no tiene la línea 2");
    EXPECT_EQ(negativa([&] { banco.usuario.elegir(ventana.LstAOI, -1); }), "LstAOI: no tiene la línea -1");
    EXPECT_EQ(negativa([&] { banco.usuario.elegir(ventana.CboHoja, 2); }), "CboHoja: no tiene la línea 2");
    EXPECT_EQ(negativa([&] { banco.usuario.seleccionarColumna(ventana.MSFlexGrid1, 3); }),
              "MSFlexGrid1: no tiene la columna 3");
    EXPECT_EQ(ventana.CboHoja.Text(), "");
    EXPECT_EQ(ventana.MSFlexGrid1.ColSel(), 0);
}

TEST(Usuario, UnaLineaQueSeVaAlActivarLaVentanaYaNoSePuedeElegir) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    banco.mostrada<VentanaA>();
    ventana.alActivar = [&] { ventana.LstAOI.RemoveItem(1); };
    EXPECT_EQ(negativa([&] { banco.usuario.elegir(ventana.LstAOI, 1); }), "LstAOI: no tiene la línea 1");
}

TEST(Usuario, MuestraUnaFichaTrasDejarElCampo) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    ventana.Texto.LostFocus = banco.anotador("LostFocus");
    banco.usuario.escribir(ventana.Texto, "1");
    banco.usuario.mostrarFicha(ventana.SSTab1, 2);
    EXPECT_EQ(ventana.SSTab1.Tab(), 2);
    EXPECT_EQ(banco.visto(), Diario{"LostFocus"});
    EXPECT_EQ(negativa([&] { banco.usuario.mostrarFicha(ventana.SSTab1, 3); }),
              "SSTab1: no tiene la ficha 3");
    EXPECT_EQ(ventana.SSTab1.Tab(), 2);
}

TEST(Usuario, ElCampoQueRecuperaElFocoNoDejaCambiarDeFicha) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    ventana.Texto.LostFocus = [&] { ventana.Texto.SetFocus(); };
    banco.usuario.escribir(ventana.Texto, "1");
    banco.usuario.mostrarFicha(ventana.SSTab1, 2);
    EXPECT_EQ(ventana.SSTab1.Tab(), 0);
}

TEST(Usuario, SeleccionaUnaColumnaDeLaRejillaAunqueEsteEscondida) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    ventana.MSFlexGrid1.ColWidth(2, 0);
    banco.usuario.seleccionarColumna(ventana.MSFlexGrid1, 2);
    EXPECT_EQ(ventana.MSFlexGrid1.ColSel(), 2);
}

TEST(Usuario, NoUsaUnControlInhabilitadoNiInvisible) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaA>();
    ventana.Cmd.Click = banco.anotador("Click");
    ventana.Cmd.Enabled = false;
    EXPECT_EQ(negativa([&] { banco.usuario.clic(ventana.Cmd); }), "Cmd: Cmd está inhabilitado");
    ventana.Cmd.Visible = false;
    EXPECT_EQ(negativa([&] { banco.usuario.clic(ventana.Cmd); }), "Cmd: Cmd no está a la vista");
    ventana.Texto.Enabled = false;
    EXPECT_EQ(negativa([&] { banco.usuario.escribir(ventana.Texto, "1"); }),
              "Texto: Texto está inhabilitado");
    EXPECT_EQ(ventana.Texto.Text(), "");
    EXPECT_EQ(banco.visto(), Diario{});
}

TEST(Usuario, NoUsaLoQueHayEnUnMarcoInhabilitadoOInvisible) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaSurtida>();
    ventana.Dentro.Enabled = false;
    EXPECT_EQ(negativa([&] { banco.usuario.clic(ventana.Opt2); }), "Opt2: Dentro está inhabilitado");
    ventana.Dentro.Enabled = true;
    ventana.Fuera.Visible = false;
    EXPECT_EQ(negativa([&] { banco.usuario.clic(ventana.Opt2); }), "Opt2: Fuera no está a la vista");
    EXPECT_FALSE(ventana.Opt2.Value);
    ventana.Fuera.Visible = true;
    banco.usuario.clic(ventana.Opt2);
    EXPECT_TRUE(ventana.Opt2.Value);
}

TEST(Usuario, NoUsaUnMenuBajoOtroInhabilitado) {
    ConUsuario banco;
    auto& principal = banco.mostrada<Principal>();
    principal.mnuReciente.Click = banco.anotador("Click");
    principal.mnuArchivo.Enabled = false;
    EXPECT_EQ(negativa([&] { banco.usuario.clic(principal.mnuReciente); }),
              "mnuReciente: mnuArchivo está inhabilitado");
    principal.mnuArchivo.Enabled = true;
    banco.usuario.clic(principal.mnuReciente);
    EXPECT_EQ(banco.visto(), Diario{"Click"});
}

TEST(Usuario, NoUsaUnaVentanaOculta) {
    ConUsuario banco;
    auto& ventana = banco.programa.tocar<VentanaA>();
    EXPECT_EQ(negativa([&] { banco.usuario.clic(ventana.Cmd); }), "Cmd: la ventana A no está a la vista");
    EXPECT_EQ(negativa([&] { banco.usuario.activar(ventana); }), "la ventana A no está a la vista");
    EXPECT_EQ(negativa([&] { banco.usuario.cerrar(ventana); }), "la ventana A no está a la vista");
    EXPECT_EQ(banco.visto(), Diario{"Load A"});
}

TEST(Usuario, ElImpedimentoDiceQuienEstorbaYPorQue) {
    ConUsuario banco;
    auto& ventana = banco.programa.tocar<VentanaSurtida>();
    const auto impedimento = [&] { return Usuario::impedimento(ventana.Opt1); };
    ASSERT_TRUE(impedimento());
    EXPECT_EQ(impedimento()->motivo, Impedimento::Motivo::VentanaOculta);
    ventana.Show();
    EXPECT_FALSE(impedimento());
    ventana.Fuera.Enabled = false;
    ASSERT_TRUE(impedimento());
    EXPECT_EQ(impedimento()->motivo, Impedimento::Motivo::Inhabilitado);
    EXPECT_EQ(impedimento()->causa, &ventana.Fuera);
    ventana.Opt1.Visible = false;
    ASSERT_TRUE(impedimento());
    EXPECT_EQ(impedimento()->motivo, Impedimento::Motivo::Invisible);
    EXPECT_EQ(impedimento()->causa, &ventana.Opt1);
}

TEST(Usuario, PrimeroSePierdeElFocoYLuegoLlegaElClic) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaA>();
    ventana.Texto.LostFocus = banco.anotador("LostFocus");
    ventana.Cmd.Click = banco.anotador("Click");
    banco.usuario.escribir(ventana.Texto, "1");
    banco.usuario.clic(ventana.Cmd);
    EXPECT_EQ(banco.visto(), (Diario{"LostFocus", "Click"}));
}

TEST(Usuario, SiElCampoRecuperaElFocoElClicNoLlega) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaA>();
    ventana.Texto.LostFocus = [&] {
        banco.programa.anotar("LostFocus");
        if (ventana.Texto.Text() == "x") {
            ventana.Texto.SetFocus();
        }
    };
    ventana.Cmd.Click = banco.anotador("Click");
    banco.usuario.escribir(ventana.Texto, "x");
    banco.usuario.clic(ventana.Cmd);
    EXPECT_EQ(banco.visto(), Diario{"LostFocus"});
    EXPECT_EQ(banco.programa.foco(), &ventana.Texto);
    banco.usuario.escribir(ventana.Otro, "1");
    EXPECT_EQ(ventana.Otro.Text(), "") << "tampoco se llega a otro campo";
    EXPECT_EQ(banco.visto(), Diario{"LostFocus"});
    banco.usuario.escribir(ventana.Texto, "1");
    banco.usuario.clic(ventana.Cmd);
    EXPECT_EQ(banco.visto(), (Diario{"LostFocus", "Click"}));
}

TEST(Usuario, ElCampoQueRetieneElFocoNoRetieneAQuienCambiaDeVentana) {
    ConUsuario banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.mostrada<VentanaB>();
    a.Texto.LostFocus = [&] {
        banco.programa.anotar("LostFocus");
        a.Texto.SetFocus();
    };
    b.Cmd.Click = banco.anotador("Click B");
    banco.usuario.escribir(a.Texto, "x");
    banco.visto();
    banco.usuario.clic(b.Cmd);
    EXPECT_EQ(banco.visto(), (Diario{"LostFocus", "Deactivate A", "Activate B", "Click B"}));
}

TEST(Usuario, LasEtiquetasYLosMenusNoTomanElFoco) {
    ConUsuario banco;
    auto& principal = banco.mostrada<Principal>();
    auto& ventana = banco.mostrada<VentanaSurtida>();
    ventana.Texto.LostFocus = banco.anotador("LostFocus");
    banco.usuario.escribir(ventana.Texto, "1");
    banco.usuario.clic(ventana.Lb);
    EXPECT_EQ(banco.programa.foco(), &ventana.Texto);
    EXPECT_EQ(banco.visto(), Diario{});

    principal.Texto.LostFocus = banco.anotador("LostFocus P");
    banco.usuario.escribir(principal.Texto, "1");
    banco.visto();
    banco.usuario.clic(principal.mnuAbrir);
    EXPECT_EQ(banco.programa.foco(), &principal.Texto);
    EXPECT_EQ(banco.visto(), Diario{});
}

TEST(Usuario, DejarElFocoLoPierdeUnaVez) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaA>();
    ventana.Texto.LostFocus = banco.anotador("LostFocus");
    banco.usuario.dejarFoco();
    EXPECT_EQ(banco.visto(), Diario{});
    banco.usuario.escribir(ventana.Texto, "1");
    banco.usuario.dejarFoco();
    banco.usuario.dejarFoco();
    EXPECT_EQ(banco.visto(), Diario{"LostFocus"});
    EXPECT_EQ(banco.programa.foco(), nullptr);
}

TEST(Usuario, UnClicEnOtraVentanaLaActivaAntesDeLlegar) {
    ConUsuario banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.mostrada<VentanaB>();
    b.Texto.LostFocus = banco.anotador("LostFocus B");
    a.Cmd.Click = banco.anotador("Click A");
    banco.usuario.escribir(b.Texto, "1");
    banco.usuario.clic(a.Cmd);
    EXPECT_EQ(banco.visto(), (Diario{"LostFocus B", "Deactivate B", "Activate A", "Click A"}));
}

TEST(Usuario, UnClicEnUnaHijaQuitaLaActivacionALaOtra) {
    ConUsuario banco;
    auto& una = banco.mostrada<HijaUna>();
    banco.mostrada<HijaOtra>();
    banco.usuario.clic(una.Cmd);
    EXPECT_EQ(banco.visto(), (Diario{"Deactivate H2", "Activate H1"}));
}

TEST(Usuario, LoQueSeVeQueNoSePuedeNoMueveLaActivacion) {
    ConUsuario banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.mostrada<VentanaB>();
    a.Cmd.Enabled = false;
    EXPECT_THROW(banco.usuario.clic(a.Cmd), ActoImposible);
    EXPECT_EQ(banco.visto(), Diario{});
    EXPECT_EQ(banco.programa.activa(), &b);
}

TEST(Usuario, UnMenuDeLaPrincipalDejaActivaALaHija) {
    ConUsuario banco;
    auto& principal = banco.mostrada<Principal>();
    auto& hija = banco.mostrada<HijaUna>();
    principal.mnuAbrir.Click = banco.anotador("Click");
    banco.usuario.clic(principal.mnuAbrir);
    EXPECT_EQ(banco.visto(), Diario{"Click"});
    EXPECT_EQ(banco.programa.activa(), &hija);
}

TEST(Usuario, ElTituloDeLaPrincipalDejaActivaALaHija) {
    ConUsuario banco;
    auto& principal = banco.mostrada<Principal>();
    auto& hija = banco.mostrada<HijaUna>();
    banco.usuario.activar(principal);
    EXPECT_EQ(banco.visto(), Diario{});
    EXPECT_EQ(banco.programa.activa(), &hija);
}

TEST(Usuario, UnMenuDeLaPrincipalQuitaLaActivacionAUnaLibre) {
    ConUsuario banco;
    auto& principal = banco.mostrada<Principal>();
    banco.mostrada<VentanaA>();
    principal.mnuAbrir.Click = banco.anotador("Click");
    banco.usuario.clic(principal.mnuAbrir);
    EXPECT_EQ(banco.visto(), (Diario{"Deactivate A", "Activate P", "Click"}));
    EXPECT_EQ(banco.programa.activa(), &principal);
}

TEST(Usuario, ActivarMueveLaActivacion) {
    ConUsuario banco;
    auto& a = banco.mostrada<VentanaA>();
    banco.mostrada<VentanaB>();
    banco.usuario.activar(a);
    EXPECT_EQ(banco.visto(), (Diario{"Deactivate B", "Activate A"}));
    banco.usuario.activar(a);
    EXPECT_EQ(banco.visto(), Diario{});
}

TEST(Usuario, CerrarUnaVentanaLaActivaPrimero) {
    ConUsuario banco;
    auto& a = banco.mostrada<VentanaA>();
    banco.mostrada<VentanaB>();
    banco.usuario.cerrar(a);
    EXPECT_EQ(banco.visto(),
              (Diario{"Deactivate B", "Activate A", "QueryUnload A", "Unload A", "Activate B"}));
    EXPECT_EQ(banco.programa.cargada<VentanaA>(), nullptr);
}

TEST(Usuario, CerrarLaPrincipalConUnaHijaActivaNoLaDesactiva) {
    ConUsuario banco;
    auto& principal = banco.mostrada<Principal>();
    banco.mostrada<HijaUna>();
    banco.usuario.cerrar(principal);
    EXPECT_EQ(banco.visto(),
              (Diario{"QueryUnload P", "QueryUnload H1", "Unload H1", "Activate P", "Unload P"}));
    EXPECT_TRUE(banco.programa.terminado());
}

TEST(Usuario, LaVentanaDiceQueHaceSuBotonDeCierre) {
    ConUsuario banco;
    auto& ventana = banco.mostrada<VentanaQueSeEsconde>();
    banco.usuario.cerrar(ventana);
    EXPECT_EQ(banco.visto(), Diario{"Deactivate E"});
    EXPECT_EQ(banco.programa.cargada<VentanaQueSeEsconde>(), &ventana);
}

TEST(Usuario, NoCierraLaQueSeNiega) {
    ConUsuario banco;
    auto& a = banco.mostrada<VentanaA>();
    a.acepta = false;
    banco.usuario.cerrar(a);
    EXPECT_EQ(banco.visto(), Diario{"QueryUnload A"});
    EXPECT_TRUE(a.Visible());
}

TEST(Usuario, SiAlDejarLaOtraVentanaElControlSeInhabilitaElClicNoLlega) {
    ConUsuario banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.mostrada<VentanaB>();
    b.alDesactivar = [&] { a.Cmd.Enabled = false; };
    a.Cmd.Click = banco.anotador("Click A");
    EXPECT_EQ(negativa([&] { banco.usuario.clic(a.Cmd); }), "Cmd: Cmd está inhabilitado");
    EXPECT_EQ(banco.visto(), (Diario{"Deactivate B", "Activate A"}));
}

TEST(Usuario, SiAlDejarLaOtraVentanaLaDelControlSeDescargaElClicNoLlega) {
    ConUsuario banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.mostrada<VentanaB>();
    b.alDesactivar = [&] { banco.programa.descargar<VentanaA>(); };
    a.Cmd.Click = banco.anotador("Click A");
    EXPECT_EQ(negativa([&] { banco.usuario.clic(a.Cmd); }), "Cmd: la ventana A no está a la vista");
    EXPECT_EQ(banco.programa.cargada<VentanaA>(), nullptr);
    EXPECT_EQ(banco.programa.foco(), nullptr);
    banco.usuario.clic(b.Cmd);
    EXPECT_EQ(banco.programa.foco(), &b.Cmd) << "el foco no se quedó en la ventana que se fue";
}

TEST(Usuario, SiAlDejarLaOtraVentanaLaQueSeCerrabaSeVaYaNoSeCierra) {
    ConUsuario banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.mostrada<VentanaB>();
    b.alDesactivar = [&] { a.Hide(); };
    EXPECT_EQ(negativa([&] { banco.usuario.cerrar(a); }), "la ventana A no está a la vista");
    EXPECT_EQ(banco.programa.cargada<VentanaA>(), &a);
}

TEST(Usuario, UnBotonPuedeDescargarSuPropiaVentana) {
    ConUsuario banco;
    auto& a = banco.mostrada<VentanaA>();
    a.Cmd.Click = [&] {
        banco.programa.descargar(a);
        banco.programa.anotar("después de " + a.Cmd.Caption());
    };
    banco.usuario.clic(a.Cmd);
    EXPECT_EQ(banco.visto(), (Diario{"QueryUnload A", "Unload A", "después de Pulsar"}));
    EXPECT_EQ(banco.programa.cargada<VentanaA>(), nullptr);
    EXPECT_EQ(banco.programa.foco(), nullptr);
}

TEST(Usuario, UnFalloEnUnClicSeCuentaYElSiguienteClicFunciona) {
    ConUsuario banco;
    auto& a = banco.mostrada<VentanaA>();
    banco.servicios.esperarFallo(11);
    a.Cmd.Click = [] { throw ErrorEjecucion{11}; };
    banco.usuario.clic(a.Cmd);
    EXPECT_TRUE(banco.servicios.todoPedido());
    a.Cmd.Click = banco.anotador("Click");
    banco.usuario.clic(a.Cmd);
    EXPECT_EQ(banco.visto(), Diario{"Click"});
}

TEST(Usuario, UnFalloQueNadieEsperabaLlegaAQuienPulsa) {
    ConUsuario banco;
    auto& a = banco.mostrada<VentanaA>();
    a.Cmd.Click = [] { throw ErrorEjecucion{13}; };
    EXPECT_THROW(banco.usuario.clic(a.Cmd), FalloInesperado);
}

} // namespace varo
