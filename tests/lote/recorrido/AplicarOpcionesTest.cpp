#include "lote/recorrido/AplicarOpciones.h"

#include "lote/TrabajoDePrueba.h"
#include "options/OpcionesPrograma.h"
#include "shell/VAROMAIN.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varo::prueba {
namespace {

/// The options dialog on show, and a job with some options for it.
class Dialogo {
public:
    explicit Dialogo(const std::string& opciones)
        : trabajo_{InterpretarTrabajo(texto(opciones), "t.toml")},
          seguimiento_{.etapa = [](const std::string&) {},
                       .aviso = [this](const std::string& aviso) { avisos.push_back(aviso); }} {
        puesto.programa.tocar<VAROMAIN>().Show();
        opciones_().Show();
    }

    OpcionesPrograma& operator()() { return opciones_(); }
    /// The error with which applying the options ends, or the empty text.
    std::string aplicar() {
        try {
            AplicarOpciones(puesto);
        } catch (const ErrorTrabajo& error) {
            EXPECT_EQ(error.estado(), Estado::Rechazado);
            return error.what();
        }
        return {};
    }
    std::vector<std::string> avisos;

private:
    static std::string texto(const std::string& opciones) {
        TextoDeTrabajo texto;
        texto.opciones = opciones;
        return texto.texto();
    }
    OpcionesPrograma& opciones_() { return puesto.programa.tocar<OpcionesPrograma>(); }

