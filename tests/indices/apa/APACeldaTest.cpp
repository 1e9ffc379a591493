#include "indices/apa/APACelda.h"

#include "apoyo/Fallos.h"
#include "indices/vecinos/Marcas.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

/// A rectangle about the origin, turned so that no side is upright. Its vertices, in the order of its sides,
/// are (0; 2,5), (-2; 1,5), (0; -2,5) and (2; -1,5), its area 2 * root 5 times root 5.
const std::vector<LadoAPA> rectangulo{{0, -2, 2.5}, {1, 0.5, 2.5}, {2, -2, -2.5}, {3, 0.5, -2.5}};

/// m2: the roots of Heron's formula round in their last places.
constexpr double redondeoDeArea = 1E-14;

struct Contorno {
    std::vector<double> x, y;
    [[nodiscard]] ContornoXY xy() const { return {x, y}; }
};

const Contorno amplio{{-10, -9, 9, 10, -10}, {-10, 10, 10, -10, -10}};
const Contorno lejano{{100, 101, 119, 120, 100}, {-10, 10, 10, -10, -10}};
const Contorno porEncimaDeMenosUno{{-10, -9, 9, 10, -10}, {-1, 10, 10, -1, -1}};

/// The strokes of the rectangle inside a boundary that leaves out what lies below y = -1. There its lines
/// y = -2x - 2,5 and y = -2x + 2,5 have x = -0,75 and x = 1,75; the side that comes in is drawn from its
/// inner end.
const std::vector<TrazoAPA> cortadosEnMenosUno{{0, 2.5, -2, 1.5}, {-2, 1.5, -0.75, -1}, {0, 2.5, 1.75, -1}};

TEST(APACelda, UnaCeldaDentroDeLaParcelaTieneSuAreaYDibujaSusLados) {
    std::vector<TrazoAPA> trazos;
    EXPECT_NEAR(MedirCelda(rectangulo, amplio.xy(), &trazos), 10, redondeoDeArea);
    const std::vector<TrazoAPA> lados{
        {0, 2.5, -2, 1.5}, {-2, 1.5, 0, -2.5}, {0, -2.5, 2, -1.5}, {2, -1.5, 0, 2.5}};
    EXPECT_EQ(trazos, lados);
}

TEST(APACelda, UnaCeldaQueSaleDeLaParcelaEsEfectoDeBordeYSeDibujaHastaElContorno) {
    std::vector<TrazoAPA> trazos;
    EXPECT_EQ(MedirCelda(rectangulo, porEncimaDeMenosUno.xy(), &trazos), efectoBorde);
    EXPECT_EQ(trazos, cortadosEnMenosUno);
}

TEST(APACelda, UnaCeldaConTodosSusVerticesFueraConservaSuAreaYNoSeDibuja) {
    std::vector<TrazoAPA> trazos;
    EXPECT_NEAR(MedirCelda(rectangulo, lejano.xy(), &trazos), 10, redondeoDeArea);
    EXPECT_TRUE(trazos.empty());
}

TEST(APACelda, SinDibujoElValorEsElMismo) {
    for (const auto* const contorno : {&amplio, &lejano, &porEncimaDeMenosUno}) {
        std::vector<TrazoAPA> trazos;
        EXPECT_EQ(MedirCelda(rectangulo, contorno->xy(), nullptr),
                  MedirCelda(rectangulo, contorno->xy(), &trazos));
    }
}

TEST(APACelda, UnLadoDelContornoParaleloAlDeLaCeldaSePasaPorAltoAlBuscarElCorte) {
    // Its second side falls with the slope -2 of two sides of the cell: to cross them is a division by zero.
    const Contorno conParalelo{{-10, -9, 4, 9.5, -10}, {-1, 10, 10, -1, -1}};
    std::vector<TrazoAPA> trazos;
    EXPECT_EQ(MedirCelda(rectangulo, conParalelo.xy(), &trazos), efectoBorde);
    EXPECT_EQ(trazos, cortadosEnMenosUno);
}

TEST(APACelda, DosLadosSeguidosParalelosFallan) {
    const std::vector<LadoAPA> paralelos{{0, -2, 2.5}, {1, -2, -2.5}, {2, 0.5, 1}};
    EXPECT_EQ(FalloDe([&] { MedirCelda(paralelos, amplio.xy(), nullptr); }), fallo::divisionPorCero);
}

TEST(APACelda, UnSoloLadoEsParaleloASiMismo) {
    EXPECT_EQ(FalloDe([&] { MedirCelda(std::span{rectangulo}.first(1), amplio.xy(), nullptr); }),
              fallo::divisionPorCero);
}

TEST(APACelda, DosLadosTienenUnVerticeDosVecesYNingunArea) {
    std::vector<TrazoAPA> trazos;
    EXPECT_EQ(MedirCelda(std::span{rectangulo}.first(2), amplio.xy(), &trazos), 0);
    const std::vector<TrazoAPA> puntos{{0, 2.5, 0, 2.5}, {0, 2.5, 0, 2.5}};
    EXPECT_EQ(trazos, puntos);
}

TEST(APACelda, UnLadoVerticalDelContornoFalla) {
    const Contorno vertical{{-10, -10, 10, 11, -10}, {-10, 10, 10, -10, -10}};
    EXPECT_EQ(FalloDe([&] { MedirCelda(rectangulo, vertical.xy(), nullptr); }), fallo::divisionPorCero);
}

} // namespace
} // namespace varo
