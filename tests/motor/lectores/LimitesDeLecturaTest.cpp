#include "motor/lectores/LimitesDeLectura.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>

namespace varo {
namespace {

using prueba::FallaCon;

constexpr const char* celdasDeMas = "sus tablas ocupan demasiado para su tamaño";

TEST(LimitesDeLectura, LasCeldasVanEnProporcionAlTamano) {
    LimitesDeLectura limites{1000};
    limites.contarCeldas(600'000);
    limites.contarCeldas(400'500);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, celdasDeMas, [&] { limites.contarCeldas(1); }));
}

TEST(LimitesDeLectura, LosTextosVanEnProporcionAlTamano) {
    LimitesDeLectura limites{1000};
    limites.contarTexto(64'016'000);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "sus textos ocupan demasiado para su tamaño",
                         [&] { limites.contarTexto(1); }));
    limites.contarCeldas(1);
}

TEST(LimitesDeLectura, CrecenConLoQueVaApareciendo) {
    LimitesDeLectura limites{0};
    limites.contarCeldas(1'000'000);
    limites.contarTexto(64'000'000);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, celdasDeMas, [&] { limites.contarCeldas(1); }));
    limites.crecer(1000);
    limites.contarCeldas(500);
    limites.contarTexto(16'000);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, celdasDeMas, [&] { limites.contarCeldas(1); }));
}

TEST(LimitesDeLectura, UnaCuentaInmensaNoDaLaVuelta) {
    LimitesDeLectura limites{1000};
    limites.contarCeldas(1);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, celdasDeMas,
                         [&] { limites.contarCeldas(std::numeric_limits<std::size_t>::max()); }));
}

} // namespace
} // namespace varo
