#include "indices/vecinos/ISCDeElipses.h"

#include "apoyo/Fallos.h"
#include "indices/vecinos/ElipsesLiteral.h"
#include "indices/vecinos/ParcelaAlAzar.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace varo::prueba {
namespace {

using Columnas = std::vector<std::vector<std::string>>;

/// Trees with a size of 1 m and four radii in metres, inside the diamond from (0, 10) up, right and down.
struct Copas {
    explicit Copas(const Columnas& dadas) {
        parcela.unidades = {false, UnidadLongitud::Metros};
        parcela.datosDeCopa = DatosDeCopa::CuatroRadios;
        parcela.copa.resize(4);
        for (const auto& dada : dadas) {
            parcela.x.push_back(dada.at(0));
            parcela.y.push_back(dada.at(1));
            for (std::size_t medida = 0; medida < 4; ++medida) {
                parcela.copa[medida].push_back(dada.at(2 + medida));
            }
            parcela.tamano.push_back(dada.size() > 6 ? dada[6] : "1");
        }
        parcela.contornoX = {0, 10, 20, 10, 0};
        parcela.contornoY = {10, 20, 10, 0, 10};
    }

    std::vector<double> isc(Lado lado = Lado::Bilateral) {
        const Arboles arboles = ArbolesDe(parcela);
        Vecindad vecindad{arboles, parcela.contorno()};
        const CopasDeArboles copas{arboles, parcela.datosDeCopa, parcela.factorRadios};
        superficie.escala(escala);
        return CalcularISCDeElipses(vecindad, copas, lado, superficie);
    }

