#include "plot/calculo/Elipses.h"

#include "plot/calculo/CopasDePrueba.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

constexpr double pi = 3.1415927;

struct Contorno {
    std::vector<double> x, y;
    [[nodiscard]] ContornoXY vista() const { return {x, y}; }
};

/// Inside from y = 0 up to y = 10, with two slanting sides of slope 2.
const Contorno trapecio{{0, 5, 15, 20, 0}, {0, 10, 10, 0, 0}};
/// Its first side is vertical, so each test of a point fails.
const Contorno cuadrado{{0, 0, 20, 20, 0}, {0, 20, 20, 0, 0}};
/// Its third side is vertical: y = x + 10 and y = 20 are asked before it.
const Contorno derechoAlEste{{0, 10, 20, 20, 0}, {10, 20, 20, 0, 10}};

/// A crown of a quarter of a metre all round. It has 16 samples: those at 0,15 and 0,05 of the tree in each
/// direction, its corners too, as (0,6)^2 + (0,6)^2 = 0,72; with 0,25 in one axis nothing is left for the
/// other.
FilaDada Redonda(const std::string& x, const std::string& y, bool sinTamano = false) {
    return {{x, y, "0,25", "0,25", "0,25", "0,25"}, sinTamano};
}

Lienzo Superficie(const Escala& escala = {}) {
    Lienzo superficie;
    superficie.escala(escala);
    return superficie;
}

SolapeDeCopas Solape(const FilasDeCopas& filas, const Contorno& contorno = trapecio,
                     const Escala& escala = {}) {
    SolapeDeCopas solape{{{9, 9, 9}}, 7, 9}; // of an earlier run
    SolaparElipses(filas, contorno.vista(), Superficie(escala), solape);
    return solape;
}

std::vector<ParDeCopas> Pares(const std::vector<FilaDada>& dadas, const Contorno& contorno = trapecio) {
    return Solape(FilasDe(dadas), contorno).ParesCopas;
}

using ListaDePares = std::vector<ParDeCopas>;

TEST(SolaparElipses, UnSoloArbolNoTienePares) {
    const SolapeDeCopas solape = Solape(FilasDe({Redonda("10", "5")}));
    EXPECT_TRUE(solape.ParesCopas.empty());
    EXPECT_EQ(solape.NumParesCopas, -1);
    EXPECT_EQ(solape.AreaIntersecCopas, 0);
    EXPECT_EQ(Solape({}).NumParesCopas, -1);
}

TEST(SolaparElipses, ElAreaEsLaParteTapadaDeLaPrimeraCopa) {
    // The second crown stands 0,3 to the east: of the 16 samples it covers the four at 0,15 to the east.
    // 4 / 16 * pi * (4 * 0,25^2) / 4.
    const SolapeDeCopas solape = Solape(FilasDe({Redonda("10", "5"), Redonda("10,3", "5")}));
    EXPECT_EQ(solape.ParesCopas, (ListaDePares{{1, 2, pi / 64}}));
    EXPECT_EQ(solape.NumParesCopas, 0);
    EXPECT_EQ(solape.AreaIntersecCopas, pi / 64);
}

TEST(SolaparElipses, UnaCopaDentroDeOtraDaSuAreaEntera) {
    EXPECT_EQ(Pares({Redonda("10", "5"), {{"10,5", "5,5", "2", "3", "2", "3"}}}),
              (ListaDePares{{1, 2, pi / 16}}));
}

TEST(SolaparElipses, LoQueNoSeTocaNoFormaPar) {
    EXPECT_TRUE(Pares({Redonda("10", "5"), Redonda("10,4", "5"), Redonda("14", "5")}).empty());
}

TEST(SolaparElipses, CadaParDeTresCopasCuentaEntero) {
    const SolapeDeCopas solape =
        Solape(FilasDe({Redonda("10", "5"), Redonda("10", "5"), Redonda("10,3", "5")}));
    EXPECT_EQ(solape.ParesCopas, (ListaDePares{{1, 2, pi / 16}, {1, 3, pi / 64}, {2, 3, pi / 64}}));
    EXPECT_EQ(solape.AreaIntersecCopas, pi / 16 + pi / 64 + pi / 64);
}

