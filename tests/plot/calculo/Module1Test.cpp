#include "plot/calculo/Module1.h"

#include "basico/ErrorEjecucion.h"
#include "plot/calculo/PlanoExacto.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <numbers>
#include <rapidcheck/gtest.h>
#include <utility>
#include <vector>

namespace varo {
namespace {

using prueba::Coordenadas;
using prueba::Orientacion;
using prueba::PuntoEntero;

template <class Calculo>
int NumeroDeFallo(Calculo calculo) {
    try {
        calculo();
    } catch (const ErrorEjecucion& error) {
        return error.numero();
    }
    return 0;
}

ContornoXY Contorno(const Coordenadas& coordenadas) {
    return {coordenadas.x, coordenadas.y};
}

double Area(const Coordenadas& filas) {
    return AreaPoligono(Contorno(filas), static_cast<int>(filas.x.size()));
}

const Coordenadas cuadrado{{0, 0, 1, 1, 0}, {0, 1, 1, 0, 0}};
/// A square on its point: corners at (0, 5), (5, 10), (10, 5), (5, 0).
const Coordenadas rombo{{0, 5, 10, 5, 0}, {5, 10, 5, 0, 5}};

// --- Distances and areas ------------------------------------------------------------------------------

TEST(Distancia, EsLaEuclidea) {
    EXPECT_EQ(Distancia(1, 2, 4, 6), 5);
    EXPECT_EQ(Distancia(4, 6, 1, 2), 5);
    EXPECT_EQ(Distancia(-1.5, 2, -1.5, 2), 0);
}

TEST(Maximo, EsElMayorYElPrimeroSiSonIguales) {
    EXPECT_EQ(Maximo(2, 3), 3);
    EXPECT_EQ(Maximo(3, 2), 3);
    EXPECT_EQ(Maximo(2, 2), 2);
    EXPECT_TRUE(std::signbit(Maximo(-0.0, 0.0)));
    EXPECT_FALSE(std::signbit(Maximo(0.0, -0.0)));
}

TEST(AreaTrianguloLados, EsLaDeHeron) {
    EXPECT_EQ(AreaTrianguloLados(3, 4, 5), 6);
    EXPECT_EQ(AreaTrianguloLados(13, 14, 15), 84);
    EXPECT_EQ(AreaTrianguloLados(2, 3, 5), 0);
}

TEST(AreaTrianguloLados, TresLadosQueNoCierranFaltan) {
    EXPECT_EQ(NumeroDeFallo([] { AreaTrianguloLados(1, 1, 3); }), fallo::argumentoNoValido);
}

TEST(AreaTrianguloPuntos, EsLaDeHeron) {
    EXPECT_EQ(AreaTrianguloPuntos(0, 0, 3, 0, 3, 4), 6);
    EXPECT_EQ(AreaTrianguloPuntos(0, 0, 5, 12, 14, 0), 84);
    EXPECT_EQ(AreaTrianguloPuntos(0, 0, 3, 4, 6, 8), 0);
    EXPECT_EQ(AreaTrianguloPuntos(7, 7, 7, 7, 7, 7), 0);
}

TEST(AreaTriangulo, LosFactoresSeMultiplicanEnSuOrden) {
    // 7,5 on paper. In 64-bit arithmetic this order of the four factors, and no other, ends in 97.
    EXPECT_EQ(AreaTrianguloPuntos(1, 3, 4, 3, 3, 8), 7.499999999999997);
    EXPECT_EQ(AreaTrianguloLados(0.4, 0.2, 0.3), 0.02904737509655565);
}

TEST(AreaTrianguloPuntos, PuntosAlineadosPuedenFaltarPorRedondeo) {
    // With the sides sqrt(2), sqrt(18) and sqrt(32) rounded to 64 bits, the half sum is below the longest
    // one: the product is -3,0e-14.
    EXPECT_EQ(NumeroDeFallo([] { AreaTrianguloPuntos(0, 0, 1, 1, 4, 4); }), fallo::argumentoNoValido);
}

TEST(AlturaTriangulo, VaDelPrimerPuntoALaBaseDeLosOtrosDos) {
    EXPECT_EQ(AlturaTriangulo(0, 4, 0, 0, 3, 0), 4);
    EXPECT_EQ(AlturaTriangulo(0, 0, 0, 4, 3, 0), 2.4);
    EXPECT_EQ(AlturaTriangulo(3, 4, 0, 0, 6, 8), 0);
}

TEST(AlturaTriangulo, SinBaseFalta) {
    EXPECT_EQ(NumeroDeFallo([] { AlturaTriangulo(0, 0, 3, 4, 3, 4); }), fallo::divisionPorCero);
    EXPECT_EQ(NumeroDeFallo([] { AlturaTriangulo(3, 4, 3, 4, 3, 4); }), fallo::divisionPorCero);
}

// --- Angles -------------------------------------------------------------------------------------------

/// The area rounds, and the last bit of the arc sine belongs to the mathematics library.
constexpr double redondeoDeAngulo = 1e-12;

TEST(AnguloVertice, UnAnguloAgudoSaleDeSuSeno) {
    EXPECT_NEAR(AnguloVertice(0, 0, 2, 1, 3, 9), 0.78539816339744830962, redondeoDeAngulo);
}

TEST(AnguloVertice, UnAnguloObtusoSeRestaDelPiDelPrograma) {
    // 3,1415927 - pi / 4, not 3 pi / 4 = 2,35619449...
    EXPECT_NEAR(AnguloVertice(0, 0, 2, 1, -3, 1), 2.35619453660255169038, redondeoDeAngulo);
}

TEST(AnguloVertice, FaltaDondeLaConstruccionNoExiste) {
    const auto fallo = [](double x2, double y2, double x3, double y3) {
        return NumeroDeFallo([=] { AnguloVertice(0, 0, x2, y2, x3, y3); });
    };
    EXPECT_EQ(fallo(0, 0, 2, 1), fallo::divisionPorCero) << "p1 = p2";
    EXPECT_EQ(fallo(2, 1, 0, 0), fallo::divisionPorCero) << "p1 = p3";
    EXPECT_EQ(fallo(2, 0, 1, 3), fallo::divisionPorCero) << "y1 = y2";
    EXPECT_EQ(fallo(2, 1, 2, 3), fallo::divisionPorCero) << "x2 = x3";
    EXPECT_EQ(fallo(1, 1, 2, 0), fallo::divisionPorCero) << "ángulo recto en p2: rectas paralelas";
}

TEST(AnguloVertice, UnAnguloRectoPuedeFaltarPorRedondeo) {
    // The sine of the right angle between (1, 1) and (-2, 2) comes out as 1 + 4,4e-16.
    EXPECT_EQ(NumeroDeFallo([] { AnguloVertice(0, 0, 1, 1, -2, 2); }), fallo::funcionDeHoja);
}

TEST(AnguloDireccion, CreceDesdeElEjeXContraElReloj) {
    const double t = 44.99999933522276637923781534365598; // (180 / 3,1415927) * pi / 4
    EXPECT_NEAR(AnguloDireccion(0, 0, 1, 1), t, redondeoDeAngulo);
    EXPECT_NEAR(AnguloDireccion(0, 0, -1, 1), 180 - t, redondeoDeAngulo);
    EXPECT_NEAR(AnguloDireccion(0, 0, -1, -1), 180 + t, redondeoDeAngulo);
    EXPECT_NEAR(AnguloDireccion(0, 0, 1, -1), 360 - t, redondeoDeAngulo);
}

/// Degrees: near 1 the arc sine turns a sine that is short by 3,3e-16 into 1,5e-6, and 180 over the literal
/// pi takes 1,3e-6 more.
constexpr double redondeoEnElRecto = 4e-6;

TEST(AnguloDireccion, EnLosEjesNoDistingueAbajoDeArribaNiIzquierdaDeDerecha) {
    EXPECT_NEAR(AnguloDireccion(0, 0, 0, 1), 90, redondeoEnElRecto);
    EXPECT_NEAR(AnguloDireccion(0, 0, 0, -1), 90, redondeoEnElRecto);
    EXPECT_EQ(AnguloDireccion(0, 0, 1, 0), 0);
    EXPECT_EQ(AnguloDireccion(0, 0, -1, 0), 0);
}

TEST(AnguloDireccion, UnaDiferenciaQueNoSobreviveARestarUnoNoCuenta) {
    // To the left by 1e-17 and down: not 270, since -1e-17 - 1 equals 0 - 1.
    EXPECT_NEAR(AnguloDireccion(0, 0, -1e-17, -1), 90, redondeoEnElRecto);
}

TEST(AnguloDireccion, ElMismoPuntoFalta) {
    EXPECT_EQ(NumeroDeFallo([] { AnguloDireccion(2, 3, 2, 3); }), fallo::divisionPorCero);
}

TEST(AnguloDireccion, UnAnguloRectoPuedeFaltarPorRedondeo) {
    // The sine comes out as 1 + 4,4e-16.
    EXPECT_EQ(NumeroDeFallo([] { AnguloDireccion(0, 0, 0, -3); }), fallo::funcionDeHoja);
}

// --- The circle through three points ------------------------------------------------------------------

TEST(RadioCircunscrito, DaElRadioYElCentro) {
    const CirculoCircunscrito circulo = RadioCircunscrito(3, 4, -4, 3, 0, -5);
    constexpr double redondeo = 1e-12; // bisectors of slopes -7 and -1/3 meet where their intercepts round
    EXPECT_NEAR(circulo.radio, 5, redondeo);
    EXPECT_NEAR(circulo.CentroCircX, 0, redondeo);
    EXPECT_NEAR(circulo.CentroCircY, 0, redondeo);
}

TEST(RadioCircunscrito, ElSegundoYElTercerPuntoPuedenEstarALaMismaAltura) {
    // Slopes 1 and -1, all sums exact: the square with corners (0, 1), (1, 0), (-1, 0), (0, -1) moved by 10.
    const CirculoCircunscrito circulo = RadioCircunscrito(10, 11, 11, 10, 9, 10);
    EXPECT_EQ(circulo.radio, 1);
    EXPECT_EQ(circulo.CentroCircX, 10);
    EXPECT_EQ(circulo.CentroCircY, 10);
}

TEST(RadioCircunscrito, FaltaConElPrimerPuntoALaAlturaDeOtroYConPuntosAlineados) {
    EXPECT_EQ(NumeroDeFallo([] { RadioCircunscrito(0, 1, 5, 1, 2, 7); }), fallo::divisionPorCero);
    EXPECT_EQ(NumeroDeFallo([] { RadioCircunscrito(0, 1, 2, 7, 5, 1); }), fallo::divisionPorCero);
    EXPECT_EQ(NumeroDeFallo([] { RadioCircunscrito(0, 0, 1, 2, 3, 6); }), fallo::divisionPorCero);
}

// --- The polygon --------------------------------------------------------------------------------------

TEST(AreaPoligono, LaDelCuadradoUnidadEsUno) {
    EXPECT_NEAR(Area(cuadrado), 1, 1e-15); // Heron's roots round
}

TEST(AreaPoligono, LaDeUnCuadradoDeDiezEsCien) {
    EXPECT_NEAR(Area({{0, 0, 10, 10, 0}, {0, 10, 10, 0, 0}}), 100, 1e-12); // Heron's roots round
}

TEST(AreaPoligono, ConTresFilasOMenosEsCero) {
    EXPECT_EQ(Area({{0, 3, 0}, {0, 4, 0}}), 0);
    EXPECT_EQ(Area({{0, 0}, {0, 0}}), 0);
    EXPECT_EQ(Area({}), 0);
}

TEST(AreaPoligono, SoloMiraLasPrimerasFilas) {
    EXPECT_EQ(AreaPoligono(Contorno({{0, 0, 3, 3, 0}, {0, 4, 4, 0, 0}}), 4), 6);
}

TEST(AreaPoligono, UnAbanicoDeAreaNulaPuedeFaltarPorRedondeo) {
    EXPECT_EQ(NumeroDeFallo([] { Area({{0, 1, 4, 0}, {0, 1, 4, 0}}); }), fallo::argumentoNoValido);
}

TEST(PuntoEnPoligono, DentroFueraYEnElBorde) {
    const ContornoXY contorno = Contorno(rombo);
    EXPECT_TRUE(PuntoEnPoligono(contorno, 5, 5));
    EXPECT_TRUE(PuntoEnPoligono(contorno, 2, 5));
    EXPECT_TRUE(PuntoEnPoligono(contorno, 2, 3.5));
    EXPECT_FALSE(PuntoEnPoligono(contorno, 2, 8)) << "sobre la cadena de arriba";
    EXPECT_FALSE(PuntoEnPoligono(contorno, 2, 2)) << "bajo la cadena de abajo";
    EXPECT_FALSE(PuntoEnPoligono(contorno, -1, 5));
    EXPECT_FALSE(PuntoEnPoligono(contorno, 11, 5));
    EXPECT_FALSE(PuntoEnPoligono(contorno, 2, 7)) << "en un lado de la cadena de arriba";
    EXPECT_FALSE(PuntoEnPoligono(contorno, 2, 3)) << "en un lado de la cadena de abajo";
}

TEST(PuntoEnPoligono, UnVerticeEstaFuera) {
    const ContornoXY contorno = Contorno(rombo);
    for (std::size_t i = 0; i < rombo.x.size(); ++i) {
        EXPECT_FALSE(PuntoEnPoligono(contorno, rombo.x[i], rombo.y[i])) << "vértice " << i;
    }
}

TEST(PuntoEnPoligono, ElPrimerLadoDescendenteQueAbarcaLaXDecide) {
    // The lower chain has a dent: over x = 4 and 5 the edge (10, 8)-(2, 4) comes first.
    const Coordenadas dentado{{0, 10, 2, 5, 0.5, 0}, {5, 8, 4, 1, 0, 5}};
    EXPECT_TRUE(PuntoEnPoligono(Contorno(dentado), 5, 6));
    // Over x = 1 the edge (10, 8)-(2, 4) does not reach and (5, 1)-(0.5, 0) decides.
    EXPECT_TRUE(PuntoEnPoligono(Contorno(dentado), 1, 1));
    EXPECT_FALSE(PuntoEnPoligono(Contorno(dentado), 1, 0));
    // Over x = 4 the point (4, 3) is above (5, 1)-(0.5, 0), but (10, 8)-(2, 4) has decided already.
    EXPECT_FALSE(PuntoEnPoligono(Contorno(dentado), 4, 3));
}

TEST(PuntoEnPoligono, UnLadoAscendenteSoloJuzgaLasXQueAbarca) {
    // The steep edge (4, 6)-(6, 20), drawn on to the left, passes below the point.
    const Coordenadas escalon{{0, 4, 6, 10, 0}, {5, 6, 20, 0, 5}};
    EXPECT_TRUE(PuntoEnPoligono(Contorno(escalon), 2, 5));
}

TEST(PuntoEnPoligono, UnLadoVerticalFaltaAunqueElPuntoEsteLejos) {
    EXPECT_EQ(NumeroDeFallo([] { PuntoEnPoligono(Contorno(cuadrado), 50, 50); }), fallo::divisionPorCero);
    EXPECT_EQ(NumeroDeFallo([] { PuntoEnPoligono(Contorno(cuadrado), 0.5, 0.5); }), fallo::divisionPorCero);
}

TEST(PuntoEnPoligono, UnLadoVerticalAlQueNoSeLlegaNoFalta) {
    // The point is decided on the first edge; the vertical one comes last.
    const Coordenadas triangulo{{0, 10, 0, 0}, {5, 5, 0, 5}};
    EXPECT_FALSE(PuntoEnPoligono(Contorno(triangulo), 5, 6));
    EXPECT_EQ(NumeroDeFallo([&] { PuntoEnPoligono(Contorno(triangulo), 20, 5); }), fallo::divisionPorCero);
}

TEST(PuntoEnPoligono, SinLadosEstaFuera) {
    EXPECT_FALSE(PuntoEnPoligono(Contorno({}), 0, 0));
    EXPECT_FALSE(PuntoEnPoligono(Contorno({{1}, {1}}), 1, 1));
}

TEST(ExtremosDelPoligono, SalenDeSusFilasSinLaDeCierre) {
    EXPECT_EQ(MaximoXPoligono(Contorno(rombo)), 10);
    EXPECT_EQ(MaximoYPoligono(Contorno(rombo)), 10);
    EXPECT_EQ(MinimoYPoligono(Contorno(rombo)), 0);

    const Coordenadas negativo{{-3, -2, -1, 9}, {-7, -5, -6, 9}};
    EXPECT_EQ(MaximoXPoligono(Contorno(negativo)), -1);
    EXPECT_EQ(MaximoYPoligono(Contorno(negativo)), -5);
    EXPECT_EQ(MinimoYPoligono(Contorno(negativo)), -7);
}

TEST(ExtremosDelPoligono, SinFilasFaltan) {
    EXPECT_EQ(NumeroDeFallo([] { MaximoXPoligono(Contorno({})); }), fallo::fueraDeIndice);
    EXPECT_EQ(NumeroDeFallo([] { MaximoYPoligono(Contorno({})); }), fallo::fueraDeIndice);
    EXPECT_EQ(NumeroDeFallo([] { MinimoYPoligono(Contorno({})); }), fallo::fueraDeIndice);
}

// --- Canopy cover -------------------------------------------------------------------------------------

constexpr Color negro = 0;
constexpr Color blanco = 0xFFFFFF;

TEST(CalcularFcc, EsLaFraccionNegraDeLosPuntosDeDentro) {
    // Inside are 1 + 3 + 5 + 7 + 9 + 7 + 5 + 3 + 1 = 41 points; the black ones left of x = 5 are 16.
    const float fcc = CalcularFcc(Contorno(rombo), [](double x, double) { return x < 5 ? negro : blanco; });
    EXPECT_EQ(fcc, 16.0F / 41.0F);
    EXPECT_EQ(CalcularFcc(Contorno(rombo), [](double, double) { return negro; }), 1.0F);
    EXPECT_EQ(CalcularFcc(Contorno(rombo), [](double, double) { return blanco; }), 0.0F);
}

TEST(CalcularFcc, UnPuntoFueraDeLaSuperficieDibujadaNoEstaCubierto) {
    EXPECT_EQ(CalcularFcc(Contorno(rombo), [](double, double) { return Color{-1}; }), 0.0F);
}

TEST(CalcularFcc, PreguntaDeUnoEnUnoDesdeElPrimerVerticeYLaMenorAltura) {
    // Columns x = 0,5, 1,5, 2,5 and rows y = 0,25, 1,25, 2,25. At x = 0,5 there is only the vertex; at 1,5
    // the sides pass through 2,333 and 0,7; at 2,5 through 1,625 and 0,4.
    const Coordenadas triangulo{{0.5, 2, 3, 0.5}, {1, 3, 0.25, 1}};
    std::vector<std::pair<double, double>> preguntas;
    CalcularFcc(Contorno(triangulo), [&preguntas](double x, double y) {
        preguntas.emplace_back(x, y);
        return negro;
    });
    EXPECT_EQ(preguntas, (std::vector<std::pair<double, double>>{{1.5, 1.25}, {1.5, 2.25}, {2.5, 1.25}}));
}

TEST(CalcularFcc, LlegaHastaElUltimoVerticeInclusive) {
    // On paper the vertex (3,9; 1,8) is outside. In 64-bit arithmetic the edge from (2,9; 2,4) passes just
    // above it and the edge to (3,1; 0,8) just below, so it is the one sample inside.
    const Coordenadas triangulo{{2.9, 3.9, 3.1, 2.9}, {2.4, 1.8, 0.8, 2.4}};
    std::vector<std::pair<double, double>> preguntas;
    CalcularFcc(Contorno(triangulo), [&preguntas](double x, double y) {
        preguntas.emplace_back(x, y);
        return negro;
    });
    EXPECT_EQ(preguntas, (std::vector<std::pair<double, double>>{{3.9, 1.8}}));
}

TEST(CalcularFcc, EnCoordenadasUtmPreguntaSinRedondearA32Bits) {
    // The triangle of above, moved by whole metres; with 32 bits y would be a multiple of half a metre.
    const Coordenadas triangulo{{450000.5, 450002, 450003, 450000.5},
                                {4600001, 4600003, 4600000.25, 4600001}};
    std::vector<std::pair<double, double>> preguntas;
    CalcularFcc(Contorno(triangulo), [&preguntas](double x, double y) {
        preguntas.emplace_back(x, y);
        return negro;
    });
    EXPECT_EQ(preguntas, (std::vector<std::pair<double, double>>{
                             {450001.5, 4600001.25}, {450001.5, 4600002.25}, {450002.5, 4600001.25}}));
}

TEST(CalcularFcc, SinPuntosDentroFalta) {
    const Coordenadas diminuto{{0.1, 0.3, 0.5, 0.1}, {0.2, 0.4, 0.1, 0.2}};
    EXPECT_EQ(NumeroDeFallo([&] { CalcularFcc(Contorno(diminuto), [](double, double) { return negro; }); }),
              fallo::divisionPorCero);
}

TEST(CalcularFcc, UnLadoVerticalFalta) {
    EXPECT_EQ(NumeroDeFallo([] { CalcularFcc(Contorno(cuadrado), [](double, double) { return negro; }); }),
              fallo::divisionPorCero);
}

TEST(CalcularFcc, UnRecorridoQueNoAcabariaDesborda) {
    const auto numero = [](const Coordenadas& lejano) {
        return NumeroDeFallo([&] { CalcularFcc(Contorno(lejano), [](double, double) { return negro; }); });
    };
    EXPECT_EQ(numero({{1E+17, 2E+17, 3E+17, 1E+17}, {0, 5, 1, 0}}), fallo::desbordamiento)
        << "un metro se pierde en el redondeo";
    EXPECT_EQ(numero({{5, 7, 450000, 5}, {4600000, 4600008, 3, 4600000}}), fallo::desbordamiento)
        << "un árbol en otro sistema de coordenadas";
}

TEST(CalcularFcc, UnaParcelaMuyLargaYEstrechaSeRecorre) {
    const Coordenadas larga{{0.5, 1000000, 2000000.5, 0.5}, {0, 1.5, 0.75, 0}};
    EXPECT_EQ(CalcularFcc(Contorno(larga), [](double, double) { return negro; }), 1);
}

// --- Any points ---------------------------------------------------------------------------------------

double Real(std::int64_t entero) {
    return static_cast<double>(entero);
}

std::vector<PuntoEntero> TresPuntos(std::int64_t limite) {
    auto puntos = *prueba::PuntosDistintos(3, limite);
    RC_PRE(Orientacion(puntos[0], puntos[1], puntos[2]) != 0);
    return puntos;
}

/// A convex polygon in walking order, with its closing row.
std::vector<PuntoEntero> PoligonoConvexo(std::int64_t limite) {
    auto filas = prueba::EsquinasDeLaEnvolvente(*prueba::PuntosDistintos(12, limite));
    RC_PRE(filas.size() >= std::size_t{3});
    filas.push_back(filas.front());
    return filas;
}

RC_GTEST_PROP(DistanciaPropiedad, EsLaRaizExactaDelCuadradoEntero, ()) {
    const auto puntos = *prueba::PuntosDistintos(2, 1000000);
    const auto& [x1, y1] = puntos[0];
    const auto& [x2, y2] = puntos[1];
    const std::int64_t cuadradoExacto = (x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1);
    RC_ASSERT(Distancia(Real(x1), Real(y1), Real(x2), Real(y2)) == std::sqrt(Real(cuadradoExacto)));
}

RC_GTEST_PROP(DistanciaPropiedad, UnaTernaPitagoricaEsExacta, ()) {
    const auto m = *rc::gen::inRange<std::int64_t>(1, 1000);
    const auto n = *rc::gen::inRange<std::int64_t>(1, 1000);
    const auto x = *rc::gen::inRange<std::int64_t>(-1000000, 1000000);
    RC_ASSERT(Distancia(Real(x), 0, Real(x + m * m - n * n), Real(2 * m * n)) == Real(m * m + n * n));
}

RC_GTEST_PROP(AreaTrianguloPropiedad, HeronDaLaMitadDelProductoCruzado, ()) {
    const auto puntos = TresPuntos(50);
    const auto [x, y] = prueba::Separar(puntos);
    const double exacta = std::abs(Real(Orientacion(puntos[0], puntos[1], puntos[2]))) / 2.0;
    // Sides up to 142 leave s - a uncertain by 1e-13, and the product of the four by 3e-7 at worst.
    RC_ASSERT(std::abs(AreaTrianguloPuntos(x[0], y[0], x[1], y[1], x[2], y[2]) - exacta) < 1e-6);
    const double a = std::hypot(x[1] - x[0], y[1] - y[0]);
    const double b = std::hypot(x[2] - x[1], y[2] - y[1]);
    const double c = std::hypot(x[0] - x[2], y[0] - y[2]);
    RC_ASSERT(std::abs(AreaTrianguloLados(a, b, c) - exacta) < 1e-6);
    const double altura = AlturaTriangulo(x[0], y[0], x[1], y[1], x[2], y[2]);
    RC_ASSERT(std::abs(altura * b - 2.0 * exacta) < 2e-6);
}

RC_GTEST_PROP(AnguloVerticePropiedad, EsElAnguloVerdaderoFueraDeLosRectos, ()) {
    const auto puntos = TresPuntos(20);
    const auto [x, y] = prueba::Separar(puntos);
    const double escalarEn1 = (x[1] - x[0]) * (x[2] - x[0]) + (y[1] - y[0]) * (y[2] - y[0]);
    const double escalarEn2 = (x[0] - x[1]) * (x[2] - x[1]) + (y[0] - y[1]) * (y[2] - y[1]);
    RC_PRE(escalarEn1 != 0 && escalarEn2 != 0 && y[0] != y[1] && x[1] != x[2]);
    const double cruzado = std::abs(Real(Orientacion(puntos[0], puntos[1], puntos[2])));
    // 5e-8 is what the pi of the program adds to an obtuse angle; the rest is Heron's rounding.
    RC_ASSERT(std::abs(AnguloVertice(x[0], y[0], x[1], y[1], x[2], y[2]) - std::atan2(cruzado, escalarEn1)) <
              1e-6);
}

RC_GTEST_PROP(AnguloDireccionPropiedad, EsLaDireccionVerdaderaFueraDeLosEjes, ()) {
    const auto puntos = *prueba::PuntosDistintos(2, 50);
    const auto [x, y] = prueba::Separar(puntos);
    RC_PRE(x[0] != x[1] && y[0] != y[1]);
    const double grados = std::atan2(y[1] - y[0], x[1] - x[0]) * 180.0 / std::numbers::pi;
    const double verdadera = grados < 0 ? grados + 360.0 : grados;
    RC_ASSERT(std::abs(AnguloDireccion(x[0], y[0], x[1], y[1]) - verdadera) < 1e-5);
}

RC_GTEST_PROP(RadioCircunscritoPropiedad, ElCentroDistaLoMismoDeLosTresPuntos, ()) {
    const auto puntos = TresPuntos(20);
    const auto [x, y] = prueba::Separar(puntos);
    RC_PRE(y[0] != y[1] && y[0] != y[2]);
    const auto [radio, cx, cy] = RadioCircunscrito(x[0], y[0], x[1], y[1], x[2], y[2]);
    for (std::size_t i = 0; i < 3; ++i) {
        RC_ASSERT(std::abs(std::hypot(x[i] - cx, y[i] - cy) - radio) < 1e-6);
    }
}

RC_GTEST_PROP(AreaPoligonoPropiedad, EsLaDeLaFormulaDelAgrimensor, ()) {
    const auto filas = PoligonoConvexo(50);
    std::int64_t doble = 0;
    for (std::size_t i = 0; i + 1 < filas.size(); ++i) {
        doble += filas[i].first * filas[i + 1].second - filas[i + 1].first * filas[i].second;
    }
    // Up to ten triangles with the rounding of Heron's formula.
    RC_ASSERT(std::abs(Area(prueba::Separar(filas)) - std::abs(Real(doble)) / 2.0) < 1e-5);
}

RC_GTEST_PROP(PuntoEnPoligonoPropiedad, EstaDentroElQueQuedaALaDerechaDeTodosLosLados, ()) {
    const auto filas = PoligonoConvexo(20);
    const PuntoEntero punto = (*prueba::PuntosDistintos(1, 22))[0];
    bool dentro = true;
    for (std::size_t i = 0; i + 1 < filas.size(); ++i) {
        RC_PRE(filas[i].first != filas[i + 1].first);
        dentro = dentro && Orientacion(filas[i], filas[i + 1], punto) < 0;
    }
    for (std::size_t i = 0; i + 1 < filas.size(); ++i) {
        // A point on an edge is decided by the last bit of the slope.
        RC_PRE(Orientacion(filas[i], filas[i + 1], punto) != 0);
    }
    RC_ASSERT(PuntoEnPoligono(Contorno(prueba::Separar(filas)), Real(punto.first), Real(punto.second)) ==
              dentro);
}

} // namespace
} // namespace varo
