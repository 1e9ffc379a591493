// The families of neighbours against the literal procedures.
#include "indices/vecinos/AOI.h"
#include "indices/vecinos/DR.h"
#include "indices/vecinos/IDP.h"
#include "indices/vecinos/ISC.h"
#include "indices/vecinos/ReglaAlAzar.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <rapidcheck/gtest.h>

namespace varo::prueba {
namespace {

void ProbarISC(Percances percances) {
    ParcelaDeVecinos p{percances};
    ExigirIgual(p.literal.ISC(p.lado), [&] {
        const RadiosDeCopa radios{p.arboles, p.parcela.datosDeCopa, p.parcela.factorRadios};
        return CalcularISC(p.vecindad, radios, p.lado);
    });
}

void ProbarAOI(Percances percances) {
    ParcelaDeVecinos p{percances};
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
    ParcelaDeVecinos p{percances};
    const Regla regla = ReglaAlAzar();
    const auto forma = *rc::gen::element(FormaIDP::ConArbolCentral, FormaIDP::SinArbolCentral);
    Seleccion seleccion{p.vecindad, regla.regla, OrdenDeRango::PorAngulo};
    Poner(seleccion, regla);
    ExigirIgual(p.literal.IDP(regla, p.lado, forma),
                [&] { return CalcularIDP(p.arboles, seleccion, p.lado, forma); });
}

void ProbarDR(Percances percances) {
    ParcelaDeVecinos p{percances};
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