TEST(SolaparElipses, SinTamanoElArbolNoEntraEnNingunPar) {
    EXPECT_EQ(
        Pares({Redonda("10", "5", true), Redonda("10", "5"), Redonda("10", "5", true), Redonda("10", "5")}),
        (ListaDePares{{2, 4, pi / 16}}));
}

TEST(SolaparElipses, CercaDelContornoCuentaSoloLoDeDentro) {
    // On the side y = 0: of the four samples that are covered those at 0,05 and 0,15 to the north are inside.
    EXPECT_EQ(Pares({Redonda("10", "0"), Redonda("10,3", "0")}), (ListaDePares{{1, 2, pi / 128}}));
}

TEST(SolaparElipses, EsLaSegundaCopaLaQueHaDeEstarCerca) {
    // 0,1 above the side four samples of the first crown, those at 0,15 to the south, are outside.
    const FilaDada primera = Redonda("10", "0,1");
    EXPECT_EQ(Pares({primera, primera}), (ListaDePares{{1, 2, pi / 16 * 3 / 4}}));
    // With radii of 0 the second one is near no side, and painted with half a metre.
    EXPECT_EQ(Pares({primera, {{"10", "0,1", "0", "0", "0", "0"}}}), (ListaDePares{{1, 2, pi / 16}}));
}

TEST(SolaparElipses, ConUnLadoVerticalCuentaTambienLoDeFuera) {
    EXPECT_EQ(Pares({Redonda("10", "0"), Redonda("10,3", "0")}, cuadrado), (ListaDePares{{1, 2, pi / 64}}));
}

TEST(SolaparElipses, LoQueUnLadoAnteriorAlVerticalDejaFueraNoCuenta) {
    // Along y = x + 10, 0,02 above it: of the samples at 0,15 to the east the three lower ones are below the
    // side.
    EXPECT_EQ(Pares({Redonda("5", "15,02"), Redonda("5,3", "15,02")}, derechoAlEste),
              (ListaDePares{{1, 2, 3 * pi / 256}}));
}

TEST(SolaparElipses, CadaRadioQueFallaConservaElDelArbolAnterior) {
    // As first crown row 2 keeps the radii of row 1. As second one, in the walk that starts behind row 1, its
    // radii are 0: it is painted with half a metre and covers the whole first crown.
    EXPECT_EQ(Pares({Redonda("10", "5"), {{"10,3", "5", "", "ancha", " ", ""}}, Redonda("10,6", "5")}),
              (ListaDePares{{1, 2, pi / 16}, {2, 3, pi / 64}}));
    // Behind another second crown it keeps the radii of that one.
    EXPECT_EQ(Pares({Redonda("10", "5"), Redonda("12", "7"), {{"10,3", "5", "", "", "", ""}}}),
              (ListaDePares{{1, 3, pi / 64}}));
    // One radius alone: with 1 to the west, kept from row 2, it covers all.
    EXPECT_EQ(Pares({Redonda("10", "5"),
                     {{"12", "7", "0,1", "0,1", "0,1", "1"}},
                     {{"10,3", "5", "1", "1", "1", ""}}}),
              (ListaDePares{{1, 3, pi / 16}}));
}

TEST(SolaparElipses, UnaCoordenadaQueNoEsUnNumeroDejaPasarLaFila) {
    EXPECT_EQ(Pares({Redonda("10", "5"), Redonda("este", "5"), Redonda("10,3", ""), Redonda("10,3", "5")}),
              (ListaDePares{{1, 4, pi / 64}}));
}

TEST(SolaparElipses, DosDiametrosSonElDobleDeLosRadios) {
    const std::vector<FilaDada> dadas{{{"10", "5", "50", "50"}}, {{"10,3", "5", "50", "50"}}};
    for (const auto datos : {DatosDeCopa::DosDiametros, DatosDeCopa::RadioMedio}) {
        EXPECT_EQ(Solape(FilasDe(dadas, datos, 100)).ParesCopas, (ListaDePares{{1, 2, pi / 64}}));
    }
    // North-south first: with 0,3 to the north and south, and 0,1 to the east and west, it covers nothing.
    EXPECT_TRUE(Solape(FilasDe({dadas[0], {{"10,3", "5", "60", "20"}}}, DatosDeCopa::DosDiametros, 100))
                    .ParesCopas.empty());
}

