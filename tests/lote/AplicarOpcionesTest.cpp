#include "lote/AplicarOpciones.h"

#include "lote/TrabajoDePrueba.h"
#include "options/OpcionesPrograma.h"
#include "shell/VAROMAIN.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

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
    /// Turns the family of a tab on and opens all its controls, as its switch does.
    void abrirFamilia(Casilla& interruptor, int ficha) {
        interruptor.Value = 1;
        const auto& arriba = opciones_().SSTab1.contenido(ficha);
        for (Control* control : opciones_().controles()) {
            const Control* superior = control;
            while (superior->contenedor != nullptr) {
                superior = superior->contenedor;
            }
            if (std::find(arriba.begin(), arriba.end(), superior) != arriba.end()) {
                control->Enabled = true;
            }
        }
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

TEST(AplicarOpciones, ElOrdenEsElDeUnaPersonaYNoElDelArchivo) {
    Dialogo dialogo{
        "ChAPA = 1\nChAOIBil = 0\n\"OptRichard(0)\" = true\nChN = 1\n\"OptFunc(0)\" = true\nOptcirc = true\n"
        "ChCodigo = 0\nOptcm = true\nOpt2D = true\n\"TxtRm(0)\" = 1\nLstAOI = []\n"};
    dialogo.abrirFamilia(dialogo().ChAOIActivar, 3);
    dialogo.abrirFamilia(dialogo().ChIDPActivar, 4);
    dialogo().FramFunc(0).Visible = true;
    dialogo().OptHiper(0).Value = true;
    std::vector<std::string> orden;
    const auto anotar = [&](Control& control) {
        control.observar([&orden, &control] { orden.push_back(control.nombreCompleto()); });
    };
    for (Control* control : std::initializer_list<Control*>{
             &dialogo().ChAPA, &dialogo().ChAOIBil, &dialogo().OptRichard(0), &dialogo().ChN,
             &dialogo().OptFunc(0), &dialogo().Optcirc, &dialogo().ChCodigo, &dialogo().Optcm,
             &dialogo().Opt2D, &dialogo().TxtRm(0)}) {
        anotar(*control);
    }
    EXPECT_EQ(dialogo.aplicar(), "");
    const auto ultimo = std::unique(orden.begin(), orden.end());
    orden.erase(ultimo, orden.end());
    const std::vector<std::string> esperado{"Opt2D",         "ChCodigo", "Optcm", "Optcirc",
                                            "ChAPA",         "ChAOIBil", "ChN",   "OptFunc(0)",
                                            "OptRichard(0)", "TxtRm(0)"};
    EXPECT_EQ(orden, esperado);
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

TEST(AplicarOpciones, UnCampoTapadoPorSuGemeloNombraLaOpcionQueLoMuestra) {
    const auto error = [](const std::string& clave) {
        Dialogo dialogo{"\"" + clave + "\" = \"1\"\n"};
        dialogo.abrirFamilia(dialogo().ChIDPActivar, 4);
        dialogo().TxtBAF1(0).Visible = clave != "TxtBAF1(0)";
        return dialogo.aplicar();
    };
    const auto falta = [](const std::string& opcion) {
        return "no está a la vista: falta " + opcion + " = true";
    };
    EXPECT_EQ(error("TxtBAF1(1)"), Error("TxtBAF1(1)", falta("OptNumFijo(0)")));
    EXPECT_EQ(error("TxtBAF1(0)"), Error("TxtBAF1(0)", falta("OptBAF(0) u OptRadioFijo(0)")));
    EXPECT_EQ(error("LstRich(0)"), Error("LstRich(0)", falta("OptFunc(0)")));
    EXPECT_EQ(error("TxtRich(2)"), Error("TxtRich(2)", falta("OptFunc(0) y OptRichard(0)")));
    EXPECT_EQ(error("TxtHIP(6)"), Error("TxtHIP(6)", falta("OptFunc(0) y OptHiper(0)")));
}

TEST(AplicarOpciones, LoQueNuncaSeHabilitaSeRechazaConSuNombre) {
    Dialogo dialogo{"OptDRHjHi = true\n"};
    dialogo.abrirFamilia(dialogo().ChDRActivar, 5);
    dialogo().OptDRHjHi.Enabled = false;
    EXPECT_EQ(dialogo.aplicar(), Error("OptDRHjHi", "OptDRHjHi está inhabilitado"));
}

TEST(AplicarOpciones, UnBarridoSeTecleaPrimeroUltimoYPasoDejandoCadaCampo) {
    Dialogo dialogo{"\"TxtBAF3(6)\" = 0.5\n\"TxtBAF1(6)\" = \"0,5\"\n\"TxtBAF2(6)\" = 2\n\"TxtBAF1(8)\" = 7\n"
                    "ChAPA = 1\n"};
    dialogo.abrirFamilia(dialogo().ChAOIActivar, 3);
    dialogo.abrirFamilia(dialogo().ChAPA, 6);
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

TEST(AplicarOpciones, ElIntervaloQueNoEsCorrectoEsUnAvisoYElTrabajoSigue) {
    Dialogo dialogo{"\"TxtBAF3(6)\" = 0.1\n\"TxtBAF1(8)\" = 7\n"};
    dialogo.abrirFamilia(dialogo().ChAOIActivar, 3);
    dialogo.abrirFamilia(dialogo().ChAPA, 6);
    auto& paso = dialogo().TxtBAF3(6);
    paso.LostFocus = [&] { // as the field does: the message, and the focus back
        dialogo.puesto.servicios.mensaje("El intervalo no es correcto", "Intervalo incorrecto",
                                         mensaje::exclamacion);
        paso.SetFocus();
    };
    EXPECT_EQ(dialogo.aplicar(), "");
    EXPECT_EQ(paso.Text(), "0,1");
    EXPECT_EQ(dialogo().TxtBAF1(8).Text(), "7");
    EXPECT_EQ(dialogo.avisos, std::vector{Error("TxtBAF3(6)", "aviso: El intervalo no es correcto")});
    EXPECT_EQ(dialogo.puesto.programa.activa(), &dialogo());
}

TEST(AplicarOpciones, OtroMensajeDelProgramaAcabaConElTrabajo) {
    Dialogo dialogo{"\"TxtRm(0)\" = \"1.5\"\n"};
    dialogo.abrirFamilia(dialogo().ChAOIActivar, 3);
    dialogo().TxtRm(0).Change = [&] {
        dialogo.puesto.servicios.mensaje("La separación decimal es ,", "Error en la separación decimal",
                                         mensaje::exclamacion);
    };
    EXPECT_EQ(dialogo.aplicar(), Error("TxtRm(0)", "el programa avisa: «La separación decimal es ,»"));
}

TEST(AplicarOpciones, UnTextoQueElProgramaCambiaEsUnAviso) {
    Dialogo dialogo{"\"TxtBAF3(8)\" = 0\n"};
    dialogo.abrirFamilia(dialogo().ChAPA, 6);
    auto& paso = dialogo().TxtBAF3(8);
    paso.LostFocus = [&] { paso.Text = "1"; };
    EXPECT_EQ(dialogo.aplicar(), "");
    EXPECT_EQ(dialogo.avisos, std::vector{Error("TxtBAF3(8)", "aviso: el programa ha cambiado «0» por «1»")});
}

TEST(AplicarOpciones, UnCampoYUnaListaRechazanLosValoresDeOtraClase) {
    const auto error = [](const std::string& opcion) {
        Dialogo dialogo{opcion};
        dialogo.abrirFamilia(dialogo().ChAOIActivar, 3);
        return dialogo.aplicar();
    };
    EXPECT_EQ(error("\"TxtRm(0)\" = true\n"),
              Error("TxtRm(0)", "es un campo de texto: se espera un número o un texto"));
    EXPECT_EQ(error("LstAOI = 3\n"), Error("LstAOI", "es una lista: se espera una lista de tablas"));
}

} // namespace
} // namespace varo::prueba
