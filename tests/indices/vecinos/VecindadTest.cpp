// The families of neighbours against the literal procedures.
#include "indices/vecinos/AOI.h"
#include "indices/vecinos/DR.h"
#include "indices/vecinos/IDP.h"
#include "indices/vecinos/ISC.h"
#include "indices/vecinos/ParcelaAlAzar.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <rapidcheck/gtest.h>

namespace varo::prueba {
namespace {

using Regla = VecindadLiteral::Regla;

const std::vector<std::string> limites{
    "A: 12,00; k: 6,00; m: 0,50", "A: 7,00; k: 1,00; a: 1,00; b: 1,00; c: 1,00; d: 0,00; e: 0,00",
    "A: -3,00; k: 2,00; m: 0,50", "A: 4,00; k: 0,00; a: 1,00; b: 2,00; c: -1,00; d: 0,00; e: 0,00",
    "A: 40,00; k: 9,00; m: 0,50"};

const std::vector<std::string> pesos{"HIP, a: 0,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000",
                                     "HIP, a: 1,0000; b: 0,5000; c: 1,2000; d: 0,1000; e: 2,0000",
                                     "EXP, a: 0,0000; b: 0,2500; c: 1,0000; d: 0,0000; e: 0,0000",
                                     "EXP, a: 0,5000; b: 1,0000; c: -0,5000; d: 0,0000; e: 0,0000"};

/// Some that fault at one distance or another.
const std::vector<std::string> pesosConFallo{"HIP, a: -4,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000",
                                             "HIP, a: 10,5000; b: -1,0000; c: 1,0000; d: 0,0000; e: 0,0000",
                                             "EXP, a: 0,0000; b: -50,0000; c: 1,0000; d: 0,0000; e: 0,0000",
                                             "HIP, a: 0,0000; b: 1,0000; c: 300,0000; d: 0,0000; e: 0,0000",
                                             ""};

Regla ReglaAlAzar() {
    Regla regla;
    regla.regla = *rc::gen::element(ReglaDeSeleccion::BAF, ReglaDeSeleccion::NumeroFijo,
                                    ReglaDeSeleccion::Funcion, ReglaDeSeleccion::Distancia);
    switch (regla.regla) {
    case ReglaDeSeleccion::BAF:
        regla.p = *rc::gen::element(0.5, 1.0, 2.0, 4.0, 9.0, 25.0);
        break;
    case ReglaDeSeleccion::NumeroFijo:
        regla.p = *rc::gen::element(0.0, 1.0, 2.0, 2.5, 3.0, 7.0, 100.0);
        break;
    case ReglaDeSeleccion::Funcion:
        regla.entrada = *rc::gen::elementOf(limites);
        break;
    case ReglaDeSeleccion::Distancia:
        regla.p = *rc::gen::element(-1.0, 0.0, 0.5, 1.0, 1.5, 2.5, 4.0, 6.0, 30.0);
        break;
    }
    return regla;
}

void Poner(Seleccion& seleccion, const Regla& regla) {
    if (regla.regla == ReglaDeSeleccion::Funcion) {
        seleccion.poner(regla.entrada);
    } else {
        seleccion.poner(regla.p);
    }
}

/// A plot as it is and as the program holds it, for all the families.
struct Prueba {
    explicit Prueba(Percances percances) : parcela{ParcelaAlAzar(percances)} {}

