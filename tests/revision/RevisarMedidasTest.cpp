#include "basico/Saltando.h"
#include "plot/calculo/AreaInterseccionCirculos.h"
#include "revision/ParcelaDePrueba.h"

#include <gtest/gtest.h>

#include <cmath>

namespace varo {
namespace {

/// A crown of four equal measures, in the unit of the sheet.
void PonerCopa(ParcelaPorRevisar& parcela, std::size_t fila, double radio) {
    for (auto& medida : parcela.copa) {
        medida.celdas[fila] = radio;
    }
}

void PonerTodasLasCopas(ParcelaPorRevisar& parcela, double radio) {
    for (std::size_t fila = 0; fila < parcela.filas.size(); ++fila) {
        PonerCopa(parcela, fila, radio);
    }
}

TEST(RevisarTroncos, UnTroncoDeMasDeTresMetrosSeDice) {
    auto parcela = ParcelaSana();
    parcela.tamano->celdas[3] = 943.0; // a girth of 300.17 cm
    EXPECT_EQ(De(Sospecha::TroncoEnorme, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.independientes.maximos = true;
    const auto hallazgos = De(Sospecha::TroncoEnorme, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Numeros);
    EXPECT_EQ(hallazgos[0].fila, 5);
    EXPECT_EQ(hallazgos[0].que, "El tronco mide 300,2 cm de diámetro, más de 3 m.");
    parcela.tamano->celdas[3] = 942.0;
    EXPECT_FALSE(Tiene(Sospecha::TroncoEnorme, parcela));
}

TEST(RevisarTroncos, ConCasiTodosGruesosEsLaUnidad) {
    auto parcela = ParcelaSana();
    parcela.opciones.cmPorTamano = 100;
    const auto hallazgos = De(Sospecha::TroncoEnorme, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].fila, 0);
    EXPECT_EQ(hallazgos[0].numeroDeColumna, columnaDelTamano);
}

TEST(RevisarTroncos, NingunoDeUnCentimetroEsLaUnidad) {
    auto parcela = ParcelaSana();
    for (std::size_t i = 0; i < 12; ++i) {
        parcela.tamano->celdas[i] = 0.3;
    }
    EXPECT_TRUE(Tiene(Sospecha::TroncosDiminutos, parcela));
    parcela.tamano->celdas[7] = 30.0;
    EXPECT_FALSE(Tiene(Sospecha::TroncosDiminutos, parcela));
}

TEST(RevisarCopas, UnaCopaDeMasDeQuinceMetrosSeMira) {
    auto parcela = ParcelaSana();
    parcela.copa[2].celdas[3] = 151.0;
    const auto hallazgos = De(Sospecha::CopaEnorme, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Mirar);
    EXPECT_EQ(hallazgos[0].columna, "RS");
    EXPECT_EQ(hallazgos[0].texto, "151");
    parcela.copa[2].celdas[3] = 150.0;
    EXPECT_FALSE(Tiene(Sospecha::CopaEnorme, parcela));
}

TEST(RevisarCopas, LaUnidadDeLosRadiosSeNotaEnTodos) {
    auto parcela = ParcelaSana();
    parcela.opciones.ISC.activa = true;
    parcela.opciones.copasCirculares = true;
    EXPECT_FALSE(Tiene(Sospecha::CopasDiminutas, parcela));
    PonerTodasLasCopas(parcela, 1.9);
    EXPECT_EQ(De(Sospecha::CopasDiminutas, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.ISC.activa = false;
    EXPECT_EQ(De(Sospecha::CopasDiminutas, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.radiosPorMetro = 1;
    PonerTodasLasCopas(parcela, 16);
    const auto hallazgos = De(Sospecha::CopaEnorme, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].fila, 0);
}

TEST(RevisarCopas, UnRadioDiezVecesOtroSeMira) {
    auto parcela = ParcelaSana();
    parcela.copa[0].celdas[3] = 2.5;
    parcela.copa[2].celdas[3] = 25.0;
    EXPECT_EQ(De(Sospecha::CopaDesigual, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.copa[0].celdas[3] = 2.6;
    EXPECT_FALSE(Tiene(Sospecha::CopaDesigual, parcela));
    parcela.copa[0].celdas[3] = 0.0;
    EXPECT_FALSE(Tiene(Sospecha::CopaDesigual, parcela));
}

TEST(RevisarCopas, UnArbolSinCopaSeMira) {
    auto parcela = ParcelaSana();
    EXPECT_FALSE(Tiene(Sospecha::ArbolSinCopa, parcela));
    PonerCopa(parcela, 5, 0);
    EXPECT_EQ(De(Sospecha::ArbolSinCopa, parcela).at(0).fila, 7);
    EXPECT_FALSE(Tiene(Sospecha::NingunaCopa, parcela));
}

TEST(RevisarCopas, SinNingunaCopaLasCifrasDeCopasNoValen) {
    auto parcela = ParcelaSana();
    PonerTodasLasCopas(parcela, 0);
    parcela.opciones.datosDeParcela = true;
    EXPECT_EQ(De(Sospecha::NingunaCopa, parcela).at(0).gravedad, Gravedad::Numeros);
    EXPECT_FALSE(Tiene(Sospecha::ArbolSinCopa, parcela));
}

TEST(RevisarCopas, UnaCopaEntreLasMuestrasAcabaConISCDeElipses) {
    auto parcela = ParcelaSana();
    parcela.opciones.ISC.activa = true;
    PonerCopa(parcela, 5, 0.4); // 4 cm: the one sample is a corner of its box
    EXPECT_EQ(De(Sospecha::CopaEntreMuestras, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.opciones.copasCirculares = true;
    EXPECT_FALSE(Tiene(Sospecha::CopaEntreMuestras, parcela));
    parcela.opciones.copasCirculares = false;
    PonerCopa(parcela, 5, 1);
    EXPECT_FALSE(Tiene(Sospecha::CopaEntreMuestras, parcela));
    PonerCopa(parcela, 5, 0);
    EXPECT_FALSE(Tiene(Sospecha::CopaEntreMuestras, parcela)); // painted with half a metre
    PonerCopa(parcela, 5, 20);
    PonerCopa(parcela, 0, 0.4); // a vertex has no index
    EXPECT_FALSE(Tiene(Sospecha::CopaEntreMuestras, parcela));
}

TEST(RevisarCopas, UnaCopaDesmedidaYEstrechaNoTieneMuestrasSinFin) {
    auto parcela = ParcelaSana();
    parcela.opciones.ISC.activa = true;
    PonerCopa(parcela, 5, 0.4);
    parcela.copa[1].celdas[5] = 1E+300;
    EXPECT_EQ(De(Sospecha::CopaEnorme, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.copa[1].celdas[5] = 300.0;
    EXPECT_EQ(De(Sospecha::CopaEnorme, parcela).at(0).gravedad, Gravedad::Mirar);
}

TEST(RevisarTroncos, UnAreaBasimetricaDesmedidaSeMira) {
    auto parcela = ParcelaSana();
    EXPECT_FALSE(Tiene(Sospecha::AreaBasimetricaRara, parcela));
    parcela.opciones.circunferencia = false; // girths read as diameters
    parcela.contorno->superficie.valor = 300;
    const auto hallazgos = De(Sospecha::AreaBasimetricaRara, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Mirar);
    parcela.contorno->superficie.valor = 5670;
    EXPECT_FALSE(Tiene(Sospecha::AreaBasimetricaRara, parcela));
}

TEST(RevisarCopas, LasCopasYLosTroncosVanJuntos) {
    auto parcela = ParcelaSana();
    EXPECT_FALSE(Tiene(Sospecha::CopasDesproporcionadas, parcela));
    parcela.opciones.radiosPorMetro = 100; // a unit one step too small
    EXPECT_EQ(De(Sospecha::CopasDesproporcionadas, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.radiosPorMetro = 10;
    parcela.opciones.cmPorTamano = 0.1;
    EXPECT_TRUE(Tiene(Sospecha::CopasDesproporcionadas, parcela));
}

TEST(RevisarSolapes, DosCopasIgualesEnUnSitioAcabanConISC) {
    auto parcela = ParcelaSana();
    parcela.opciones.ISC.activa = true;
    parcela.opciones.copasCirculares = true;
    parcela.x.celdas[6] = 11.03;
    parcela.y.celdas[6] = 11.47;
    EXPECT_FALSE(Tiene(Sospecha::CirculosIguales, parcela));
    PonerCopa(parcela, 5, 20);
    PonerCopa(parcela, 6, 20);
    const auto hallazgos = De(Sospecha::CirculosIguales, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].que,
              "La copa del árbol es un círculo igual, y en el mismo sitio, que la del árbol 7 "
              "(fila 8).");
    parcela.opciones.copasCirculares = false;
    EXPECT_FALSE(Tiene(Sospecha::CirculosIguales, parcela));
}

// By rounding, few circles that touch have no area in common.
TEST(RevisarSolapes, DosCirculosTangentesSeDicenDondeSuAreaFalla) {
    auto parcela = ParcelaSana();
    parcela.opciones.ISC.activa = true;
    parcela.opciones.copasCirculares = true;
    const double x = 24.83; // 23 m away from tree 6
    const double y = 29.87;
    parcela.x.celdas[6] = x;
    parcela.y.celdas[6] = y;
    int fallan = 0;
    constexpr int radios = 20;
    for (int radio = 1; radio < radios; ++radio) {
        PonerCopa(parcela, 5, radio);
        PonerCopa(parcela, 6, 230.0 - radio);
        const double r1 = static_cast<float>(radio / 10.0);
        const double r2 = static_cast<float>((230.0 - radio) / 10.0);
        const bool falla =
            Saltando([&] { AreaInterseccionCirculos(11.03, 11.47, x, y, r1, r2); }).has_value() ||
            Saltando([&] { AreaInterseccionCirculos(x, y, 11.03, 11.47, r2, r1); }).has_value();
        EXPECT_EQ(Tiene(Sospecha::CirculosTangentes, parcela), falla) << radio;
        fallan += falla ? 1 : 0;
    }
    EXPECT_GT(fallan, 0);
    EXPECT_LT(fallan, radios - 1);
}

TEST(RevisarSolapes, LasAreasDeInfluenciaTambienSonCirculos) {
    auto parcela = ParcelaSana();
    parcela.opciones.AOI.activa = true;
    parcela.opciones.AOI.funciones = {"a: 2,5000; b: 0,0000; c: 0,0000; d: 0,0000; e: 0,0000"};
    parcela.x.celdas[6] = 14.03;
    parcela.y.celdas[6] = 15.47;
    EXPECT_TRUE(Tiene(Sospecha::CirculosTangentes, parcela));
    parcela.opciones.AOI.funciones = {"a: 2,4000; b: 0,0000; c: 0,0000; d: 0,0000; e: 0,0000"};
    EXPECT_FALSE(Tiene(Sospecha::CirculosTangentes, parcela));
}

TEST(RevisarSolapes, QuienLlegaAlBordeNoSeCalcula) {
    auto parcela = ParcelaSana();
    parcela.opciones.ISC.activa = true;
    parcela.opciones.copasCirculares = true;
    parcela.x.celdas[6] = 11.03;
    parcela.y.celdas[6] = 11.47;
    PonerCopa(parcela, 5, 120);
    PonerCopa(parcela, 6, 120);
    EXPECT_FALSE(Tiene(Sospecha::CirculosIguales, parcela));
}

TEST(RevisarSolapes, DemasiadosSolapesNoSeCuentan) {
    auto parcela = ParcelaSana();
    parcela.contorno.reset();
    parcela.opciones.datosDeParcela = true;
    constexpr int enCuadro = 17;
    while (parcela.filas.size() < 257) { // 257 trees have 32,896 pairs
        const auto fila = AnadirFila(parcela);
        parcela.x.celdas[fila] = static_cast<double>(fila % enCuadro) / 10;
        parcela.y.celdas[fila] =
            static_cast<double>(fila / enCuadro) / 10; // NOLINT(bugprone-integer-division)
        parcela.tamano->celdas[fila] = 60.0;
        parcela.codigo->celdas[fila] = std::string{"Ps"};
        PonerCopa(parcela, fila, 40);
    }
    for (std::size_t fila = 0; fila < 12; ++fila) {
        parcela.x.celdas[fila] = 0.05 + static_cast<double>(fila) / 10;
        parcela.y.celdas[fila] = 1.85;
    }
    PonerTodasLasCopas(parcela, 40);
    EXPECT_EQ(De(Sospecha::DemasiadosSolapes, parcela).at(0).gravedad, Gravedad::Numeros);
    PonerTodasLasCopas(parcela, 2);
    EXPECT_FALSE(Tiene(Sospecha::DemasiadosSolapes, parcela));
}

} // namespace
} // namespace varo