    Trabajo trabajo_;
    Seguimiento seguimiento_;

public:
    PuestoDeTrabajo puesto{trabajo_, seguimiento_};
};

/// The line of the first option in the text of TextoDeTrabajo.
constexpr int primeraLinea = 14;

std::string Error(const std::string& clave, const std::string& razon, int linea = primeraLinea) {
    return "t.toml: línea " + std::to_string(linea) + ": opciones." + clave + ": " + razon;
}

/// The error of an option behind the line that turns its family on.
std::string ErrorEnFamilia(const std::string& clave, const std::string& razon) {
    return Error(clave, razon, primeraLinea + 1);
}

std::string ErrorAlAplicar(const std::string& opciones) {
    Dialogo dialogo{opciones};
    return dialogo.aplicar();
}

TEST(AplicarOpciones, CasillasYOpcionesQuedanComoSePiden) {
    Dialogo dialogo{
        "Optcm = true\nOpt2D = true\nOptDAP = true\nOptMDIA = true\nOptcirc = true\nChCodigo = 0\n"
        "ChPolExt = false\nChN = 1\nChAB = true\nChDmed = 0\nOptRM = false\n"};
    EXPECT_EQ(dialogo.aplicar(), "");
    EXPECT_TRUE(dialogo().Optcm.Value());
    EXPECT_TRUE(dialogo().Opt2D.Value());
    EXPECT_TRUE(dialogo().OptDAP.Value());
    EXPECT_TRUE(dialogo().OptMDIA.Value());
    EXPECT_TRUE(dialogo().Optcirc.Value());
    EXPECT_EQ(dialogo().ChCodigo.Value(), 0);
    EXPECT_EQ(dialogo().ChPolExt.Value(), 0);
    EXPECT_EQ(dialogo().ChN.Value(), 1);
    EXPECT_EQ(dialogo().ChAB.Value(), 1);
    EXPECT_EQ(dialogo().ChDmed.Value(), 0);
    EXPECT_TRUE(dialogo.avisos.empty());
}

TEST(AplicarOpciones, LoQueYaEstaComoSePideNoSeToca) {
    Dialogo dialogo{"ChCodigo = 1\nOptdecim = true\nChN = 0\nOptcirc = false\n"};
    int clics = 0;
    dialogo().ChCodigo.Click = [&] { ++clics; };
    dialogo().ChN.Click = [&] { ++clics; };
    dialogo().Optdecim.Click = [&] { ++clics; };
    dialogo().Optcirc.Click = [&] { ++clics; };
    EXPECT_EQ(dialogo.aplicar(), "");
    EXPECT_EQ(clics, 0);
    EXPECT_EQ(dialogo.puesto.programa.sesion.CambiosCodigo, 0);
}

/// What a person would see change first in the controls of a job.
std::string ValorDe(const Control& control) {
    switch (control.tipo()) {
    case TipoControl::Casilla:
        return std::to_string(static_cast<const Casilla&>(control).Value());
    case TipoControl::Opcion:
        return static_cast<const Opcion&>(control).Value() ? "sí" : "no";
    default:
        return static_cast<const CajaTexto&>(control).Text();
    }
}

TEST(AplicarOpciones, ElOrdenEsElDeUnaPersonaYNoElDelArchivo) {
    Dialogo dialogo{"ChIDPActivar = 1\nChAPA = 1\nChAOIBil = 0\n\"OptHiper(0)\" = true\nChN = 1\n"
                    "\"OptFunc(0)\" = true\nOptcirc = true\nChCodigo = 0\nOptcm = true\nOpt2D = true\n"
                    "\"TxtRm(0)\" = 1\nLstAOI = []\nChAOIActivar = 1\n"};
    std::vector<std::string> orden;
    for (Control* control : std::initializer_list<Control*>{
             &dialogo().ChAPA, &dialogo().ChAOIBil, &dialogo().OptHiper(0), &dialogo().ChN,
             &dialogo().OptFunc(0), &dialogo().Optcirc, &dialogo().ChCodigo, &dialogo().Optcm,
             &dialogo().Opt2D, &dialogo().TxtRm(0), &dialogo().ChIDPActivar, &dialogo().ChAOIActivar}) {
        control->observar([&orden, control, valor = ValorDe(*control)]() mutable {
            if (ValorDe(*control) != valor) {
                valor = ValorDe(*control);
                orden.push_back(control->nombreCompleto());
            }
        });
    }
    EXPECT_EQ(dialogo.aplicar(), "");
    const std::vector<std::string> esperado{"Opt2D",        "ChCodigo",   "Optcm",        "Optcirc",
                                            "ChAOIActivar", "ChAPA",      "ChIDPActivar", "ChAOIBil",
                                            "ChN",          "OptFunc(0)", "OptHiper(0)",  "TxtRm(0)"};
    EXPECT_EQ(orden, esperado);
}

TEST(AplicarOpciones, DosOpcionesDeUnGrupoEncendidasSeRechazanConSusLineas) {
    EXPECT_EQ(
        ErrorAlAplicar("OptMDIA = true\nChN = 1\nOptCMDIA = true\n"),
        Error("OptCMDIA",
              "está encendida y opciones.OptMDIA, de su mismo grupo, también (línea 14): deje encendida una "
              "sola",
              primeraLinea + 2));
    EXPECT_EQ(
        ErrorAlAplicar("ChDRActivar = 1\n\"OptBAF(1)\" = true\n\"OptNumFijo(1)\" = true\n"),
        Error(
            "OptNumFijo(1)",
            "está encendida y opciones.OptBAF(1), de su mismo grupo, también (línea 15): deje encendida una "
            "sola",
            primeraLinea + 2));
    EXPECT_EQ(ErrorAlAplicar("OptMDIA = true\nOptDAP = true\nOptCMDIA = false\n"), "");
    EXPECT_EQ(
        ErrorAlAplicar("ChIDPActivar = 1\nChDRActivar = 1\n\"OptBAF(0)\" = true\n\"OptNumFijo(1)\" = true\n"),
        "")
        << "cada familia tiene su grupo";
}

TEST(AplicarOpciones, ElRadioMedioHaceCirculosAunqueElArchivoPidaAntesLaElipse) {
    EXPECT_EQ(ErrorAlAplicar("OptElipse = true\nOptRM = true\n"),
              Error("OptElipse", "está inhabilitado: con OptRM las copas son círculos"));
    EXPECT_EQ(ErrorAlAplicar("Optcirc = true\nOptElipse = false\nOptRM = true\n"), "");
}

TEST(AplicarOpciones, UnaOpcionSoloSeApagaEncendiendoOtraDeSuGrupo) {
    EXPECT_EQ(ErrorAlAplicar("OptCAP = false\n"),
              Error("OptCAP", "se apaga encendiendo otra de su grupo: OptDAP"));
    EXPECT_EQ(ErrorAlAplicar("Opt4R = false\n"),
              Error("Opt4R", "se apaga encendiendo otra de su grupo: Opt2D o OptRM"));
    EXPECT_EQ(ErrorAlAplicar("OptCAP = false\nOptDAP = true\n"), "");
    EXPECT_EQ(ErrorAlAplicar("OptDAP = false\n"), "");
}

TEST(AplicarOpciones, UnNombreQueNoEsDeNingunControlSeRechaza) {
    EXPECT_EQ(ErrorAlAplicar("ChX = 1\n"),
              Error("ChX", "clave desconocida: no hay ningún control con ese nombre"));
    EXPECT_EQ(ErrorAlAplicar("chn = 1\n"), Error("chn", "clave desconocida; ¿ChN?"));
    for (const std::string nombre :
         {"ChN(0)", "TxtBAF1", "TxtBAF1(5)", "TxtBAF1(06)", "TxtBAF1(6", "TxtBAF1(-1)", "TxtBAF1()",
          "TxtBAF1(6) ", "(6)", "TxtBAF1(6x)", "TxtBAF1(600)"}) {
        EXPECT_EQ(ErrorAlAplicar("\"" + nombre + "\" = 1\n"),
                  Error(nombre, "clave desconocida: no hay ningún control con ese nombre"));
    }
}

TEST(AplicarOpciones, UnNombreDesconocidoSeRechazaAntesDeTocarNada) {
    Dialogo dialogo{"ChN = 1\nChX = 1\n"};
    EXPECT_NE(dialogo.aplicar(), "");
    EXPECT_EQ(dialogo().ChN.Value(), 0);
}

TEST(AplicarOpciones, UnControlQueNoEsUnaOpcionSeRechaza) {
    EXPECT_EQ(ErrorAlAplicar("CmdAceptar = true\n"),
              Error("CmdAceptar", "no es una opción: es un control de otra clase (Boton)"));
    EXPECT_EQ(ErrorAlAplicar("Frame1 = true\n"),
              Error("Frame1", "no es una opción: es un control de otra clase (Marco)"));
    // Its family is off, which is not what keeps it from being an option.
    EXPECT_EQ(ErrorAlAplicar("CmdQuitarDist = true\n"),
              Error("CmdQuitarDist", "no es una opción: es un control de otra clase (Boton)"));
}

TEST(AplicarOpciones, UnValorDeOtraClaseSeRechaza) {
    const std::string casilla = "es una casilla: se espera 0, 1, false o true";
    for (const char* valor : {"2", "-1", "1.0", "\"1\"", "[]"}) {
        EXPECT_EQ(ErrorAlAplicar(std::string{"ChN = "} + valor + "\n"), Error("ChN", casilla)) << valor;
    }
    for (const char* valor : {"1", "\"true\"", "0.0"}) {
        EXPECT_EQ(ErrorAlAplicar(std::string{"Optcm = "} + valor + "\n"),
                  Error("Optcm", "es una opción: se espera true o false"))
            << valor;
    }
}

TEST(AplicarOpciones, LasClavesDeUnaFamiliaApagadaNombranSuInterruptor) {
    const auto apagada = [](const std::string& interruptor) {
        return "su familia de índices está apagada: falta " + interruptor + " = 1";
    };
    const std::vector<std::array<std::string, 3>> casos{
        {"ChISCBil", "1", "ChSupCopa"},         {"ChAOIUni", "1", "ChAOIActivar"},
        {"TxtBAF1(6)", "0.5", "ChAOIActivar"},  {"LstAOI", "[]", "ChAOIActivar"},
        {"OptHjHi", "false", "ChAOIActivar"},   {"ChIDPSi", "1", "ChIDPActivar"},
        {"ChIDPBil", "1", "ChIDPActivar"},      {"TxtBAF1(0)", "1", "ChIDPActivar"},
        {"OptFunc(0)", "true", "ChIDPActivar"}, {"LstRich(0)", "[]", "ChIDPActivar"},
        {"OptFunc(1)", "false", "ChDRActivar"}, {"LstDist", "[]", "ChDRActivar"},
        {"TxtBAF2(3)", "1", "ChDRActivar"},     {"TxtBAF3(8)", "1", "ChAPA"},
        {"OptAOIDjDi", "true", "ChAOIActivar"},
    };
    for (const auto& [clave, valor, interruptor] : casos) {
        EXPECT_EQ(ErrorAlAplicar("\"" + clave + "\" = " + valor + "\n"), Error(clave, apagada(interruptor)));
    }
}

TEST(AplicarOpciones, UnCampoQueNoSePuedeUsarNombraLaOpcionQueLoMuestra) {
    const auto error = [](const std::string& opciones) { return ErrorAlAplicar(opciones); };
    const auto clave = [](const std::string& nombre) { return "\"" + nombre + "\" = \"1\"\n"; };
    const auto oculto = [](const std::string& nombre, const std::string& opcion) {
        return ErrorEnFamilia(nombre, "no está a la vista: falta " + opcion + " = true");
    };
    const std::string idp = "ChIDPActivar = 1\n";
    EXPECT_EQ(error(idp + clave("TxtBAF1(1)")), oculto("TxtBAF1(1)", "OptNumFijo(0)"));
    EXPECT_EQ(error(idp + clave("LstRich(0)")), oculto("LstRich(0)", "OptFunc(0)"));
    EXPECT_EQ(error(idp + clave("TxtRich(2)")), oculto("TxtRich(2)", "OptFunc(0) y OptRichard(0)"));
    EXPECT_EQ(error(idp + clave("TxtHIP(6)")), oculto("TxtHIP(6)", "OptFunc(0) y OptHiper(0)"));
    EXPECT_EQ(error("ChIDPActivar = 1\n\"TxtBAF1(0)\" = 1\n\"OptNumFijo(0)\" = true\n"),
              oculto("TxtBAF1(0)", "OptBAF(0) u OptRadioFijo(0)"));
    // The stems of the distance-weighted index start on show, under their twins.
    EXPECT_EQ(error("ChDRActivar = 1\n" + clave("TxtBAF2(3)")),
              ErrorEnFamilia("TxtBAF2(3)", "está inhabilitado: falta OptNumFijo(1) = true"));
}

TEST(AplicarOpciones, LoQueNuncaSeHabilitaSeRechazaConSuNombre) {
    EXPECT_EQ(ErrorAlAplicar("ChDRActivar = 1\nOptDRHjHi = true\n"),
              ErrorEnFamilia("OptDRHjHi", "OptDRHjHi está inhabilitado"));
    EXPECT_EQ(ErrorAlAplicar("ChAOIActivar = 1\nOptHjHi = true\n"),
              ErrorEnFamilia("OptHjHi", "OptHjHi está inhabilitado"));
}

TEST(AplicarOpciones, UnBarridoSeTecleaPrimeroUltimoYPasoDejandoCadaCampo) {
    Dialogo dialogo{"\"TxtBAF3(6)\" = 0.5\n\"TxtBAF1(6)\" = \"0,5\"\n\"TxtBAF2(6)\" = 2\n\"TxtBAF1(8)\" = 7\n"
                    "ChAPA = 1\nChAOIActivar = 1\n"};
    std::vector<std::string> hechos;
    for (CajaTexto* caja :
         {&dialogo().TxtBAF1(6), &dialogo().TxtBAF2(6), &dialogo().TxtBAF3(6), &dialogo().TxtBAF1(8)}) {
        caja->Change = [&hechos, caja] { hechos.push_back(caja->nombreCompleto() + "=" + caja->Text()); };
        caja->LostFocus = [&hechos, caja] { hechos.push_back("sale de " + caja->nombreCompleto()); };
    }
    EXPECT_EQ(dialogo.aplicar(), "");
    const std::vector<std::string> esperados{"TxtBAF1(6)=0,5",     "sale de TxtBAF1(6)", "TxtBAF2(6)=2",
                                             "sale de TxtBAF2(6)", "TxtBAF3(6)=0,5",     "sale de TxtBAF3(6)",
                                             "TxtBAF1(8)=7",       "sale de TxtBAF1(8)"};
    EXPECT_EQ(hechos, esperados);
}

TEST(AplicarOpciones, UnBarridoQuedaComoSePideSinAvisos) {
    Dialogo dialogo{"ChAOIActivar = 1\n\"TxtBAF3(6)\" = 0.5\n\"TxtBAF1(6)\" = 0.5\n\"TxtBAF2(6)\" = \"2,5\"\n"
                    "ChIDPActivar = 1\n\"OptNumFijo(0)\" = true\n\"TxtBAF1(1)\" = 2\n\"TxtBAF2(1)\" = 6\n"
                    "\"TxtBAF3(1)\" = 2\n"};
    EXPECT_EQ(dialogo.aplicar(), "");
    EXPECT_EQ(dialogo().TxtBAF1(6).Text(), "0,5");
    EXPECT_EQ(dialogo().TxtBAF2(6).Text(), "2,5");
    EXPECT_EQ(dialogo().TxtBAF3(6).Text(), "0,5");
    EXPECT_EQ(dialogo().TxtBAF1(1).Text(), "2");
    EXPECT_EQ(dialogo().TxtBAF2(1).Text(), "6");
    EXPECT_EQ(dialogo().TxtBAF3(1).Text(), "2");
    EXPECT_TRUE(dialogo.avisos.empty());
}

TEST(AplicarOpciones, ElIntervaloQueNoEsCorrectoEsUnAvisoYElTrabajoSigue) {
    // In binary (0,3 - 0,1) / 0,1 is 1.9999999999999998.
    Dialogo dialogo{"ChAOIActivar = 1\n\"TxtBAF1(6)\" = 0.1\n\"TxtBAF2(6)\" = 0.3\n\"TxtBAF3(6)\" = 0.1\n"
                    "ChAPA = 1\n\"TxtBAF1(8)\" = 7\n"};
    EXPECT_EQ(dialogo.aplicar(), "");
    EXPECT_EQ(dialogo().TxtBAF1(6).Text(), "0,1");
    EXPECT_EQ(dialogo().TxtBAF2(6).Text(), "0,3");
    EXPECT_EQ(dialogo().TxtBAF3(6).Text(), "0,1");
    EXPECT_EQ(dialogo().TxtBAF1(8).Text(), "7");
    EXPECT_EQ(dialogo.avisos, std::vector{Error("TxtBAF3(6) = «0,1»", "aviso: El intervalo no es correcto",
                                                primeraLinea + 3)});
    EXPECT_EQ(dialogo.puesto.programa.activa(), &dialogo());
}

TEST(AplicarOpciones, UnValorQueElDialogoRechazaAcabaConElTrabajoConSuMensajeYElValor) {
    struct Caso {
        const char* interruptores;
        const char* clave;
        const char* valor;
        const char* tecleado;
        const char* mensaje;
    };
    const std::vector<Caso> casos{
        {"ChAOIActivar", "TxtRm(0)", "\"1.5\"", "1.5", "La separación decimal es ,"},
        {"ChAOIActivar", "TxtRm(4)", "\"abc\"", "abc", "El valor debe ser numérico"},
        {"ChAOIActivar", "TxtRm(1)", "\"\"", "", "El valor debe ser numérico"},
        {"ChAOIActivar", "TxtBAF1(6)", "\"1.5\"", "1.5", "La separación decimal es ,"},
        {"ChAOIActivar", "TxtBAF2(6)", "\"\"", "", "El valor debe ser numérico"},
        {"ChDRActivar", "TxtEXP(2)", "\"1.000\"", "1.000", "La separación decimal es ,"},
        {"ChAPA", "TxtBAF3(8)", "\"x\"", "x", "El valor debe ser numérico"},
        {"\"OptNumFijo(0)\" = true\nChIDPActivar", "TxtBAF1(1)", "1.5", "1,5",
         "Sólo se admiten números naturales"},
        {"\"OptFunc(1)\" = true\nChDRActivar", "TxtRich(3)", "-1", "-1", "No se admiten valores negativos"},
    };
    for (const Caso& caso : casos) {
        const std::string interruptores = std::string{caso.interruptores} + " = 1\n";
        const auto lineas = static_cast<int>(std::ranges::count(interruptores, '\n'));
        EXPECT_EQ(ErrorAlAplicar(interruptores + "\"" + caso.clave + "\" = " + caso.valor + "\n"),
                  Error(std::string{caso.clave} + " = «" + caso.tecleado + "»",
                        std::string{"el programa avisa: «"} + caso.mensaje + "»", primeraLinea + lineas));
    }
}

TEST(AplicarOpciones, UnTextoQueElProgramaCambiaEsUnAviso) {
    Dialogo dialogo{"ChAPA = 1\n\"TxtBAF3(8)\" = 0\n"};
    EXPECT_EQ(dialogo.aplicar(), "");
    EXPECT_EQ(dialogo().TxtBAF3(8).Text(), "1");
    EXPECT_EQ(dialogo.avisos,
              std::vector{ErrorEnFamilia("TxtBAF3(8)", "aviso: el programa ha cambiado «0» por «1»")});
}

TEST(AplicarOpciones, UnaFamiliaQuedaConSusFunciones) {
    Dialogo dialogo{"ChAOIActivar = 1\nChDRActivar = 1\n\"OptFunc(1)\" = true\n"
                    "LstAOI = [{ a = 0.5, b = 0.2, c = 1.0, d = 0.0, e = 0.0 }]\n"
                    "LstDist = [{ tipo = \"EXP\", a = 0, b = 0, c = 0, d = 0, e = 0 }, "
                    "{ tipo = \"HIP\", a = 1, b = 1, c = 1, d = 0, e = 0 }]\n"
                    "\"LstRich(1)\" = [{ A = 9, k = 0.5, a = 1, b = 1, c = 1, d = 0, e = 0 }, { A = 12, k = "
                    "0.05, m = 0.5 }]\n"};
    EXPECT_EQ(dialogo.aplicar(), "");
    const auto lineas = [](const Lista& lista) {
        std::vector<std::string> textos;
        for (int i = 0; i < lista.ListCount(); ++i) {
            textos.push_back(lista.List(i));
        }
        return textos;
    };
    using Lineas = std::vector<std::string>;
    EXPECT_EQ(lineas(dialogo().LstAOI), Lineas{"a: 0,5000; b: 0,2000; c: 1,0000; d: 0,0000; e: 0,0000"});
    EXPECT_EQ(lineas(dialogo().LstDist),
              (Lineas{"EXP, a: 0,0000; b: 0,0000; c: 0,0000; d: 0,0000; e: 0,0000",
                      "HIP, a: 1,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000"}));
    EXPECT_EQ(lineas(dialogo().LstRich(1)),
              (Lineas{"A: 9,00; k: 0,50; a: 1,00; b: 1,00; c: 1,00; d: 0,00; e: 0,00",
                      "A: 12,00; k: 0,05; m: 0,50"}));
    EXPECT_TRUE(dialogo.avisos.empty());
}

TEST(AplicarOpciones, UnCampoYUnaListaRechazanLosValoresDeOtraClase) {
    EXPECT_EQ(ErrorAlAplicar("ChAOIActivar = 1\n\"TxtRm(0)\" = true\n"),
              ErrorEnFamilia("TxtRm(0)", "es un campo de texto: se espera un número o un texto"));
    EXPECT_EQ(ErrorAlAplicar("ChAOIActivar = 1\nLstAOI = 3\n"),
              ErrorEnFamilia("LstAOI", "es una lista: se espera una lista de tablas"));
}

} // namespace
} // namespace varo::prueba
