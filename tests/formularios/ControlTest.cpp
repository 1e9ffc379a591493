#include "formularios/VentanasDePrueba.h"

#include <gtest/gtest.h>

namespace varo {

namespace {

struct GrupoDeTres : Banco {
    GrupoOpciones grupo;
    Opcion una{ventana, "Una", "Una", grupo, true};
    Opcion dos{ventana, "Dos", "Dos", grupo};
    Opcion tres{ventana, "Tres", "Tres", grupo};

    GrupoDeTres() {
        una.Click = anotador("Click Una");
        dos.Click = anotador("Click Dos");
        tres.Click = anotador("Click Tres");
    }
    [[nodiscard]] std::vector<bool> valores() const { return {una.Value(), dos.Value(), tres.Value()}; }
};

} // namespace

TEST(Control, NaceHabilitadoVisibleYSinPulsar) {
    Banco banco;
    const Casilla casilla{banco.ventana, {"ChN", 3}, "N (pies/ha)"};
    EXPECT_EQ(casilla.Name(), "ChN");
    EXPECT_EQ(casilla.Index(), 3);
    EXPECT_EQ(casilla.nombreCompleto(), "ChN(3)");
    EXPECT_EQ(casilla.Caption(), "N (pies/ha)");
    EXPECT_TRUE(casilla.Enabled);
    EXPECT_TRUE(casilla.Visible);
    EXPECT_EQ(casilla.Value(), 0);
    EXPECT_EQ(casilla.contenedor, nullptr);
    EXPECT_EQ(&casilla.ventana(), &banco.ventana);
}

TEST(Control, SinIndiceSuNombreCompletoEsElNombre) {
    Banco banco;
    const Boton boton{banco.ventana, "CmdAceptar", "Aceptar"};
    EXPECT_EQ(boton.Index(), -1);
    EXPECT_EQ(boton.nombreCompleto(), "CmdAceptar");
}

TEST(Control, CadaTipoDiceComoSeLlama) {
    EXPECT_EQ(NombreTipo(TipoControl::Etiqueta), "Etiqueta");
    EXPECT_EQ(NombreTipo(TipoControl::Opcion), "Opcion");
    EXPECT_EQ(NombreTipo(TipoControl::Boton), "Boton");
    EXPECT_EQ(NombreTipo(TipoControl::Menu), "Menu");
    EXPECT_EQ(NombreTipo(TipoControl::Fichas), "Fichas");
}

TEST(Control, UnaPropiedadQueCambiaAvisaUnaVezYLaQueNoCambiaCalla) {
    Banco banco;
    Boton boton{banco.ventana, "Cmd", "Antes"};
    boton.observar(banco.anotador("aviso"));
    boton.Caption = "Antes";
    boton.Enabled = true;
    EXPECT_EQ(banco.visto(), Diario{});
    boton.Caption = "Después";
    EXPECT_EQ(banco.visto(), Diario{"aviso"});
    boton.Enabled = false;
    boton.Left = 120;
    EXPECT_EQ(banco.visto(), (Diario{"aviso", "aviso"}));
    EXPECT_EQ(boton.Caption(), "Después");
    EXPECT_FALSE(boton.Enabled);
}

TEST(Control, LosObservadoresSeEnteranEnElOrdenEnQueLlegaron) {
    Banco banco;
    Boton boton{banco.ventana, "Cmd"};
    boton.observar(banco.anotador("uno"));
    const int dos = boton.observar(banco.anotador("dos"));
    boton.observar(banco.anotador("tres"));
    boton.Enabled = false;
    EXPECT_EQ(banco.visto(), (Diario{"uno", "dos", "tres"}));
    boton.dejarDeObservar(dos);
    boton.Enabled = true;
    EXPECT_EQ(banco.visto(), (Diario{"uno", "tres"}));
}

TEST(Control, UnObservadorQueSeVaMientrasSeAvisaYaNoSeEntera) {
    Banco banco;
    Boton boton{banco.ventana, "Cmd"};
    int segundo = 0;
    boton.observar([&] {
        banco.programa.anotar("primero");
        boton.dejarDeObservar(segundo);
    });
    segundo = boton.observar(banco.anotador("segundo"));
    boton.Enabled = false;
    EXPECT_EQ(banco.visto(), Diario{"primero"});
}

TEST(Control, UnObservadorPuedeIrseASiMismoYElSiguienteSeEntera) {
    Banco banco;
    Boton boton{banco.ventana, "Cmd"};
    int primero = 0;
    primero = boton.observar([&] {
        banco.programa.anotar("primero");
        boton.dejarDeObservar(primero);
    });
    boton.observar(banco.anotador("segundo"));
    boton.Enabled = false;
    EXPECT_EQ(banco.visto(), (Diario{"primero", "segundo"}));
    boton.Enabled = true;
    EXPECT_EQ(banco.visto(), Diario{"segundo"});
}

TEST(Control, UnObservadorQueLlegaMientrasSeAvisaSeEnteraDelCambioSiguiente) {
    Banco banco;
    Boton boton{banco.ventana, "Cmd"};
    bool llegado = false;
    boton.observar([&] {
        banco.programa.anotar("viejo");
        if (!std::exchange(llegado, true)) {
            boton.observar(banco.anotador("nuevo"));
        }
    });
    boton.Enabled = false;
    EXPECT_EQ(banco.visto(), Diario{"viejo"});
    boton.Enabled = true;
    EXPECT_EQ(banco.visto(), (Diario{"viejo", "nuevo"}));
}

TEST(Opcion, EncendidaPorCodigoApagaASuGrupoYPulsaUnaVez) {
    GrupoDeTres grupo;
    grupo.dos.Value = true;
    EXPECT_EQ(grupo.valores(), (std::vector<bool>{false, true, false}));
    EXPECT_EQ(grupo.visto(), Diario{"Click Dos"});
}

TEST(Opcion, LaQueYaEstabaEncendidaNoPulsa) {
    GrupoDeTres grupo;
    grupo.una.Value = true;
    EXPECT_EQ(grupo.valores(), (std::vector<bool>{true, false, false}));
    EXPECT_EQ(grupo.visto(), Diario{});
}

TEST(Opcion, ApagarlaPorCodigoNoPulsaNiEnciendeOtra) {
    GrupoDeTres grupo;
    grupo.una.Value = false;
    EXPECT_EQ(grupo.valores(), (std::vector<bool>{false, false, false}));
    EXPECT_EQ(grupo.visto(), Diario{});
}

TEST(Opcion, OtroGrupoNoSeEntera) {
    GrupoDeTres grupo;
    GrupoOpciones otroGrupo;
    const Opcion sola{grupo.ventana, "Sola", "Sola", otroGrupo, true};
    grupo.dos.Value = true;
    EXPECT_TRUE(sola.Value);
    EXPECT_EQ(sola.grupo(), GrupoOpciones{const_cast<Opcion*>(&sola)});
}

TEST(Opcion, CuandoPulsaElGrupoEstaYaComoQueda) {
    GrupoDeTres grupo;
    std::vector<bool> alPulsar;
    grupo.tres.Click = [&] { alPulsar = grupo.valores(); };
    grupo.tres.Value = true;
    EXPECT_EQ(alPulsar, (std::vector<bool>{false, false, true}));
}

TEST(Opcion, SuClickPuedeEncenderOtraDelGrupo) {
    GrupoDeTres grupo;
    grupo.dos.Click = [&] {
        grupo.programa.anotar("Click Dos");
        grupo.tres.Value = true;
    };
    grupo.dos.Value = true;
    EXPECT_EQ(grupo.valores(), (std::vector<bool>{false, false, true}));
    EXPECT_EQ(grupo.visto(), (Diario{"Click Dos", "Click Tres"}));
}

TEST(Opcion, TambienLaQueSeApagaAvisaASusObservadores) {
    GrupoDeTres grupo;
    grupo.una.observar(grupo.anotador("aviso Una"));
    grupo.dos.observar(grupo.anotador("aviso Dos"));
    grupo.tres.observar(grupo.anotador("aviso Tres"));
    grupo.dos.Value = true;
    EXPECT_EQ(grupo.visto(), (Diario{"aviso Una", "aviso Dos", "Click Dos"}));
}

TEST(Opcion, OtraPropiedadDeUnaEncendidaNoPulsa) {
    GrupoDeTres grupo;
    grupo.una.Enabled = false;
    grupo.una.Caption = "Primera";
    EXPECT_EQ(grupo.visto(), Diario{});
}

TEST(Casilla, UnValorDistintoPulsaYElMismoNo) {
    Banco banco;
    Casilla casilla{banco.ventana, "ChCodigo", "Código", 1};
    casilla.Click = banco.anotador("Click");
    casilla.Value = 1;
    EXPECT_EQ(banco.visto(), Diario{});
    casilla.Value = 0;
    EXPECT_EQ(banco.visto(), Diario{"Click"});
    casilla.Value = 1;
    EXPECT_EQ(banco.visto(), Diario{"Click"});
    casilla.Visible = false;
    EXPECT_EQ(banco.visto(), Diario{});
}

TEST(CajaTexto, UnTextoDistintoCambiaYElMismoNo) {
    Banco banco;
    CajaTexto caja{banco.ventana, {"TxtBAF1", 0}, "0,00"};
    caja.Change = banco.anotador("Change");
    caja.Text = "0,00";
    EXPECT_EQ(banco.visto(), Diario{});
    caja.Text = "2,00";
    EXPECT_EQ(banco.visto(), Diario{"Change"});
    EXPECT_EQ(caja.Text(), "2,00");
    caja.Enabled = false;
    EXPECT_EQ(banco.visto(), Diario{});
}

TEST(CajaTexto, SuChangePuedeCambiarElTextoOtraVez) {
    Banco banco;
    CajaTexto caja{banco.ventana, "TxtBAF1"};
    caja.Change = [&] {
        banco.programa.anotar("Change " + caja.Text());
        caja.Text = "1";
    };
    caja.Text = "uno";
    EXPECT_EQ(caja.Text(), "1");
    EXPECT_EQ(banco.visto(), (Diario{"Change uno", "Change 1"}));
}

TEST(Fichas, GuardanLoQueHayEnCadaUna) {
    Banco banco;
    Boton boton{banco.ventana, "Cmd"};
    Fichas fichas{banco.ventana, "SSTab1", {"Unidades", "Índices"}, 1};
    fichas.poner(1, boton);
    EXPECT_EQ(fichas.Tabs(), 2);
    EXPECT_EQ(fichas.Tab(), 1);
    EXPECT_EQ(fichas.TabCaption(0), "Unidades");
    EXPECT_TRUE(fichas.contenido(0).empty());
    EXPECT_EQ(fichas.contenido(1), std::vector<Control*>{&boton});
    EXPECT_THROW((void)fichas.contenido(2), std::out_of_range);
}

} // namespace varo
