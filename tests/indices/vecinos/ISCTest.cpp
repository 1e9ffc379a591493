#include "indices/vecinos/ISC.h"

#include "apoyo/Fallos.h"
#include "indices/vecinos/Parcelita.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

std::vector<double> ISC(const Parcelita& parcela, Lado lado = Lado::Bilateral) {
    const RadiosDeCopa radios{*parcela.arboles, DatosDeCopa::RadioMedio, 1};
    return CalcularISC(*parcela.vecindad, radios, lado);
}

TEST(ISC, UnaCopaDentroDeOtraMayorTieneTerminoUno) {
    const Parcelita parcela{{{"0", "0", "1", "1"}, {"1", "0", "2", "4"}, {"20", "0", "1", "1"}}};
    // The area of the small crown in 32 bits over that of each one, in 64.
    const auto area = static_cast<double>(static_cast<float>(3.1415927));
    EXPECT_EQ(ISC(parcela), (std::vector<double>{area / 3.1415927, area / (3.1415927 * 16), 0}));
    EXPECT_EQ(ISC(parcela, Lado::Unilateral), (std::vector<double>{area / 3.1415927, 0, 0}));
}

TEST(ISC, SinTamanoOSinCopaNoHayArbol) {
    const Parcelita parcela{{{"0", "0", "", "1"}, {"0,5", "0", "1", "0"}, {"1", "0", "1", "1"}}};
    EXPECT_EQ(ISC(parcela).at(0), -3);
    EXPECT_EQ(ISC(parcela).at(1), -3);
    EXPECT_EQ(ISC(parcela).at(2), 0) << "ni el que no tiene tamaño ni la copa nula tapan nada";
}

TEST(ISC, LasMarcasVanPorDelanteEnSuOrden) {
    const Parcelita parcela{
        {{"10", "10", "1", "0"}, {"10", "-10", "1", "1"}, {"9,5", "0", "1", "1"}, {"0", "0", "1", "1"}}, 10};
    EXPECT_EQ(ISC(parcela), (std::vector<double>{-3, -1, -2, 0}));
}

TEST(ISC, LaCopaALaAlturaDelLadoNoEsBorde) {
    // The tree stands 10 m from a side, and 26 m from both of its ends: its height is exact.
    EXPECT_EQ(ISC(Parcelita{{{"14", "0", "1", "10"}}, 24}).at(0), 0);
    EXPECT_EQ(ISC(Parcelita{{{"14", "0", "1", "10,5"}}, 24}).at(0), -2);
}

TEST(ISC, UnaCeldaDeCopaVaciaNoEsUnNumero) {
    const Parcelita parcela{{{"0", "0", "1", "1"}, {"50", "0", "1", ""}}};
    try {
        ISC(parcela);
        FAIL() << "debía fallar";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), 13);
        EXPECT_EQ(error.lugar(), "al calcular la fila 1, fila 2, columna «R»");
    }
}

TEST(ISC, DosCopasIgualesEnUnSitioDividenPorCero) {
    EXPECT_EQ(FalloDe([] { ISC(Parcelita{{{"0", "0", "1", "1"}, {"0", "0", "1", "1"}}}); }), 11);
}

TEST(RadiosDeCopa, SonLaMediaEn32BitsDeLoQueDaCadaForma) {
    ParcelaLiteral parcela;
    parcela.x = parcela.y = {"0"};
    parcela.tamano = {"1"};
    parcela.copa = {{"10"}, {"20"}, {"30"}, {"43"}};
    const Arboles arboles = ArbolesDe(parcela);
    const auto radio = [&](DatosDeCopa datos, int factor) {
        return RadiosDeCopa{arboles, datos, factor}.de(0);
    };
    EXPECT_EQ(radio(DatosDeCopa::CuatroRadios, 1), 25.75F);
    EXPECT_EQ(radio(DatosDeCopa::DosDiametros, 1), 7.5F);
    EXPECT_EQ(radio(DatosDeCopa::RadioMedio, 100), 0.1F);
}

} // namespace
} // namespace varo::prueba
