#include "indices/vecinos/BuscadorDeCercanos.h"

#include "apoyo/Fallos.h"
#include "indices/vecinos/Borde.h"
#include "indices/vecinos/ParcelaAlAzar.h"
#include "indices/vecinos/Parcelita.h"
#include "indices/vecinos/PrimerCompetidor.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace varo::prueba {
namespace {

using Filas = std::vector<Cuadricula::Fila>;

bool Contiene(const Filas& filas, std::size_t j) {
    return std::binary_search(filas.begin(), filas.end(), static_cast<Cuadricula::Fila>(j));
}

double L(const Arboles& arboles, std::size_t i, std::size_t j) {
    return Distancia(arboles.x(i), arboles.y(i), arboles.x(j), arboles.y(j));
}

RC_GTEST_PROP(BuscadorDeCercanos, DaLosCercanosEnOrdenYApenasNingunoMas, ()) {
    const ParcelaLiteral parcela = ParcelaAlAzar(Percances::Ninguno);
    const Arboles arboles = ArbolesDe(parcela);
    const BuscadorDeCercanos buscador{arboles};
    const double radio = *rc::gen::inRange(-2, 60) * 0.5;
    ArbolesCercanos cercanas{arboles};
    const Filas& filas = cercanas.filas;
    for (std::size_t i = 0; i < arboles.cuantos(); ++i) {
        if (arboles.sinTamano(i)) {
            continue;
        }
        buscador.buscar(i, radio, cercanas);
        RC_ASSERT(std::is_sorted(filas.begin(), filas.end()));
        bool alguienEncima = false;
        for (std::size_t j = 0; j < arboles.cuantos(); ++j) {
            if (j == i || arboles.sinTamano(j)) {
                RC_ASSERT(!Contiene(filas, j));
                continue;
            }
            const double distancia = L(arboles, i, j);
            RC_ASSERT(distancia <= buscador.extension());
            RC_ASSERT(Contiene(filas, j) == (distancia <= std::max(radio, 0.0)));
            alguienEncima = alguienEncima || distancia == 0;
        }
        RC_ASSERT(buscador.comparteSitio(i) == alguienEncima);
    }
}

RC_GTEST_PROP(BuscadorDeCercanos, PorTamanoCadaUnoTieneSuAlcance, ()) {
    const ParcelaLiteral parcela = ParcelaAlAzar(Percances::Ninguno);
    const Arboles arboles = ArbolesDe(parcela);
    const BuscadorDeCercanos buscador{arboles};
    const double porD = *rc::gen::inRange(0, 120) * 0.25;
    const double radio = *rc::gen::inRange(0, 10) * 0.5;
    ArbolesCercanos cercanas{arboles};
    const Filas& filas = cercanas.filas;
    for (std::size_t i = 0; i < arboles.cuantos(); ++i) {
        if (arboles.sinTamano(i)) {
            continue;
        }
        buscador.buscarPorTamano(i, porD, radio, cercanas);
        RC_ASSERT(std::is_sorted(filas.begin(), filas.end()));
        for (std::size_t j = 0; j < arboles.cuantos(); ++j) {
            const bool dentro =
                j != i && !arboles.sinTamano(j) && L(arboles, i, j) <= std::max(porD * arboles.d(j), radio);
            RC_ASSERT(Contiene(filas, j) || !dentro);
        }
    }
}

TEST(BuscadorDeCercanos, NoEsFiableSiUnArbolConTamanoTieneUnaCeldaMala) {
    const auto fiable = [](const ArbolDado& segundo) {
        return Parcelita{{{"0", "0", "1"}, segundo}}.vecindad->buscador.fiable();
    };
    EXPECT_TRUE(fiable({"1", "1", "1"}));
    EXPECT_FALSE(fiable({"x", "1", "1"}));
    EXPECT_FALSE(fiable({"1", "", "1"}));
    EXPECT_FALSE(fiable({"1", "1", "grande"}));
    EXPECT_FALSE(fiable({"1", "1E+200", "1"}));
    EXPECT_TRUE(fiable({"x", "1", ""})) << "sin tamaño no hay árbol";
}

TEST(BuscadorDeCercanos, UnArbolMuyLejosDeLosDemasSeEncuentraIgual) {
    // Trees far apart on one line; the cells stay in proportion to them.
    const Parcelita parcela{{{"0", "0", "1"}, {"1", "0", "1"}, {"1000000", "0", "1"}}};
    ArbolesCercanos cercanas{*parcela.arboles};
    parcela.vecindad->buscador.buscar(0, 2, cercanas);
    EXPECT_EQ(cercanas.filas, Filas{1});
    parcela.vecindad->buscador.buscar(0, 2000000, cercanas);
    EXPECT_EQ(cercanas.filas, (Filas{1, 2}));
}

RC_GTEST_PROP(PrimerCompetidor, EsElPrimeroQuePasaLaReglaDelLado, ()) {
    const ParcelaLiteral parcela = ParcelaAlAzar(Percances::Ninguno);
    const Arboles arboles = ArbolesDe(parcela);
    const PrimerCompetidor primero{arboles};
    for (const Lado lado : {Lado::Bilateral, Lado::Unilateral}) {
        for (std::size_t i = 0; i < arboles.cuantos(); ++i) {
            if (arboles.sinTamano(i)) {
                continue;
            }
            std::optional<std::size_t> esperado;
            for (std::size_t j = arboles.cuantos(); j-- > 0;) {
                if (j != i && !arboles.sinTamano(j) &&
                    (lado == Lado::Bilateral || arboles.d(j) >= arboles.d(i))) {
                    esperado = j;
                }
            }
            RC_ASSERT(primero.de(i, lado) == esperado);
        }
    }
}

RC_GTEST_PROP(Borde, RespondeComoLasAlturasUnaPorUna, ()) {
    const ParcelaLiteral parcela = ParcelaAlAzar(Percances::Posibles);
    const Arboles arboles = ArbolesDe(parcela);
    Borde borde{arboles, parcela.contorno()};
    const double limite = *rc::gen::inRange(-2, 50) * 0.25;
    const auto literal = [&](std::size_t i, bool conIgualdad) {
        for (std::size_t k = 0; k + 1 < parcela.contornoX.size(); ++k) {
            const double altura =
                AlturaTriangulo(arboles.x(i), arboles.y(i), parcela.contornoX[k], parcela.contornoY[k],
                                parcela.contornoX[k + 1], parcela.contornoY[k + 1]);
            if (altura < limite || (conIgualdad && altura == limite)) {
                return true;
            }
        }
        return false;
    };
    for (std::size_t i = 0; i < arboles.cuantos(); ++i) {
        bool obtenido = false;
        bool esperado = false;
        RC_ASSERT(FalloDe([&] { obtenido = borde.algunaAlturaMenor(i, limite); }) ==
                  FalloDe([&] { esperado = literal(i, false); }));
        RC_ASSERT(obtenido == esperado);
        RC_ASSERT(FalloDe([&] { obtenido = borde.algunaAlturaMenorOIgual(i, limite); }) ==
                  FalloDe([&] { esperado = literal(i, true); }));
        RC_ASSERT(obtenido == esperado);
    }
}

TEST(Borde, UnContornoDeUnSoloPuntoNoTieneLados) {
    ParcelaLiteral parcela;
    parcela.x = parcela.y = parcela.tamano = {"5"};
    parcela.contornoX = parcela.contornoY = {5};
    const Arboles arboles = ArbolesDe(parcela);
    Borde borde{arboles, parcela.contorno()};
    EXPECT_FALSE(borde.algunaAlturaMenor(0, 1E+9));
    EXPECT_FALSE(borde.algunaAlturaMenorOIgual(0, 1E+9));
}

TEST(Borde, DosVerticesEnUnSitioDividenPorCeroSiNadieRespondeAntes) {
    ParcelaLiteral parcela;
    parcela.x = parcela.y = parcela.tamano = {"0"};
    parcela.contornoX = {-3, 4, 4, -3};
    parcela.contornoY = {-3, -3, -3, -3};
    const Arboles arboles = ArbolesDe(parcela);
    Borde borde{arboles, parcela.contorno()};
    EXPECT_TRUE(borde.algunaAlturaMenor(0, 4)) << "el primer lado queda a 3";
    try {
        static_cast<void>(borde.algunaAlturaMenor(0, 1));
        FAIL() << "debía fallar";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), 11);
        EXPECT_EQ(error.lugar(), "lado 2 del contorno");
    }
}

} // namespace
} // namespace varo::prueba
