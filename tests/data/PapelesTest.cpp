#include "data/Papeles.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

TEST(Papeles, ElIndiceYElCodigoVanTrasLasMedidasDeCopa) {
    EXPECT_EQ(PapelDeCopa(0), 2);
    EXPECT_EQ(PapelIndice(DatosDeCopa::CuatroRadios), 6);
    EXPECT_EQ(PapelCodigo(DatosDeCopa::CuatroRadios), 7);
    EXPECT_EQ(PapelIndice(DatosDeCopa::DosDiametros), 4);
    EXPECT_EQ(PapelCodigo(DatosDeCopa::DosDiametros), 5);
    EXPECT_EQ(PapelIndice(DatosDeCopa::RadioMedio), 3);
    EXPECT_EQ(PapelCodigo(DatosDeCopa::RadioMedio), 4);
}

} // namespace
} // namespace varo::prueba
