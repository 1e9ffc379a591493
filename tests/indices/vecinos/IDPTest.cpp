#include "indices/vecinos/IDP.h"

#include "apoyo/Fallos.h"
#include "indices/vecinos/Parcelita.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

std::vector<double> IDP(const Parcelita& parcela, ReglaDeSeleccion regla, double p,
                        Lado lado = Lado::Bilateral, FormaIDP forma = FormaIDP::SinArbolCentral) {
    Seleccion seleccion{*parcela.vecindad, regla, OrdenDeRango::PorAngulo};
    seleccion.poner(p);
    return CalcularIDP(*parcela.arboles, seleccion, lado, forma);
}

double PrimerIDP(const std::vector<ArbolDado>& arboles, ReglaDeSeleccion regla, double p,
                 Lado lado = Lado::Bilateral, FormaIDP forma = FormaIDP::SinArbolCentral) {
    return IDP(Parcelita{arboles}, regla, p, lado, forma).at(0);
}

constexpr auto distancia = ReglaDeSeleccion::Distancia;
constexpr auto baf = ReglaDeSeleccion::BAF;
constexpr auto numero = ReglaDeSeleccion::NumeroFijo;

TEST(IDP, UnSoloCompetidorSinElArbolCentralDaMedioTermino) {
    // (1 - 1/2) * 2500 * (0.5 / 2)^2, and with the central tree three times as much.
    const std::vector<ArbolDado> pareja{{"0", "0", "0,25"}, {"2", "0", "0,5"}};
    EXPECT_EQ(PrimerIDP(pareja, distancia, 4), 78.125);
    EXPECT_EQ(PrimerIDP(pareja, distancia, 4, Lado::Bilateral, FormaIDP::ConArbolCentral), 234.375);
}

TEST(IDP, SinCompetidoresVale0) {
    EXPECT_EQ(PrimerIDP({{"0", "0", "1"}, {"9", "0", "1"}}, distancia, 4), 0);
    EXPECT_EQ(PrimerIDP({{"0", "0", "1"}}, distancia, 4), 0);
}

TEST(IDP, EnLaRazonCriticaDelBAFNoSeEsCompetidor) {
    // sqrt(625) / 50 = 0.5: the tree at 1 m is on it, the one at 0.5 m above it.
    EXPECT_EQ(PrimerIDP({{"0", "0", "1"}, {"1", "0", "0,5"}}, baf, 625), 0);
    EXPECT_EQ(PrimerIDP({{"0", "0", "1"}, {"0,5", "0", "0,5"}}, baf, 625), 1250);
}

TEST(IDP, ConUnPieYDosALaParEntranLosDosConRango1) {
    const std::vector<ArbolDado> empate{
        {"0", "0", "1"}, {"2", "0", "0,5"}, {"0", "-4", "1"}, {"8", "0", "1"}};
    EXPECT_EQ(PrimerIDP(empate, numero, 1), 1250 * (0.5 * 0.0625 + 0.5 * 0.0625));
    // The third one has both of them before it.
    EXPECT_EQ(PrimerIDP(empate, numero, 3), (2500.0 / 3) * (0.5 * 0.0625 + 0.5 * 0.0625 + 2.5 * 0.015625));
}

TEST(IDP, UnNumeroFijoDe0TomaTodaviaElPrimero) {
    EXPECT_EQ(PrimerIDP({{"0", "0", "1"}, {"2", "0", "0,5"}, {"4", "0", "0,5"}}, numero, 0), 78.125);
}

TEST(IDP, UnTerceroSinTamanoNiAdelantaNiCierraElPaso) {
    EXPECT_EQ(PrimerIDP({{"0", "0", "1"}, {"1", "0", ""}, {"2", "0", "0,5"}}, numero, 1), 78.125);
    // Not even one in the subject's place.
    EXPECT_EQ(PrimerIDP({{"0", "0", "1"}, {"0", "0", ""}, {"2", "0", "0,5"}}, distancia, 4), 78.125);
}

TEST(IDP, EnLaPasadaUnilateralLosMenoresDejanHuecosEnLosRangos) {
    // The smaller tree at 1 m looks largest; left out of the sum, it leaves rank 2 to the other one.
    const std::vector<ArbolDado> tres{{"0", "0", "1"}, {"1", "0", "0,5"}, {"4", "0", "1"}};
    EXPECT_EQ(PrimerIDP(tres, distancia, 8, Lado::Unilateral), 2500 * 1.5 * 0.0625);
    EXPECT_EQ(PrimerIDP(tres, distancia, 8, Lado::Bilateral), 1250 * (0.5 * 0.25 + 1.5 * 0.0625));
}

TEST(IDP, ElTamanoIgualCuentaEnLaPasadaUnilateral) {
    EXPECT_EQ(PrimerIDP({{"0", "0", "0,5"}, {"2", "0", "0,5"}}, distancia, 8, Lado::Unilateral), 78.125);
}

TEST(IDP, UnCompetidorGruesoYLejanoSacaElSujetoDelContornoConElBAF) {
    // d * 50 / sqrt(1) = 50 m; the nearest side stands at 45 m.
    Parcelita parcela{{{"5", "0", "0,5"}, {"-40", "0", "1"}}, 50};
    EXPECT_EQ(IDP(parcela, baf, 1).at(0), -2);
    // With BAF 4 the limit is 25 m, within the plot, and 1 / 45 is below 2 / 50.
    EXPECT_EQ(IDP(parcela, baf, 4).at(0), 0);
}