    ParcelaLiteral parcela;
    Escala escala{-10, 30, -10, 30};
    Lienzo superficie;
};

std::vector<double> ISC(const Columnas& dadas, Lado lado = Lado::Bilateral) {
    return Copas{dadas}.isc(lado);
}

TEST(ISCDeElipses, SinVecinosQueTapenEsCero) {
    EXPECT_EQ(ISC({{"10", "10", "1", "1", "1", "1"}}), (std::vector<double>{0}));
    EXPECT_EQ(ISC({{"8", "10", "1", "1", "1", "1"}, {"12", "10", "1", "1", "1", "1"}}),
              (std::vector<double>{0, 0}));
}

TEST(ISCDeElipses, UnaCopaDentroDeOtraMayorValeUno) {
    const auto valores =
        ISC({{"10", "10", "0,5", "1", "0,5", "0,25"}, {"10,5", "10", "3", "3", "3", "3", "2"}});
    EXPECT_EQ(valores.at(0), 1);
    EXPECT_GT(valores.at(1), 0);
    EXPECT_LT(valores.at(1), 0.1);
}

TEST(ISCDeElipses, SeCuentanLasMuestrasDeUnaEnUna) {
    // Crowns of a quarter of a metre: samples at -0,25, -0,15, -0,05, 0,05, 0,15 and 0,25 (or not) of each
    // tree. Of the row at 0,15 those from -0,15 to 0,15 are covered, and so on: the corners and the edges are
    // out, since 0,25 leaves nothing for the other axis, whose nearest sample stands at 0,05. 4 x 4 less the
    // corners at 0,15: (0,6)^2 + (0,6)^2 = 0,72 is in. So 16.
    // The second tree stands 0,4 to the east: of the samples of the first one it covers those of x = 0,15
    // (0,25 to the west: 1 + something) none.
    EXPECT_EQ(
        ISC({{"10", "10", "0,25", "0,25", "0,25", "0,25"}, {"10,4", "10", "0,25", "0,25", "0,25", "0,25"}})
            .at(0),
        0);
    // 0,3 to the east: x = 0,15 lies 0,15 to its west, and its four samples are covered; x = 0,05 is 0,25
    // away.
    EXPECT_EQ(
        ISC({{"10", "10", "0,25", "0,25", "0,25", "0,25"}, {"10,3", "10", "0,25", "0,25", "0,25", "0,25"}})
            .at(0),
        4.0 / 16);
}

TEST(ISCDeElipses, LoQueTapanDosVecinosCuentaDosVeces) {
    EXPECT_EQ(ISC({{"10", "10", "1", "1", "1", "1"},
                   {"10", "10", "2", "2", "2", "2"},
                   {"10,1", "10", "2", "2", "2", "2"}})
                  .at(0),
              2);
}

TEST(ISCDeElipses, DosCopasIgualesEnUnSitioNoFallan) {
    EXPECT_EQ(ISC({{"10", "10", "1", "2", "1", "2"}, {"10", "10", "1", "2", "1", "2"}}),
              (std::vector<double>{1, 1}));
}

TEST(ISCDeElipses, EnUnilateralSoloTapanLosQueNoSonMenores) {
    const Columnas dadas{{"10", "10", "1", "1", "1", "1", "2"},
                         {"10", "10", "1", "1", "1", "1", "1"},
                         {"10", "10", "1", "1", "1", "1", "2"}};
    EXPECT_EQ(ISC(dadas), (std::vector<double>{2, 2, 2}));
    EXPECT_EQ(ISC(dadas, Lado::Unilateral), (std::vector<double>{1, 2, 1}));
}

TEST(ISCDeElipses, SinTamanoNoHayArbolNiVecinoYElDelContornoVaDespues) {
    const Columnas dadas{{"0", "10", "1", "1", "1", "1", ""},
                         {"10", "20", "1", "1", "1", "1"},
                         {"10", "10", "1", "1", "1", "1"},
                         {"10", "10", "2", "2", "2", "2", ""}};
    EXPECT_EQ(ISC(dadas), (std::vector<double>{-3, -1, 0, -3}));
}

TEST(ISCDeElipses, UnaEsquinaDeLaCajaFueraEsEfectoDeBorde) {
    // The side from (0, 10) to (10, 20) is y = x + 10. The height of (5, 12) is 3 / sqrt 2 = 2,12. The corner
    // of the box of 1,5 to the north-west, (3,5; 13,5), is on the side, so out; the crown itself stays
    // inside.
    EXPECT_EQ(ISC({{"5", "12", "1,5", "2,2", "0,5", "1,5"}}), (std::vector<double>{-2}));
    // With 1 to the west the corner is (4; 13,5), inside.
    EXPECT_EQ(ISC({{"5", "12", "1", "2,2", "0,5", "1,5"}}), (std::vector<double>{0}));
    // No radius above the height: nobody looks at the corner.
    EXPECT_EQ(ISC({{"5", "12", "1,5", "2,1", "0,5", "1,5"}}), (std::vector<double>{0}));
}

TEST(ISCDeElipses, LaMuestraDeBordeVaDeMedioEnMedioMetro) {
    // From (4,2; 11,5) the samples stand 0,5 apart: x = 4,2 and 4,7, y = 11,5 to 13,5 (N = 2,1 ends at 14,1).
    // The corner (4,2; 14,1) is no sample: 4,2 + 10 = 14,2 is above 14.
    EXPECT_EQ(ISC({{"5", "12", "2,1", "2,2", "0,5", "0,8"}}), (std::vector<double>{0}));
    // Started 0,2 higher the samples reach y = 14,2, on the side.
    EXPECT_EQ(ISC({{"5", "12", "2,3", "2,2", "0,3", "0,8"}}), (std::vector<double>{-2}));
}

TEST(ISCDeElipses, TrasUnaMuestraQuePasaSiguenLosLadosYUnoPuedeFallar) {
    Copas copas{{{"5", "12", "1", "2,2", "0,5", "1,5"}}};
    copas.parcela.contornoX.push_back(0);
    copas.parcela.contornoY.push_back(10); // a last side without length
    EXPECT_TRUE((FallaCon<ErrorEjecucion>(11, "lado 5 del contorno", [&] { copas.isc(); })));
    // One that is out is told before.
    copas.parcela.copa[0][0] = "1,5";
    EXPECT_EQ(copas.isc(), (std::vector<double>{-2}));
}

TEST(ISCDeElipses, UnLadoVerticalFallaSoloCercaDelBorde) {
    Copas copas{{{"10", "10", "1", "1", "1", "1"}}};
    copas.parcela.contornoX = {0, 0, 20, 20, 0};
    copas.parcela.contornoY = {0, 20, 20, 0, 0};
    EXPECT_EQ(copas.isc(), (std::vector<double>{0}));
    copas.parcela.copa[3][0] = "11";
    EXPECT_TRUE((FallaCon<ErrorEjecucion>(11, "un lado del contorno es vertical", [&] { copas.isc(); })));
}

TEST(ISCDeElipses, UnaCopaSinMuestrasFallaYDicePorQue) {
    // Its only sample is the corner of the box, outside of the ellipse.
    EXPECT_TRUE((FallaCon<ErrorEjecucion>(11, "ninguna de las muestras, una cada 0,1 m, cae en la copa", [] {
        ISC({{"10", "10", "0,03", "0,03", "0,03", "0,03"}});
    })));
}

TEST(ISCDeElipses, ConLosCuatroRadiosCeroLaMuestraEsElArbol) {
    // The box keeps the 0 and has one sample; the crown is painted with half a metre all round.
    EXPECT_EQ(ISC({{"10", "10", "0", "0", "0", "0"}, {"10", "10,4", "0", "0", "0", "0"}}),
              (std::vector<double>{0, 0}))
        << "las cajas no llegan a cruzarse";
    EXPECT_EQ(ISC({{"10", "10", "0", "0", "0", "0"}, {"10", "10,4", "0", "0,1", "0,5", "0"}}).at(0), 1);
}

TEST(ISCDeElipses, LoQueQuedaFueraDeLaSuperficieNoCuenta) {
    Copas copas{{{"10", "10", "1", "1", "1", "1"}, {"11", "10", "1", "1", "1", "1"}}};
    const double entera = copas.isc().at(0);
    EXPECT_GT(entera, 0);
    EXPECT_LT(entera, 1);
    copas.escala = {10.95, 30, -10, 30}; // of the first crown only its eastern tip
    EXPECT_EQ(copas.isc().at(0), 1);
    copas.escala = {20, 30, -10, 30};
    EXPECT_EQ(FalloDe([&] { copas.isc(); }), 11);
    copas.escala = {};
    EXPECT_EQ(copas.isc().at(0), entera) << "sin extensión no hay límites";
}

TEST(ISCDeElipses, UnaCeldaDeCopaVaciaNoEsUnNumero) {
    Copas copas{{{"10", "10", "1", "1", "1", "1"}, {"18", "10", "1", "1", "", "1"}}};
    try {
        copas.isc();
        FAIL() << "debía fallar";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), 13);
        EXPECT_EQ(error.lugar(), "al calcular la fila 1, fila 2, columna «R»");
    }
}

