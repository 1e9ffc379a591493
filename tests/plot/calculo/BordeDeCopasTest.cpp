#include "plot/calculo/BordeDeCopas.h"

#include "basico/ErrorEjecucion.h"

#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

namespace varo {
namespace {

constexpr double infinito = std::numeric_limits<double>::infinity();

TEST(BordeDeCopas, LaAlturaMenorEsLaDelLadoMasCercano) {
    // Two triangles of sides 3, 4 and 5: 3 above a side of 8, 12 below one of 10.
    const std::vector<double> x{0, 10, 9, 1};
    const std::vector<double> y{15, 15, 0, 0};
    EXPECT_EQ((BordeDeCopas{{std::span{x}.last(2), std::span{y}.last(2)}}.alturaMenor(5, 3)), 3);
    EXPECT_EQ((BordeDeCopas{{std::span{x}.first(2), std::span{y}.first(2)}}.alturaMenor(5, 3)), 12);
    EXPECT_EQ((BordeDeCopas{{x, y}}.alturaMenor(5, 3)), 3);
}

TEST(BordeDeCopas, UnLadoSinLongitudEstaCercaDeTodo) {
    const std::vector<double> x{0, 10, 10};
    const std::vector<double> y{15, 15, 15};
    EXPECT_EQ((BordeDeCopas{{x, y}}.alturaMenor(5, 3)), -infinito);
}

TEST(BordeDeCopas, SinLadosNadaEstaCerca) {
    const std::vector<double> uno{3};
    EXPECT_EQ((BordeDeCopas{{}}.alturaMenor(5, 3)), infinito);
    EXPECT_EQ((BordeDeCopas{{uno, uno}}.alturaMenor(3, 3)), infinito);
}

/// Whether a sample counts, asked by itself.
bool Cuenta(const ContornoXY& contorno, double x, double y, PruebaFallida prueba) {
    try {
        return PuntoEnPoligono(contorno, x, y);
    } catch (const ErrorEjecucion&) {
        return prueba == PruebaFallida::CuentaDentro;
    }
}

RC_GTEST_PROP(BordeDeCopas, LasFilasDeDentroSonLasDePuntoEnPoligono, ()) {
    // Polygons of any order, on a net that shares its coordinates.
    const auto coordenadas = [](std::size_t cuantas) {
        return *rc::gen::container<std::vector<double>>(
            cuantas, rc::gen::resize(rc::kNominalSize, rc::gen::map(rc::gen::inRange(0, 13),
                                                                    [](int pasos) { return pasos * 0.5; })));
    };
    const auto vertices = *rc::gen::inRange<std::size_t>(0, 8);
    const std::vector<double> x = coordenadas(vertices);
    const std::vector<double> y = coordenadas(vertices);
    MallaDeCopa malla;
    for (int paso = -1; paso < 27; ++paso) {
        malla.x.push_back(paso * 0.25);
        malla.y.push_back(paso * 0.25);
    }
    const auto prueba = *rc::gen::element(PruebaFallida::CuentaDentro, PruebaFallida::CuentaFuera);
    const std::vector<FilasTapadas> filas = BordeDeCopas{{x, y}}.filasDentro(malla, prueba);
    RC_ASSERT(filas.size() == malla.x.size());
    for (std::size_t columna = 0; columna < malla.x.size(); ++columna) {
        for (std::size_t fila = 0; fila < malla.y.size(); ++fila) {
            const bool dentro = filas[columna].desde <= fila && fila < filas[columna].hasta;
            RC_ASSERT(dentro == Cuenta({x, y}, malla.x[columna], malla.y[fila], prueba));
        }
    }
}

} // namespace
} // namespace varo
