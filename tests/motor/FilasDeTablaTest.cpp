#include "motor/FilasDeTabla.h"

#include <gtest/gtest.h>

#include <string>

namespace varo {
namespace {

const Valor texto{std::string{"x"}};

TEST(FilasDeTabla, DondeNoHayCeldaHayNulo) {
    const FilasDeTabla filas{{{1.0, {}, texto}, {}, {{}, 2.0}}};
    ASSERT_EQ(filas.size(), 3U);
    EXPECT_EQ(filas[0][0], Valor{1.0});
    EXPECT_TRUE(EsNulo(filas[0][1]));
    EXPECT_EQ(filas[0][2], texto);
    EXPECT_TRUE(EsNulo(filas[0][200]));
    EXPECT_TRUE(EsNulo(filas[1][0]));
    EXPECT_TRUE(EsNulo(filas[2][0]));
    EXPECT_EQ(filas[2][1], Valor{2.0});
    EXPECT_EQ(filas.conContenido(), 2U);
}

TEST(FilasDeTabla, SoloOcupaLoQueContiene) {
    FilasDeTabla filas;
    filas.poner(0, 0, 1.0);
    filas.poner(60000, 250, texto);
    filas.alargar(65535);
    ASSERT_EQ(filas.size(), 65535U);
    EXPECT_EQ(filas[60000].celdas(), 1U);
    EXPECT_EQ(filas[60000][250], texto);
    EXPECT_TRUE(EsNulo(filas[60000][249]));
    EXPECT_EQ(filas[65534].celdas(), 0U);
    EXPECT_EQ(filas.conContenido(), 2U);
}

TEST(FilasDeTabla, DeDosCeldasEnUnSitioCuentaLaUltima) {
    FilasDeTabla filas;
    filas.poner(2, 1, 1.0);
    filas.poner(2, 1, 2.0);
    EXPECT_EQ(filas[2][1], Valor{2.0});
    filas.poner(2, 1, Nulo{});
    EXPECT_TRUE(EsNulo(filas[2][1]));
    EXPECT_EQ(filas.conContenido(), 0U);
    filas.poner(3, 1, 4.0); // the same column of another row
    EXPECT_TRUE(EsNulo(filas[2][1]));
    EXPECT_EQ(filas[3][1], Valor{4.0});
}

TEST(FilasDeTabla, SonIgualesLasQueContienenLoMismo) {
    const FilasDeTabla filas{{{1.0, {}}, {{}, texto}}};
    FilasDeTabla otras;
    otras.poner(0, 0, 1.0);
    EXPECT_NE(filas, otras);
    otras.poner(1, 1, texto);
    EXPECT_EQ(filas, otras);
    otras.alargar(3);
    EXPECT_NE(filas, otras);
}

} // namespace
} // namespace varo
