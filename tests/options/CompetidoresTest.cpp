// What shows for each rule of competitor selection, and how the three fields of an interval keep together.
#include "basico/ErrorEjecucion.h"
#include "options/DialogoAbierto.h"

#include <array>

namespace varo::prueba {

namespace {

class Competidores : public DialogoAbierto {
protected:
    Competidores() { encenderTodas(); }

    bool seVe(const Control& control) { return !Usuario::impedimento(control); }

    /// What a person can use of selection i: the decimals, the stems, Richards, the hyperbola, the list.
    std::array<bool, 5> aLaVista(int i) {
        const auto terna = [&](int miembro) {
            const bool primero = seVe(opciones.TxtBAF1(miembro));
            EXPECT_EQ(seVe(opciones.TxtBAF2(miembro)), primero);
            EXPECT_EQ(seVe(opciones.TxtBAF3(miembro)), primero);
            return primero;
        };
        const bool lista = seVe(opciones.LstRich(i));
        EXPECT_EQ(seVe(opciones.CmdAñadirRich(i)), lista);
        EXPECT_EQ(seVe(opciones.CmdQuitarRich(i)), lista);
        EXPECT_EQ(seVe(opciones.CmdVaciarRich(i)), lista);
        EXPECT_EQ(seVe(opciones.OptRichard(i)), lista);
        return {terna(2 * i), terna(2 * i + 1), seVe(opciones.TxtRich(3 * i)), seVe(opciones.TxtHIP(7 * i)),
                lista};
    }
};

constexpr std::array<bool, 5> decimales{true, false, false, false, false};
constexpr std::array<bool, 5> pies{false, true, false, false, false};
constexpr std::array<bool, 5> richards{false, false, true, false, true};
constexpr std::array<bool, 5> hiperbola{false, false, false, true, true};

class Intervalos : public DialogoAbierto {
protected:
    Intervalos() { encenderTodas(); }

    CajaTexto& primero(int i) { return opciones.TxtBAF1(i); }
    CajaTexto& ultimo(int i) { return opciones.TxtBAF2(i); }
    CajaTexto& paso(int i) { return opciones.TxtBAF3(i); }

