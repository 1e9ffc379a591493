#include "apoyo/Fallos.h"
#include "formularios/VentanasDePrueba.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace varo {

namespace {

struct ConVentanas {
    ServiciosPreparados servicios;
    ProgramaDePrueba programa{servicios};

    template <class F>
    F& mostrada() {
        F& ventana = programa.tocar<F>();
        ventana.Show();
        programa.visto();
        return ventana;
    }
    Diario visto() { return programa.visto(); }
};

/// Faults in its loading for as long as it is told to.
struct VentanaQueFalla : VentanaAnotada {
    explicit VentanaQueFalla(ProgramaDePrueba& programa)
        : VentanaAnotada{programa, "F", TipoVentana::Libre}, programa_{programa} {}
    void Form_Load() override {
        VentanaAnotada::Form_Load();
        if (programa_.diario.size() < 2) {
            Show();
            Texto.SetFocus();
            throw ErrorEjecucion{9};
        }
    }

private:
    ProgramaDePrueba& programa_;
};

/// Touches another window while it is loaded.
struct VentanaQueToca : VentanaAnotada {
    explicit VentanaQueToca(ProgramaDePrueba& programa)
        : VentanaAnotada{programa, "T", TipoVentana::Libre}, programa_{programa} {}
    void Form_Load() override {
        programa_.tocar<VentanaA>();
        VentanaAnotada::Form_Load();
    }

private:
    ProgramaDePrueba& programa_;
};

} // namespace

TEST(Ventanas, UnActoCanceladoAcabaSinDecirNadaYElProgramaSigue) {
    ConVentanas p;
    bool sigue = false;
    int finales = 0;
    p.programa.alTerminarActo = [&] { ++finales; };
    p.programa.atender([&] {
        p.mostrada<VentanaA>();
        throw Cancelado{};
    });
    EXPECT_TRUE(p.servicios.fallos().empty());
    EXPECT_TRUE(p.servicios.mensajes().empty());
    EXPECT_FALSE(p.programa.atendiendo());
    EXPECT_FALSE(p.programa.terminado());
    p.programa.atender([&] { sigue = true; });
    EXPECT_TRUE(sigue);
    EXPECT_EQ(finales, 2);
}

TEST(Ventanas, ElPrimerToqueCreaLaVentanaOcultaYCorreFormLoadUnaVez) {
    ConVentanas banco;
    EXPECT_EQ(banco.programa.cargada<VentanaA>(), nullptr);
    auto& ventana = banco.programa.tocar<VentanaA>();
    EXPECT_EQ(&banco.programa.tocar<VentanaA>(), &ventana);
    EXPECT_EQ(banco.visto(), Diario{"Load A"});
    EXPECT_FALSE(ventana.Visible());
    EXPECT_EQ(banco.programa.activa(), nullptr);
    EXPECT_EQ(banco.programa.cargada<VentanaA>(), &ventana);
}

TEST(Ventanas, MostrarUnaLaActivaYDesactivaLaDeAntes) {
    ConVentanas banco;
    banco.programa.tocar<VentanaA>().Show();
    EXPECT_EQ(banco.visto(), (Diario{"Load A", "Activate A"}));
    auto& segunda = banco.programa.tocar<VentanaB>();
    segunda.Show();
    EXPECT_EQ(banco.visto(), (Diario{"Load B", "Deactivate A", "Activate B"}));
    EXPECT_EQ(banco.programa.activa(), &segunda);
    EXPECT_TRUE(banco.programa.tocar<VentanaA>().Visible());
}

TEST(Ventanas, MostrarLaQueYaEstaActivaNoRepiteSuActivacion) {
    ConVentanas banco;
    banco.mostrada<VentanaA>().Show();
    EXPECT_EQ(banco.visto(), Diario{});
}

TEST(Ventanas, OcultarLaActivaPasaLaActivacionALaUltimaDeAntes) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.mostrada<VentanaB>();
    auto& c = banco.mostrada<VentanaC>();
    banco.programa.activar(a);
    banco.visto();
    a.Hide();
    EXPECT_EQ(banco.visto(), (Diario{"Deactivate A", "Activate C"}));
    c.Hide();
    EXPECT_EQ(banco.visto(), (Diario{"Deactivate C", "Activate B"}));
    b.Hide();
    EXPECT_EQ(banco.visto(), Diario{"Deactivate B"});
    EXPECT_EQ(banco.programa.activa(), nullptr);
}

