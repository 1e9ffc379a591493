// The streets that APA remembers.
#include "indices/apa/APACalles.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

TEST(APACalles, RecuerdaUnaCalleEnElSentidoEnQueSeAnoto) {
    CallesAPA calles{3};
    calles.anotar(0, 2);
    calles.anotar(0, 1);
    EXPECT_TRUE(calles.vacia(0, 2));
    EXPECT_TRUE(calles.vacia(0, 1));
    EXPECT_FALSE(calles.vacia(2, 0));
    EXPECT_FALSE(calles.vacia(1, 2));
}

TEST(APACalles, LasQueNoLeCabenNoLasRecuerda) {
    constexpr LugarAPA muchas = 100;
    CallesAPA calles{muchas};
    LugarAPA recordadas = 0;
    for (LugarAPA b = 1; b < muchas; ++b) {
        calles.anotar(0, b);
        recordadas += calles.vacia(0, b) ? 1 : 0;
    }
    EXPECT_GE(recordadas, 6); // as many sides as most cells have
    EXPECT_LT(recordadas, muchas - 1);
    EXPECT_TRUE(calles.vacia(0, 1));
    EXPECT_FALSE(calles.vacia(1, 2));
}

} // namespace
} // namespace varo
