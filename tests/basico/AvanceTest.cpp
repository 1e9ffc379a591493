#include "basico/Avance.h"

#include "apoyo/OyenteDePrueba.h"
#include "basico/EnLugar.h"
#include "basico/Saltando.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace varo::prueba {
namespace {

using std::chrono::seconds;

TEST(Avance, SinOyenteNoPasaNada) {
    const Avance avance;
    avance.etapa("una");
    avance.empezar(3);
    EXPECT_NO_THROW(avance.paso());
}

TEST(Avance, ElOyenteSabeLaEtapaYLosPasos) {
    OyenteDePrueba oyente;
    const Avance avance{oyente};
    avance.etapa("DR, columna 1 de 2");
    avance.empezar(8);
    avance.paso();
    avance.paso(3);
    EXPECT_EQ(oyente.oidos, 2U);
    EXPECT_EQ(oyente.ultima.etapa, "DR, columna 1 de 2");
    EXPECT_EQ(oyente.ultima.hechos, 4U);
    EXPECT_EQ(oyente.ultima.pasos, 8U);
    EXPECT_EQ(oyente.ultima.parte(), 0.5);
    avance.etapa("DR, columna 2 de 2");
    avance.paso();
    EXPECT_EQ(oyente.ultima.hechos, 5U) << "otra etapa no cuenta desde cero";
    avance.empezar(2);
    avance.paso();
    EXPECT_EQ(oyente.ultima.hechos, 1U);
    EXPECT_EQ(oyente.etapas, (std::vector<std::string>{"DR, columna 1 de 2", "DR, columna 2 de 2"}));
}

TEST(Avance, NadieSaltaUnCancelado) {
    static_assert(!std::is_base_of_v<std::exception, Cancelado>);
    OyenteDePrueba oyente;
    oyente.cancelarEn = 2;
    const Avance avance{oyente};
    avance.paso();
    EXPECT_THROW(Saltando([&] { avance.paso(); }), Cancelado);
    oyente.cancelarEn = 3;
    EXPECT_THROW(PruebaSaltando([&] {
                     avance.paso();
                     return false;
                 }),
                 Cancelado);
    oyente.cancelarEn = 4;
    bool visto = false;
    EXPECT_THROW(AlFallar([&](const ErrorEjecucion&) { visto = true; }, [&] { avance.paso(); }), Cancelado);
    EXPECT_FALSE(visto);
}

TEST(Avance, LoQueSeCancelaSePoneEnOrden) {
    int ordenado = 0;
    const auto ordenar = [&] { ++ordenado; };
    EXPECT_EQ(AlCancelar(ordenar, [] { return 7; }), 7);
    EXPECT_THROW(AlCancelar(ordenar, [] { throw ErrorEjecucion{11}; }), ErrorEjecucion);
    EXPECT_EQ(ordenado, 0);
    EXPECT_THROW(AlCancelar(ordenar, [] { throw Cancelado{}; }), Cancelado);
    EXPECT_EQ(ordenado, 1);
}

TEST(Avance, LoQueQuedaSaleDelPasoQueSeLleva) {
    Marcha marcha{"", 10, 40, {}};
    EXPECT_EQ(marcha.parte(), 0.25);
    EXPECT_EQ(marcha.queda(marcha.comienzo + seconds{20}), seconds{60});
    marcha.hechos = 40;
    EXPECT_EQ(marcha.queda(marcha.comienzo + seconds{20}), seconds{0});
    marcha.hechos = 50; // more than was told
    EXPECT_EQ(marcha.parte(), 1);
    EXPECT_EQ(marcha.queda(marcha.comienzo + seconds{20}), seconds{0});
    marcha.hechos = 0;
    EXPECT_EQ(marcha.queda(marcha.comienzo + seconds{20}), std::nullopt);
    marcha.pasos = 0;
    EXPECT_EQ(marcha.parte(), 0);
    EXPECT_EQ(marcha.queda(marcha.comienzo + seconds{20}), std::nullopt);
}

TEST(Avance, AlPrincipioNoSeDiceLoQueQueda) {
    Marcha marcha{"", 4, 100, {}};
    const std::chrono::milliseconds pocoRato{900};
    EXPECT_EQ(marcha.queda(marcha.comienzo + pocoRato), std::nullopt);
    EXPECT_EQ(marcha.queda(marcha.comienzo + seconds{1}), seconds{24});
    marcha.hechos = 5;
    EXPECT_EQ(marcha.queda(marcha.comienzo + pocoRato), seconds{17});
}

TEST(Avance, UnaDuracionSeLee) {
    EXPECT_EQ(TextoDeDuracion(seconds{0}), "menos de 1 s");
    EXPECT_EQ(TextoDeDuracion(seconds{1}), "1 s");
    EXPECT_EQ(TextoDeDuracion(seconds{59}), "59 s");
    EXPECT_EQ(TextoDeDuracion(seconds{60}), "1 min 0 s");
    EXPECT_EQ(TextoDeDuracion(seconds{125}), "2 min 5 s");
    EXPECT_EQ(TextoDeDuracion(seconds{3599}), "59 min 59 s");
    EXPECT_EQ(TextoDeDuracion(seconds{4200}), "1 h 10 min");
}

} // namespace
} // namespace varo::prueba
