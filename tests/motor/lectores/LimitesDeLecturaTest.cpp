#include "motor/lectores/LimitesDeLectura.h"

#include "basico/ErrorEjecucion.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>

namespace varo {
namespace {

TEST(LimitesDeLectura, LasCeldasVanEnProporcionAlTamano) {
    LimitesDeLectura limites{1000};
    limites.ContarCeldas(600'000);
    limites.ContarCeldas(400'500);
    EXPECT_THROW(limites.ContarCeldas(1), ErrorMotor);
}

TEST(LimitesDeLectura, LosTextosVanEnProporcionAlTamano) {
    LimitesDeLectura limites{1000};
    limites.ContarTexto(64'016'000);
    EXPECT_THROW(limites.ContarTexto(1), ErrorMotor);
    limites.ContarCeldas(1);
}

TEST(LimitesDeLectura, UnaCuentaInmensaNoDaLaVuelta) {
    LimitesDeLectura limites{1000};
    limites.ContarCeldas(1);
    EXPECT_THROW(limites.ContarCeldas(std::numeric_limits<std::size_t>::max()), ErrorMotor);
}

} // namespace
} // namespace varo
