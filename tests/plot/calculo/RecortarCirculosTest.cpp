#include "plot/calculo/RecortarCirculos.h"

#include "basico/Numeros.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace varo::prueba {
namespace {

constexpr double pi = 3.1415927; // the literal of the whole program

/// The last digits belong to the rounding of Heron's formula on sides of a hundred metres.
constexpr double redondeo = 1E-9;

/// x and y of a vertex, in the order of the boundary, and the mean radius of its crown.
struct VerticeDado {
    double x = 0, y = 0;
    Valor radio = 0.0;
};
using Vertices = std::vector<VerticeDado>;

/// x, y and the measures of a crown, as texts.
struct ArbolDado {
    std::string x, y;
    std::array<std::string, 4> medidas;
};

struct Recorte {
    Recorte(const Vertices& vertices, const std::vector<ArbolDado>& arboles) {
        for (std::size_t i = 0; i <= vertices.size(); ++i) {
            const VerticeDado& vertice = vertices[i % vertices.size()]; // the last row repeats the first
            Poligono.anadir(vertice.x, vertice.y, {Valor{1.5}, vertice.radio, Valor{"7"}});
        }
        angulos.redimensionar(static_cast<int>(vertices.size()) - 1);
        copas.datos = DatosDeCopa::RadioMedio;
        for (const ArbolDado& arbol : arboles) {
            FilaDeCopa fila;
            fila.x = CeldaLeida{arbol.x};
            fila.y = CeldaLeida{arbol.y};
            fila.sinTamano = true; // not asked
            for (std::size_t n = 0; n < 4; ++n) {
                fila.medidas[n] = CeldaLeida{arbol.medidas[n]};
            }
            copas.filas.push_back(fila);
        }
    }
    [[nodiscard]] RecorteDeCopas calcular(bool conCodigo = false) const {
        return RecortarCirculos(copas, Poligono, angulos, conCodigo);
    }