TEST(Ventanas, OcultarUnaQueNoEsLaActivaNoMueveLaActivacion) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.mostrada<VentanaB>();
    a.Hide();
    a.Hide();
    EXPECT_EQ(banco.visto(), Diario{});
    EXPECT_EQ(banco.programa.activa(), &b);
    b.Hide();
    EXPECT_EQ(banco.visto(), Diario{"Deactivate B"}) << "una ventana oculta no recibe la activación";
}

TEST(Ventanas, CuandoSeDesactivaLaOcultaYaNoSeVe) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    bool visible = true;
    a.alDesactivar = [&] { visible = a.Visible(); };
    a.Hide();
    EXPECT_FALSE(visible);
}

TEST(Ventanas, OcultarConservaLosValoresYDescargarLosPierde) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    a.Texto.Text = "2,50";
    a.Hide();
    EXPECT_EQ(banco.programa.tocar<VentanaA>().Texto.Text(), "2,50");
    EXPECT_TRUE(banco.programa.descargar<VentanaA>());
    banco.visto();
    EXPECT_EQ(banco.programa.tocar<VentanaA>().Texto.Text(), "");
    EXPECT_EQ(banco.visto(), Diario{"Load A"});
}

TEST(Ventanas, DescargarPreguntaDescargaYActivaLaDeAntes) {
    ConVentanas banco;
    banco.mostrada<VentanaA>();
    auto& b = banco.mostrada<VentanaB>();
    EXPECT_TRUE(banco.programa.descargar(b));
    EXPECT_EQ(banco.visto(), (Diario{"QueryUnload B", "Unload B", "Activate A"}));
    EXPECT_EQ(banco.programa.cargada<VentanaB>(), nullptr);
}

TEST(Ventanas, UnaVentanaPuedeNegarseADescargarse) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    a.acepta = false;
    EXPECT_FALSE(banco.programa.descargar<VentanaA>());
    EXPECT_EQ(banco.visto(), Diario{"QueryUnload A"});
    EXPECT_EQ(banco.programa.cargada<VentanaA>(), &a);
    EXPECT_TRUE(a.Visible());
    EXPECT_EQ(banco.programa.activa(), &a);
    a.acepta = true;
    EXPECT_TRUE(banco.programa.descargar<VentanaA>()) << "la negativa no la deja a medio descargar";
}

TEST(Ventanas, DescargarLaQueNoEstaNoLaCrea) {
    ConVentanas banco;
    EXPECT_TRUE(banco.programa.descargar<VentanaA>());
    EXPECT_EQ(banco.visto(), Diario{});
    EXPECT_TRUE(banco.programa.todas().empty());
}

TEST(Ventanas, DuranteSuDescargaTodaviaSePuedeTocarSinCrearOtra) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    a.alDescargarse = [&] { EXPECT_EQ(&banco.programa.tocar<VentanaA>(), &a); };
    banco.programa.descargar<VentanaA>();
    EXPECT_EQ(banco.visto(), (Diario{"QueryUnload A", "Unload A"}));
}

TEST(Ventanas, DescargarseDesdeSuPropiaDescargaNoLaRepite) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    a.alPreguntar = [&] { EXPECT_TRUE(banco.programa.descargar(a)); };
    a.alDescargarse = [&] { EXPECT_TRUE(banco.programa.descargar(a)); };
    EXPECT_TRUE(banco.programa.descargar(a));
    EXPECT_EQ(banco.visto(), (Diario{"QueryUnload A", "Unload A"}));
}

TEST(Ventanas, UnFalloAlDescargarseLaDejaCargadaYSePuedeRepetir) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    a.alDescargarse = [] { throw ErrorEjecucion{11}; };
    EXPECT_EQ(FalloDe([&] { banco.programa.descargar(a); }), 11);
    EXPECT_EQ(banco.programa.cargada<VentanaA>(), &a);
    banco.visto();
    a.alDescargarse = nullptr;
    EXPECT_TRUE(banco.programa.descargar(a));
    EXPECT_EQ(banco.visto(), (Diario{"QueryUnload A", "Unload A"}));
}

