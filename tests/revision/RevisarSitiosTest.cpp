#include "basico/Numeros.h"
#include "basico/Saltando.h"
#include "plot/calculo/Module1.h"
#include "revision/ParcelaDePrueba.h"

#include <gtest/gtest.h>

#include <cmath>

#include <string>

namespace varo {
namespace {

void Poner(ParcelaPorRevisar& parcela, std::size_t fila, double x, double y) {
    parcela.x.celdas[fila] = x;
    parcela.y.celdas[fila] = y;
}

TEST(RevisarContorno, ElFalloDelContornoSeDice) {
    auto parcela = ParcelaSana();
    parcela.contorno->superficie.fallo = "el contorno no se cierra";
    const auto hallazgos = De(Sospecha::ContornoConFallo, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].que, "No se puede hallar el contorno de la parcela: el contorno no se cierra.");
}

TEST(RevisarContorno, UnaParcelaSinSuperficieNoTieneCifrasPorHectarea) {
    auto parcela = ParcelaSana();
    parcela.contorno->superficie.valor = 0;
    EXPECT_EQ(De(Sospecha::SinSuperficie, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.independientes.areaDeMayores = true;
    EXPECT_EQ(De(Sospecha::SinSuperficie, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarContorno, SinContornoSeVeQueTodosEstanEnUnaLinea) {
    auto parcela = ParcelaSana();
    parcela.contorno.reset();
    EXPECT_FALSE(Tiene(Sospecha::SinSuperficie, parcela));
    for (std::size_t i = 0; i < 12; ++i) {
        Poner(parcela, i, 0.1 * static_cast<double>(i), 5 + 0.3 * static_cast<double>(i));
    }
    EXPECT_EQ(De(Sospecha::SinSuperficie, parcela).at(0).que,
              "Todos los árboles están en una línea, y la superficie de la parcela es 0.");
}

TEST(RevisarContorno, DosArbolesNoHacenParcela) {
    auto parcela = ParcelaSana();
    parcela.contorno.reset();
    parcela.filas.resize(2);
    parcela.opciones.independientes.pies = true;
    const auto hallazgos = De(Sospecha::SinSuperficie, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].que, "La parcela tiene solo dos árboles con coordenadas, y su superficie es 0.");
    parcela.filas.resize(3);
    EXPECT_FALSE(Tiene(Sospecha::SinSuperficie, parcela));
}

TEST(RevisarContorno, MasDeCincuentaHectareasSeMiran) {
    auto parcela = ParcelaSana();
    parcela.contorno->superficie.valor = 500'000;
    EXPECT_FALSE(Tiene(Sospecha::SuperficieRara, parcela));
    parcela.contorno->superficie.valor = 14'560'000;
    const auto hallazgos = De(Sospecha::SuperficieRara, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Mirar);
    EXPECT_EQ(hallazgos[0].que, "La superficie de la parcela es de 1456,0 ha.");
}

TEST(RevisarContorno, LosArbolesDominantesNoCabenEnCualquierSuperficie) {
    auto parcela = ParcelaSana();
    parcela.opciones.independientes.dominantes = true;
    parcela.contorno->superficie.valor = 50.1;
    EXPECT_FALSE(Tiene(Sospecha::SuperficieRara, parcela));
    parcela.contorno->superficie.valor = 50;
    EXPECT_EQ(De(Sospecha::SuperficieRara, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.contorno->superficie.valor = 3'276'749;
    EXPECT_EQ(De(Sospecha::SuperficieRara, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.contorno->superficie.valor = 3'276'750;
    EXPECT_EQ(De(Sospecha::SuperficieRara, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarContorno, UnLadoVerticalAcabaConLasElipsesYConAPA) {
    auto parcela = ParcelaSana();
    parcela.contorno->x[1] = 0.13;
    EXPECT_FALSE(Tiene(Sospecha::LadoVertical, parcela));
    parcela.opciones.datosDeParcela = true;
    EXPECT_EQ(De(Sospecha::LadoVertical, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.ISC.activa = true;
    EXPECT_EQ(De(Sospecha::LadoVertical, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.opciones.copasCirculares = true;
    EXPECT_EQ(De(Sospecha::LadoVertical, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.APA.activa = true;
    EXPECT_EQ(De(Sospecha::LadoVertical, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.contorno->x[1] = 0.61;
    EXPECT_FALSE(Tiene(Sospecha::LadoVertical, parcela));
}

TEST(RevisarContorno, ElLadoVerticalQueCierraNoEstorbaALaCubierta) {
    auto parcela = ParcelaSana();
    parcela.contorno->x[5] = 0.13;
    parcela.opciones.datosDeParcela = true;
    EXPECT_FALSE(Tiene(Sospecha::LadoVertical, parcela));
    parcela.opciones.APA.activa = true;
    EXPECT_EQ(De(Sospecha::LadoVertical, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarContorno, UnArbolSobreUnLadoSeDiceDondeSuAlturaFalla) {
    auto parcela = ParcelaSana();
    const auto& contorno = *parcela.contorno;
    int fallan = 0;
    constexpr int puntos = 48; // from the second vertex to the third one
    for (int n = 1; n < puntos; ++n) {
        const double x = ANumero(ATexto(0.61 + (10.57 - 0.61) * n / puntos));
        const double y = ANumero(ATexto(19.87 + (20.51 - 19.87) * n / puntos));
        Poner(parcela, 4, x, y);
        parcela.opciones.DR.activa = false;
        parcela.opciones.APA.activa = true;
        EXPECT_FALSE(Tiene(Sospecha::SobreUnLado, parcela)) << "APA no mide alturas";
        parcela.opciones.DR.activa = true;
        const bool falla =
            Saltando([&] {
                AlturaTriangulo(x, y, contorno.x[1], contorno.y[1], contorno.x[2], contorno.y[2]);
            }).has_value();
        const auto hallazgos = De(Sospecha::SobreUnLado, parcela);
        ASSERT_EQ(hallazgos.size(), falla ? 1U : 0U) << n;
        if (falla) {
            ++fallan;
            EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
            EXPECT_EQ(hallazgos[0].fila, 6);
        }
    }
    EXPECT_GT(fallan, 0);
    EXPECT_LT(fallan, puntos - 1);
}

TEST(RevisarContorno, PocosArbolesODemasiadosParaSuSuperficieSeMiran) {
    auto parcela = ParcelaSana();
    EXPECT_FALSE(Tiene(Sospecha::DensidadRara, parcela));
    parcela.contorno->superficie.valor = 56'700;
    EXPECT_EQ(De(Sospecha::DensidadRara, parcela).at(0).que,
              "Hay muy pocos árboles para la superficie de la parcela, 56700,0 m2: 2 por hectárea.");
    parcela.contorno->superficie.valor = 5.67;
    EXPECT_EQ(De(Sospecha::DensidadRara, parcela).at(0).gravedad, Gravedad::Mirar);
}

TEST(RevisarSitios, UnaCoordenadaDeOtroSignoSeMira) {
    auto parcela = ParcelaSana();
    for (int otra = 0; otra < 10; ++otra) {
        const auto fila = AnadirFila(parcela);
        Poner(parcela, fila, 5.13 + 2 * otra, 6.41 + 1.1 * otra);
    }
    EXPECT_FALSE(Tiene(Sospecha::SignoRaro, parcela));
    Poner(parcela, 5, -1.03, 11.47);
    EXPECT_FALSE(Tiene(Sospecha::SignoRaro, parcela)) << "junto al origen";
    Poner(parcela, 5, -11.03, 11.47);
    const auto hallazgos = De(Sospecha::SignoRaro, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].fila, 7);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Mirar);
    for (std::size_t i = 0; i < 8; ++i) {
        Poner(parcela, i, -std::get<double>(parcela.x.celdas[i]), 3.7 + static_cast<double>(i));
    }
    EXPECT_FALSE(Tiene(Sospecha::SignoRaro, parcela)) << "el origen está en medio";
}

TEST(RevisarSitios, DosArbolesEnUnSitioSeMiranODividenPorCero) {
    auto parcela = ParcelaSana();
    Poner(parcela, 6, 11.03, 11.47);
    auto hallazgos = De(Sospecha::MismoSitio, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Mirar);
    EXPECT_EQ(hallazgos[0].fila, 8);
    EXPECT_EQ(hallazgos[0].que, "El árbol está en el mismo sitio que el árbol 6 (fila 7).");
    parcela.opciones.IDP.activa = true;
    parcela.opciones.APA.activa = true;
    hallazgos = De(Sospecha::MismoSitio, parcela);
    EXPECT_EQ(hallazgos.at(0).gravedad, Gravedad::Fallo);
    EXPECT_EQ(
        hallazgos.at(0).efecto,
        "La distancia entre los dos es 0, y al dividir por ella IDP y APA pueden terminar en un fallo.");
    parcela.tamano->celdas[6] = Nulo{};
    EXPECT_EQ(De(Sospecha::MismoSitio, parcela).at(0).gravedad, Gravedad::Mirar);
}

TEST(RevisarSitios, DosArbolesEnUnVerticeDejanUnLadoSinLongitud) {
    auto parcela = ParcelaSana();
    Poner(parcela, 6, 0.61, 19.87);
    auto& contorno = *parcela.contorno;
    contorno.x.insert(contorno.x.begin() + 1, 0.61);
    contorno.y.insert(contorno.y.begin() + 1, 19.87);
    EXPECT_EQ(De(Sospecha::MismoSitio, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.ISC.activa = true;
    auto hallazgos = De(Sospecha::MismoSitio, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_TRUE(hallazgos[0].efecto.starts_with("Los dos son vértices del contorno")) << hallazgos[0].efecto;
    contorno.x.erase(contorno.x.begin() + 1);
    contorno.y.erase(contorno.y.begin() + 1);
    EXPECT_EQ(De(Sospecha::MismoSitio, parcela).at(0).gravedad, Gravedad::Mirar) << "ISC no divide por ella";
}

TEST(RevisarSitios, DRDivideSegunSuReglaYSuPeso) {
    auto parcela = ParcelaSana();
    Poner(parcela, 6, 11.03, 11.47);
    parcela.opciones.DR.activa = true;
    parcela.opciones.DR.regla = ReglaDeCompetidores::NumeroFijo;
    parcela.opciones.DR.distancias = {"EXP, a: 0,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000"};
    EXPECT_EQ(De(Sospecha::MismoSitio, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.DR.distancias = {"HIP, a: 0,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000"};
    EXPECT_EQ(De(Sospecha::MismoSitio, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.opciones.DR.distancias = {"EXP, a: 0,0000; b: 1,0000; c: -1,0000; d: 0,0000; e: 0,0000"};
    EXPECT_EQ(De(Sospecha::MismoSitio, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.opciones.DR.distancias.clear();
    parcela.opciones.DR.regla = ReglaDeCompetidores::BAF;
    EXPECT_EQ(De(Sospecha::MismoSitio, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarSitios, UnArbolLejosDeTodosTieneLaComaEnOtroSitio) {
    auto parcela = ParcelaSana();
    parcela.contorno.reset();
    Poner(parcela, 6, 1931, 8.71);
    const auto hallazgos = De(Sospecha::ArbolLejano, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Numeros);
    EXPECT_EQ(hallazgos[0].fila, 8);
    EXPECT_EQ(hallazgos[0].columna, "X");
    EXPECT_EQ(hallazgos[0].texto, "1931");
    Poner(parcela, 6, 80, 8.71);
    EXPECT_EQ(De(Sospecha::ArbolLejano, parcela).at(0).gravedad, Gravedad::Mirar);
    Poner(parcela, 6, 45, 8.71);
    EXPECT_FALSE(Tiene(Sospecha::ArbolLejano, parcela));
}

TEST(RevisarSitios, UnaParcelaQueCabeEnMedioMetroEstaEnGrados) {
    auto parcela = ParcelaSana();
    parcela.contorno.reset();
    for (std::size_t i = 0; i < 12; ++i) {
        Poner(parcela, i, -3.7 + 1E-5 * std::get<double>(parcela.x.celdas[i]),
              40.4 + 1E-5 * std::get<double>(parcela.y.celdas[i]));
    }
    EXPECT_EQ(De(Sospecha::EnGrados, parcela).at(0).gravedad, Gravedad::Numeros);
    Poner(parcela, 3, -3.1, 40.4);
    EXPECT_FALSE(Tiene(Sospecha::EnGrados, parcela));
}

TEST(RevisarAlineados, APANombraLosArbolesDeUnaMismaX) {
    auto parcela = ParcelaSana();
    parcela.x.celdas[5] = 19.31;
    parcela.x.celdas[9] = std::string{"19,31"};
    EXPECT_FALSE(Tiene(Sospecha::MismaX, parcela));
    parcela.opciones.APA.activa = true;
    const auto hallazgos = De(Sospecha::MismaX, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].fila, 7);
    EXPECT_EQ(hallazgos[0].que, "El árbol tiene la misma X que el árbol 7 (fila 8) y el árbol 10 (fila 11).");
    EXPECT_FALSE(Tiene(Sospecha::MismaY, parcela));
}

TEST(RevisarAlineados, SinTamanoNoSonVecinos) {
    auto parcela = ParcelaSana();
    parcela.opciones.APA.activa = true;
    parcela.y.celdas[5] = 8.71;
    EXPECT_TRUE(Tiene(Sospecha::MismaY, parcela));
    parcela.tamano->celdas[5] = Nulo{};
    EXPECT_FALSE(Tiene(Sospecha::MismaY, parcela));
}

TEST(RevisarAlineados, UnaCeldaNecesitaDosVecinos) {
    auto parcela = ParcelaSana();
    parcela.opciones.APA.activa = true;
    const auto tamanos = parcela.tamano->celdas;
    parcela.tamano->celdas.assign(12, Nulo{});
    parcela.tamano->celdas[5] = tamanos[5];
    EXPECT_EQ(De(Sospecha::PocosVecinos, parcela).at(0).que, "Solo un árbol tiene tamaño.");
    parcela.tamano->celdas[0] = tamanos[0];
    EXPECT_EQ(De(Sospecha::PocosVecinos, parcela).at(0).que, "Solo dos árboles tienen tamaño.");
    parcela.tamano->celdas[3] = tamanos[3];
    EXPECT_FALSE(Tiene(Sospecha::PocosVecinos, parcela));
    parcela.tamano->celdas[5] = Nulo{};
    EXPECT_FALSE(Tiene(Sospecha::PocosVecinos, parcela)) << "ningún árbol con celda";
}

TEST(RevisarAlineados, DosVerticesNoSeMiranElUnoAlOtro) {
    auto parcela = ParcelaSana();
    parcela.opciones.APA.activa = true;
    parcela.y.celdas[8] = 20.11;
    parcela.contorno->y[1] = 20.11;
    EXPECT_FALSE(Tiene(Sospecha::MismaY, parcela));
}

TEST(RevisarAlineados, CasiLaMismaCoordenadaTambienFalla) {
    auto parcela = ParcelaSana();
    parcela.opciones.APA.activa = true;
    EXPECT_FALSE(Tiene(Sospecha::CasiMismaY, parcela));
    parcela.y.celdas[5] = 8.71 + 1E-7;
    const auto hallazgos = De(Sospecha::CasiMismaY, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].fila, 7);
    EXPECT_EQ(hallazgos[0].que,
              "El árbol tiene casi la misma Y que el árbol 7 (fila 8): se diferencian demasiado poco para "
              "lo lejos que están.");
    parcela.y.celdas[5] = 8.71 + 1E-4;
    EXPECT_FALSE(Tiene(Sospecha::CasiMismaY, parcela));
    EXPECT_FALSE(Tiene(Sospecha::CasiMismaX, parcela));
    parcela.x.celdas[5] = 10.57 + 1E-7;
    EXPECT_EQ(De(Sospecha::CasiMismaX, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarAlineados, JuntoAUnTroncoInmensoOtroNoPesaNada) {
    auto parcela = ParcelaSana();
    parcela.opciones.APA.activa = true;
    parcela.opciones.APA.k = {"TxtBAF1(8)", "2", "4", "1"};
    parcela.tamano->celdas[5] = 180'000.0;
    EXPECT_FALSE(Tiene(Sospecha::TamanosDesproporcionados, parcela));
    parcela.tamano->celdas[5] = 1E+7;
    EXPECT_EQ(De(Sospecha::TamanosDesproporcionados, parcela).at(0).que,
              "El tamaño del árbol es inmenso junto al del árbol 1 (fila 2).");
    parcela.opciones.APA.k.hasta = "2";
    EXPECT_FALSE(Tiene(Sospecha::TamanosDesproporcionados, parcela));
}

TEST(RevisarAlineados, TresEnLineaSeNombran) {
    auto parcela = ParcelaSana();
    parcela.opciones.APA.activa = true;
    EXPECT_FALSE(Tiene(Sospecha::EnLinea, parcela));
    Poner(parcela, 4, 10.25, 8.5);
    Poner(parcela, 5, 14.5, 9.75);
    Poner(parcela, 6, 18.75, 11);
    const auto hallazgos = De(Sospecha::EnLinea, parcela);
    ASSERT_EQ(hallazgos.size(), 3U);
    EXPECT_EQ(hallazgos[0].fila, 6);
    EXPECT_EQ(hallazgos[0].que, "El árbol está en línea con el árbol 6 (fila 7) y el árbol 7 (fila 8).");
    parcela.opciones.APA.activa = false;
    EXPECT_FALSE(Tiene(Sospecha::EnLinea, parcela));
}

} // namespace
} // namespace varo
