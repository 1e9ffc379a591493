#include "basico/Aritmetica.h"
#include "apoyo/Fallos.h"
#include "basico/ErrorEjecucion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace varo;

namespace {

constexpr double mayor = std::numeric_limits<double>::max();
constexpr double infinito = std::numeric_limits<double>::infinity();
constexpr double noNumero = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST(ExigirFinito, DejaPasarLosNumerosYDesbordaEnLoDemas) {
    EXPECT_EQ(ExigirFinito(-mayor), -mayor);
    EXPECT_EQ(FalloDe([] { (void)ExigirFinito(infinito); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([] { (void)ExigirFinito(-infinito); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([] { (void)ExigirFinito(noNumero); }), fallo::desbordamiento);
}

TEST(ASimple, RedondeaA32BitsYDesbordaFueraDeElla) {
    EXPECT_EQ(ASimple(0.1), 0.1F);
    EXPECT_EQ(ASimple(16777217), 16777216.0F); // 2^24 + 1 lies between two of them
    EXPECT_EQ(FalloDe([] { (void)ASimple(3.5E+38); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([] { (void)ASimple(noNumero); }), fallo::desbordamiento);
}

TEST(Dividir, DaElCocienteMasCercano) {
    EXPECT_EQ(Dividir(1, 4), 0.25);
    EXPECT_EQ(Dividir(1, 3), 0x1.5555555555555p-2);
    EXPECT_EQ(Dividir(0, -5), 0);
    EXPECT_EQ(Dividir(1, mayor), 0x1.0p-1024); // subnormal: 1/max rounds to it
}

TEST(Dividir, PorCeroEsDivisionPorCero) {
    EXPECT_EQ(FalloDe([] { (void)Dividir(1, 0); }), fallo::divisionPorCero);
    EXPECT_EQ(FalloDe([] { (void)Dividir(0, 0); }), fallo::divisionPorCero);
    EXPECT_EQ(FalloDe([] { (void)Dividir(1, -0.0); }), fallo::divisionPorCero);
}

TEST(Dividir, UnCocienteDemasiadoGrandeDesborda) {
    EXPECT_EQ(FalloDe([] { (void)Dividir(mayor, 0.5); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([] { (void)Dividir(-1, std::numeric_limits<double>::denorm_min()); }),
              fallo::desbordamiento);
}

TEST(Raiz, DeUnNegativoEsUnArgumentoNoValido) {
    EXPECT_EQ(Raiz(6.25), 2.5);
    EXPECT_EQ(Raiz(0), 0);
    EXPECT_EQ(Raiz(-0.0), 0);
    EXPECT_EQ(FalloDe([] { (void)Raiz(-1e-300); }), fallo::argumentoNoValido);
}

TEST(Potencia, SigueALaMatematica) {
    EXPECT_EQ(Potencia(2, 10), 1024);
    EXPECT_EQ(Potencia(2, -2), 0.25);
    EXPECT_EQ(Potencia(6.25, 0.5), 2.5);
    EXPECT_EQ(Potencia(-2, 3), -8);
    EXPECT_EQ(Potencia(-2, -1), -0.5);
    EXPECT_EQ(Potencia(0, 0), 1);
    EXPECT_EQ(Potencia(-7, 0), 1);
    EXPECT_EQ(Potencia(0, 2.5), 0);
    EXPECT_EQ(Potencia(10, -400), 0);
}

TEST(Potencia, FueraDeSuDominioFalla) {
    EXPECT_EQ(FalloDe([] { (void)Potencia(0, -1); }), fallo::divisionPorCero);
    EXPECT_EQ(FalloDe([] { (void)Potencia(-0.0, -0.5); }), fallo::divisionPorCero);
    EXPECT_EQ(FalloDe([] { (void)Potencia(-8, 1.0 / 3); }), fallo::argumentoNoValido);
    EXPECT_EQ(FalloDe([] { (void)Potencia(10, 309); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([] { (void)Potencia(-10, 309); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([] { (void)Potencia(1e-200, -2); }), fallo::desbordamiento);
}

TEST(AsinYAcos, DanRadianes) {
    EXPECT_EQ(Asin(0), 0);
    EXPECT_EQ(Acos(1), 0);
    // pi/2, pi/6 and pi/3 to the nearest; the library may err in the last bit.
    EXPECT_DOUBLE_EQ(Asin(1), 1.5707963267948966);
    EXPECT_DOUBLE_EQ(Asin(-0.5), -0.5235987755982989);
    EXPECT_DOUBLE_EQ(Acos(0.5), 1.0471975511965979);
    EXPECT_DOUBLE_EQ(Acos(-1), 3.141592653589793);
}

TEST(AsinYAcos, FueraDeMenosUnoAUnoFallan) {
    const double apenasMas = std::nextafter(1.0, 2.0);
    for (const double x : {apenasMas, -apenasMas, 5.0, infinito, noNumero}) {
        EXPECT_EQ(FalloDe([&] { (void)Asin(x); }), fallo::funcionDeHoja) << x;
        EXPECT_EQ(FalloDe([&] { (void)Acos(x); }), fallo::funcionDeHoja) << x;
    }
}

TEST(RedondearPar, LasMitadesVanAlPar) {
    const struct {
        double x;
        double entero;
    } casos[] = {
        {0.5, 0},
        {1.5, 2},
        {2.5, 2},
        {3.5, 4},
        {-0.5, 0},
        {-1.5, -2},
        {-2.5, -2},
        {2.4999, 2},
        {2.50000001, 3},
        {-2.50000001, -3},
        {0.49999999999999994, 0},
        {0.5000000000000001, 1},
        {-0.49999999999999994, 0},
        {4503599627370495.5, 4503599627370496.0},
        {4503599627370494.5, 4503599627370494.0},
        {1e300, 1e300},
    };
    for (const auto& [x, entero] : casos) {
        EXPECT_EQ(RedondearPar(x), entero) << x;
    }
}