TEST(Ventanas, UnaDescargaPuedeArrastrarOtras) {
    ConVentanas banco;
    banco.mostrada<VentanaA>();
    banco.mostrada<VentanaB>();
    auto& c = banco.mostrada<VentanaC>();
    c.alDescargarse = [&] {
        banco.programa.descargar<VentanaB>();
        banco.programa.descargar<VentanaA>();
    };
    EXPECT_TRUE(banco.programa.descargar(c));
    EXPECT_EQ(banco.visto(), (Diario{"QueryUnload C", "Unload C", "QueryUnload B", "Unload B",
                                     "QueryUnload A", "Unload A"}));
    EXPECT_TRUE(banco.programa.todas().empty());
    EXPECT_EQ(banco.programa.activa(), nullptr);
}

TEST(Ventanas, UnFalloAlCargarNoDejaLaVentanaAMedias) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    EXPECT_EQ(FalloDe([&] { banco.programa.tocar<VentanaQueFalla>(); }), 9);
    EXPECT_EQ(banco.programa.cargada<VentanaQueFalla>(), nullptr);
    EXPECT_EQ(banco.programa.activa(), &a);
    EXPECT_EQ(banco.programa.foco(), nullptr);
    EXPECT_EQ(banco.programa.diario, (Diario{"Load F", "Deactivate A", "Activate F", "Activate A"}));
    auto& otra = banco.programa.tocar<VentanaQueFalla>();
    EXPECT_EQ(banco.programa.diario.back(), "Load F") << "el toque siguiente la carga de nuevo";
    EXPECT_FALSE(otra.Visible());
}

TEST(Ventanas, UnaCargaPuedeTocarOtraVentana) {
    ConVentanas banco;
    auto& ventana = banco.programa.tocar<VentanaQueToca>();
    EXPECT_EQ(banco.visto(), (Diario{"Load A", "Load T"}));
    EXPECT_EQ(banco.programa.todas(),
              (std::vector<Formulario*>{&ventana, banco.programa.cargada<VentanaA>()}));
}

TEST(Ventanas, LaVentanaPrincipalSeLlevaASusHijasPeroNoALasLibres) {
    ConVentanas banco;
    auto& principal = banco.mostrada<Principal>();
    banco.mostrada<HijaUna>();
    auto& libre = banco.mostrada<VentanaA>();
    banco.programa.tocar<HijaOtra>();
    banco.visto();
    EXPECT_FALSE(banco.programa.terminado());
    EXPECT_TRUE(banco.programa.descargar(principal));
    EXPECT_EQ(banco.visto(), (Diario{"QueryUnload P", "QueryUnload H1", "Unload H1", "QueryUnload H2",
                                     "Unload H2", "Unload P"}));
    EXPECT_EQ(banco.programa.todas(), std::vector<Formulario*>{&libre});
    EXPECT_TRUE(banco.programa.terminado());
}

TEST(Ventanas, UnaHijaQueArrastraAOtraNoLaDescargaDosVeces) {
    ConVentanas banco;
    auto& principal = banco.mostrada<Principal>();
    banco.mostrada<HijaUna>().alDescargarse = [&] { banco.programa.descargar<HijaOtra>(); };
    banco.mostrada<HijaOtra>();
    banco.visto();
    banco.programa.descargar(principal);
    const Diario diario = banco.visto();
    EXPECT_EQ(std::count(diario.begin(), diario.end(), "Unload H2"), 1);
    EXPECT_TRUE(banco.programa.todas().empty());
}

TEST(Ventanas, SiLaPrincipalOUnaHijaSeNieganElProgramaSigue) {
    ConVentanas banco;
    auto& principal = banco.mostrada<Principal>();
    auto& hija = banco.mostrada<HijaUna>();
    principal.acepta = false;
    EXPECT_FALSE(banco.programa.descargar(principal));
    EXPECT_EQ(banco.visto(), Diario{"QueryUnload P"});
    principal.acepta = true;
    hija.acepta = false;
    EXPECT_FALSE(banco.programa.descargar(principal));
    EXPECT_EQ(banco.visto(), (Diario{"QueryUnload P", "QueryUnload H1"}));
    EXPECT_FALSE(banco.programa.terminado());
    EXPECT_TRUE(principal.Visible());
    EXPECT_TRUE(hija.Visible());
}

TEST(Ventanas, DescargarOtraVentanaNoTerminaElPrograma) {
    ConVentanas banco;
    banco.mostrada<Principal>();
    banco.programa.descargar(banco.mostrada<HijaUna>());
    banco.programa.descargar(banco.mostrada<VentanaA>());
    EXPECT_FALSE(banco.programa.terminado());
}

