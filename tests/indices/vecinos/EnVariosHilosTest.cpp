// The families of neighbours on several threads: the bits of one thread, and its fault.
#include "apoyo/EnVariosHilos.h"
#include "indices/vecinos/AOI.h"
#include "indices/vecinos/DR.h"
#include "indices/vecinos/IDP.h"
#include "indices/vecinos/ISC.h"
#include "indices/vecinos/ReglaAlAzar.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace varo::prueba {
namespace {

Percances PercancesAlAzar() {
    return *rc::gen::element(Percances::Ninguno, Percances::Posibles);
}

RC_GTEST_PROP(EnVariosHilos, ISC, ()) {
    ParcelaDeVecinos p{PercancesAlAzar()};
    const RadiosDeCopa radios{p.arboles, p.parcela.datosDeCopa, p.parcela.factorRadios};
    RC_ASSERT(LoMismoEnVariosHilos(
        [&](const Faena& faena) { return CalcularISC(p.vecindad, radios, p.lado, faena); }));
}

RC_GTEST_PROP(EnVariosHilos, AOI, ()) {
    ParcelaDeVecinos p{PercancesAlAzar()};
    const auto radio =
        *rc::gen::element(SumaDePotencias{0.2, 0.05, 1.1, 0, 0}, SumaDePotencias{-1, 0.1, 1, 0, 0},
                          SumaDePotencias{0.5, 4, -1, 0, 0});
    const double k = *rc::gen::element(0.0, 1.0, -1.0);
    const RadiosDeInfluencia radios{p.arboles, radio};
    RC_ASSERT(LoMismoEnVariosHilos(
        [&](const Faena& faena) { return CalcularAOI(p.vecindad, radios, p.lado, k, faena); }));
}

RC_GTEST_PROP(EnVariosHilos, IDP, ()) {
    ParcelaDeVecinos p{PercancesAlAzar()};
    const Regla regla = ReglaAlAzar();
    const auto forma = *rc::gen::element(FormaIDP::ConArbolCentral, FormaIDP::SinArbolCentral);
    Seleccion seleccion{p.vecindad, regla.regla, OrdenDeRango::PorAngulo};
    Poner(seleccion, regla);
    RC_ASSERT(LoMismoEnVariosHilos(
        [&](const Faena& faena) { return CalcularIDP(p.arboles, seleccion, p.lado, forma, faena); }));
}

RC_GTEST_PROP(EnVariosHilos, DR, ()) {
    ParcelaDeVecinos p{PercancesAlAzar()};
    const Regla regla = ReglaAlAzar();
    auto entradas = pesos;
    entradas.insert(entradas.end(), pesosConFallo.begin(), pesosConFallo.end());
    const EntradaDeDistancia entrada{*rc::gen::elementOf(entradas)};
    const double k = *rc::gen::element(0.0, 1.0, -1.0);
    Seleccion seleccion{p.vecindad, regla.regla, OrdenDeRango::PorDistancia};
    Poner(seleccion, regla);
    RC_ASSERT(LoMismoEnVariosHilos(
        [&](const Faena& faena) { return CalcularDR(p.arboles, seleccion, p.lado, entrada, k, faena); }));
}

} // namespace
} // namespace varo::prueba
