#include "motor/lectores/LimitesDeLectura.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>

namespace varo {
namespace {

using prueba::FallaCon;

constexpr const char* celdasDeMas = "sus tablas ocupan demasiado para su tamaño";

// A cell takes 17 bytes, and what is read of 1,000 bytes at most 40,005,000.
TEST(LimitesDeLectura, LasCeldasVanEnProporcionAlTamano) {
    LimitesDeLectura limites{1000};
    limites.contarCeldas(2'000'000);
    limites.contarCeldas(353'235);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, celdasDeMas, [&] { limites.contarCeldas(1); }));
    limites.crecer(4);
    limites.contarCeldas(1);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, celdasDeMas, [&] { limites.contarCeldas(1); }));
}

TEST(LimitesDeLectura, LasTablasCuestanAunqueNoTenganNada) {
    LimitesDeLectura limites{1000};
    limites.contarTablas(78'134); // of 512 bytes
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, celdasDeMas, [&] { limites.contarTablas(1); }));
}

TEST(LimitesDeLectura, LasTablasDanadasCuestanMas) {
    LimitesDeLectura limites{0};
    for (int i = 0; i < 11'160; ++i) { // of 3,584 bytes
        limites.contarDefecto();
    }
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "lo dañado en él ocupa demasiado para su tamaño",
                         [&] { limites.contarDefecto(); }));
}

TEST(LimitesDeLectura, ElTextoCortoDeUnaCeldaNoCuestaYElLargoSoloUnaVez) {
    LimitesDeLectura limites{0};
    limites.contarTexto(40'000'000 - 20 - 28 - 28);
    limites.contarTextoDeCelda(8);
    limites.contarTextoDeCelda(16);
    limites.contarTextoDeCelda(24);
    limites.contarTextoDeCelda(60'000'000);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "sus textos ocupan demasiado para su tamaño",
                         [&] { limites.contarTextoDeCelda(9); }));
}

TEST(LimitesDeLectura, LoQueLasCeldasMuestranTieneSuLimite) {
    LimitesDeLectura limites{1000};
    limites.contarTextoDeCelda(64'016'000 - 8);
    limites.contarTextoDeCelda(8);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "sus textos ocupan demasiado para su tamaño",
                         [&] { limites.contarTextoDeCelda(1); }));
}

TEST(LimitesDeLectura, LosTextosVanEnProporcionAlTamano) {
    LimitesDeLectura limites{1000};
    limites.contarTexto(40'005'000 - 17);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "sus textos ocupan demasiado para su tamaño",
                         [&] { limites.contarTexto(18); }));
    limites.contarCeldas(1);
}

TEST(LimitesDeLectura, CrecenConLoQueVaApareciendo) {
    LimitesDeLectura limites{0};
    limites.contarTexto(40'000'000);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, celdasDeMas, [&] { limites.contarCeldas(1); }));
    limites.crecer(1000);
    limites.contarCeldas(294); // of 17 bytes
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, celdasDeMas, [&] { limites.contarCeldas(1); }));
}

TEST(LimitesDeLectura, LoQueEsMasQueCualquierParcelaNoLosHaceCrecer) {
    constexpr std::size_t megabyte = std::size_t{1} << 20U;
    LimitesDeLectura limites{100 * megabyte};
    limites.crecer(92 * megabyte);
    limites.crecer(1);
    limites.crecer(1000 * megabyte);
    limites.contarTexto(40'000'000 + std::size_t{5} * 192 * megabyte);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "sus textos ocupan demasiado para su tamaño",
                         [&] { limites.contarTexto(1); }));
}

TEST(LimitesDeLectura, UnaCuentaInmensaNoDaLaVuelta) {
    LimitesDeLectura limites{1000};
    limites.contarCeldas(1);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, celdasDeMas,
                         [&] { limites.contarCeldas(std::numeric_limits<std::size_t>::max()); }));
}

} // namespace
} // namespace varo