TEST(Ventanas, AlCargarSeEnteraDeCadaVentanaCargadaYAlDescargarDeCadaUnaQueSeVa) {
    ConVentanas banco;
    banco.programa.alCargar = [&](Formulario& ventana) {
        banco.programa.anotar("vista " + ventana.nombre());
    };
    banco.programa.alDescargar = [&](Formulario& ventana) {
        EXPECT_NE(banco.programa.cargada<VentanaA>(), nullptr) << "todavía está";
        banco.programa.anotar("sin vista " + ventana.nombre());
    };
    auto& a = banco.programa.tocar<VentanaA>();
    EXPECT_EQ(banco.visto(), (Diario{"Load A", "vista A"}));
    a.acepta = false;
    banco.programa.descargar(a);
    EXPECT_EQ(banco.visto(), Diario{"QueryUnload A"});
    a.acepta = true;
    banco.programa.descargar(a);
    EXPECT_EQ(banco.visto(), (Diario{"QueryUnload A", "Unload A", "sin vista A"}));
}

TEST(Ventanas, NadieSeEnteraDeUnaCargaQueFalla) {
    ConVentanas banco;
    banco.programa.alCargar = [&](Formulario& ventana) { ADD_FAILURE() << ventana.nombre(); };
    banco.programa.alDescargar = [&](Formulario& ventana) { ADD_FAILURE() << ventana.nombre(); };
    EXPECT_EQ(FalloDe([&] { banco.programa.tocar<VentanaQueFalla>(); }), 9);
}

TEST(Ventanas, QuienSeDescargaEnSuPropioManejadorSigueEnPieHastaElFinalDelActo) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    std::string leyenda;
    banco.programa.atender([&] {
        banco.programa.descargar(a);
        leyenda = a.Cmd.Caption();
        a.Texto.Text = "todavía";
        banco.programa.atender([&] { a.Hide(); });
        leyenda += a.Texto.Text();
    });
    EXPECT_EQ(leyenda, "Pulsartodavía");
    EXPECT_EQ(banco.programa.cargada<VentanaA>(), nullptr);
}

TEST(Ventanas, UnaVentanaDescargadaNoSePuedeMostrarNiTomaElFoco) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    banco.programa.atender([&] {
        banco.programa.descargar(a);
        EXPECT_EQ(FalloDe([&] { a.Show(); }), 364);
        a.Texto.SetFocus();
    });
    EXPECT_EQ(banco.programa.activa(), nullptr);
    EXPECT_EQ(banco.programa.foco(), nullptr);
}

TEST(Ventanas, UnaVentanaQueYaSeFueNoRecibeLaActivacion) {
    ConVentanas banco;
    banco.mostrada<VentanaA>();
    auto& b = banco.mostrada<VentanaB>();
    banco.programa.atender([&] { banco.programa.descargar<VentanaA>(); });
    banco.visto();
    b.Hide();
    EXPECT_EQ(banco.visto(), Diario{"Deactivate B"});
    EXPECT_EQ(banco.programa.activa(), nullptr);
}

TEST(Ventanas, DescargadaYTocadaEnElMismoActoNaceOtra) {
    ConVentanas banco;
    auto& vieja = banco.mostrada<VentanaA>();
    banco.programa.atender([&] {
        banco.programa.descargar(vieja);
        banco.programa.tocar<VentanaA>().Show();
        EXPECT_NE(banco.programa.cargada<VentanaA>(), &vieja);
    });
    EXPECT_EQ(banco.visto(), (Diario{"QueryUnload A", "Unload A", "Load A", "Activate A"}));
    EXPECT_EQ(banco.programa.activa(), banco.programa.cargada<VentanaA>());
}

TEST(Ventanas, QuienAlDesactivarseSeOcultaNoSeDesactivaDosVeces) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    a.alDesactivar = [&] { a.Hide(); };
    auto& b = banco.programa.tocar<VentanaB>();
    banco.visto();
    b.Show();
    EXPECT_EQ(banco.visto(), (Diario{"Deactivate A", "Activate B"}));
    EXPECT_EQ(banco.programa.activa(), &b);
    b.Hide();
    EXPECT_EQ(banco.visto(), Diario{"Deactivate B"});
}

