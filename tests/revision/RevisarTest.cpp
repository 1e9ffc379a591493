// Whatever stands in the cells, the revision ends with findings.
#include "revision/ParcelaDePrueba.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>

namespace varo {
namespace {

rc::Gen<Valor> CeldaCualquiera() {
    using rc::gen::map;
    constexpr double infinito = std::numeric_limits<double>::infinity();
    const auto texto = [](std::string palabra) { return Valor{std::move(palabra)}; };
    return rc::gen::weightedOneOf<Valor>(
        {{6, map(rc::gen::inRange(-500, 5000), [](int n) { return Valor{n / 10.0}; })},
         {2, rc::gen::just(Valor{})},
         {1, map(rc::gen::arbitrary<double>(), [](double n) { return Valor{n}; })},
         {1, rc::gen::element(Valor{infinito}, Valor{-infinito},
                              Valor{std::numeric_limits<double>::quiet_NaN()}, Valor{1.7976931348623157E+308},
                              Valor{Fecha{45000.5}}, Valor{Fecha{1E+300}}, Valor{true})},
         {2, map(rc::gen::element<std::string>("", " ", "12.5", "1.234,5", "12 cm", "Total", "0", "0,0", "-3",
                                               "1E400", "O'Neill", "pñ", "1.2.3", ",", ".", "\u00A0"),
                 texto)},
         {1, map(rc::gen::arbitrary<std::string>(), texto)}});
}

std::vector<Valor> Celdas(std::size_t cuantas) {
    return *rc::gen::container<std::vector<Valor>>(cuantas, CeldaCualquiera());
}

OpcionesPorRevisar OpcionesCualesquiera() {
    const auto si = [] { return *rc::gen::arbitrary<bool>(); };
    const auto numero = [] {
        return *rc::gen::element<std::string>("", "0", "1", "2", "0,1", "0,3", "-1", "1E300", "-1E300", "x");
    };
    const auto barrido = [&](const char* campo) {
        return BarridoPorRevisar{campo, numero(), numero(), numero()};
    };
    const auto lineas = [] {
        return *rc::gen::container<std::vector<std::string>>(rc::gen::element<std::string>(
            "", "x", "a: 1,0000; b: 2,0000; c: -1,0000; d: 0,0000; e: 0,5000",
            "HIP, a: 0,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000",
            "EXP, a: 0,0000; b: 1,0000; c: 400,0000; d: 0,0000; e: 0,0000", "A: 9,75; k: 0,50; m: 1,00",
            "A: 9,00; k: 1,00; a: 0,00; b: 1,00; c: 1,00; d: 0,00; e: 0,00"));
    };
    const auto regla = [] {
        return *rc::gen::element(ReglaDeCompetidores::BAF, ReglaDeCompetidores::NumeroFijo,
                                 ReglaDeCompetidores::Distancia, ReglaDeCompetidores::Funcion);
    };
    OpcionesPorRevisar opciones;
    opciones.radiosPorMetro = *rc::gen::element(1, 10, 100);
    opciones.cmPorTamano = *rc::gen::element(1.0, 10.0, 100.0);
    opciones.circunferencia = si();
    opciones.copasCirculares = si();
    opciones.datosDeParcela = si();
    opciones.independientes = {si(), si(), si(), si(), si(), si(), si(), si()};
    opciones.ISC = {si(), {si(), si()}};
    opciones.AOI = {si(), {si(), si()}, barrido("TxtBAF1(6)"), lineas()};
    opciones.IDP = {si(), {si(), si()}, si(), si(), regla(), barrido("TxtBAF1(0)"), lineas()};
    opciones.DR = {si(),    {si(), si()}, barrido("TxtBAF1(4)"), lineas(), regla(), barrido("TxtBAF1(2)"),
                   lineas()};
    opciones.APA = {si(), barrido("TxtBAF1(8)")};
    return opciones;
}

ParcelaPorRevisar ParcelaCualquiera() {
    ParcelaPorRevisar parcela = ParcelaSana();
    const auto filas = *rc::gen::inRange<std::size_t>(0, 30);
    parcela.filas.clear();
    for (std::size_t i = 0; i < filas; ++i) {
        parcela.filas.push_back(
            {static_cast<int>(i) + 2, *rc::gen::weightedElement<bool>({{9, true}, {1, false}})});
    }
    parcela.copa.resize(*rc::gen::element<std::size_t>(1, 2, 4));
    for (auto* const columna : {&parcela.x, &parcela.y, &parcela.numero}) {
        columna->celdas = Celdas(filas);
    }
    for (auto& medida : parcela.copa) {
        medida.celdas = Celdas(filas);
    }
    parcela.codigo->celdas = Celdas(filas);
    parcela.tamano->celdas = Celdas(*rc::gen::inRange<std::size_t>(0, filas + 1));
    if (*rc::gen::arbitrary<bool>()) {
        parcela.codigo.reset();
    }
    if (*rc::gen::weightedElement<bool>({{1, true}, {4, false}})) {
        parcela.tamano.reset();
    }
    if (*rc::gen::arbitrary<bool>()) {
        parcela.contorno.reset();
    }
    parcela.opciones = OpcionesCualesquiera();
    return parcela;
}

RC_GTEST_PROP(Revisar, NingunaParcelaLaHaceFallar, ()) {
    const auto hallazgos = Revisar(ParcelaCualquiera(), 3);
    RC_ASSERT(std::ranges::is_sorted(hallazgos, {}, &Hallazgo::gravedad));
    for (const Hallazgo& hallazgo : hallazgos) {
        for (const std::string& frase : {hallazgo.que, hallazgo.efecto, hallazgo.remedio}) {
            RC_ASSERT(!frase.empty());
            RC_ASSERT(frase.ends_with('.'));
        }
    }
}

} // namespace
} // namespace varo
