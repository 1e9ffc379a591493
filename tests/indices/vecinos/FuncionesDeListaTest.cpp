#include "indices/vecinos/FuncionesDeLista.h"

#include "apoyo/Fallos.h"
#include "basico/Saltando.h"

#include <cmath>
#include <gtest/gtest.h>
#include <optional>
#include <rapidcheck/gtest.h>
#include <utility>
#include <vector>

namespace varo {
namespace {

TEST(FuncionesDeLista, ElRadioDeInfluenciaTomaSusCincoNumeros) {
    const auto radio = LeerRadioDeInfluencia("a: 1,0000; b: 2,0000; c: 3,0000; d: 4,0000; e: 0,5000");
    EXPECT_EQ(radio.en(4), 1 + 2 * 64.0 + 4 * 2.0);
    const auto negativo = LeerRadioDeInfluencia("a: -1,5000; b: 12,2500; c: 0,0000; d: 0,0000; e: 0,0000");
    EXPECT_EQ(negativo.en(7), -1.5 + 12.25);
}

TEST(FuncionesDeLista, ElPesoDeLaDistanciaSabeCualEs) {
    const std::string numeros = "a: 1,0000; b: 0,5000; c: 2,0000; d: 0,2500; e: 1,0000";
    EXPECT_EQ(LeerFuncionDeDistancia("HIP, " + numeros).en(4), 1 / (1 + 8 + 1.0));
    EXPECT_EQ(LeerFuncionDeDistancia("EXP, " + numeros).en(4), std::exp(-10.0));
}

TEST(FuncionesDeLista, ElLimiteHiperbolicoTieneLaLetraE) {
    const auto limite = LeerFuncionDeLimite("A: 10,00; k: 2,00; a: 1,00; b: 3,00; c: 1,00; d: 4,00; e: 2,00");
    EXPECT_TRUE(limite.hiperbolica);
    EXPECT_EQ(limite.en(0.5), 10 - 2 * (1 / (1 + 1.5 + 1)));
}

TEST(FuncionesDeLista, ElLimiteDeRichardsPierdeLosDecimalesDeA) {
    const auto limite = LeerFuncionDeLimite("A: 9,75; k: 6,50; m: 0,50");
    EXPECT_FALSE(limite.hiperbolica);
    EXPECT_EQ(limite.A, 9);
    EXPECT_EQ(limite.k, 6.5);
    EXPECT_EQ(limite.en(0.25), 9 * std::pow(1 - std::exp(-6.5 * 0.25), 2));
}

TEST(FuncionesDeLista, LosNumerosSeRedondeanACuatroDecimales) {
    EXPECT_EQ(LeerRadioDeInfluencia("a: 1,00005; b: 2; c: 0,00004; d: 0; e: 1,23456789").a, 1.0001);
    EXPECT_EQ(LeerRadioDeInfluencia("a: 1,00005; b: 2; c: 0,00004; d: 0; e: 1,23456789").c, 0);
    EXPECT_EQ(LeerRadioDeInfluencia("a: 1,00005; b: 2; c: 0,00004; d: 0; e: 1,23456789").e, 1.2346);
}

TEST(FuncionesDeLista, UnaLineaSinSusLetrasNoSePuedePartir) {
    EXPECT_EQ(FalloDe([] { LeerFuncionDeDistancia(""); }), 5);
    EXPECT_EQ(FalloDe([] { LeerRadioDeInfluencia(""); }), 5);
    EXPECT_EQ(FalloDe([] { LeerFuncionDeLimite(""); }), 5);
}

TEST(FuncionesDeLista, UnNumeroQueNoLoEsNoCoincideEnTipo) {
    EXPECT_EQ(FalloDe([] { LeerRadioDeInfluencia("a: x; b: 2,0; c: 3,0; d: 4,0; e: 5,0"); }), 13);
    EXPECT_EQ(FalloDe([] { LeerRadioDeInfluencia("a: 1,0; b: 2,0; c: 3,0; d: 4,0; e: "); }), 13);
}

TEST(FuncionesDeLista, UnDenominadorNuloDividePorCero) {
    EXPECT_EQ(FalloDe([] {
                  return LeerFuncionDeLimite("A: 1,00; k: 1,00; a: -2,00; b: 1,00; c: 1,00; d: 0,00; e: 0,00")
                      .en(2);
              }),
              11);
    EXPECT_EQ(FalloDe([] { return LeerFuncionDeLimite("A: 1,00; k: 1,00; m: 1,00").en(2); }), 11);
}

// What is left out unseen rests on this: no fault anywhere where none was announced.
RC_GTEST_PROP(FuncionesDeLista, DondeSeAnuncianSinFallosNoLosHay, ()) {
    const auto coeficiente = [] { return *rc::gen::inRange(-40, 41) * 0.25; };
    FuncionDeDistancia funcion;
    funcion.exponencial = *rc::gen::arbitrary<bool>();
    funcion.suma = {coeficiente(), coeficiente(), coeficiente(), coeficiente(), coeficiente()};
    const double desde = *rc::gen::inRange(1, 200) * 0.125;
    const double hasta = desde + *rc::gen::inRange(0, 1600) * 0.125;
    if (funcion.sinFallosEntre(desde, hasta)) {
        for (int parte = 0; parte <= 200; ++parte) {
            const double L = desde + (hasta - desde) * parte / 200;
            RC_ASSERT(FalloDe([&] { return funcion.en(L); }) == 0);
        }
    }
}

TEST(FuncionesDeLista, LaInversaDeLaDistanciaNoFallaLejosDeCero) {
    const auto inversa = LeerFuncionDeDistancia("HIP, a: 0,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000");
    EXPECT_TRUE(inversa.sinFallosEntre(1, 1000));
    EXPECT_FALSE(inversa.sinFallosEntre(0, 1000));
    const auto conCero =
        LeerFuncionDeDistancia("HIP, a: -6,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000");
    EXPECT_FALSE(conCero.sinFallosEntre(1, 10));
    EXPECT_TRUE(conCero.sinFallosEntre(7, 10));
}

RC_GTEST_PROP(FuncionesDeLista, SinPruebasEsElMismoNumeroYDondeFallaNoEsFinito, ()) {
    const auto deEstos = [](std::vector<double> numeros) { return *rc::gen::elementOf(std::move(numeros)); };
    const auto factor = [&] { return deEstos({-2, -1, 0, 0.5, 1, 1E+300}); };
    const auto exponente = [&] { return deEstos({-2, -0.5, 0, 1, 2, 3.25}); };
    FuncionDeDistancia funcion;
    funcion.exponencial = *rc::gen::arbitrary<bool>();
    funcion.suma = {factor(), factor(), exponente(), factor(), exponente()};
    CuatroNumeros L;
    for (double& deUna : L) {
        deUna = deEstos({0, 1E-200, 0.25, 1, 2, 7.3, 1E+150});
    }
    const CuatroNumeros f = funcion.sinPruebas(L);
    for (std::size_t n = 0; n < L.size(); ++n) {
        std::optional<double> deUna;
        Saltando([&] { deUna = funcion.en(L[n]); });
        RC_ASSERT(std::isfinite(f[n]) == deUna.has_value());
        if (deUna) {
            RC_ASSERT(f[n] == *deUna);
            RC_ASSERT(std::signbit(f[n]) == std::signbit(*deUna));
        }
    }
}

} // namespace
} // namespace varo
