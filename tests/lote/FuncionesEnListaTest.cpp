#include "lote/FuncionesEnLista.h"

#include "lote/TrabajoDePrueba.h"
#include "options/OpcionesPrograma.h"
#include "shell/VAROMAIN.h"

#include <gtest/gtest.h>

#include <functional>

namespace varo::prueba {
namespace {

const Lugar lugar{"opciones.Lst", 7};

/// The options dialog with every control open, and buttons that add what is typed in some fields to a list.
class Dialogo {
public:
    Dialogo() {
        puesto.programa.tocar<VAROMAIN>().Show();
        (*this)().Show();
        for (Control* control : (*this)().controles()) {
            control->Enabled = true;
            control->Visible = true;
        }
    }

    OpcionesPrograma& operator()() { return puesto.programa.tocar<OpcionesPrograma>(); }

    static std::function<void()> alAnadir(Lista& lista, const Matriz<CajaTexto>& campos, int desde, int hasta,
                                          const Opcion* clase = nullptr) {
        return [&lista, &campos, desde, hasta, clase] {
            std::string linea = clase == nullptr ? "" : clase->Value() ? "sí" : "no";
            for (int i = desde; i <= hasta; ++i) {
                linea += " " + campos(i).Text();
            }
            lista.AddItem(linea);
        };
    }

    std::string error(const Lista& lista, const FuncionPedida& funcion) {
        return ErrorDe([&] { AnadirFuncion(puesto, lista, funcion, lugar); });
    }

private:
    Trabajo trabajo_ = InterpretarTrabajo(TextoDeTrabajo{}.texto(), "t.toml");
    Seguimiento seguimiento_;

public:
    PuestoDeTrabajo puesto{trabajo_, seguimiento_};
};

FuncionPedida DeCinco() {
    return {{"a", "1"}, {"b", "2,5"}, {"c", "-3"}, {"d", "0"}, {"e", "5"}};
}

TEST(FuncionesEnLista, UnRadioDeInfluenciaSeTecleaEnSusCincoCampos) {
    Dialogo dialogo;
    dialogo().CmdAñadir.Click = Dialogo::alAnadir(dialogo().LstAOI, dialogo().TxtRm, 0, 4);
    AnadirFuncion(dialogo.puesto, dialogo().LstAOI, DeCinco(), lugar);
    ASSERT_EQ(dialogo().LstAOI.ListCount(), 1);
    EXPECT_EQ(dialogo().LstAOI.List(0), " 1 2,5 -3 0 5");
}

TEST(FuncionesEnLista, UnaFuncionDeDistanciaEligeAntesSuTipo) {
    Dialogo dialogo;
    dialogo().CmdAñadirDist.Click =
        Dialogo::alAnadir(dialogo().LstDist, dialogo().TxtEXP, 0, 4, &dialogo().OptDistExp);
    for (const char* tipo : {"EXP", "HIP"}) {
        auto funcion = DeCinco();
        funcion.emplace("tipo", tipo);
        AnadirFuncion(dialogo.puesto, dialogo().LstDist, funcion, lugar);
    }
    ASSERT_EQ(dialogo().LstDist.ListCount(), 2);
    EXPECT_EQ(dialogo().LstDist.List(0), "sí 1 2,5 -3 0 5");
    EXPECT_EQ(dialogo().LstDist.List(1), "no 1 2,5 -3 0 5");
}

TEST(FuncionesEnLista, LosParametrosDicenSiUnaFuncionDeDimensionEsDeRichardsOHiperbolica) {
    Dialogo dialogo;
    auto& boton = dialogo().CmdAñadirRich(1);
    boton.Click = Dialogo::alAnadir(dialogo().LstRich(1), dialogo().TxtRich, 3, 5, &dialogo().OptRichard(1));
    AnadirFuncion(dialogo.puesto, dialogo().LstRich(1), {{"A", "12"}, {"k", "0,05"}, {"m", "0,5"}}, lugar);
    boton.Click = Dialogo::alAnadir(dialogo().LstRich(1), dialogo().TxtHIP, 7, 13, &dialogo().OptHiper(1));
    auto hiperbola = DeCinco();
    hiperbola.insert({{"A", "9"}, {"k", "0,5"}});
    AnadirFuncion(dialogo.puesto, dialogo().LstRich(1), hiperbola, lugar);
    ASSERT_EQ(dialogo().LstRich(1).ListCount(), 2);
    EXPECT_EQ(dialogo().LstRich(1).List(0), "sí 12 0,05 0,5");
    EXPECT_EQ(dialogo().LstRich(1).List(1), "sí 9 0,5 1 2,5 -3 0 5");
    EXPECT_EQ(dialogo().LstRich(0).ListCount(), 0);
}

TEST(FuncionesEnLista, FaltarOSobrarUnParametroSeRechaza) {
    Dialogo dialogo;
    const std::string prefijo = "t.toml: línea 7: opciones.Lst: ";
    auto sinC = DeCinco();
    sinC.erase("c");
    EXPECT_EQ(dialogo.error(dialogo().LstAOI, sinC), prefijo + "a la función le falta el parámetro c");
    auto conF = DeCinco();
    conF.emplace("f", "1");
    EXPECT_EQ(dialogo.error(dialogo().LstAOI, conF), prefijo + "la función no tiene ningún parámetro f");
    auto conTipo = DeCinco();
    conTipo.emplace("tipo", "HIP");
    EXPECT_EQ(dialogo.error(dialogo().LstAOI, conTipo),
              prefijo + "la función no tiene ningún parámetro tipo");
    const std::string sinTipo = prefijo + "a la función le falta tipo = \"HIP\" o tipo = \"EXP\"";
    EXPECT_EQ(dialogo.error(dialogo().LstDist, DeCinco()), sinTipo);
    auto conOtroTipo = DeCinco();
    conOtroTipo.emplace("tipo", "hip");
    EXPECT_EQ(dialogo.error(dialogo().LstDist, conOtroTipo), sinTipo);
    EXPECT_EQ(dialogo.error(dialogo().LstRich(0), {{"A", "1"}, {"k", "1"}, {"m", "0"}, {"a", "1"}}),
              prefijo + "la función no tiene ningún parámetro a");
    EXPECT_EQ(dialogo.error(dialogo().LstRich(0), {{"k", "1"}, {"m", "0"}}),
              prefijo + "a la función le falta el parámetro A");
}

TEST(FuncionesEnLista, UnaListaQueNoCreceRechazaLaFuncion) {
    Dialogo dialogo;
    dialogo().CmdAñadir.Click = [] {};
    EXPECT_EQ(dialogo.error(dialogo().LstAOI, DeCinco()),
              "t.toml: línea 7: opciones.Lst: la lista no admite la función");
}

TEST(FuncionesEnLista, UnMensajeDelProgramaAcabaConElTrabajo) {
    Dialogo dialogo;
    dialogo().CmdAñadir.Click = [&] {
        dialogo.puesto.servicios.mensaje("El valor de Rm es siempre nulo", "Radio de influencia siempre nulo",
                                         mensaje::exclamacion);
    };
    EXPECT_EQ(dialogo.error(dialogo().LstAOI, DeCinco()),
              "t.toml: línea 7: opciones.Lst: el programa avisa: «El valor de Rm es siempre nulo»");
}

} // namespace
} // namespace varo::prueba
