#include "basico/MatrizDinamica.h"
#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

using namespace varo;

TEST(MatrizDinamica, EmpiezaSinDimensionar) {
    MatrizDinamica<double> matriz;
    EXPECT_EQ(matriz.limite(), -1);
    EXPECT_EQ(FalloDe([&] { matriz(0) = 1; }), fallo::fueraDeIndice);
}

TEST(MatrizDinamica, DimensionadaVaDeCeroASuLimiteLlenaDeCeros) {
    MatrizDinamica<double> matriz;
    matriz.redimensionar(2);
    EXPECT_EQ(matriz.limite(), 2);
    EXPECT_EQ(matriz(0), 0);
    EXPECT_EQ(matriz(1), 0);
    EXPECT_EQ(matriz(2), 0);
}

TEST(MatrizDinamica, ElLimiteCeroDejaUnElemento) {
    MatrizDinamica<std::string> matriz;
    matriz.redimensionar(0);
    matriz(0) = "único";
    EXPECT_EQ(matriz.limite(), 0);
    EXPECT_EQ(matriz(0), "único");
}

TEST(MatrizDinamica, UnIndiceFueraDeSusLimitesFalla) {
    MatrizDinamica<int> matriz;
    matriz.redimensionar(2);
    const auto& leida = matriz;
    for (const int indice : {-1, 3, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(FalloDe([&] { matriz(indice) = 1; }), fallo::fueraDeIndice) << indice;
        EXPECT_EQ(FalloDe([&] { (void)leida(indice); }), fallo::fueraDeIndice) << indice;
    }
}

TEST(MatrizDinamica, RedimensionarBorraAunqueElLimiteSeaElMismo) {
    MatrizDinamica<int> matriz;
    matriz.redimensionar(1);
    matriz(0) = 7;
    matriz(1) = 8;
    matriz.redimensionar(1);
    EXPECT_EQ(matriz(0), 0);
    EXPECT_EQ(matriz(1), 0);
}

TEST(MatrizDinamica, RedimensionarConservandoGuardaLoQueTodaviaCabe) {
    MatrizDinamica<int> matriz;
    matriz.redimensionar(2);
    matriz(0) = 7;
    matriz(1) = 8;
    matriz(2) = 9;
    matriz.redimensionarConservando(1);
    EXPECT_EQ(matriz.limite(), 1);
    matriz.redimensionarConservando(3);
    EXPECT_EQ(matriz.limite(), 3);
    EXPECT_EQ(matriz(0), 7);
    EXPECT_EQ(matriz(1), 8);
    EXPECT_EQ(matriz(2), 0) << "lo que se perdió al menguar no vuelve";
    EXPECT_EQ(matriz(3), 0);
}

TEST(MatrizDinamica, RedimensionarConservandoSirveParaLaPrimeraVez) {
    MatrizDinamica<int> matriz;
    matriz.redimensionarConservando(4);
    EXPECT_EQ(matriz.limite(), 4);
    EXPECT_EQ(matriz(4), 0);
}

TEST(MatrizDinamica, UnLimiteNegativoFallaYLaDejaComoEstaba) {
    MatrizDinamica<int> matriz;
    matriz.redimensionar(1);
    matriz(1) = 8;
    for (const int limite : {-1, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(FalloDe([&] { matriz.redimensionar(limite); }), fallo::fueraDeIndice) << limite;
        EXPECT_EQ(FalloDe([&] { matriz.redimensionarConservando(limite); }), fallo::fueraDeIndice) << limite;
    }
    EXPECT_EQ(matriz.limite(), 1);
    EXPECT_EQ(matriz(1), 8);
}

TEST(MatrizDinamica, UnaCopiaEsIndependiente) {
    MatrizDinamica<int> matriz;
    matriz.redimensionar(0);
    matriz(0) = 1;
    MatrizDinamica<int> copia = matriz;
    copia(0) = 2;
    EXPECT_EQ(matriz(0), 1);
}

TEST(TablaDinamica, TieneDosIndicesComprobados) {
    TablaDinamica<double> tabla;
    EXPECT_EQ(tabla.limite(), -1);
    EXPECT_EQ(tabla.limite2(), -1);
    tabla.redimensionar(1, 2);
    tabla(1, 2) = 7;
    EXPECT_EQ(tabla(1, 2), 7);
    EXPECT_EQ(FalloDe([&] { tabla(2, 0) = 1; }), fallo::fueraDeIndice);
    EXPECT_EQ(FalloDe([&] { tabla(0, 3) = 1; }), fallo::fueraDeIndice);
    tabla.redimensionar(1, 2);
    EXPECT_EQ(tabla(1, 2), 0) << "redimensionar limpia";
}

TEST(TablaDinamica, SinColumnasFallaYSinArbolesNo) {
    TablaDinamica<double> tabla;
    EXPECT_EQ(FalloDe([&] { tabla.redimensionar(-1, 3); }), fallo::fueraDeIndice);
    tabla.redimensionar(2, 3);
    tabla.redimensionar(2, -1);
    EXPECT_EQ(tabla.limite(), 2);
    EXPECT_EQ(FalloDe([&] { tabla(0, 0) = 1; }), fallo::fueraDeIndice);
}