    ParcelaLiteral parcela;
    Arboles arboles = ArbolesDe(parcela);
    Vecindad vecindad{arboles, parcela.contorno()};
    VecindadLiteral literal{parcela};
    Lado lado = *rc::gen::element(Lado::Bilateral, Lado::Unilateral);
};

void ProbarISC(Percances percances) {
    Prueba p{percances};
    ExigirIgual(p.literal.ISC(p.lado), [&] {
        const RadiosDeCopa radios{p.arboles, p.parcela.datosDeCopa, p.parcela.factorRadios};
        return CalcularISC(p.vecindad, radios, p.lado);
    });
}

void ProbarAOI(Percances percances) {
    Prueba p{percances};
    const auto radio =
        *rc::gen::element(SumaDePotencias{0.2, 0.05, 1.1, 0, 0}, SumaDePotencias{1.5, 0.02, 1, 0.01, 0.5},
                          SumaDePotencias{-1, 0.1, 1, 0, 0}, SumaDePotencias{0, 1, 0.5, 0, 0},
                          SumaDePotencias{3, -0.1, 1, 0, 0}, SumaDePotencias{0.5, 4, -1, 0, 0});
    const double k = *rc::gen::element(0.0, 0.5, 1.0, 2.0, -1.0);
    ExigirIgual(p.literal.AOI(p.lado, radio, k), [&] {
        return CalcularAOI(p.vecindad, RadiosDeInfluencia{p.arboles, radio}, p.lado, k);
    });
}

void ProbarIDP(Percances percances) {
    Prueba p{percances};
    const Regla regla = ReglaAlAzar();
    const auto forma = *rc::gen::element(FormaIDP::ConArbolCentral, FormaIDP::SinArbolCentral);
    Seleccion seleccion{p.vecindad, regla.regla, OrdenDeRango::PorAngulo};
    Poner(seleccion, regla);
    ExigirIgual(p.literal.IDP(regla, p.lado, forma),
                [&] { return CalcularIDP(p.arboles, seleccion, p.lado, forma); });
}

void ProbarDR(Percances percances) {
    Prueba p{percances};
    const Regla regla = ReglaAlAzar();
    auto entradas = pesos;
    if (percances == Percances::Posibles) {
        entradas.insert(entradas.end(), pesosConFallo.begin(), pesosConFallo.end());
    }
    const std::string texto = *rc::gen::elementOf(entradas);
    const double k = *rc::gen::element(0.0, 0.5, 1.0, 2.0, -1.0);
    Seleccion seleccion{p.vecindad, regla.regla, OrdenDeRango::PorDistancia};
    Poner(seleccion, regla);
    EntradaDeDistancia entrada{texto};
    ExigirIgual(p.literal.DR(regla, p.lado, texto, k),
                [&] { return CalcularDR(p.arboles, seleccion, p.lado, entrada, k); });
}

RC_GTEST_PROP(ISC, LasCopasCercanasBastan, ()) {
    ProbarISC(Percances::Ninguno);
}
RC_GTEST_PROP(ISC, LosFallosSonLosDelProcedimientoLiteral, ()) {
    ProbarISC(Percances::Posibles);
}
RC_GTEST_PROP(AOI, LosCirculosCercanosBastan, ()) {
    ProbarAOI(Percances::Ninguno);
}
RC_GTEST_PROP(AOI, LosFallosSonLosDelProcedimientoLiteral, ()) {
    ProbarAOI(Percances::Posibles);
}
RC_GTEST_PROP(IDP, LosCandidatosYLosRangosSonLosDelProcedimientoLiteral, ()) {
    ProbarIDP(Percances::Ninguno);
}
RC_GTEST_PROP(IDP, LosFallosSonLosDelProcedimientoLiteral, ()) {
    ProbarIDP(Percances::Posibles);
}
/// More neighbours than are counted one by one: the ranks come from sorted keys.
TEST(IDP, EntreMuchosVecinosLosRangosSonLosDelProcedimientoLiteral) {
    std::mt19937 azar{1};
    ParcelaLiteral parcela;
    parcela.contornoX = {-90, -80, 95, 90, -90};
    parcela.contornoY = {-90, 90, 95, -80, -90};
    for (int i = 0; i < 132; ++i) {
        parcela.x.push_back(ATexto(static_cast<int>(azar() % 40) * 0.5));
        parcela.y.push_back(ATexto(static_cast<int>(azar()) * 1E-9 + i * 0.01));
        parcela.tamano.push_back(ATexto(static_cast<int>(azar() % 5) * 7 + 10));
    }
    const Arboles arboles = ArbolesDe(parcela);
    Vecindad vecindad{arboles, parcela.contorno()};
    VecindadLiteral literal{parcela};
    const auto comparar = [&](const Regla& regla, Lado lado) {
        Seleccion seleccion{vecindad, regla.regla, OrdenDeRango::PorAngulo};
        seleccion.poner(regla.p);
        const Columna esperada = literal.IDP(regla, lado, FormaIDP::ConArbolCentral);
        ASSERT_EQ(esperada.fallo, 0);
        const auto hallada = CalcularIDP(arboles, seleccion, lado, FormaIDP::ConArbolCentral);
        EXPECT_EQ(hallada, esperada.valores);
        EXPECT_GT(*std::max_element(hallada.begin(), hallada.end()), 0) << "todos son de borde";
    };
    comparar({ReglaDeSeleccion::Distancia, 50, {}}, Lado::Bilateral);
    comparar({ReglaDeSeleccion::BAF, 0.01, {}}, Lado::Unilateral);
}
RC_GTEST_PROP(DR, LosCandidatosSonLosDelProcedimientoLiteral, ()) {
    ProbarDR(Percances::Ninguno);
}
RC_GTEST_PROP(DR, LosFallosSonLosDelProcedimientoLiteral, ()) {
    ProbarDR(Percances::Posibles);
}

} // namespace
} // namespace varo::prueba
