#include "basico/Reparto.h"

#include "apoyo/EnVariosHilos.h"
#include "apoyo/OyenteDePrueba.h"

#include <gtest/gtest.h>

#include <atomic>
#include <numeric>
#include <stdexcept>
#include <thread>
#include <vector>

namespace varo::prueba {
namespace {

TEST(Cuadrilla, CadaHiloHaceLaTareaUnaVez) {
    for (const std::size_t hilos : {1U, 2U, 7U}) {
        Cuadrilla cuadrilla{hilos};
        EXPECT_EQ(cuadrilla.hilos(), hilos);
        for (int vez = 0; vez < 50; ++vez) {
            std::vector<std::atomic<int>> veces(hilos);
            cuadrilla.correr([&](std::size_t hilo) { ++veces[hilo]; });
            for (const auto& suyas : veces) {
                EXPECT_EQ(suyas, 1);
            }
        }
    }
    EXPECT_GE(Cuadrilla::losDeLaMaquina(), 1U);
}

TEST(Cuadrilla, LoQueElQueMandaLanzaSaleCuandoTodosHanAcabado) {
    Cuadrilla cuadrilla{4};
    for (int vez = 0; vez < 20; ++vez) {
        std::atomic<int> acabados = 0;
        EXPECT_THROW(cuadrilla.correr([&](std::size_t hilo) {
            if (hilo == 0) {
                throw std::runtime_error{"fin"};
            }
            ++acabados;
        }),
                     std::runtime_error);
        EXPECT_EQ(acabados, 3);
    }
}

class Reparte : public testing::TestWithParam<std::size_t> {
protected:
    Cuadrilla cuadrilla{GetParam()};
    Faena faena{{}, &cuadrilla};
};

TEST_P(Reparte, CadaElementoSeHaceUnaVezYSeCuentaEnOrden) {
    for (const std::size_t cuantos : {0U, 1U, 2U, 31U, 1000U}) {
        std::vector<int> veces(cuantos);
        std::vector<std::size_t> contados;
        Repartir(
            cuantos, faena, [&]() -> Hacer { return [&](std::size_t i) { ++veces[i]; }; },
            [&](std::size_t i) {
                EXPECT_EQ(veces[i], 1);
                contados.push_back(i);
            });
        EXPECT_EQ(veces, std::vector<int>(cuantos, 1));
        std::vector<std::size_t> todos(cuantos);
        std::iota(todos.begin(), todos.end(), std::size_t{0});
        EXPECT_EQ(contados, todos);
    }
}

TEST_P(Reparte, ElPrimeroQueFallaEsElQueSeDice) {
    for (int vez = 0; vez < 10; ++vez) {
        std::vector<std::size_t> contados;
        // All from the hundredth on fail; now the first of them comes late, now the others.
        const auto hacer = [&](std::size_t i) {
            if ((i > 100) == (vez % 2 == 0) && i > 95 && i < 200) {
                std::this_thread::yield();
            }
            if (i >= 100) {
                throw ErrorEjecucion{static_cast<int>(i)};
            }
        };
        try {
            Repartir(
                1000, faena, [&]() -> Hacer { return hacer; }, [&](std::size_t i) { contados.push_back(i); });
            FAIL() << "no ha fallado";
        } catch (const ErrorEjecucion& error) {
            EXPECT_EQ(error.numero(), 100);
        }
        EXPECT_EQ(contados.size(), 100U) << "los de delante se hacen y se cuentan";
    }
}

TEST_P(Reparte, SoloElHiloQueMandaHablaConElOyenteYPuedeCancelar) {
    OyenteDePrueba oyente;
    oyente.cancelarEn = 40;
    faena.avance = Avance{oyente};
    faena.avance.empezar(500);
    const auto yo = std::this_thread::get_id();
    std::size_t contados = 0;
    const auto contar = [&](std::size_t) {
        EXPECT_EQ(std::this_thread::get_id(), yo);
        ++contados;
    };
    const auto crear = []() -> Hacer { return [](std::size_t) {}; };
    EXPECT_THROW(Repartir(500, faena, crear, contar), Cancelado);
    EXPECT_EQ(oyente.oidos, 40U);
    EXPECT_EQ(contados, 40U);
    oyente.cancelarEn.reset();
    Repartir(500, faena, crear, contar);
    EXPECT_EQ(oyente.oidos, 540U);
}

TEST_P(Reparte, CadaHiloTieneSuEstado) {
    std::atomic<std::size_t> creados = 0;
    std::vector<std::size_t> quien(300);
    Repartir(300, faena, [&]() -> Hacer { return [&, yo = ++creados](std::size_t i) { quien[i] = yo; }; });
    EXPECT_GE(creados, 1U);
    EXPECT_LE(creados, GetParam());
    for (const std::size_t hilo : quien) {
        EXPECT_GE(hilo, 1U);
        EXPECT_LE(hilo, creados);
    }
}

INSTANTIATE_TEST_SUITE_P(Reparto, Reparte, testing::Values(1U, 2U, 7U), testing::PrintToStringParamName());

} // namespace
} // namespace varo::prueba
