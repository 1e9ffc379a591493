#include "plot/calculo/MallaDeCopa.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

TEST(MallaDeCopa, LosPasosSeSumanYElUltimoPuedePerderse) {
    // 0,1 added three times is a little more than 0,3.
    EXPECT_EQ(MallaDe({0, 0, 0.3, 0.3, 0, 0}, 0.1).x, (std::vector<double>{0, 0.1, 0.2}));
    EXPECT_EQ(MallaDe({0, 0, 0.4, 1, 0.2, 0}, 0.5).x, (std::vector<double>{0, 0.5, 1}));
    EXPECT_TRUE(MallaDe({0, 0, 1, -1, 1, 0.5}, 0.1).x.empty());
}

} // namespace
} // namespace varo
