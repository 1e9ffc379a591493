#include "indices/vecinos/DR.h"

#include "apoyo/Fallos.h"
#include "indices/vecinos/Parcelita.h"

#include <cmath>
#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

const char* const inversa = "HIP, a: 0,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000";

std::vector<double> DR(const Parcelita& parcela, ReglaDeSeleccion regla, double p, const std::string& entrada,
                       double k = 1, Lado lado = Lado::Bilateral) {
    Seleccion seleccion{*parcela.vecindad, regla, OrdenDeRango::PorDistancia};
    seleccion.poner(p);
    EntradaDeDistancia leida{entrada};
    return CalcularDR(*parcela.arboles, seleccion, lado, leida, k);
}

double PrimerDR(const std::vector<ArbolDado>& arboles, ReglaDeSeleccion regla, double p,
                const std::string& entrada, double k = 1, Lado lado = Lado::Bilateral) {
    return DR(Parcelita{arboles}, regla, p, entrada, k, lado).at(0);
}

constexpr auto distancia = ReglaDeSeleccion::Distancia;
constexpr auto numero = ReglaDeSeleccion::NumeroFijo;

TEST(DR, ConLaInversaDeLaDistanciaSumaRazonesEntreDistancias) {
    const std::vector<ArbolDado> tres{{"0", "0", "0,5"}, {"2", "0", "1"}, {"0", "4", "0,25"}};
    EXPECT_EQ(PrimerDR(tres, distancia, 8, inversa), 2 / 2.0 + 0.5 / 4);
    EXPECT_EQ(PrimerDR(tres, distancia, 8, inversa, 1, Lado::Unilateral), 1);
    EXPECT_EQ(PrimerDR(tres, distancia, 8, inversa, 2), 4 / 2.0 + 0.25 / 4);
}

TEST(DR, ConKCeroEsLaSumaDeLosPesos) {
    const std::vector<ArbolDado> tres{{"0", "0", "0,5"}, {"2", "0", "1"}, {"0", "4", "0,25"}};
    EXPECT_EQ(PrimerDR(tres, distancia, 8, inversa, 0), 0.75);
    EXPECT_EQ(PrimerDR(tres, distancia, 8, "EXP, a: 0,0000; b: 0,5000; c: 1,0000; d: 0,0000; e: 0,0000", 0),
              std::exp(-1.0) + std::exp(-2.0));
}

TEST(DR, ElNumeroFijoTomaLosMasCercanosYNoLosMasGruesos) {
    const std::vector<ArbolDado> tres{{"0", "0", "1"}, {"4", "0", "8"}, {"2", "0", "0,5"}};
    EXPECT_EQ(PrimerDR(tres, numero, 1, inversa), 0.5 / 2);
    EXPECT_EQ(PrimerDR(tres, numero, 2, inversa), 8 / 4.0 + 0.5 / 2);
    EXPECT_EQ(PrimerDR(tres, numero, 1, inversa, 1, Lado::Unilateral), 0)
        << "el menor ocupa el sitio aunque no sume";
}

TEST(DR, ElNumeroFijoNoDividePorNingunaDistancia) {
    const std::vector<ArbolDado> juntos{{"0", "0", "1"}, {"0", "0", "0,5"}, {"2", "0", "1"}};
    EXPECT_EQ(PrimerDR(juntos, numero, 1, "HIP, a: 2,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000"),
              0.25);
    EXPECT_EQ(FalloDe([&] { PrimerDR(juntos, ReglaDeSeleccion::BAF, 1, inversa); }), 11);
}

TEST(DR, UnPesoQueFallaAcabaLaCorridaAunqueElArbolSeRechace) {
    // 1 / (L - 6) with a tree at 6 m, out of the 3 m of the rule.
    const std::vector<ArbolDado> tres{{"0", "0", "1"}, {"2", "0", "1"}, {"6", "0", "1"}};
    const char* const entrada = "HIP, a: -6,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000";
    try {
        PrimerDR(tres, distancia, 3, entrada);
        FAIL() << "debía fallar";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), 11);
        EXPECT_EQ(error.lugar(), "fila 1, con el vecino de la fila 3");
    }
    EXPECT_EQ(FalloDe([&] {
                  PrimerDR(tres, distancia, 3,
                           "HIP, a: 0,0000; b: 1,0000; c: 500,0000; d: 0,0000; e: 0,0000");
              }),
              6);
}

TEST(DR, ElBordeDelPrimerCandidatoVaPorDelanteDeUnPesoQueFallaDespues) {
    const std::vector<ArbolDado> tres{{"9", "0", "1"}, {"-9", "0", "1"}, {"3", "0", "1"}};
    const char* const entrada = "HIP, a: -6,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000";
    const Parcelita parcela{{tres[0], tres[1]}, 10};
    EXPECT_EQ(DR(parcela, distancia, 3, entrada), (std::vector<double>{-2, -2}));
    EXPECT_EQ(FalloDe([&] { DR(Parcelita{{tres[0], tres[2], tres[1]}, 10}, distancia, 3, entrada); }), 11);
}

TEST(DR, ElTextoCeroNoEsArbolPeroElCeroConDecimalesSi) {
    EXPECT_EQ(PrimerDR({{"0", "0", "0"}, {"2", "0", "1"}}, distancia, 8, inversa), -3);
    EXPECT_EQ(FalloDe([] { PrimerDR({{"0", "0", "0,0"}, {"2", "0", "1"}}, distancia, 8, inversa); }), 11);
    // As a neighbour it counts, with the ratio 0.
    EXPECT_EQ(PrimerDR({{"2", "0", "1"}, {"0", "0", "0"}}, distancia, 8, inversa), 0);
}

TEST(DR, UnaLineaEnBlancoFallaConElPrimerCandidato) {
    EXPECT_EQ(FalloDe([] { PrimerDR({{"0", "0", "1"}, {"2", "0", "1"}}, distancia, 8, ""); }), 5);
    EXPECT_EQ(PrimerDR({{"0", "0", "1"}}, distancia, 8, ""), 0);
}

TEST(DR, LosNegativosDeUnaPotenciaEnUnSitioDividenPorCero) {
    const std::vector<ArbolDado> juntos{{"0", "0", "1"}, {"0", "0", "1"}};
    EXPECT_EQ(FalloDe([&] {
                  PrimerDR(juntos, numero, 1, "EXP, a: 1,0000; b: 1,0000; c: -1,0000; d: 0,0000; e: 0,0000");
              }),
              11);
}

} // namespace
} // namespace varo::prueba
