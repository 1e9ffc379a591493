#include "map/Escala.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

#include <vector>

namespace varo {
namespace {

/// Metres: quotients and products of some tens of metres round in their last places.
constexpr double redondeo = 1e-12;

TEST(Escala, UnaParcelaMasAnchaQueAlta) {
    const std::vector<double> x{0, 70, 35};
    const std::vector<double> y{0, 30, 12};
    const Escala escala = CalcularEscala(x, y);
    EXPECT_DOUBLE_EQ(escala.izquierda, -15);
    EXPECT_DOUBLE_EQ(escala.derecha, 85);
    // ((100/85) * 0,7234 * 85 - 30) / 2 = (72,34 - 30) / 2
    EXPECT_NEAR(escala.abajo, -21.17, redondeo);
    EXPECT_NEAR(escala.arriba, 51.17, redondeo);
}

TEST(Escala, UnaParcelaCuadradaVaPorLaAltura) {
    const std::vector<double> x{0, 50};
    const std::vector<double> y{0, 50};
    const Escala escala = CalcularEscala(x, y);
    EXPECT_NEAR(escala.abajo, -50.0 * 15 / 70, redondeo);
    EXPECT_NEAR(escala.arriba, 50 + 50.0 * 15 / 70, redondeo);
    const double exceso = (100.0 / (85 * 0.7234) * (50 + 50.0 * 15 / 70) - 50) / 2;
    EXPECT_NEAR(escala.izquierda, -exceso, redondeo);
    EXPECT_NEAR(escala.derecha, 50 + exceso, redondeo);
    EXPECT_LT(escala.alto(), 0) << "la y crece hacia arriba";
}

TEST(Escala, ElMarcoVaDelDiezAlNoventaPorCiento) {
    const Escala marco = MarcoDe({0, 200, 0, 100});
    EXPECT_DOUBLE_EQ(marco.izquierda, 20);
    EXPECT_DOUBLE_EQ(marco.derecha, 180);
    EXPECT_DOUBLE_EQ(marco.abajo, 10);
    EXPECT_DOUBLE_EQ(marco.arriba, 90);
}

TEST(Escala, UnSoloPuntoDaUnaEscalaSinExtension) {
    const std::vector<double> x{3};
    const std::vector<double> y{4};
    const Escala escala = CalcularEscala(x, y);
    EXPECT_EQ(escala.ancho(), 0);
    EXPECT_EQ(escala.alto(), 0);
}

TEST(Escala, SinArbolesNoHayExtremos) {
    EXPECT_EQ(FalloDe([] { MaximoColumna({}); }), fallo::fueraDeIndice);
    EXPECT_EQ(FalloDe([] { MinimoColumna({}); }), fallo::fueraDeIndice);
}

} // namespace
} // namespace varo
