// APA on several threads: the bits of one thread, its fault, and its drawing up to there.
#include "apoyo/EnVariosHilos.h"
#include "indices/apa/APA.h"
#include "indices/apa/APAParcela.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <utility>

namespace varo::prueba {
namespace {

using Dibujo = std::vector<std::pair<std::size_t, std::vector<TrazoAPA>>>;

/// A column with the cells in the order in which they were drawn.
std::pair<FinDeColumna, Dibujo> ColumnaDe(const Arboles& arboles, const ContornoXY& contorno, double k,
                                          Cuadrilla* cuadrilla) {
    Dibujo dibujo;
    const auto anotar = [&](std::size_t arbol, std::span<const TrazoAPA> trazos) {
        dibujo.emplace_back(arbol, std::vector<TrazoAPA>{trazos.begin(), trazos.end()});
    };
    auto fin = FinDe([&](const Faena& faena) { return CalcularAPA(arboles, contorno, k, anotar, faena); },
                     cuadrilla);
    return {std::move(fin), std::move(dibujo)};
}

RC_GTEST_PROP(APAEnVariosHilos, LosBitsElFalloYElDibujoSonLosDeUno, ()) {
    ParcelaAPA parcela;
    const int cuantos = *rc::gen::inRange(2, 90);
    // Of two trees of one x, or of one y, a turn faults: some plots have them.
    const bool conAlineados = *rc::gen::arbitrary<bool>();
    const int sitios = conAlineados ? 4000 : 1000000007;
    for (int i = 0; i < cuantos; ++i) {
        const auto sitio = [&] { return *rc::gen::resize(100, rc::gen::inRange(0, sitios)) * 30.0 / sitios; };
        parcela.anadir(sitio(), sitio(), *rc::gen::element<std::string>("0,1", "0,2", "0,35", "0,2", ""));
    }
    if (*rc::gen::inRange(0, 5) == 0) {
        parcela.tamano.back() = "malo";
    }
    parcela.cuadrar(-1, 31);
    const Arboles arboles = parcela.arboles();
    const double k = *rc::gen::element(0.0, 1.0, 2.0);
    const auto enUno = ColumnaDe(arboles, parcela.contorno(), k, nullptr);
    RC_CLASSIFY(!enUno.first.fallo.empty(), "con fallo");
    for (Cuadrilla* const cuadrilla : Cuadrillas()) {
        RC_ASSERT(ColumnaDe(arboles, parcela.contorno(), k, cuadrilla) == enUno);
    }
}

} // namespace
} // namespace varo::prueba
