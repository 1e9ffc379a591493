// The lists of model functions: what enters, in which words, and what is refused.
#include "options/DialogoAbierto.h"

namespace varo::prueba {

namespace {

const Aviso repetidos{"Has introducido dos veces los mismos valores", "Valores repetidos"};
const Aviso rmNulo{"El valor de Rm es siempre nulo", "Radio de influencia siempre nulo"};
const Aviso denominadorNulo{"El denominador es nulo", "Valor no admitido"};
const Aviso radioNulo{"El radio de influencia es siempre nulo", "Radio de influencia siempre nulo"};
const Aviso exponenteNulo{"El denominador del exponente es nulo", "Denominador nulo"};
const Aviso hiperbolaNula{"El valor del denominador es nulo", "Radio de influencia siempre nulo"};

const std::string ceros = "a: 0,0000; b: 0,0000; c: 0,0000; d: 0,0000; e: 0,0000";

class FuncionesParametro : public DialogoAbierto {
protected:
    FuncionesParametro() {
        encenderTodas();
        usuario.clic(opciones.OptFunc(0));
        usuario.clic(opciones.OptFunc(1));
    }

    /// Types texts into fields in a row.
    void llenar(const Matriz<CajaTexto>& campos, int primero, const Lineas& textos) {
        for (const std::string& texto : textos) {
            teclear(campos(primero++), texto);
        }
    }
    /// Adds four influence radii with a = 1 to 4.
    void anadirCuatroRadios() {
        for (const char* a : {"1", "2", "3", "4"}) {
            teclear(opciones.TxtRm(0), a);
            usuario.clic(opciones.CmdAñadir);
        }
    }
};

std::string Radio(int a) {
    return "a: " + std::to_string(a) + ",0000; b: 0,0000; c: 0,0000; d: 0,0000; e: 0,0000";
}

} // namespace

TEST_F(FuncionesParametro, UnRadioDeInfluenciaSeEscribeConCuatroDecimales) {
    llenar(opciones.TxtRm, 0, {"0,5", "0,2", "1", "0", "0"});
    usuario.clic(opciones.CmdAñadir);
    llenar(opciones.TxtRm, 0, {"-12,34567", "1E3", "-1", "0,00005", "1000"});
    usuario.clic(opciones.CmdAñadir);
    EXPECT_EQ(lineas(opciones.LstAOI),
              (Lineas{"a: 0,5000; b: 0,2000; c: 1,0000; d: 0,0000; e: 0,0000",
                      "a: -12,3457; b: 1000,0000; c: -1,0000; d: 0,0001; e: 1000,0000"}));
}

TEST_F(FuncionesParametro, ElMismoRadioDosVecesSeRechazaYQuedaUno) {
    llenar(opciones.TxtRm, 0, {"0,5", "0,2", "1", "0", "0"});
    usuario.clic(opciones.CmdAñadir);
    conAvisos({repetidos}, [&] { usuario.clic(opciones.CmdAñadir); });
    EXPECT_EQ(opciones.LstAOI.ListCount(), 1);
    EXPECT_EQ(opciones.TxtRm(0).Text(), "0,5");
}

TEST_F(FuncionesParametro, LosRepetidosSeComparanComoSeEscriben) {
    teclear(opciones.TxtRm(0), "1,00001");
    usuario.clic(opciones.CmdAñadir);
    teclear(opciones.TxtRm(0), "2");
    usuario.clic(opciones.CmdAñadir);
    teclear(opciones.TxtRm(0), "1");
    conAvisos({repetidos}, [&] { usuario.clic(opciones.CmdAñadir); });
    EXPECT_EQ(lineas(opciones.LstAOI), (Lineas{Radio(1), Radio(2)}));
}

TEST_F(FuncionesParametro, UnRadioSiempreNuloSeRechazaAunqueTengaExponentes) {
    llenar(opciones.TxtRm, 0, {"0", "0", "5", "0", "7"});
    conAvisos({rmNulo}, [&] { usuario.clic(opciones.CmdAñadir); });
    EXPECT_EQ(opciones.LstAOI.ListCount(), 0);
    EXPECT_EQ(opciones.TxtRm(2).Text(), "5");
}

TEST_F(FuncionesParametro, UnValorQueSeEscribeComoCeroCuentaComoCero) {
    teclear(opciones.TxtRm(0), "0,00004");
    conAvisos({rmNulo}, [&] { usuario.clic(opciones.CmdAñadir); });
    teclear(opciones.TxtRm(0), "-0,00004");
    conAvisos({rmNulo}, [&] { usuario.clic(opciones.CmdAñadir); });
    usuario.clic(opciones.OptHiper(0));
    teclear(opciones.TxtHIP(2), "0,004");
    conAvisos({hiperbolaNula}, [&] { usuario.clic(opciones.CmdAñadirRich(0)); });
    EXPECT_EQ(opciones.LstAOI.ListCount(), 0);
    EXPECT_EQ(opciones.LstRich(0).ListCount(), 0);
}

TEST_F(FuncionesParametro, CadaUnoDeLosTresTerminosBastaParaQueElRadioNoSeaNulo) {
    for (const int termino : {0, 1, 3}) {
        llenar(opciones.TxtRm, 0, {"0", "0", "0", "0", "0"});
        teclear(opciones.TxtRm(termino), "1");
        usuario.clic(opciones.CmdAñadir);
    }
    EXPECT_EQ(lineas(opciones.LstAOI), (Lineas{"a: 1,0000; b: 0,0000; c: 0,0000; d: 0,0000; e: 0,0000",
                                               "a: 0,0000; b: 1,0000; c: 0,0000; d: 0,0000; e: 0,0000",
                                               "a: 0,0000; b: 0,0000; c: 0,0000; d: 1,0000; e: 0,0000"}));
}

TEST_F(FuncionesParametro, UnaFuncionDeDistanciaLlevaDelanteSuClase) {
    llenar(opciones.TxtEXP, 0, {"1", "-0,5", "2", "0,25", "3"});
    usuario.clic(opciones.CmdAñadirDist);
    usuario.clic(opciones.OptDistExp);
    usuario.clic(opciones.CmdAñadirDist);
    EXPECT_EQ(lineas(opciones.LstDist),
              (Lineas{"HIP, a: 1,0000; b: -0,5000; c: 2,0000; d: 0,2500; e: 3,0000",
                      "EXP, a: 1,0000; b: -0,5000; c: 2,0000; d: 0,2500; e: 3,0000"}));
}

TEST_F(FuncionesParametro, UnDenominadorNuloDejaUnaLineaEnBlancoYLaSegundaVezEsRepetido) {
    teclear(opciones.TxtEXP(2), "5");
    conAvisos({denominadorNulo}, [&] { usuario.clic(opciones.CmdAñadirDist); });
    EXPECT_EQ(lineas(opciones.LstDist), Lineas{""});
    conAvisos({denominadorNulo, repetidos}, [&] { usuario.clic(opciones.CmdAñadirDist); });
    EXPECT_EQ(lineas(opciones.LstDist), Lineas{""});
    usuario.elegir(opciones.LstDist, 0);
    usuario.clic(opciones.CmdQuitarDist);
    EXPECT_EQ(opciones.LstDist.ListCount(), 0);
}

TEST_F(FuncionesParametro, LaExponencialDeTodoCerosSeAdmite) {
    usuario.clic(opciones.OptDistExp);
    conAvisos({}, [&] { usuario.clic(opciones.CmdAñadirDist); });
    EXPECT_EQ(lineas(opciones.LstDist), Lineas{"EXP, " + ceros});
}

TEST_F(FuncionesParametro, UnaFuncionDeRichardsSeEscribeConDosDecimales) {
    llenar(opciones.TxtRich, 0, {"12", "0,05", "0,5"});
    usuario.clic(opciones.CmdAñadirRich(0));
    llenar(opciones.TxtRich, 3, {"7,125", "0", "2"});
    usuario.clic(opciones.CmdAñadirRich(1));
    EXPECT_EQ(lineas(opciones.LstRich(0)), Lineas{"A: 12,00; k: 0,05; m: 0,50"});
    EXPECT_EQ(lineas(opciones.LstRich(1)), Lineas{"A: 7,13; k: 0,00; m: 2,00"});
}

TEST_F(FuncionesParametro, UnaFuncionHiperbolicaSeEscribeConDosDecimales) {
    usuario.clic(opciones.OptHiper(1));
    llenar(opciones.TxtHIP, 7, {"9", "0,5", "1", "-1", "1", "0", "-2,5"});
    usuario.clic(opciones.CmdAñadirRich(1));
    EXPECT_EQ(lineas(opciones.LstRich(1)),
              Lineas{"A: 9,00; k: 0,50; a: 1,00; b: -1,00; c: 1,00; d: 0,00; e: -2,50"});
    EXPECT_EQ(opciones.LstRich(0).ListCount(), 0);
}

TEST_F(FuncionesParametro, UnaAsintotaNulaSeRechazaYSuCampoTomaElFoco) {
    for (const int i : {0, 1}) {
        llenar(opciones.TxtRich, 3 * i, {"0,004", "1", "1"}); // m = 1 is not looked at
        conAvisos({radioNulo}, [&] { usuario.clic(opciones.CmdAñadirRich(i)); });
        EXPECT_EQ(programa.foco(), &opciones.TxtRich(3 * i));
        EXPECT_EQ(opciones.LstRich(i).ListCount(), 0);
        EXPECT_EQ(opciones.TxtRich(3 * i).Text(), "0,004");
    }
}

TEST_F(FuncionesParametro, UnaMQueSeEscribeComoUnoSeRechazaYSuCampoTomaElFoco) {
    for (const char* m : {"1", "1,004", "0,995"}) {
        llenar(opciones.TxtRich, 0, {"12", "1", m});
        conAvisos({exponenteNulo}, [&] { usuario.clic(opciones.CmdAñadirRich(0)); });
        EXPECT_EQ(programa.foco(), &opciones.TxtRich(2));
    }
    EXPECT_EQ(opciones.LstRich(0).ListCount(), 0);
    teclear(opciones.TxtRich(2), "1,005");
    usuario.clic(opciones.CmdAñadirRich(0));
    EXPECT_EQ(lineas(opciones.LstRich(0)), Lineas{"A: 12,00; k: 1,00; m: 1,01"});
}

TEST_F(FuncionesParametro, UnaHiperbolaSinDenominadorSeRechazaYSuPrimerCampoTomaElFoco) {
    for (const int i : {0, 1}) {
        usuario.clic(opciones.OptHiper(i));
        llenar(opciones.TxtHIP, 7 * i, {"9", "1", "0", "0", "5", "0", "5"});
        conAvisos({hiperbolaNula}, [&] { usuario.clic(opciones.CmdAñadirRich(i)); });
        EXPECT_EQ(programa.foco(), &opciones.TxtHIP(7 * i));
        EXPECT_EQ(opciones.LstRich(i).ListCount(), 0);
    }
}

TEST_F(FuncionesParametro, LasFuncionesDeDimensionRepetidasSeRechazan) {
    teclear(opciones.TxtRich(3), "12");
    usuario.clic(opciones.CmdAñadirRich(1));
    conAvisos({repetidos}, [&] { usuario.clic(opciones.CmdAñadirRich(1)); });
    usuario.clic(opciones.OptHiper(1));
    teclear(opciones.TxtHIP(9), "1");
    usuario.clic(opciones.CmdAñadirRich(1));
    conAvisos({repetidos}, [&] { usuario.clic(opciones.CmdAñadirRich(1)); });
    EXPECT_EQ(lineas(opciones.LstRich(1)),
              (Lineas{"A: 12,00; k: 0,00; m: 0,00",
                      "A: 0,00; k: 0,00; a: 1,00; b: 0,00; c: 0,00; d: 0,00; e: 0,00"}));
}

TEST_F(FuncionesParametro, QuitarSeLlevaTodasLasLineasElegidas) {
    anadirCuatroRadios();
    usuario.elegir(opciones.LstAOI, 1);
    usuario.elegir(opciones.LstAOI, 3);
    usuario.clic(opciones.CmdQuitar2);
    EXPECT_EQ(lineas(opciones.LstAOI), (Lineas{Radio(1), Radio(3)}));
}

TEST_F(FuncionesParametro, QuitarSeLlevaTambienLineasSeguidasYElFinal) {
    anadirCuatroRadios();
    for (const int linea : {0, 1, 3}) {
        usuario.elegir(opciones.LstAOI, linea);
    }
    usuario.clic(opciones.CmdQuitar2);
    EXPECT_EQ(lineas(opciones.LstAOI), Lineas{Radio(3)});
}

TEST_F(FuncionesParametro, QuitarSinNadaElegidoNoQuitaNada) {
    usuario.clic(opciones.CmdQuitar2);
    anadirCuatroRadios();
    usuario.clic(opciones.CmdQuitar2);
    EXPECT_EQ(opciones.LstAOI.ListCount(), 4);
}

TEST_F(FuncionesParametro, CadaListaTieneSusBotonesDeQuitarYDeVaciar) {
    usuario.clic(opciones.OptDistExp);
    const auto llenarTodas = [&](const char* primero, const char* segundo) {
        for (const char* texto : {primero, segundo}) {
            teclear(opciones.TxtRm(0), texto);
            usuario.clic(opciones.CmdAñadir);
            teclear(opciones.TxtEXP(0), texto);
            usuario.clic(opciones.CmdAñadirDist);
            for (const int i : {0, 1}) {
                teclear(opciones.TxtRich(3 * i), texto);
                usuario.clic(opciones.CmdAñadirRich(i));
            }
        }
    };
    struct Botones {
        Lista& lista;
        Boton& quitar;
        Boton& vaciar;
    };
    const std::vector<Botones> todos{
        {opciones.LstAOI, opciones.CmdQuitar2, opciones.CmdQuitarTodo},
        {opciones.LstDist, opciones.CmdQuitarDist, opciones.CmdVaciarDist},
        {opciones.LstRich(0), opciones.CmdQuitarRich(0), opciones.CmdVaciarRich(0)},
        {opciones.LstRich(1), opciones.CmdQuitarRich(1), opciones.CmdVaciarRich(1)},
    };
    llenarTodas("3", "4");
    for (const Botones& botones : todos) {
        SCOPED_TRACE(botones.lista.nombreCompleto());
        ASSERT_EQ(botones.lista.ListCount(), 2);
        const std::string segunda = botones.lista.List(1);
        usuario.elegir(botones.lista, 0);
        usuario.clic(botones.quitar);
        EXPECT_EQ(lineas(botones.lista), Lineas{segunda});
    }
    for (const Botones& botones : todos) {
        SCOPED_TRACE(botones.lista.nombreCompleto());
        ASSERT_EQ(botones.lista.ListCount(), 1);
        usuario.clic(botones.vaciar);
        EXPECT_EQ(botones.lista.ListCount(), 0);
        usuario.clic(botones.vaciar);
        EXPECT_EQ(botones.lista.ListCount(), 0);
    }
}

TEST_F(FuncionesParametro, UnCampoQueQuedoMalFallaAlAnadirYNoAnadeNada) {
    conAvisos({avisoNumerico, avisoNumerico}, [&] {
        teclear(opciones.TxtRm(4), "abc");
        salirPorOtraVentana();
    });
    servicios.esperarFallo(13);
    usuario.clic(opciones.CmdAñadir);
    ASSERT_EQ(servicios.fallos().size(), 1U);
    EXPECT_EQ(servicios.fallos().back().lugar(), "campo TxtRm(4)");
    EXPECT_EQ(opciones.LstAOI.ListCount(), 0);
}

} // namespace varo::prueba
