#include "lote/recorrido/FuncionesEnLista.h"

#include "lote/TrabajoDePrueba.h"
#include "options/OpcionesPrograma.h"
#include "shell/VAROMAIN.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

const Lugar lugar{"opciones.Lst", 7};

/// The options dialog with all its families on and both competitor selections by a function of stem size.
class Dialogo {
public:
    Dialogo() {
        puesto.programa.tocar<VAROMAIN>().Show();
        (*this)().Show();
        auto& usuario = puesto.usuario;
        usuario.clic((*this)().ChAOIActivar);
        usuario.clic((*this)().ChIDPActivar);
        usuario.clic((*this)().ChDRActivar);
        usuario.clic((*this)().OptFunc(0));
        usuario.clic((*this)().OptFunc(1));
    }

    OpcionesPrograma& operator()() { return puesto.programa.tocar<OpcionesPrograma>(); }

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
    AnadirFuncion(dialogo.puesto, dialogo().LstAOI, DeCinco(), lugar);
    ASSERT_EQ(dialogo().LstAOI.ListCount(), 1);
    EXPECT_EQ(dialogo().LstAOI.List(0), "a: 1,0000; b: 2,5000; c: -3,0000; d: 0,0000; e: 5,0000");
}

TEST(FuncionesEnLista, UnaFuncionDeDistanciaEligeAntesSuTipo) {
    Dialogo dialogo;
    for (const char* tipo : {"EXP", "HIP"}) {
        auto funcion = DeCinco();
        funcion.emplace("tipo", tipo);
        AnadirFuncion(dialogo.puesto, dialogo().LstDist, funcion, lugar);
    }
    ASSERT_EQ(dialogo().LstDist.ListCount(), 2);
    EXPECT_EQ(dialogo().LstDist.List(0), "EXP, a: 1,0000; b: 2,5000; c: -3,0000; d: 0,0000; e: 5,0000");
    EXPECT_EQ(dialogo().LstDist.List(1), "HIP, a: 1,0000; b: 2,5000; c: -3,0000; d: 0,0000; e: 5,0000");
}

TEST(FuncionesEnLista, LosParametrosDicenSiUnaFuncionDeDimensionEsDeRichardsOHiperbolica) {
    Dialogo dialogo;
    AnadirFuncion(dialogo.puesto, dialogo().LstRich(1), {{"A", "12"}, {"k", "0,05"}, {"m", "0,5"}}, lugar);
    auto hiperbola = DeCinco();
    hiperbola.insert({{"A", "9"}, {"k", "0,5"}});
    AnadirFuncion(dialogo.puesto, dialogo().LstRich(1), hiperbola, lugar);
    ASSERT_EQ(dialogo().LstRich(1).ListCount(), 2);
    EXPECT_EQ(dialogo().LstRich(1).List(0), "A: 12,00; k: 0,05; m: 0,50");
    EXPECT_EQ(dialogo().LstRich(1).List(1), "A: 9,00; k: 0,50; a: 1,00; b: 2,50; c: -3,00; d: 0,00; e: 5,00");
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
              "t.toml: línea 7: opciones.Lst = «a = 1; b = 2,5; c = -3; d = 0; e = 5»: la lista no admite la "
              "función");
}

TEST(FuncionesEnLista, UnaFuncionQueElDialogoRechazaAcabaConElTrabajoConSuMensajeYSusValores) {
    Dialogo dialogo;
    const FuncionPedida nula{{"a", "0"}, {"b", "0"}, {"c", "5"}, {"d", "0"}, {"e", "0"}};
    EXPECT_EQ(
        dialogo.error(dialogo().LstAOI, nula),
        "t.toml: línea 7: opciones.Lst = «a = 0; b = 0; c = 5; d = 0; e = 0»: el programa avisa: «El valor "
        "de Rm es siempre nulo»");
    auto hiperbola = nula;
    hiperbola.emplace("tipo", "HIP");
    EXPECT_EQ(dialogo.error(dialogo().LstDist, hiperbola),
              "t.toml: línea 7: opciones.Lst = «tipo = HIP; a = 0; b = 0; c = 5; d = 0; e = 0»: el programa "
              "avisa: «El denominador es nulo»");
    EXPECT_EQ(
        dialogo.error(dialogo().LstRich(0), {{"A", "1"}, {"k", "1"}, {"m", "1,004"}}),
        "t.toml: línea 7: opciones.Lst = «A = 1; k = 1; m = 1,004»: el programa avisa: «El denominador del "
        "exponente es nulo»");
}

TEST(FuncionesEnLista, UnaFuncionRepetidaAcabaConElTrabajo) {
    Dialogo dialogo;
    AnadirFuncion(dialogo.puesto, dialogo().LstAOI, DeCinco(), lugar);
    EXPECT_EQ(
        dialogo.error(dialogo().LstAOI, DeCinco()),
        "t.toml: línea 7: opciones.Lst = «a = 1; b = 2,5; c = -3; d = 0; e = 5»: el programa avisa: «Has "
        "introducido dos veces los mismos valores»");
}

TEST(FuncionesEnLista, UnParametroQueElDialogoRechazaSeNombraConSuValor) {
    Dialogo dialogo;
    auto conPunto = DeCinco();
    conPunto["b"] = "2.5";
    EXPECT_EQ(dialogo.error(dialogo().LstAOI, conPunto),
              "t.toml: línea 7: opciones.Lst: b = «2.5»: el programa avisa: «La separación decimal es ,»");
}

TEST(FuncionesEnLista, UnParametroNegativoDeRichardsSeNombraConSuValor) {
    Dialogo dialogo;
    EXPECT_EQ(
        dialogo.error(dialogo().LstRich(1), {{"A", "1"}, {"k", "-1"}, {"m", "0"}}),
        "t.toml: línea 7: opciones.Lst: k = «-1»: el programa avisa: «No se admiten valores negativos»");
}

} // namespace
} // namespace varo::prueba