TEST(Ventanas, SiAlDesactivarseDescargaALaQueLlegabaEstaNoSeActiva) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    banco.mostrada<VentanaB>();
    banco.programa.activar(a);
    banco.visto();
    a.alDesactivar = [&] {
        a.alDesactivar = nullptr;
        banco.programa.descargar<VentanaB>();
    };
    banco.programa.atender([&] { banco.programa.activar(*banco.programa.cargada<VentanaB>()); });
    EXPECT_EQ(banco.visto(), (Diario{"Deactivate A", "QueryUnload B", "Unload B", "Activate A"}));
    EXPECT_EQ(banco.programa.activa(), &a);
}

TEST(Ventanas, AlOcultarseLaActivaSuDesactivacionPuedeDescargarALaSiguiente) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    banco.mostrada<VentanaB>();
    auto& c = banco.mostrada<VentanaC>();
    c.alDesactivar = [&] { banco.programa.descargar<VentanaB>(); };
    banco.programa.atender([&] { c.Hide(); });
    EXPECT_EQ(banco.visto(), (Diario{"Deactivate C", "QueryUnload B", "Unload B", "Activate A"}));
    EXPECT_EQ(banco.programa.activa(), &a);
}

TEST(Ventanas, AlActivarsePuedeMostrarOtra) {
    ConVentanas banco;
    auto& a = banco.programa.tocar<VentanaA>();
    auto& b = banco.programa.tocar<VentanaB>();
    banco.visto();
    a.alActivar = [&] { b.Show(); };
    a.Show();
    EXPECT_EQ(banco.visto(), (Diario{"Activate A", "Deactivate A", "Activate B"}));
    EXPECT_EQ(banco.programa.activa(), &b);
}

TEST(Ventanas, ActivarUnaOcultaNoLaActiva) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.programa.tocar<VentanaB>();
    banco.visto();
    banco.programa.activar(b);
    EXPECT_EQ(banco.visto(), Diario{});
    EXPECT_EQ(banco.programa.activa(), &a);
}

TEST(Ventanas, ElFocoPasaYElQueLoTeniaLoPierdeUnaVez) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    a.Texto.LostFocus = [&] { banco.programa.anotar("LostFocus Texto"); };
    a.Texto.SetFocus();
    a.Texto.SetFocus();
    EXPECT_EQ(banco.visto(), Diario{});
    EXPECT_EQ(banco.programa.foco(), &a.Texto);
    a.Otro.SetFocus();
    EXPECT_EQ(banco.visto(), Diario{"LostFocus Texto"});
    EXPECT_EQ(banco.programa.foco(), &a.Otro);
}

TEST(Ventanas, QuienPierdeElFocoPuedeRecuperarloYElOtroNiSeEntera) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    a.Texto.LostFocus = [&] {
        banco.programa.anotar("LostFocus Texto");
        a.Texto.SetFocus();
    };
    a.Otro.LostFocus = [&] {
        banco.programa.anotar("LostFocus Otro");
        a.Otro.SetFocus();
    };
    a.Texto.SetFocus();
    a.Otro.SetFocus();
    EXPECT_EQ(banco.visto(), Diario{"LostFocus Texto"});
    EXPECT_EQ(banco.programa.foco(), &a.Texto);
}

TEST(Ventanas, QuienPierdeElFocoPuedeDarloAUnTercero) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    a.Texto.LostFocus = [&] { a.Cmd.SetFocus(); };
    a.Texto.SetFocus();
    a.Otro.SetFocus();
    EXPECT_EQ(banco.programa.foco(), &a.Cmd);
}

TEST(Ventanas, EnUnaVentanaOcultaNadieTomaElFoco) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.programa.tocar<VentanaB>();
    a.Texto.SetFocus();
    b.Texto.SetFocus();
    EXPECT_EQ(banco.programa.foco(), nullptr);
}

TEST(Ventanas, AlCambiarDeVentanaElFocoSePierdeAntesDeDesactivarse) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.mostrada<VentanaB>();
    banco.programa.activar(a);
    a.Texto.LostFocus = [&] { banco.programa.anotar("LostFocus A"); };
    a.Texto.SetFocus();
    banco.visto();
    banco.programa.activar(b);
    EXPECT_EQ(banco.visto(), (Diario{"LostFocus A", "Deactivate A", "Activate B"}));
    EXPECT_EQ(banco.programa.foco(), nullptr);
}