    FilasDeCopas copas;
    TablaPoligono Poligono;
    MatrizDinamica<double> angulos;
};

double SupFuera(const Vertices& vertices, const std::vector<ArbolDado>& arboles) {
    return Recorte{vertices, arboles}.calcular().SupFuera;
}

/// The part of a circle beyond a chord at a distance of its centre.
double Segmento(double r, double h) {
    return r * r * std::acos(h / r) - h * std::sqrt(r * r - h * h);
}

/// The last edge runs along y = 0, far beyond any crown; the other two are far away.
const Vertices triangulo{{-100, 0}, {0, 1000}, {100, 0}};
/// No edge is upright or level.
const Vertices rombo{{0, 10}, {9, 20}, {20, 11}, {10, 0}};
/// The same with a short edge at the top, from (9; 20) to (11; 20,5).
const Vertices conLadoCorto{{0, 10}, {9, 20}, {11, 20.5}, {20, 11}, {10, 0}};

TEST(RecortarCirculos, UnaCopaLejosDeLosLadosNoSeRecorta) {
    EXPECT_EQ(SupFuera(rombo, {{"10,1", "10", {"4"}}}), 0);
}

TEST(RecortarCirculos, UnLadoLargoAMedioRadioCortaUnSegmento) {
    // 16 pi / 3 - 4 sqrt(3)
    EXPECT_NEAR(SupFuera(triangulo, {{"3", "2", {"4"}}}), 9.826957588866513, redondeo);
}

TEST(RecortarCirculos, UnLadoVerticalDejaPasarLaPruebaDelAngulo) {
    // The angle faults on the edge x = 0 and the segment is cut all the same: 4 pi / 3 - sqrt(3).
    const Vertices cuadrado{{0, 0}, {0, 20}, {20, 20}, {20, 0}};
    EXPECT_NEAR(SupFuera(cuadrado, {{"1", "10,5", {"2"}}}), 2.4567393972176035, redondeo);
}

TEST(RecortarCirculos, CadaLadoSegunElExtremoQueQuedaDentro) {
    // Circle of 4 m about (10,1; 18), worked out with the formulas one by one.
    // From (0; 10) to (9; 20), the second end inside: aQ = 1,2356583127, aX = 0,7669598218,
    // aC = 1,1389745655. `lado` starts from the 21,9317121995 between that end and (0, 0), so it is
    // 28,7030797309: no triangle with sides of 4 and 2,28. The statement faults and 0 is added.
    // From (9; 20) to (11; 20,5), both inside: 4,5121903321.
    // From (11; 20,5) to (20; 11), the first end inside: aQ = 1,1039332948, aX = 0,8096305365,
    // aC = 1,2280288687, lado = 3,4563365638: 5,2942969164.
    EXPECT_NEAR(SupFuera(conLadoCorto, {{"10,1", "18", {"4"}}}), 9.806487248471775, redondeo);
}

TEST(RecortarCirculos, LaPiezaQueFallaRepiteLaDelLadoAnterior) {
    // A second tree at (9,5; 18). Its first edge faults as above. On its second one the angle faults: the
    // line from the tree to (9; 20) is square to the edge. Both add the 5,2942969164 that the first tree
    // left. The third edge gives 2,6062729113.
    EXPECT_NEAR(SupFuera(conLadoCorto, {{"10,1", "18", {"4"}}, {"9,5", "18", {"4"}}}), 23.001353992551806,
                redondeo);
}

TEST(RecortarCirculos, UnaFilaSinNumeroEnYRepiteTodoLoAnterior) {
    // The first tree, 3 / sqrt(8) from the last edge, leaves its height, its distances and the piece
    // 9 acos(1 / sqrt(8)) - sqrt(8 - 1) * 9 / 8. In the second row all that reads its place faults: each of
    // the four edges goes down to the segment with what was left.
    const double pieza = 7.908392601046019;
    EXPECT_NEAR(Segmento(3, 3 / std::sqrt(8)), pieza, redondeo);
    EXPECT_NEAR(SupFuera(rombo, {{"6", "5,5", {"3"}}, {"6,5", "", {"3"}}}), 5 * pieza, redondeo);
}

TEST(RecortarCirculos, SinRadioMedioValeElDeLaFilaAnterior) {
    const ArbolDado primero{"3", "2", {"4"}};
    EXPECT_EQ(SupFuera(triangulo, {primero, {"5", "2,5", {""}}}),
              SupFuera(triangulo, {primero, {"5", "2,5", {"4"}}}));
    EXPECT_EQ(SupFuera(triangulo, {{"3", "2", {"copa"}}}), 0) << "el primero parte de 0";
}

TEST(RecortarCirculos, CadaFormaTieneSuRadioMedioEn32Bits) {
    const auto fuera = [](DatosDeCopa datos, int factor, const std::array<std::string, 4>& medidas) {
        Recorte recorte{triangulo, {{"3", "2", medidas}}};
        recorte.copas.datos = datos;
        recorte.copas.FactorRadios = factor;
        return recorte.calcular().SupFuera;
    };
    const double con2y5 = SupFuera(triangulo, {{"3", "2", {"2,5"}}});
    EXPECT_NEAR(con2y5, Segmento(2.5, 2), redondeo);
    EXPECT_EQ(fuera(DatosDeCopa::CuatroRadios, 100, {"100", "200", "300", "400"}), con2y5);
    EXPECT_EQ(fuera(DatosDeCopa::DosDiametros, 10, {"40", "60", "", ""}), con2y5);
    EXPECT_EQ(fuera(DatosDeCopa::RadioMedio, 100, {"250", "", "", ""}), con2y5);
    EXPECT_EQ(fuera(DatosDeCopa::RadioMedio, 1, {"2,49999999999", "", "", ""}), con2y5);
}

/// A flat triangle, whose top stands 3 m above the last edge.
const Vertices tejado{{-100, 0, 2.0}, {0.5, 3, 4.0}, {100, 0, 2.0}};

TEST(RecortarCirculos, UnArbolConLaXDeUnVerticeEsEseVertice) {
    // 16 acos(3 / 4) - 3 sqrt(7), by the radius and the place of the vertex; the tree stands elsewhere.
    const double segmento = 3.6264940318208785;
    EXPECT_NEAR(SupFuera(tejado, {{"0,5", "3", {"1"}}}), segmento, redondeo);
    EXPECT_NEAR(SupFuera(tejado, {{"0,5", "-80", {"9"}}}), segmento, redondeo);
    EXPECT_NEAR(SupFuera(tejado, {{"0,5", "copa", {""}}}), segmento, redondeo);
}

TEST(RecortarCirculos, LaXSeComparaPorSuTexto) {
    // A tree of its own then, with a radius of 0.
    EXPECT_EQ(SupFuera(tejado, {{"0,50", "3", {"0"}}}), 0);
    EXPECT_EQ(SupFuera(tejado, {{" 0,5", "1", {"0"}}}), 0);
}

TEST(RecortarCirculos, TrasLaPrimeraFilaDeVerticeNoSeMiraNinguna) {
    const ArbolDado vertice{"0,5", "3", {"4"}};
    const ArbolDado dentro{"3", "2", {"2,5"}};
    const double delVertice = SupFuera(tejado, {vertice});
    EXPECT_EQ(SupFuera(tejado, {vertice, dentro}), delVertice);
    EXPECT_EQ(SupFuera(tejado, {vertice, {"100", "0", {"2"}}, dentro, dentro}), delVertice);
    EXPECT_GT(SupFuera(tejado, {dentro, vertice}), delVertice);
}

TEST(RecortarCirculos, LaMismaXEnDosVerticesRecortaLosDos) {
    // Each of (10; 16,25) and (10; 9,75) has one far edge through its circle; the other one ends before it.
    // Their heights are 6,5 * 90 / sqrt(90^2 + 93,25^2) and 6,5 * 110 / sqrt(110^2 + 113,25^2).
    const Vertices oblicuo{{-100, -97}, {10, 16.25, 5.0}, {100, 103}, {10, 9.75, 5.5}};
    const double abajo = Segmento(5, 585 / std::sqrt(16795.5625));
    const double arriba = Segmento(5.5, 715 / std::sqrt(24925.5625));
    EXPECT_NEAR(SupFuera(oblicuo, {{"10", "9", {"1"}}}), abajo + arriba, redondeo);
}

TEST(RecortarCirculos, EnElVertice0ElLadoDeCierreRepiteLaPieza) {
    // From (0, 0) the edge from (3; 100) to (4; -100) stands at h = 700 / sqrt(40001), and cuts the segment
    // of 5 m. On the closing edge, which ends in the centre, the height is 0, the angles fault, and the old
    // piece is added.
    const Vertices lanza{{0, 0, 5.0}, {3, 100}, {4, -100}};
    const double segmento = Segmento(5, 700 / std::sqrt(40001.0));
    EXPECT_NEAR(segmento, 7.387783438165339, redondeo);
    EXPECT_NEAR(SupFuera(lanza, {{"0", "0", {"1"}}}), 2 * segmento, redondeo);
}

TEST(RecortarCirculos, UnRadioDeVerticeQueNoEsNumeroSumaLaPiezaEnCadaLado) {
    // The boundary keeps its columns when the codes are switched on later: where a radius is looked for
    // stands the index of the tree. All tests fault, and let their blocks run.
    Recorte recorte{rombo, {{"6", "5,5", {"3"}}, {"9", "20", {"3"}}}};
    recorte.Poligono.vaciar();
    for (const auto& [x, y, radio] : Vertices{{0, 10}, {9, 20}, {20, 11}, {10, 0}, {0, 10}}) {
        recorte.Poligono.anadir(x, y, {Valor{1.5}, Valor{3.0}, Valor{"A7"}});
    }
    const RecorteDeCopas obtenido = recorte.calcular(true);
    EXPECT_NEAR(obtenido.SupFuera, 3 * 7.908392601046019, redondeo); // the tree, and two far edges
    EXPECT_EQ(obtenido.SupVertices, 0);
}

TEST(RecortarCirculos, LosVerticesPierdenSuAnguloExterior) {
    Recorte recorte{{{0, 0, 1.0}, {0, 20, 2.0}, {20, 20, 3.0}, {20, 0, 0.0}}, {}};
    for (int i = 0; i < 4; ++i) {
        recorte.angulos(i) = 90;
    }
    const double uno = (pi * 270) / 360;
    const double dos = ((pi * 4) * 270) / 360;
    const double tres = ((pi * 9) * 270) / 360;
    EXPECT_EQ(recorte.calcular(), (RecorteDeCopas{0, (uno + dos) + tres}));
    recorte.angulos.redimensionarConservando(1); // the walk of the boundary before
    EXPECT_EQ(recorte.calcular(), (RecorteDeCopas{0, uno + dos}))
        << "los vértices sin ángulo se pasan por alto";
}

TEST(RecortarCirculos, ConCodigoElRadioEstaUnaColumnaMasALaDerecha) {
    Recorte recorte{triangulo, {{"0", "1000", {"1"}}}};
    recorte.Poligono.vaciar();
    for (const auto& [x, y] : {std::pair{0.0, 0.0}, {3.0, 100.0}, {4.0, -100.0}, {0.0, 0.0}}) {
        recorte.Poligono.anadir(x, y, {Valor{"PS"}, Valor{1.5}, Valor{5.0}, Valor{"7"}});
    }
    for (int i = 0; i < 3; ++i) {
        recorte.angulos(i) = 180;
    }
    const double mitad = ((pi * 25) * 180) / 360;
    const RecorteDeCopas obtenido = recorte.calcular(true);
    EXPECT_EQ(obtenido.SupVertices, (mitad + mitad) + mitad);
    EXPECT_NEAR(obtenido.SupFuera, 2 * Segmento(5, 700 / std::sqrt(40001.0)), redondeo);
}

TEST(RecortarCirculos, SinContornoNoHayNadaQueRecortar) {
    Recorte recorte{{{1, 1, 5.0}}, {{"1", "1", {"5"}}, {"3", "2", {"5"}}}};
    recorte.Poligono.vaciar();
    EXPECT_EQ(recorte.calcular(), RecorteDeCopas{});
    recorte.Poligono.anadir(1, 1, {Valor{1.5}, Valor{5.0}, Valor{"7"}});
    EXPECT_EQ(recorte.calcular(), RecorteDeCopas{}) << "un solo punto no tiene lados";
}

RC_GTEST_PROP(RecortarCirculos, UnLadoLargoCortaElSegmentoDeLaGeometria, ()) {
    const auto metros = [](int desde, int hasta) {
        return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(desde, hasta));
    };
    const double r = metros(1, 100) * 0.25; // exact in 32 bits
    const double h = r * metros(1, 100) * 0.01;
    const std::string x = ATexto(metros(1, 300) * 0.1);
    const double fuera = SupFuera(triangulo, {{x, ATexto(h), {ATexto(r)}}});
    RC_ASSERT(std::abs(fuera - Segmento(r, h)) < 1E-6);
}

RC_GTEST_PROP(RecortarCirculos, LasCopasQueNoLleganANingunLadoNoPierdenNada, ()) {
    std::vector<ArbolDado> arboles;
    const int cuantos = *rc::gen::inRange(0, 20);
    for (int i = 0; i < cuantos; ++i) {
        const double x = 8.05 + *rc::gen::inRange(0, 40) * 0.1;
        const double y = 8.05 + *rc::gen::inRange(0, 40) * 0.1;
        // From (8, 8) to (12, 12) all edges are more than 4 m away.
        arboles.push_back({ATexto(x), ATexto(y), {ATexto(*rc::gen::inRange(0, 17) * 0.25)}});
    }
    RC_ASSERT(SupFuera(rombo, arboles) == 0);
}

} // namespace
} // namespace varo::prueba
