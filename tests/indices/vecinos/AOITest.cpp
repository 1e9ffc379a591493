#include "indices/vecinos/AOI.h"

#include "apoyo/Fallos.h"
#include "indices/vecinos/Parcelita.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

/// Sizes in metres: a radius of b * 100 d.
constexpr SumaDePotencias porDiametro{0, 0.01, 1, 0, 0};

std::vector<double> AOI(const Parcelita& parcela, const SumaDePotencias& radio, double k,
                        Lado lado = Lado::Bilateral) {
    return CalcularAOI(*parcela.vecindad, RadiosDeInfluencia{*parcela.arboles, radio}, lado, k);
}

TEST(AOI, UnSujetoDentroDelCirculoDeOtroTieneParte1) {
    // Radii of 4 and 1, and the other way round: 1 / 16.
    const Parcelita parcela{{{"0", "0", "1"}, {"1", "0", "4"}}};
    EXPECT_EQ(AOI(parcela, porDiametro, 0), (std::vector<double>{1, 1 / 16.0}));
    EXPECT_EQ(AOI(parcela, porDiametro, 1), (std::vector<double>{4, 1 / 64.0}));
    EXPECT_EQ(AOI(parcela, porDiametro, 1, Lado::Unilateral), (std::vector<double>{4, 0}));
}

TEST(AOI, ConKCeroSeSumanLasPartesYPuedenPasarDe1) {
    const Parcelita parcela{{{"0", "0", "1"}, {"1", "0", "4"}, {"-1", "0", "4"}}};
    EXPECT_EQ(AOI(parcela, porDiametro, 0).at(0), 2);
}

TEST(AOI, LosCirculosQueNoSeTocanNoSuman) {
    EXPECT_EQ(AOI(Parcelita{{{"0", "0", "1"}, {"3", "0", "1"}}}, porDiametro, 1).at(0), 0);
}

TEST(AOI, ElBordeIncluyeLaIgualdad) {
    // The first tree stands 10 m from a side, and 26 m from both of its ends: its height is exact.
    const Parcelita parcela{{{"14", "0", "10"}, {"0", "0", "1"}}, 24};
    EXPECT_EQ(AOI(parcela, porDiametro, 1).at(0), -2);
    // With a smaller model radius the same tree has a value.
    EXPECT_EQ(AOI(parcela, {-0.5, 0.01, 1, 0, 0}, 1).at(0), 0);
}

TEST(AOI, ElTextoCeroNoEsArbolPeroElCeroConDecimalesSi) {
    EXPECT_EQ(AOI(Parcelita{{{"0", "0", "0"}, {"2", "0", "1"}}}, {1, 0, 0, 0, 0}, 1),
              (std::vector<double>{-3, 0}));
    EXPECT_EQ(FalloDe([] { AOI(Parcelita{{{"0", "0", "0,0"}, {"2", "0", "1"}}}, {1, 0, 0, 0, 0}, 1); }), 11);
}

TEST(AOI, UnRadioNuloDividePorCeroSiHayCompetidor) {
    EXPECT_EQ(FalloDe([] {
                  AOI(Parcelita{{{"0", "0", "1"}, {"50", "0", "1"}}}, {-1, 0.01, 1, 0, 0}, 1);
              }),
              11);
    EXPECT_EQ(AOI(Parcelita{{{"0", "0", "1"}}}, {-1, 0.01, 1, 0, 0}, 1).at(0), 0);
}

TEST(AOI, UnRadioQueFallaDiceElArbol) {
    // 0 cm to a negative power, in the radius of the far neighbour.
    const Parcelita parcela{{{"0", "0", "1"}, {"50", "0", "0"}}};
    try {
        AOI(parcela, {1, 1, -1, 0, 0}, 1);
        FAIL() << "debía fallar";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), 11);
        EXPECT_EQ(error.lugar(), "fila 1, con el vecino de la fila 2");
    }
}

} // namespace
} // namespace varo::prueba