TEST(Ventanas, AlCambiarDeVentanaNoValeRecuperarElFoco) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    a.Texto.LostFocus = [&] {
        banco.programa.anotar("LostFocus A");
        a.Texto.SetFocus();
    };
    auto& b = banco.programa.tocar<VentanaB>();
    a.Texto.SetFocus();
    banco.visto();
    b.Show();
    EXPECT_EQ(banco.visto(), (Diario{"LostFocus A", "Deactivate A", "Activate B"}));
    EXPECT_EQ(banco.programa.foco(), nullptr);
    b.Texto.SetFocus();
    EXPECT_EQ(banco.programa.foco(), &b.Texto);
    EXPECT_EQ(banco.visto(), Diario{});
}

TEST(Ventanas, AlOcultarseElFocoSePierdeYNoValeRecuperarlo) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    a.Texto.LostFocus = [&] {
        banco.programa.anotar("LostFocus A");
        a.Texto.SetFocus();
    };
    a.Texto.SetFocus();
    a.Hide();
    EXPECT_EQ(banco.visto(), (Diario{"LostFocus A", "Deactivate A"}));
    EXPECT_EQ(banco.programa.foco(), nullptr);
}

TEST(Ventanas, AlDescargarseElFocoSeVaSinAviso) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    a.Texto.LostFocus = [&] { banco.programa.anotar("LostFocus A"); };
    a.Texto.SetFocus();
    banco.programa.descargar(a);
    EXPECT_EQ(banco.visto(), (Diario{"QueryUnload A", "Unload A"}));
    EXPECT_EQ(banco.programa.foco(), nullptr);
}

TEST(Ventanas, QuienPierdeElFocoPuedeDescargarALaVentanaQueLlegaba) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.mostrada<VentanaB>();
    banco.programa.activar(a);
    a.Texto.LostFocus = [&] { banco.programa.descargar<VentanaB>(); };
    a.Texto.SetFocus();
    banco.visto();
    banco.programa.atender([&] { banco.programa.activar(b); });
    EXPECT_EQ(banco.visto(), (Diario{"QueryUnload B", "Unload B"}));
    EXPECT_EQ(banco.programa.activa(), &a);
}

TEST(Ventanas, QuienPierdeElFocoPuedeOcultarSuPropiaVentana) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.mostrada<VentanaB>();
    banco.programa.activar(a);
    a.Texto.LostFocus = [&] { a.Hide(); };
    a.Texto.SetFocus();
    banco.visto();
    banco.programa.activar(b);
    EXPECT_EQ(banco.visto(), (Diario{"Deactivate A", "Activate B"}));
    EXPECT_EQ(banco.programa.activa(), &b);
}

TEST(Ventanas, AlActivarSeEnteraAntesQueLosManejadores) {
    ConVentanas banco;
    auto& a = banco.mostrada<VentanaA>();
    auto& b = banco.programa.tocar<VentanaB>();
    banco.visto();
    banco.programa.alActivar = [&](Formulario& ventana) {
        EXPECT_EQ(banco.programa.activa(), &ventana);
        banco.programa.anotar("activa " + ventana.nombre());
    };
    b.Show();
    EXPECT_EQ(banco.visto(), (Diario{"activa B", "Deactivate A", "Activate B"}));
    b.Show();
    EXPECT_EQ(banco.visto(), Diario{});
    b.Hide();
    EXPECT_EQ(banco.visto(), (Diario{"activa A", "Deactivate B", "Activate A"}));
    a.Hide();
    EXPECT_EQ(banco.visto(), Diario{"Deactivate A"});
}

TEST(Ventanas, UnFalloEnUnActoLoAcabaYSeCuenta) {
    ConVentanas banco;
    banco.servicios.esperarFallo(11);
    bool llegado = false;
    banco.programa.atender([&] {
        throw ErrorEjecucion{11};
        llegado = true;
    });
    EXPECT_FALSE(llegado);
    EXPECT_TRUE(banco.servicios.todoPedido());
    EXPECT_FALSE(banco.programa.terminado());
}

TEST(Ventanas, UnFalloFatalSeCuentaYTerminaElPrograma) {
    ConVentanas banco;
    banco.servicios.esperarFallo(3343);
    banco.programa.atender([] { throw ErrorFatal{ErrorEjecucion{3343}}; });
    EXPECT_TRUE(banco.servicios.todoPedido());
    EXPECT_TRUE(banco.programa.terminado());
    EXPECT_TRUE(banco.programa.conFalloFatal());
}

