#include "plot/calculo/Envolvente.h"

#include "basico/ErrorEjecucion.h"
#include "plot/calculo/PlanoExacto.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <numbers>
#include <numeric>
#include <rapidcheck/gtest.h>
#include <vector>

namespace varo {
namespace {

using prueba::PuntoEntero;

Envolvente Envolver(const std::vector<PuntoEntero>& arboles) {
    const prueba::Coordenadas coordenadas = prueba::Separar(arboles);
    return EnvolverArboles(coordenadas.x, coordenadas.y);
}

int NumeroDeFallo(const std::vector<PuntoEntero>& arboles) {
    try {
        Envolver(arboles);
    } catch (const ErrorEjecucion& error) {
        return error.numero();
    }
    return 0;
}

using Vertices = std::vector<int>;
using Angulos = std::vector<double>;

void EsperarAngulos(const Angulos& obtenidos, const Angulos& esperados) {
    ASSERT_EQ(obtenidos.size(), esperados.size());
    for (std::size_t i = 0; i < esperados.size(); ++i) {
        // The last bit of the arc tangent belongs to the mathematics library.
        EXPECT_NEAR(obtenidos[i], esperados[i], 1e-12) << "ángulo " << i;
    }
}

// --- The square ---------------------------------------------------------------------------------------

TEST(Envolvente, ElCuadradoQueEmpiezaAbajoCierraConCincoPuntosYCuatroAngulosRectos) {
    for (const Vertices& derecha : {Vertices{10, 0}, Vertices{0, 10}}) {
        const Envolvente cuadrado = Envolver({{0, 0}, {0, 10}, {10, derecha[0]}, {10, derecha[1]}});
        const int arriba = derecha[0] == 10 ? 2 : 3;
        EXPECT_EQ(cuadrado.arboles, (Vertices{0, 1, arriba, 5 - arriba, 0}));
        EXPECT_EQ(cuadrado.AnguloLado, (Angulos{0, 90, 180, 270}));
        EXPECT_EQ(cuadrado.AnguloInterior, (Angulos{90, 90, 90, 90}));
    }
}

TEST(Envolvente, ElCuadradoQueEmpiezaArribaCierraHaciaArribaConTrescientosSesenta) {
    for (const Vertices& derecha : {Vertices{10, 0}, Vertices{0, 10}}) {
        const Envolvente cuadrado = Envolver({{0, 10}, {0, 0}, {10, derecha[0]}, {10, derecha[1]}});
        const int arriba = derecha[0] == 10 ? 2 : 3;
        EXPECT_EQ(cuadrado.arboles, (Vertices{0, arriba, 5 - arriba, 1, 0}));
        EXPECT_EQ(cuadrado.AnguloLado, (Angulos{90, 180, 270, 360}));
        EXPECT_EQ(cuadrado.AnguloInterior, (Angulos{90, 90, 90, 90}));
    }
}

TEST(Envolvente, ElCuadradoDePuntaTieneLasDireccionesConElPiDelPrograma) {
    // 45 degrees come out as (180 / 3,1415927) * pi / 4.
    const double t = 44.99999933522276637923781534365598;
    const Envolvente rombo = Envolver({{0, 5}, {5, 0}, {5, 10}, {10, 5}});
    EXPECT_EQ(rombo.arboles, (Vertices{0, 2, 3, 1, 0}));
    EsperarAngulos(rombo.AnguloLado, {t, 180 - t, 180 + t, 360 - t});
    EsperarAngulos(rombo.AnguloInterior, {180 - 2 * t, 2 * t, 180 - 2 * t, 2 * t});
}

TEST(Envolvente, UnRomboideTumbadoTieneLosLadosOpuestosAMediaVuelta) {
    const double t = 11.30993230694053258610161582533033; // (180 / 3,1415927) * atan(2 / 10)
    const Envolvente parcela = Envolver({{0, 0}, {2, 10}, {10, 0}, {12, 10}});
    EXPECT_EQ(parcela.arboles, (Vertices{0, 1, 3, 2, 0}));
    EsperarAngulos(parcela.AnguloLado, {t, 90, 180 + t, 270});
    EsperarAngulos(parcela.AnguloInterior, {90 - t, 90 + t, 90 - t, 90 + t});
}

// --- Few trees and trees in a line --------------------------------------------------------------------

TEST(Envolvente, SinArbolesFalta) {
    EXPECT_EQ(NumeroDeFallo({}), fallo::fueraDeIndice);
}

TEST(Envolvente, UnSoloArbolCierraSobreSiMismo) {
    const Envolvente arbol = Envolver({{3, 4}});
    EXPECT_EQ(arbol.arboles, (Vertices{0, 0}));
    EXPECT_EQ(arbol.AnguloLado, (Angulos{999}));
    EXPECT_EQ(arbol.AnguloInterior, (Angulos{-180}));
}

TEST(Envolvente, DosArbolesSonIdaYVuelta) {
    const double t = 26.56505078463707307397490504196123; // (180 / 3,1415927) * atan(1 / 2)
    const Envolvente subida = Envolver({{0, 0}, {5, 10}});
    EXPECT_EQ(subida.arboles, (Vertices{0, 1, 0}));
    EsperarAngulos(subida.AnguloLado, {t, 180 + t});
    EsperarAngulos(subida.AnguloInterior, {0, 0});

    const Envolvente bajada = Envolver({{0, 10}, {5, 0}});
    EXPECT_EQ(bajada.arboles, (Vertices{0, 1, 0}));
    EsperarAngulos(bajada.AnguloLado, {180 - t, 360 - t});
    EsperarAngulos(bajada.AnguloInterior, {0, 0});
}

TEST(Envolvente, TresArbolesEnFilaHorizontalVanUnoAUnoYVuelvenDeUnaVez) {
    const Envolvente fila = Envolver({{0, 7}, {5, 7}, {10, 7}});
    EXPECT_EQ(fila.arboles, (Vertices{0, 1, 2, 0}));
    EXPECT_EQ(fila.AnguloLado, (Angulos{90, 90, 270}));
    EXPECT_EQ(fila.AnguloInterior, (Angulos{0, 180, 0}));
}

TEST(Envolvente, TresArbolesEnFilaInclinadaVanUnoAUnoYVuelvenDeUnaVez) {
    const double t = 44.99999933522276637923781534365598;
    const Envolvente subida = Envolver({{0, 0}, {5, 5}, {10, 10}});
    EXPECT_EQ(subida.arboles, (Vertices{0, 1, 2, 0}));
    EsperarAngulos(subida.AnguloLado, {t, t, 180 + t});
    EsperarAngulos(subida.AnguloInterior, {0, 180, 0});

    const Envolvente bajada = Envolver({{0, 10}, {5, 5}, {10, 0}});
    EXPECT_EQ(bajada.arboles, (Vertices{0, 1, 2, 0}));
    EsperarAngulos(bajada.AnguloLado, {180 - t, 180 - t, 360 - t});
    EsperarAngulos(bajada.AnguloInterior, {0, 180, 0});
}

TEST(Envolvente, UnaFilaVerticalQueEmpiezaAbajoSubeYBaja) {
    const Envolvente fila = Envolver({{4, 0}, {4, 5}, {4, 10}});
    EXPECT_EQ(fila.arboles, (Vertices{0, 1, 2, 0}));
    EXPECT_EQ(fila.AnguloLado, (Angulos{0, 0, 180}));
    EXPECT_EQ(fila.AnguloInterior, (Angulos{0, 180, 0}));
}

TEST(Envolvente, UnaFilaVerticalQueEmpiezaArribaBajaYSube) {
    const Envolvente fila = Envolver({{4, 10}, {4, 5}, {4, 0}});
    EXPECT_EQ(fila.arboles, (Vertices{0, 1, 2, 0}));
    EXPECT_EQ(fila.AnguloLado, (Angulos{180, 180, 360}));
    EXPECT_EQ(fila.AnguloInterior, (Angulos{0, 180, 0}));
}

TEST(Envolvente, UnaFilaVerticalQueEmpiezaEnMedioSoloRecorreLaMitadDeArriba) {
    const Envolvente fila = Envolver({{4, 5}, {4, 0}, {4, 10}});
    EXPECT_EQ(fila.arboles, (Vertices{0, 2, 0}));
    EXPECT_EQ(fila.AnguloLado, (Angulos{0, 180}));
    EXPECT_EQ(fila.AnguloInterior, (Angulos{0, 0}));
}

// --- Trees inside and on the edges --------------------------------------------------------------------

TEST(Envolvente, UnArbolDeDentroNuncaEsVertice) {
    const Envolvente cuadrado = Envolver({{0, 0}, {0, 10}, {1, 9}, {5, 5}, {9, 1}, {10, 10}, {10, 0}});
    EXPECT_EQ(cuadrado.arboles, (Vertices{0, 1, 5, 6, 0}));
    EXPECT_EQ(cuadrado.AnguloInterior, (Angulos{90, 90, 90, 90}));
}

TEST(Envolvente, UnArbolSobreElLadoDeArribaEsVerticeConAnguloLlano) {
    const Envolvente cuadrado = Envolver({{0, 0}, {0, 10}, {5, 10}, {10, 10}, {10, 0}});
    EXPECT_EQ(cuadrado.arboles, (Vertices{0, 1, 2, 3, 4, 0}));
    EXPECT_EQ(cuadrado.AnguloLado, (Angulos{0, 90, 90, 180, 270}));
    EXPECT_EQ(cuadrado.AnguloInterior, (Angulos{90, 90, 180, 90, 90}));
}

TEST(Envolvente, UnArbolSobreElLadoDeAbajoCedeAnteElDeMenorFila) {
    const Envolvente cuadrado = Envolver({{0, 0}, {0, 10}, {5, 0}, {10, 10}, {10, 0}});
    EXPECT_EQ(cuadrado.arboles, (Vertices{0, 1, 3, 4, 0}));
}

TEST(Envolvente, EnElLadoDerechoDecideElOrdenDeLasFilas) {
    const Envolvente pasa = Envolver({{0, 0}, {0, 10}, {10, 5}, {10, 10}, {10, 0}});
    EXPECT_EQ(pasa.arboles, (Vertices{0, 1, 3, 2, 4, 0}));
    EXPECT_EQ(pasa.AnguloLado, (Angulos{0, 90, 180, 180, 270}));
    EXPECT_EQ(pasa.AnguloInterior, (Angulos{90, 90, 90, 180, 90}));

    const Envolvente salta = Envolver({{0, 0}, {0, 10}, {10, 0}, {10, 10}, {10, 5}});
    EXPECT_EQ(salta.arboles, (Vertices{0, 1, 3, 2, 0}));
}

TEST(Envolvente, ElPrimerArbolEnMedioDelLadoIzquierdoCierraConTrescientosSesenta) {
    const Envolvente cuadrado = Envolver({{0, 5}, {0, 10}, {0, 0}, {10, 10}, {10, 0}});
    EXPECT_EQ(cuadrado.arboles, (Vertices{0, 1, 3, 4, 2, 0}));
    EXPECT_EQ(cuadrado.AnguloLado, (Angulos{0, 90, 180, 270, 360}));
    EXPECT_EQ(cuadrado.AnguloInterior, (Angulos{180, 90, 90, 90, 90}));
}

TEST(Envolvente, UnLadoDeCierreQueRedondeaAVerticalTambienDaTrescientosSesenta) {
    // The last edge leans to the left by 1e-17 in 10: its 360 - 6e-17 degrees round to 360.
    const Envolvente cuadrado =
        EnvolverArboles(std::vector<double>{0, 1e-17, 10, 10}, std::vector<double>{10, 0, 10, 0});
    EXPECT_EQ(cuadrado.arboles, (Vertices{0, 2, 3, 1, 0}));
    EXPECT_EQ(cuadrado.AnguloLado, (Angulos{90, 180, 270, 360}));
    EXPECT_EQ(cuadrado.AnguloInterior, (Angulos{90, 90, 90, 90}));
}

// --- Doubled trees ------------------------------------------------------------------------------------

TEST(Envolvente, ElDobleDelPrimerArbolEsVerticeConElCeroDeSuCasilla) {
    const Envolvente cuadrado = Envolver({{0, 0}, {0, 0}, {0, 10}, {10, 10}, {10, 0}});
    EXPECT_EQ(cuadrado.arboles, (Vertices{0, 1, 2, 3, 4, 0}));
    EXPECT_EQ(cuadrado.AnguloLado, (Angulos{0, 0, 90, 180, 270}));
    EXPECT_EQ(cuadrado.AnguloInterior, (Angulos{90, 180, 90, 90, 90}));
}

TEST(Envolvente, DosArbolesEnUnMismoSitioCierranConLaDireccionDelActual) {
    const Envolvente pareja = Envolver({{3, 4}, {3, 4}});
    EXPECT_EQ(pareja.arboles, (Vertices{0, 1, 0}));
    EXPECT_EQ(pareja.AnguloLado, (Angulos{0, 999}));
    EXPECT_EQ(pareja.AnguloInterior, (Angulos{819, -819}));
}

TEST(Envolvente, ElDobleDeUnVerticeDeLaIdaRepiteLaDireccionAnterior) {
    const Envolvente cuadrado = Envolver({{0, 0}, {0, 10}, {10, 10}, {10, 10}, {10, 0}});
    EXPECT_EQ(cuadrado.arboles, (Vertices{0, 1, 2, 3, 4, 0}));
    EXPECT_EQ(cuadrado.AnguloLado, (Angulos{0, 90, 90, 180, 270}));
    EXPECT_EQ(cuadrado.AnguloInterior, (Angulos{90, 90, 180, 90, 90}));
}

TEST(Envolvente, ElDobleAlQueSeLlegaAlComenzarLaVueltaQuedaFuera) {
    // Its slot holds the 180 of the way out; the next edge measures 90 on the way back.
    const Envolvente cuadrado = Envolver({{0, 0}, {0, 10}, {10, 10}, {10, 0}, {10, 0}});
    EXPECT_EQ(cuadrado.arboles, (Vertices{0, 1, 2, 3, 0}));
    EXPECT_EQ(cuadrado.AnguloInterior, (Angulos{90, 90, 90, 90}));
}

TEST(Envolvente, ArbolesDoblesDeDentroNoEstorban) {
    const Envolvente cuadrado = Envolver({{0, 0}, {0, 10}, {5, 5}, {5, 5}, {10, 10}, {10, 0}});
    EXPECT_EQ(cuadrado.arboles, (Vertices{0, 1, 4, 5, 0}));
}

TEST(Envolvente, UnDobleEnPlenaVueltaExtraviaElRecorridoHastaElDesbordamiento) {
    // From the second of the two trees at (3, 0) the walk no longer knows that it is on the way back: it goes
    // to (10, 10) again, and so on for ever.
    EXPECT_EQ(NumeroDeFallo({{0, 10}, {3, 0}, {3, 0}, {7, 0}, {10, 10}}), fallo::desbordamiento);
}

// --- Interior angles ----------------------------------------------------------------------------------

TEST(AngulosInteriores, SalenDeLasDireccionesDeLosLados) {
    EXPECT_EQ(AngulosInteriores(Angulos{30, 150, 270}), (Angulos{60, 60, 60}));
    EXPECT_EQ(AngulosInteriores(Angulos{0, 90, 180, 270}), (Angulos{90, 90, 90, 90}));
    EXPECT_EQ(AngulosInteriores(Angulos{90, 180, 270, 360}), (Angulos{90, 90, 90, 90}));
}

// --- Any trees ----------------------------------------------------------------------------------------

bool MenorX(const PuntoEntero& a, const PuntoEntero& b) {
    return a.first < b.first;
}

/// Trees sorted by x alone, in general position: the order of two with the same x is any one.
std::vector<PuntoEntero> ArbolesEnPosicionGeneral() {
    const auto cuantos = *rc::gen::inRange<std::size_t>(3, 26);
    auto arboles = prueba::EnPosicionGeneral(*prueba::PuntosDistintos(cuantos, 1000));
    std::ranges::stable_sort(arboles, MenorX);
    RC_PRE(arboles.size() >= std::size_t{3});
    return arboles;
}

std::vector<PuntoEntero> Recorrido(const Envolvente& envolvente, const std::vector<PuntoEntero>& arboles) {
    std::vector<PuntoEntero> puntos;
    for (std::size_t i = 0; i + 1 < envolvente.arboles.size(); ++i) {
        puntos.push_back(arboles[static_cast<std::size_t>(envolvente.arboles[i])]);
    }
    return puntos;
}

/// The corners in the same order, begun at another one.
std::vector<PuntoEntero> GirarHasta(std::vector<PuntoEntero> esquinas, const PuntoEntero& primera) {
    std::rotate(esquinas.begin(), std::ranges::find(esquinas, primera), esquinas.end());
    return esquinas;
}

double AnguloEntre(const PuntoEntero& anterior, const PuntoEntero& vertice, const PuntoEntero& siguiente) {
    const auto escalar = (anterior.first - vertice.first) * (siguiente.first - vertice.first) +
                         (anterior.second - vertice.second) * (siguiente.second - vertice.second);
    const auto cruzado = std::abs(prueba::Orientacion(anterior, vertice, siguiente));
    return std::atan2(static_cast<double>(cruzado), static_cast<double>(escalar)) * 180.0 / std::numbers::pi;
}

RC_GTEST_PROP(EnvolventePropiedad, EsLaMismaQueLaDeLasCadenasMonotonas, ()) {
    const auto arboles = ArbolesEnPosicionGeneral();
    const Envolvente envolvente = Envolver(arboles);
    RC_ASSERT(envolvente.arboles.front() == 0);
    RC_ASSERT(envolvente.arboles.back() == 0);
    RC_ASSERT(Recorrido(envolvente, arboles) ==
              GirarHasta(prueba::EsquinasDeLaEnvolvente(arboles), arboles.front()));
}

RC_GTEST_PROP(EnvolventePropiedad, LosAngulosInterioresSonLosDelPoligono, ()) {
    const auto arboles = ArbolesEnPosicionGeneral();
    const Envolvente envolvente = Envolver(arboles);
    const auto puntos = Recorrido(envolvente, arboles);
    const std::size_t n = puntos.size();
    RC_ASSERT(envolvente.AnguloInterior.size() == n);
    for (std::size_t i = 0; i < n; ++i) {
        // The pi of the program moves a direction by less than 1,4e-6 degrees.
        const double verdadero = AnguloEntre(puntos[(i + n - 1) % n], puntos[i], puntos[(i + 1) % n]);
        RC_ASSERT(std::abs(envolvente.AnguloInterior[i] - verdadero) < 3e-6);
    }
    const double suma =
        std::accumulate(envolvente.AnguloInterior.begin(), envolvente.AnguloInterior.end(), 0.0);
    RC_ASSERT(std::abs(suma - static_cast<double>(n - 2) * 180.0) < 1e-6);
}

RC_GTEST_PROP(EnvolventePropiedad, ConArbolesAlineadosPasaPorTodasLasEsquinasYSoloPorElBorde, ()) {
    const auto cuantos = *rc::gen::inRange<std::size_t>(3, 26);
    auto arboles = *prueba::PuntosDistintos(cuantos, 3);
    std::ranges::stable_sort(arboles, MenorX);
    const auto esquinas = prueba::EsquinasDeLaEnvolvente(arboles);
    RC_PRE(esquinas.size() >= std::size_t{3});

    const auto puntos = Recorrido(Envolver(arboles), arboles);
    std::vector<PuntoEntero> esquinasRecorridas;
    for (const PuntoEntero& punto : puntos) {
        if (std::ranges::find(esquinas, punto) != esquinas.end()) {
            esquinasRecorridas.push_back(punto);
        }
    }
    RC_ASSERT(esquinasRecorridas == GirarHasta(esquinas, esquinasRecorridas.front()));
    for (std::size_t i = 0; i < puntos.size(); ++i) {
        for (const PuntoEntero& arbol : arboles) {
            RC_ASSERT(prueba::Orientacion(puntos[i], puntos[(i + 1) % puntos.size()], arbol) <= 0);
        }
    }
}

} // namespace
} // namespace varo