TEST(IDP, UnCandidatoLejanoBastaParaElEfectoDeBorde) {
    // The subject stands 10 m from a side, and 26 m from both of its ends: its height is exact.
    const Parcelita lejos{{{"14", "0", "1"}, {"-9", "0", "0,5"}}, 24};
    EXPECT_EQ(IDP(lejos, distancia, 10.5).at(0), -2);
    EXPECT_EQ(IDP(lejos, distancia, 10.5, Lado::Unilateral).at(0), 0)
        << "ningún candidato pasa la regla del lado";
    EXPECT_EQ(IDP(lejos, distancia, 10).at(0), 0) << "la altura es igual al límite";
}

TEST(IDP, UnaDistanciaNegativaNoTieneCompetidoresNiBorde) {
    EXPECT_EQ(IDP(Parcelita{{{"9", "0", "1"}, {"8", "0", "1"}}, 10}, distancia, -1).at(0), 0);
}

TEST(IDP, LasMarcasVanPorDelanteEnSuOrden) {
    const Parcelita parcela{{{"10", "10", ""}, {"10", "-10", "1"}, {"9", "9", "1"}, {"0", "0", "1"}}, 10};
    EXPECT_EQ(IDP(parcela, distancia, 4), (std::vector<double>{-3, -1, -2, 0}));
}

TEST(IDP, LosVerticesSeComparanPorSuTexto) {
    const Parcelita parcela{{{"10,0", "10", "1"}, {"10", "10", "1"}, {"0", "0", "1"}}, 10};
    EXPECT_EQ(IDP(parcela, distancia, 1), (std::vector<double>{-2, -1, 0}));
}

TEST(IDP, DosArbolesEnUnSitioDividenPorCeroYElLugarDiceLosDos) {
    const Parcelita parcela{{{"5", "0", "1"}, {"0", "0", "1"}, {"0", "0", "0,5"}}};
    for (const auto& [regla, p] : {std::pair{baf, 1.0}, {numero, 2.0}, {distancia, 2.0}}) {
        try {
            IDP(parcela, regla, p);
            FAIL() << "debía fallar";
        } catch (const ErrorEjecucion& error) {
            EXPECT_EQ(error.numero(), 11);
            EXPECT_NE(error.lugar().find("fila "), std::string::npos) << error.lugar();
            EXPECT_NE(error.lugar().find("vecino de la fila "), std::string::npos) << error.lugar();
        }
    }
}

TEST(IDP, UnaCeldaQueNoEsNumeroDiceSuColumnaYSuFila) {
    const Parcelita parcela{{{"0", "0", "1"}, {"5", "0", "grande"}}};
    try {
        IDP(parcela, distancia, 2);
        FAIL() << "debía fallar";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), 13);
        EXPECT_EQ(error.lugar(), "al calcular la fila 1, fila 2, columna «CAP»");
    }
}

TEST(IDP, UnBAFDe0DividePorCero) {
    EXPECT_EQ(FalloDe([] { PrimerIDP({{"0", "0", "1"}, {"2", "0", "1"}}, baf, 0); }), 11);
}

TEST(IDP, UnBAFNegativoNoTieneRaiz) {
    EXPECT_EQ(FalloDe([] { PrimerIDP({{"0", "0", "1"}, {"2", "0", "1"}}, baf, -1); }), 5);
}

TEST(IDP, LaFuncionDeLimiteLeeElDiametroDelSujetoEnMetros) {
    // Hyperbolic with k = 0: the limit is A. Richards with m = 0: A (1 - exp(-k d)).
    const Parcelita parcela{{{"0", "0", "0,5"}, {"2", "0", "0,5"}, {"5", "0", "1"}}};
    const auto con = [&](const char* entrada) {
        Seleccion seleccion{*parcela.vecindad, ReglaDeSeleccion::Funcion, OrdenDeRango::PorAngulo};
        seleccion.poner(entrada);
        return CalcularIDP(*parcela.arboles, seleccion, Lado::Bilateral, FormaIDP::SinArbolCentral).at(0);
    };
    EXPECT_EQ(con("A: 2,00; k: 0,00; a: 1,00; b: 0,00; c: 0,00; d: 0,00; e: 0,00"), 78.125);
    EXPECT_EQ(con("A: 1,99; k: 0,00; a: 1,00; b: 0,00; c: 0,00; d: 0,00; e: 0,00"), 0);
    // 5 (1 - exp(-0.5)) = 1.97 and 6 (1 - exp(-0.5)) = 2.36.
    EXPECT_EQ(con("A: 5,00; k: 1,00; m: 0,00"), 0);
    EXPECT_EQ(con("A: 6,00; k: 1,00; m: 0,00"), 78.125);
}

TEST(IDP, UnLimiteNegativoDejaSinCompetidores) {
    const Parcelita parcela{{{"9", "0", "0,5"}, {"8", "0", "0,5"}}, 10};
    Seleccion seleccion{*parcela.vecindad, ReglaDeSeleccion::Funcion, OrdenDeRango::PorAngulo};
    seleccion.poner("A: -2,00; k: 0,00; a: 1,00; b: 0,00; c: 0,00; d: 0,00; e: 0,00");
    EXPECT_EQ(CalcularIDP(*parcela.arboles, seleccion, Lado::Bilateral, FormaIDP::SinArbolCentral).at(0), 0);
}

} // namespace
} // namespace varo::prueba