TEST(Ventanas, UnMensajeInesperadoSaleDelActoYLasDescargadasSeVanIgual) {
    ConVentanas banco;
    auto testigo = std::make_shared<int>();
    const std::weak_ptr<int> loQueTieneLaVentana = testigo;
    auto& a = banco.mostrada<VentanaA>();
    a.Cmd.Click = [testigo = std::move(testigo)] {};
    const auto acto = [&] {
        banco.programa.atender([&] {
            banco.programa.descargar(a);
            EXPECT_FALSE(loQueTieneLaVentana.expired());
            banco.servicios.mensaje("Sorpresa", "", 0);
        });
    };
    EXPECT_THROW(acto(), MensajeInesperado);
    EXPECT_TRUE(loQueTieneLaVentana.expired());
}

namespace {

/// What the windows A, B and C should do, told by a list of the visible ones by their activation.
class ModeloDeVentanas {
public:
    void mostrar(char ventana) {
        if (cargadas_.find(ventana) == std::string::npos) {
            cargadas_ += ventana;
            anotar("Load", ventana);
        }
        if (!visibles_.empty() && visibles_.back() == ventana) {
            return;
        }
        if (!visibles_.empty()) {
            anotar("Deactivate", visibles_.back());
        }
        std::erase(visibles_, ventana);
        visibles_ += ventana;
        anotar("Activate", ventana);
    }
    void ocultar(char ventana) {
        if (activa() == ventana) {
            anotar("Deactivate", ventana);
        }
        sacar(ventana);
    }
    void descargar(char ventana) {
        if (std::erase(cargadas_, ventana) == 1) {
            anotar("QueryUnload", ventana);
            anotar("Unload", ventana);
            sacar(ventana);
        }
    }
    /// 0 for none.
    [[nodiscard]] char activa() const { return visibles_.empty() ? '\0' : visibles_.back(); }
    [[nodiscard]] const Diario& diario() const { return diario_; }

private:
    void anotar(const std::string& suceso, char ventana) { diario_.push_back(suceso + ' ' + ventana); }
    void sacar(char ventana) {
        const bool eraActiva = activa() == ventana;
        std::erase(visibles_, ventana);
        if (eraActiva && !visibles_.empty()) {
            anotar("Activate", visibles_.back());
        }
    }

    std::string cargadas_;
    std::string visibles_;
    Diario diario_;
};

/// Does to the window F what is done to its twin in the model.
template <class F>
void hacer(int orden, ProgramaDePrueba& programa, ModeloDeVentanas& modelo, char nombre) {
    F* const ventana = programa.cargada<F>();
    switch (orden) {
    case 0:
        programa.tocar<F>().Show();
        modelo.mostrar(nombre);
        return;
    case 1:
        if (ventana != nullptr) {
            ventana->Hide();
            modelo.ocultar(nombre);
        }
        return;
    case 2:
        if (ventana != nullptr && ventana->Visible()) {
            programa.activar(*ventana);
            modelo.mostrar(nombre);
        }
        return;
    default:
        programa.descargar<F>();
        modelo.descargar(nombre);
    }
}

} // namespace

RC_GTEST_PROP(Ventanas, CualquierSucesionDeMostrarOcultarActivarYDescargarVaComoSuModelo, ()) {
    constexpr std::array ventanas{hacer<VentanaA>, hacer<VentanaB>, hacer<VentanaC>};
    const auto pasos = *rc::gen::container<std::vector<std::pair<int, int>>>(
        rc::gen::pair(rc::gen::inRange(0, 3), rc::gen::inRange(0, 4)));
    ConVentanas banco;
    ModeloDeVentanas modelo;
    for (const auto& [cual, orden] : pasos) {
        ventanas[static_cast<std::size_t>(cual)](orden, banco.programa, modelo,
                                                 static_cast<char>('A' + cual));
        const Formulario* const activa = banco.programa.activa();
        const char nombreActiva = activa == nullptr ? '\0' : activa->nombre().front();
        RC_ASSERT(nombreActiva == modelo.activa());
        RC_ASSERT(banco.programa.diario == modelo.diario());
    }
}