TEST(SolaparElipses, LosRadiosCeroTienenAreaCero) {
    EXPECT_TRUE(Pares({{{"10", "5", "0", "0", "0", "0"}}, Redonda("10", "5")}).empty());
}

TEST(SolaparElipses, UnaCopaSinMuestrasNoFormaPares) {
    // The only sample is the corner of the box, outside of the ellipse.
    EXPECT_TRUE(Pares({{{"10", "5", "0,03", "0,03", "0,03", "0,03"}}, Redonda("10", "5")}).empty());
}

TEST(SolaparElipses, UnaCopaQueNoSePuedeRecorrerNoFormaParesYLasDemasSi) {
    EXPECT_EQ(Pares({{{"10", "5", "1", "1E+9", "1", "1"}}, Redonda("10", "5"), Redonda("10", "5")}),
              (ListaDePares{{2, 3, pi / 16}}));
}

TEST(SolaparElipses, LoQueQuedaFueraDeLaSuperficieNoCuenta) {
    // Of the 16 samples the 8 to the east lie on it; the second crown covers half of them.
    EXPECT_EQ(
        Solape(FilasDe({Redonda("10", "5"), Redonda("10,3", "5")}), trapecio, {10, 20, 0, 20}).ParesCopas,
        (ListaDePares{{1, 2, pi / 32}}));
    EXPECT_TRUE(Solape(FilasDe({Redonda("10", "5"), Redonda("10,3", "5")}), trapecio, {11, 20, 0, 20})
                    .ParesCopas.empty());
}

TEST(SolaparElipses, PasadosLosDieciseisBitsElUltimoParOcupaLaUltimaFila) {
    // 257 crowns in one place: 257 * 256 / 2 = 32,896 pairs.
    const SolapeDeCopas solape = Solape(FilasDe(std::vector<FilaDada>(257, Redonda("10", "5"))));
    ASSERT_EQ(solape.ParesCopas.size(), 32768U);
    EXPECT_EQ(solape.NumParesCopas, 32767);
    EXPECT_EQ(solape.ParesCopas.back(), (ParDeCopas{256, 257, pi / 16}));
    // The first 240 trees make 240 * 257 - 240 * 241 / 2 = 32,760 pairs; seven more of tree 241 stay.
    EXPECT_EQ(solape.ParesCopas[32766], (ParDeCopas{241, 248, pi / 16}));
    double suma = 0;
    for (int par = 0; par < 32768; ++par) {
        suma += pi / 16;
    }
    EXPECT_EQ(solape.AreaIntersecCopas, suma);
}

double SupFuera(const std::vector<FilaDada>& dadas, const std::vector<Valor>& areas,
                const Contorno& contorno = trapecio, const Escala& escala = {}) {
    return RecortarElipses(FilasDe(dadas), contorno.vista(), Superficie(escala), areas);
}

TEST(RecortarElipses, UnaCopaLejosDelContornoNoSeRecorta) {
    EXPECT_EQ(SupFuera({Redonda("10", "5")}, {16.0}), 0);
    // 4 above the middle of a side of 6 the sides of the triangle are 5, 5 and 6, and the height is 4.
    const Contorno embudo{{-300, 306, 6, 0, -300}, {100, 100, 0, 0, 100}};
    EXPECT_EQ(SupFuera({{{"3", "4", "4", "4", "4", "4"}}}, {16.0}, embudo), 0) << "no es menor que el radio";
    EXPECT_GT(SupFuera({{{"3", "4", "4", "4", "5", "4"}}}, {16.0}, embudo), 0);
}

