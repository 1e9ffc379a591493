// The figures of ellipses are those of the literal procedure, bit for bit.
#include "plot/calculo/ElipsesDePlotLiteral.h"

#include "basico/Numeros.h"
#include "plot/calculo/Elipses.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace varo::prueba {
namespace {

/// A plot of some ten metres about a place: crowns in one place, on a net, over the border, off the surface.
struct ParcelaDeCopas {
    FilasDeCopas filas;
    std::vector<double> x, y; ///< of the boundary
    Escala escala;
    std::vector<Valor> areas;

    [[nodiscard]] ContornoXY contorno() const { return {x, y}; }
};

double EnPasos(int hasta, double paso) {
    return *rc::gen::inRange(0, hasta) * paso;
}

void PonerContorno(ParcelaDeCopas& parcela, double x0, double y0) {
    parcela.x = {-2, 6, 22, 21.5, 3, -2};
    parcela.y = {9, 23, 20, -1, -3, 9};
    switch (*rc::gen::inRange(0, 8)) {
    case 0:
        parcela.x[3] = 22; // the third side is vertical
        break;
    case 1:
        parcela.x = {2, 2, 18, 18, 2}; // the first one
        parcela.y = {2, 18, 18, 2, 2};
        break;
    case 2: { // a side without length
        const auto k = *rc::gen::inRange(0, 6);
        parcela.x.insert(parcela.x.begin() + k, parcela.x[static_cast<std::size_t>(k)]);
        parcela.y.insert(parcela.y.begin() + k, parcela.y[static_cast<std::size_t>(k)]);
        break;
    }
    case 3: { // as few points as a walk leaves
        const auto cuantos = *rc::gen::inRange<std::size_t>(0, 4);
        parcela.x.resize(cuantos);
        parcela.y.resize(cuantos);
        break;
    }
    default:
        break;
    }
    for (auto& x : parcela.x) {
        x += x0;
    }
    for (auto& y : parcela.y) {
        y += y0;
    }
}

CeldaLeida Medida(bool conFallos, double metros) {
    if (*rc::gen::inRange(0, 12) == 0) {
        const std::vector<std::string> raras{"0", "0", "-4", "0,2"};
        const std::vector<std::string> fallidas{"", "copa", "1E+400", "1E+300", " "};
        return CeldaLeida{*rc::gen::elementOf(conFallos && *rc::gen::arbitrary<bool>() ? fallidas : raras)};
    }
    return CeldaLeida{ATexto(metros)};
}

ParcelaDeCopas ConstruirCopas() {
    ParcelaDeCopas parcela;
    const bool utm = *rc::gen::inRange(0, 4) == 0;
    const double x0 = utm ? 487'300 : 0;
    const double y0 = utm ? 4'523'400 : 0;
    PonerContorno(parcela, x0, y0);
    parcela.escala = *rc::gen::element(Escala{x0 - 8, x0 + 28, y0 - 7, y0 + 27},
                                       Escala{x0 + 2.13, x0 + 11.7, y0 + 3.3, y0 + 15.25}, Escala{});
    parcela.filas.datos =
        *rc::gen::element(DatosDeCopa::CuatroRadios, DatosDeCopa::DosDiametros, DatosDeCopa::RadioMedio);
    parcela.filas.FactorRadios = *rc::gen::element(1, 10, 100);
    const double unidad =
        parcela.filas.FactorRadios * (parcela.filas.datos == DatosDeCopa::CuatroRadios ? 1 : 2);
    const bool enRed = *rc::gen::arbitrary<bool>();
    const bool conFallos = *rc::gen::arbitrary<bool>();
    const auto lugar = [&](double origen) {
        return CeldaLeida{conFallos && *rc::gen::inRange(0, 25) == 0
                              ? std::string{"x"}
                              : ATexto(origen + (enRed ? EnPasos(7, 1.25) : EnPasos(801, 0.01)))};
    };
    const double xMonte = x0 + *rc::gen::element(-4.0, 2.5, 8.0, 15.0); // the trees stand close together
    const double yMonte = y0 + *rc::gen::element(-4.0, 5.0, 13.75);
    const int cuantas = *rc::gen::inRange(0, 14);
    for (int i = 0; i < cuantas; ++i) {
        FilaDeCopa fila{lugar(xMonte), lugar(yMonte), *rc::gen::inRange(0, 8) == 0, {}};
        for (auto& medida : fila.medidas) {
            medida = Medida(conFallos, unidad * (0.3 + EnPasos(14, 0.17)));
        }
        parcela.filas.filas.push_back(fila);
        parcela.areas.push_back(*rc::gen::inRange(0, 8) == 0 ? Valor{} : Valor{EnPasos(900, 0.037)});
    }
    parcela.areas.resize(*rc::gen::element<std::size_t>(0, parcela.areas.size(), parcela.areas.size()));
    return parcela;
}

/// Whatever the size that RapidCheck is at.
ParcelaDeCopas CopasAlAzar() {
    return *rc::gen::resize(rc::kNominalSize, rc::gen::exec(ConstruirCopas));
}

RC_GTEST_PROP(SolaparElipses, EsElProcedimientoLiteral, ()) {
    const ParcelaDeCopas parcela = CopasAlAzar();
    Lienzo superficie;
    superficie.escala(parcela.escala);
    SolapeDeCopas solape;
    SolaparElipses(parcela.filas, parcela.contorno(), superficie, solape);
    const SolapeDeCopas literal =
        ElipsesDePlotLiteral{parcela.filas, parcela.contorno(), parcela.escala}.solape();
    RC_CLASSIFY(!literal.ParesCopas.empty(), "con pares");
    RC_ASSERT(solape.ParesCopas == literal.ParesCopas);
    RC_ASSERT(solape.NumParesCopas == literal.NumParesCopas);
    RC_ASSERT(solape.AreaIntersecCopas == literal.AreaIntersecCopas);
}

RC_GTEST_PROP(RecortarElipses, EsElProcedimientoLiteral, ()) {
    const ParcelaDeCopas parcela = CopasAlAzar();
    Lienzo superficie;
    superficie.escala(parcela.escala);
    const double literal =
        ElipsesDePlotLiteral{parcela.filas, parcela.contorno(), parcela.escala}.recorte(parcela.areas);
    RC_CLASSIFY(literal > 0, "con recorte");
    RC_ASSERT(RecortarElipses(parcela.filas, parcela.contorno(), superficie, parcela.areas) == literal);
}

} // namespace
} // namespace varo::prueba