TEST(Ventanas, ElFinDelActoSeDiceUnaVezAlAcabarElDeFuera) {
    Banco banco;
    banco.programa.alTerminarActo = [&] {
        EXPECT_FALSE(banco.programa.atendiendo());
        banco.programa.anotar("fin");
    };
    EXPECT_FALSE(banco.programa.atendiendo());
    banco.programa.atender([&] {
        banco.programa.atender([&] { banco.programa.anotar("dentro"); });
        EXPECT_TRUE(banco.programa.atendiendo());
        banco.programa.anotar("fuera");
    });
    EXPECT_EQ(banco.visto(), (Diario{"dentro", "fuera", "fin"}));
}

TEST(Ventanas, ElFinDelActoSeDiceTambienTrasUnFallo) {
    Banco banco;
    banco.programa.alTerminarActo = [&] { banco.programa.anotar("fin"); };
    banco.servicios.esperarFallo(11);
    banco.programa.atender([] { throw ErrorEjecucion{11}; });
    EXPECT_EQ(banco.visto(), Diario{"fin"});
    EXPECT_THROW(banco.programa.atender([] { throw std::logic_error{"de otro"}; }), std::logic_error);
    EXPECT_EQ(banco.visto(), Diario{"fin"});
}

namespace {

struct VentanaConMatriz : VentanaAnotada {
    explicit VentanaConMatriz(ProgramaDePrueba& programa)
        : VentanaAnotada{programa, "M", TipoVentana::Libre} {
        TxtCodigo.crear(0);
    }
    void Form_Load() override { TxtCodigo.crear(1); }

    Matriz<CajaTexto> TxtCodigo{*this, "TxtCodigo"};
};

struct ConMatriz {
    ServiciosPreparados servicios;
    ProgramaDePrueba programa{servicios};
    Diario vistas;

    ConMatriz() {
        programa.alCargar = [this](Formulario& ventana) { vistas.push_back("carga " + ventana.nombre()); };
        programa.alCrearControl = [this](Control& control) {
            vistas.push_back("nace " + control.nombreCompleto());
        };
        programa.alQuitarControl = [this](Control& control) {
            vistas.push_back("muere " + control.nombreCompleto());
        };
    }
};

} // namespace

TEST(Ventanas, SeAnuncianLosControlesQueNacenDespuesDeCargarseSuVentana) {
    ConMatriz p;
    auto& ventana = p.programa.tocar<VentanaConMatriz>();
    EXPECT_EQ(p.vistas, Diario{"carga M"}) << "los anteriores van con la ventana";
    ventana.TxtCodigo.crear(2);
    ventana.TxtCodigo.quitar(1);
    EXPECT_EQ(p.vistas, (Diario{"carga M", "nace TxtCodigo(2)", "muere TxtCodigo(1)"}));
    p.programa.descargar(ventana);
    EXPECT_EQ(p.vistas.size(), 3U) << "la ventana se los lleva sin decirlo uno a uno";
}

TEST(Ventanas, UnControlQueSeAnunciaEstaEnteroYElQueSeQuitaTodaviaTambien) {
    ConMatriz p;
    auto& ventana = p.programa.tocar<VentanaConMatriz>();
    p.programa.alCrearControl = [&](Control& control) {
        EXPECT_NE(dynamic_cast<CajaTexto*>(&control), nullptr);
        EXPECT_EQ(ventana.buscarControl("TxtCodigo", 2), &control);
        EXPECT_TRUE(ventana.TxtCodigo.tiene(2));
    };
    ventana.TxtCodigo.crear(2, "texto");
    p.programa.alQuitarControl = [&](Control& control) {
        EXPECT_EQ(dynamic_cast<CajaTexto&>(control).Text(), "texto");
        EXPECT_EQ(ventana.buscarControl("TxtCodigo", 2), &control);
    };
    ventana.TxtCodigo.quitar(2);
    EXPECT_EQ(ventana.buscarControl("TxtCodigo", 2), nullptr);
}

TEST(Ventanas, UnControlQueSeQuitaConElFocoLoDejaSinNadie) {
    ConMatriz p;
    auto& ventana = p.programa.tocar<VentanaConMatriz>();
    ventana.Show();
    bool perdido = false;
    ventana.TxtCodigo(1).LostFocus = [&] { perdido = true; };
    ventana.TxtCodigo(1).SetFocus();
    ventana.TxtCodigo.quitar(0);
    EXPECT_EQ(p.programa.foco(), &ventana.TxtCodigo(1));
    ventana.TxtCodigo.quitar(1);
    EXPECT_EQ(p.programa.foco(), nullptr);
    EXPECT_FALSE(perdido) << "ya no hay quien lo pierda";
}

} // namespace varo