TEST(ISCDeElipses, UnaCopaDeMilesDeKilometrosDesborda) {
    EXPECT_TRUE((FallaCon<ErrorEjecucion>(6, "la copa mide demasiado", [] {
        Copas copas{{{"10", "10", "1", "1E+9", "1", "1"}}};
        copas.parcela.contornoX = copas.parcela.contornoY = {};
        copas.isc();
    })));
    EXPECT_TRUE((FallaCon<ErrorEjecucion>(6, "está demasiado lejos del origen", [] {
        Copas copas{{{"1E+17", "10", "1", "1", "1", "1"}}};
        copas.parcela.contornoX = copas.parcela.contornoY = {};
        copas.isc();
    })));
}

TEST(ISCDeElipses, DosDiametrosSonElDobleDeLosRadios) {
    Copas copas{{{"10", "10", "300", "200", "", ""}}};
    copas.parcela.datosDeCopa = DatosDeCopa::DosDiametros;
    copas.parcela.copa.resize(2);
    const Arboles arboles = ArbolesDe(copas.parcela);
    EXPECT_EQ((CopasDeArboles{arboles, DatosDeCopa::DosDiametros, 100}.de(0)),
              (Copa{10, 10, 1.5, 1, 1.5, 1}));
}

TEST(ISCDeElipses, LaSuperficieQuedaConLoDelUltimoArbol) {
    Copas copas{{{"8", "10", "1", "1", "1", "1"},
                 {"10", "10", "1", "1", "0", "1"},
                 {"11", "11", "1", "1", "1", "1"}}};
    copas.isc();
    // The first tree is too far to the west, though it lies level with the second one.
    const Copa segunda{10, 10, 1, 1, 0.5, 1};
    const Copa tercera{11, 11, 1, 1, 1, 1};
    EXPECT_EQ(copas.superficie.figuras(), (std::vector<Figura>{CopaLlena{tercera, 0}, CopaLlena{tercera, 0},
                                                               CopaLlena{segunda, 0xFF0000}}));
}

