// Where a window stands that is to be seen beside another one.
#include "desktop/widgets/VentanasReales.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

constexpr QSize tamano{760, 340};

TEST(ElLugarAlLado, JuntoAlMarcoSiCabe) {
    const QRect pantalla{0, 0, 2560, 1440};
    const QRect marco{300, 100, 1180, 800};
    const QRect rejilla{420, 180, 900, 220};
    EXPECT_EQ(LugarAlLado(tamano, marco, rejilla, pantalla), QPoint(1480, 180));
    EXPECT_EQ(LugarAlLado(tamano, marco.translated(800, 0), rejilla.translated(800, 0), pantalla),
              QPoint(328, 180));
}

TEST(ElLugarAlLado, EnUnaPantallaPequenaEnLaEsquinaQueMenosTapa) {
    const QRect pantalla{0, 0, 1280, 800};
    const QRect marco{20, 20, 1180, 740};
    const QRect arriba{120, 80, 900, 220};
    const QRect abajo{120, 500, 900, 220};
    EXPECT_EQ(LugarAlLado(tamano, marco, arriba, pantalla), QPoint(1280 - 772, 800 - 380));
    EXPECT_EQ(LugarAlLado(tamano, marco, abajo, pantalla), QPoint(1280 - 772, 0));
}

TEST(ElLugarAlLado, DondeNoCabeEnteraEmpiezaArriba) {
    EXPECT_EQ(LugarAlLado(tamano, {0, 0, 600, 300}, {10, 10, 300, 100}, {0, 0, 640, 360}), QPoint(0, 0));
}

} // namespace
} // namespace varo::prueba