    /// Puts three texts into the fields of a member, as if they had been left so, whatever they hold.
    void poner(int i, const std::string& deF, const std::string& deL, const std::string& deS) {
        const auto escribir = [](CajaTexto& campo, const std::string& texto) {
            const Suceso cambio = std::exchange(campo.Change, nullptr);
            campo.Text = texto;
            campo.Change = cambio;
        };
        escribir(primero(i), deF);
        escribir(ultimo(i), deL);
        escribir(paso(i), deS);
    }
    /// Goes into a field and leaves it again.
    void pasarPor(CajaTexto& campo) {
        usuario.clic(campo);
        dejar();
    }
    void esperarTextos(int i, const std::string& deF, const std::string& deL, const std::string& deS) {
        EXPECT_EQ(primero(i).Text(), deF);
        EXPECT_EQ(ultimo(i).Text(), deL);
        EXPECT_EQ(paso(i).Text(), deS);
    }
};

} // namespace

TEST_F(Competidores, CadaReglaMuestraLosCamposQueLeTocan) {
    for (const int i : {0, 1}) {
        SCOPED_TRACE(i);
        EXPECT_EQ(aLaVista(i), decimales);
        EXPECT_EQ(opciones.FramBAF(i).Caption(), " BAF (m2/ha)");
        usuario.clic(opciones.OptNumFijo(i));
        EXPECT_EQ(aLaVista(i), pies);
        EXPECT_EQ(opciones.FramBAF(i).Caption(), "Número de pies");
        usuario.clic(opciones.OptRadioFijo(i));
        EXPECT_EQ(aLaVista(i), decimales);
        EXPECT_EQ(opciones.FramBAF(i).Caption(), "Distancia Fija (m)");
        usuario.clic(opciones.OptFunc(i));
        EXPECT_EQ(aLaVista(i), richards);
        EXPECT_FALSE(opciones.FramBAF(i).Visible());
        usuario.clic(opciones.OptBAF(i));
        EXPECT_EQ(aLaVista(i), decimales);
        EXPECT_EQ(opciones.FramBAF(i).Caption(), "BAF (m2/ha)");
    }
}

TEST_F(Competidores, LasReglasDeUnIndiceNoTocanLasDelOtro) {
    usuario.clic(opciones.OptFunc(0));
    EXPECT_EQ(aLaVista(1), decimales);
    usuario.clic(opciones.OptNumFijo(1));
    EXPECT_EQ(aLaVista(0), richards);
    EXPECT_EQ(aLaVista(1), pies);
}

TEST_F(Competidores, LaClaseDeFuncionCambiaElMarcoConSusCampos) {
    for (const int i : {0, 1}) {
        usuario.clic(opciones.OptFunc(i));
        usuario.clic(opciones.OptHiper(i));
        EXPECT_EQ(aLaVista(i), hiperbola);
        usuario.clic(opciones.OptRichard(i));
        EXPECT_EQ(aLaVista(i), richards);
    }
}

TEST_F(Competidores, LaFuncionVuelveSiempreConRichards) {
    usuario.clic(opciones.OptFunc(0));
    usuario.clic(opciones.OptHiper(0));
    usuario.clic(opciones.OptRadioFijo(0));
    EXPECT_TRUE(opciones.OptHiper(0).Value());
    usuario.clic(opciones.OptFunc(0));
    EXPECT_TRUE(opciones.OptRichard(0).Value());
    EXPECT_EQ(aLaVista(0), richards);
}

TEST_F(Competidores, TrasLosPiesLaFuncionTapaSusCamposSoloConElMarco) {
    usuario.clic(opciones.OptNumFijo(0));
    usuario.clic(opciones.OptFunc(0));
    EXPECT_TRUE(opciones.TxtBAF1(1).Visible());
    EXPECT_FALSE(opciones.TxtBAF1(0).Visible());
    EXPECT_EQ(aLaVista(0), richards);
}

TEST_F(Competidores, LaListaDeFuncionesSeEscondeConSusLineasYVuelveConEllas) {
    usuario.clic(opciones.OptFunc(0));
    teclear(opciones.TxtRich(0), "12");
    usuario.clic(opciones.CmdAñadirRich(0));
    usuario.clic(opciones.OptBAF(0));
    usuario.clic(opciones.OptFunc(0));
    EXPECT_EQ(lineas(opciones.LstRich(0)), Lineas{"A: 12,00; k: 0,00; m: 0,00"});
}

TEST_F(Intervalos, UnPrimeroPorEncimaDelUltimoLoArrastraYElPasoEsUno) {
    poner(0, "0,00", "0,00", "3");
    teclear(primero(0), "2,00");
    dejar();
    esperarTextos(0, "2,00", "2,00", "1");
}

TEST_F(Intervalos, UnPrimeroIgualAlUltimoDejaElPasoEnUno) {
    poner(0, "1", "2,00", "0,5");
    teclear(primero(0), "2");
    dejar();
    esperarTextos(0, "2", "2", "1"); // the last one takes the text of the first one
}

TEST_F(Intervalos, UnPrimeroPorDebajoDelUltimoDaElRecorridoComoPaso) {
    poner(0, "0,00", "6,00", "1");
    teclear(primero(0), "2,5");
    dejar();
    esperarTextos(0, "2,5", "6,00", "3,5");
}

TEST_F(Intervalos, UnUltimoPorEncimaDelPrimeroDaElRecorridoComoPaso) {
    poner(0, "2,00", "2,00", "1");
    teclear(ultimo(0), "6,00");
    dejar();
    esperarTextos(0, "2,00", "6,00", "4");
}

TEST_F(Intervalos, UnUltimoPorDebajoDelPrimeroTomaSuTextoYElPasoQueda) {
    poner(0, "2,00", "6,00", "2");
    teclear(ultimo(0), "1,00");
    dejar();
    esperarTextos(0, "2,00", "2,00", "2");
}

TEST_F(Intervalos, UnUltimoIgualAlPrimeroDejaElPasoEnUno) {
    poner(0, "2,00", "6,00", "2");
    teclear(ultimo(0), "2");
    dejar();
    esperarTextos(0, "2,00", "2", "1");
}

TEST_F(Intervalos, UnPasoQueNoDivideElRecorridoSeRechazaYQueda) {
    poner(0, "2,00", "6,00", "4");
    teclear(paso(0), "3");
    conAvisos({avisoIntervalo}, [&] { dejar(); });
    esperarTextos(0, "2,00", "6,00", "3");
    EXPECT_EQ(programa.foco(), &paso(0));
}

TEST_F(Intervalos, UnPasoQueDivideElRecorridoQueda) {
    poner(0, "2,00", "6,00", "4");
    teclear(paso(0), "0,5");
    dejar();
    esperarTextos(0, "2,00", "6,00", "0,5");
}

TEST_F(Intervalos, UnPasoNegativoQueDivideElRecorridoQueda) {
    poner(0, "2,00", "6,00", "4");
    teclear(paso(0), "-2");
    dejar();
    esperarTextos(0, "2,00", "6,00", "-2");
}

TEST_F(Intervalos, UnPasoNuloSeCompletaConElRecorridoSinMensaje) {
    poner(0, "2,00", "6,00", "4");
    teclear(paso(0), "0,00");
    conAvisos({}, [&] { dejar(); });
    esperarTextos(0, "2,00", "6,00", "4");
}

TEST_F(Intervalos, UnPasoVacioDaSuMensajeYSeCompleta) {
    poner(0, "2,00", "6,00", "3");
    teclear(paso(0), "");
    conAvisos({avisoNumerico}, [&] { dejar(); });
    esperarTextos(0, "2,00", "6,00", "4");
    EXPECT_EQ(programa.foco(), &paso(0));
}

TEST_F(Intervalos, ConElRecorridoVacioUnPasoVacioDaSuMensajeYEsUno) {
    poner(0, "2,00", "2,00", "1");
    teclear(paso(0), "");
    conAvisos({avisoNumerico}, [&] { dejar(); });
    esperarTextos(0, "2,00", "2,00", "1");
}

TEST_F(Intervalos, ConElRecorridoVacioCualquierPasoEsUno) {
    for (const char* texto : {"0", "5", "-0,5"}) {
        poner(0, "2,00", "2,00", "1");
        teclear(paso(0), texto);
        conAvisos({}, [&] { dejar(); });
        esperarTextos(0, "2,00", "2,00", "1");
    }
}

TEST_F(Intervalos, UnPasoQueNoEsNumeroQuedaSalvoConElRecorridoVacio) {
    poner(0, "2,00", "6,00", "abc");
    conAvisos({avisoNumerico}, [&] { pasarPor(paso(0)); });
    esperarTextos(0, "2,00", "6,00", "abc");
    poner(0, "2,00", "2,00", "abc");
    conAvisos({avisoNumerico}, [&] { dejar(); });
    esperarTextos(0, "2,00", "2,00", "1");
}

TEST_F(Intervalos, UnPasoConPuntoQuedaConSuMensaje) {
    poner(0, "2,00", "6,00", "1.5");
    conAvisos({avisoSeparacion}, [&] { pasarPor(paso(0)); });
    esperarTextos(0, "2,00", "6,00", "1.5");
}

TEST_F(Intervalos, ElUltimoDeLosPiesSigueAlPrimero) {
    usuario.clic(opciones.OptNumFijo(0));
    esperarTextos(1, "1", "1", "1");
    teclear(primero(1), "5");
    dejar();
    esperarTextos(1, "5", "5", "1");
}

TEST_F(Intervalos, ElRecorridoSeEscribeEnLaFormaMasCortaQueSeLeeIgual) {
    poner(6, "0,1", "0,2", "1");
    teclear(ultimo(6), "0,3"); // 0.3 - 0.1 in binary
    dejar();
    esperarTextos(6, "0,1", "0,3", "0,19999999999999998");
}

TEST_F(Intervalos, UnRecorridoQueEnBinarioNoSeDivideDaElMensaje) {
    poner(6, "0,1", "0,3", "1");
    teclear(paso(6), "0,1");
    conAvisos({avisoIntervalo}, [&] { dejar(); });
    esperarTextos(6, "0,1", "0,3", "0,1");
}

TEST_F(Intervalos, UnExtremoRechazadoDejaLosOtrosComoEstaban) {
    poner(0, "", "6,00", "3");
    conAvisos({avisoNumerico}, [&] { pasarPor(primero(0)); });
    esperarTextos(0, "", "6,00", "3");
    conAvisos({avisoNumerico}, [&] { salirPorOtraVentana(); });
    poner(0, "2,00", "6.5", "3");
    conAvisos({avisoSeparacion}, [&] { pasarPor(ultimo(0)); });
    esperarTextos(0, "2,00", "6.5", "3");
}

TEST_F(Intervalos, UnCompaneroQueNoSirveNoSeTocaNiSeNombra) {
    struct Caso {
        const char* deF;
        const char* deL;
        const char* deS;
    };
    for (const Caso& caso :
         std::initializer_list<Caso>{{"7", "x", "3"}, {"7", "2", ""}, {"7", "2", "x"}, {"7", "2.5", "3"}}) {
        poner(0, caso.deF, caso.deL, caso.deS);
        conAvisos({}, [&] { pasarPor(primero(0)); });
        esperarTextos(0, caso.deF, caso.deL, caso.deS);
    }
    for (const Caso& caso :
         std::initializer_list<Caso>{{"x", "2", "3"}, {"7", "2", ""}, {"7", "2", "x"}, {"7.5", "2", "3"}}) {
        poner(0, caso.deF, caso.deL, caso.deS);
        conAvisos({}, [&] { pasarPor(ultimo(0)); });
        esperarTextos(0, caso.deF, caso.deL, caso.deS);
    }
}

TEST_F(Intervalos, DeUnPasoNoImportanLosCaracteresAlDejarLosExtremos) {
    poner(0, "2", "6", "1.5"); // a number, read as 15
    conAvisos({}, [&] { pasarPor(primero(0)); });
    esperarTextos(0, "2", "6", "4");
}

TEST_F(Intervalos, DelUltimoNoImportanLosCaracteresAlDejarElPaso) {
    poner(0, "5", "1.5", "0"); // the last one is read as 15
    conAvisos({}, [&] { pasarPor(paso(0)); });
    esperarTextos(0, "5", "1.5", "10");
}

TEST_F(Intervalos, ConUnPrimeroDeCaracteresProhibidosElPasoSePruebaDosVeces) {
    usuario.clic(opciones.OptNumFijo(0));
    poner(1, "1,5", "3", "1");
    conAvisos({avisoIntervalo, avisoIntervalo}, [&] { pasarPor(paso(1)); });
    esperarTextos(1, "1,5", "3", "1");
    EXPECT_EQ(programa.foco(), &paso(1));
}

TEST_F(Intervalos, ConUnPrimeroDeCaracteresProhibidosUnPasoQueDivideQueda) {
    poner(0, "1.0", "40", "5"); // the first one is read as 10
    conAvisos({}, [&] { pasarPor(paso(0)); });
    esperarTextos(0, "1.0", "40", "5");
}

TEST_F(Intervalos, ConUnPrimeroDeCaracteresProhibidosUnPasoNuloDivideYFalla) {
    usuario.clic(opciones.OptNumFijo(0));
    poner(1, "1,5", "3", "0");
    servicios.esperarFallo(11);
    pasarPor(paso(1));
    esperarTextos(1, "1,5", "3", "0");
}

TEST_F(Intervalos, UnPasoConUnExtremoQueNoEsNumeroFallaAlDividirYNoSiEsNulo) {
    poner(0, "abc", "6", "2");
    servicios.esperarFallo(13);
    pasarPor(paso(0));
    ASSERT_EQ(servicios.fallos().size(), 1U);
    EXPECT_EQ(servicios.fallos().back().lugar(), "campo TxtBAF1(0)");
    poner(0, "abc", "6", "0");
    conAvisos({}, [&] { pasarPor(paso(0)); });
    esperarTextos(0, "abc", "6", "0");
}

TEST_F(Intervalos, UnRecorridoQueNoCabeEsUnDesbordamiento) {
    poner(0, "-1E308", "1E308", "1");
    servicios.esperarFallo(6);
    pasarPor(ultimo(0));
    esperarTextos(0, "-1E308", "1E308", "1");
}

} // namespace varo::prueba