/// Trees near each other in a plot of some ten metres: in one place, in line, on vertices, near the border.
ParcelaLiteral ElipsesAlAzar(Percances percances) {
    ParcelaLiteral parcela = ParcelaAlAzar(percances);
    const std::size_t cuantos = std::min<std::size_t>(parcela.x.size(), 14);
    parcela.contornoX = {-2, 6, 22, 21.5, 3, -2};
    if (*rc::gen::inRange(0, 8) == 0) {
        parcela.contornoX[3] = 22; // a vertical side
    }
    if (*rc::gen::inRange(0, 8) == 0) {
        parcela.contornoX.push_back(parcela.contornoX.back());
        parcela.contornoY.push_back(parcela.contornoY.back());
    }
    for (auto* const textos : {&parcela.x, &parcela.y, &parcela.tamano}) {
        textos->resize(cuantos);
    }
    if (*rc::gen::arbitrary<bool>()) { // nearer to each other, on a net
        for (auto* const textos : {&parcela.x, &parcela.y}) {
            for (auto& texto : *textos) {
                texto = ATexto(8 + *rc::gen::inRange(0, 17) * 0.25);
            }
        }
    }
    parcela.datosDeCopa = *rc::gen::element(DatosDeCopa::CuatroRadios, DatosDeCopa::DosDiametros);
    parcela.copa.assign(static_cast<std::size_t>(MedidasDeCopa(parcela.datosDeCopa)), {});
    for (auto& medida : parcela.copa) {
        for (std::size_t i = 0; i < cuantos; ++i) {
            medida.push_back(
                MedidaAlAzar({"10", "5", "7,5", "13,3", "0", "2"}, {"", "copa", "-4", "0,3"}, percances));
        }
    }
    return parcela;
}

void ProbarElipses(Percances percances) {
    const ParcelaLiteral parcela = ElipsesAlAzar(percances);
    const Escala escala = *rc::gen::element(Escala{-8, 28, -7, 27}, Escala{2.13, 11.7, 9.3, 15.25}, Escala{});
    const Lado lado = *rc::gen::element(Lado::Bilateral, Lado::Unilateral);
    const Arboles arboles = ArbolesDe(parcela);
    Vecindad vecindad{arboles, parcela.contorno()};
    Lienzo superficie;
    superficie.escala(escala);
    ElipsesLiteral literal{parcela, escala};
    const Columna columna = literal.ISC(lado);
    ExigirIgual(columna, [&] {
        const CopasDeArboles copas{arboles, parcela.datosDeCopa, parcela.factorRadios};
        return CalcularISCDeElipses(vecindad, copas, lado, superficie);
    });
    if (columna.fallo == 0 && columna.valores.back() >= 0) {
        // The literal walk paints the crown of the subject once more for each side that is near.
        const auto& suyas = literal.superficie().figuras();
        const auto& figuras = superficie.figuras();
        RC_ASSERT(figuras.size() <= suyas.size());
        RC_ASSERT(std::equal(figuras.rbegin(), figuras.rend(), suyas.rbegin()));
    }
}

RC_GTEST_PROP(ISCDeElipses, LasCuentasSonLasDelProcedimientoLiteral, ()) {
    ProbarElipses(Percances::Ninguno);
}
RC_GTEST_PROP(ISCDeElipses, LosFallosSonLosDelProcedimientoLiteral, ()) {
    ProbarElipses(Percances::Posibles);
}

} // namespace
} // namespace varo::prueba