TEST(RecortarElipses, QuitaLaParteDelAreaQueCaeFuera) {
    EXPECT_EQ(SupFuera({Redonda("10", "0")}, {3.0}), 1.5); // 8 samples of 16
    EXPECT_EQ(SupFuera({Redonda("10", "0"), Redonda("10", "5"), Redonda("10", "-0,1")}, {3.0, 8.0, 16.0}),
              1.5 + 12); // those at 0,15 to the north alone are inside
}

TEST(RecortarElipses, UnLadoCercanoBasta) {
    // In the corner two sides are near. Inside is what lies above 0 and below 2 x: at 0,05 to the east one
    // sample, at 0,15 two.
    EXPECT_EQ(SupFuera({Redonda("0", "0")}, {16.0}), 13);
}

TEST(RecortarElipses, LasAreasSiguenElOrdenDeLasFilas) {
    EXPECT_EQ(SupFuera({Redonda("10", "0", true), Redonda("10", "0"), Redonda("10", "0"),
                        Redonda("norte", "0"), Redonda("10", "0"), Redonda("10", "0")},
                       {100.0, Nulo{}, 2.0, 100.0, std::string{"7"}}),
              1 + 3.5);
    EXPECT_EQ(SupFuera({Redonda("10", "0")}, {}), 0);
}

TEST(RecortarElipses, CadaRadioQueFallaConservaElDelArbolAnterior) {
    EXPECT_EQ(SupFuera({Redonda("10", "5"), {{"10", "0", "", "x", "0,25", "0,25"}}}, {1.0, 16.0}), 8);
    EXPECT_EQ(SupFuera({{{"10", "0", "", "", "", ""}}}, {16.0}), 0)
        << "empiezan en 0, y ninguna altura es menor";
    // The row without a size does not hand its radii on.
    EXPECT_EQ(SupFuera({Redonda("10", "5", true), {{"10", "0", "", "", "", ""}}}, {1.0, 16.0}), 0);
}

TEST(RecortarElipses, UnaAlturaQueFallaDejaPasarElBloque) {
    // A side without length, at the end: the height fails. What the sides before it decide is inside.
    const Contorno conLadoNulo{{0, 5, 15, 20, 0, 0}, {0, 10, 10, 0, 0, 0}};
    EXPECT_EQ(SupFuera({Redonda("10", "5"), Redonda("10", "0")}, {16.0, 16.0}, conLadoNulo), 8);
    // At the beginning it makes each test of a point fail, and each sample counts as outside.
    const Contorno conLadoNuloAntes{{0, 0, 5, 15, 20, 0}, {0, 0, 10, 10, 0, 0}};
    EXPECT_EQ(SupFuera({Redonda("10", "5")}, {16.0}, conLadoNuloAntes), 16);
}

TEST(RecortarElipses, ConUnLadoVerticalTodoLoCercanoEsFuera) {
    EXPECT_EQ(SupFuera({Redonda("10", "0"), Redonda("10", "5")}, {16.0, 100.0}, cuadrado), 16);
    EXPECT_EQ(SupFuera({Redonda("5", "15,02")}, {16.0}, derechoAlEste), 16);
}

TEST(RecortarElipses, SinMuestrasNoSeSumaNada) {
    EXPECT_EQ(SupFuera({{{"10", "0", "0,03", "0,03", "0,03", "0,03"}}, Redonda("10", "0")}, {16.0, 16.0}), 8);
    EXPECT_EQ(SupFuera({{{"10", "0", "0", "0", "0", "0"}}}, {0.0}), 0) << "los cuatro radios son 0";
    EXPECT_EQ(SupFuera({{{"10", "0", "1E+9", "1", "1", "1"}}}, {16.0}), 0) << "no se puede recorrer";
    EXPECT_EQ(SupFuera({Redonda("10", "0")}, {16.0}, trapecio, {11, 20, 0, 20}), 0)
        << "fuera de la superficie";
}

TEST(RecortarElipses, FueraDeLaSuperficieNoHayMuestras) {
    EXPECT_EQ(SupFuera({Redonda("10", "0")}, {16.0}, trapecio, {0, 20, -0.1, 20}), 16 * 4.0 / 12);
}

} // namespace
} // namespace varo::prueba
