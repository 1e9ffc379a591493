#include "plot/calculo/ElipsesDeFilas.h"

#include "plot/calculo/CopasDePrueba.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

TEST(ElipsesDeFilas, CadaRadioSabeDeQueFilaViene) {
    const auto elipses = ElipsesDeFilas(FilasDe({{{"1", "2", "10", "", "30", "40"}},
                                                 {{"3", "4", "50", "50", "50", "50"}, true},
                                                 {{"5", "6", "", "60", "x", "70"}}},
                                                DatosDeCopa::CuatroRadios, 10));
    ASSERT_EQ(elipses.size(), 2U);
    EXPECT_EQ(elipses[0].copa, (Copa{1, 2, 1, 0, 3, 4}));
    EXPECT_EQ(elipses[0].filaDelRadio, (std::array<std::size_t, 4>{1, 0, 1, 1}));
    EXPECT_EQ(elipses[1].fila, 3U);
    EXPECT_EQ(elipses[1].copa, (Copa{5, 6, 1, 6, 3, 7}));
    EXPECT_EQ(elipses[1].filaDelRadio, (std::array<std::size_t, 4>{1, 3, 1, 3}));
    EXPECT_EQ(elipses[1].radioMayor(), 7);
    EXPECT_EQ(elipses[1].trasLaFila(0).copa, elipses[1].copa);
    EXPECT_EQ(elipses[1].trasLaFila(2).copa, (Copa{5, 6, 0, 6, 0, 7}));
}

TEST(ElipsesDeFilas, UnDiametroDaDosRadios) {
    const auto elipses =
        ElipsesDeFilas(FilasDe({{{"1", "2", "300", "200"}}}, DatosDeCopa::DosDiametros, 100));
    ASSERT_EQ(elipses.size(), 1U);
    EXPECT_EQ(elipses[0].copa, (Copa{1, 2, 1.5, 1, 1.5, 1}));
}

TEST(ElipsesDeFilas, SinCoordenadasNoHayElipseNiRadiosQueConservar) {
    const auto elipses =
        ElipsesDeFilas(FilasDe({{{"x", "2", "1", "1", "1", "1"}}, {{"3", "4", "", "", "", ""}}}));
    ASSERT_EQ(elipses.size(), 1U);
    EXPECT_EQ(elipses[0].copa, (Copa{3, 4, 0, 0, 0, 0}));
}

} // namespace
} // namespace varo::prueba
