#include "revision/ParcelaDePrueba.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

TEST(RevisarFilas, DeUnaParcelaSanaNoDiceNada) {
    EXPECT_TRUE(Revisar(ParcelaSana()).empty());
}

TEST(RevisarFilas, LaFilaTotalCuentaEnElAreaBasimetrica) {
    auto parcela = ParcelaSana();
    const auto fila = AnadirFila(parcela);
    parcela.numero.celdas[fila] = std::string{"Total"};
    parcela.tamano->celdas[fila] = 955.0;
    EXPECT_EQ(De(Sospecha::FilaSinSitio, parcela).at(0).gravedad, Gravedad::Mirar);

    parcela.opciones.independientes.areaBasimetrica = true;
    const auto hallazgos = De(Sospecha::FilaSinSitio, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Numeros);
    EXPECT_EQ(hallazgos[0].fila, 14);
    EXPECT_EQ(hallazgos[0].arbol, "Total");
    EXPECT_EQ(hallazgos[0].columna, "CAP");
    EXPECT_EQ(hallazgos[0].texto, "955");
    EXPECT_EQ(
        hallazgos[0].que,
        "La fila parece una suma o una media de las demás, y no un árbol: no tiene coordenadas y sí otros "
        "datos.");
    EXPECT_EQ(hallazgos[0].efecto, "No se dibuja ni recibe índices, pero cuenta como un árbol más en el área "
                                   "basimétrica (AB).");
}

TEST(RevisarFilas, UnArbolMedidoSinSitioCuentaEnLosPies) {
    auto parcela = ParcelaSana();
    parcela.x.celdas[4] = Nulo{};
    parcela.y.celdas[4] = Nulo{};
    parcela.opciones.independientes.pies = true;
    const auto hallazgos = De(Sospecha::FilaSinSitio, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Numeros);
    EXPECT_EQ(hallazgos[0].fila, 6);
    EXPECT_EQ(hallazgos[0].arbol, "5");
}

TEST(RevisarFilas, SinCodigosLosPiesSeCuentanPorLaPrimeraMedidaDeLaCopa) {
    auto parcela = ParcelaSana();
    parcela.codigo.reset();
    parcela.opciones.independientes.pies = true;
    const auto fila = AnadirFila(parcela);
    EXPECT_FALSE(Tiene(Sospecha::FilaSinSitio, parcela));
    parcela.copa[0].celdas[fila] = 12.0;
    EXPECT_EQ(De(Sospecha::FilaSinSitio, parcela).at(0).gravedad, Gravedad::Numeros);
}

TEST(RevisarFilas, UnaNotaBajoLosArbolesNoEsNada) {
    auto parcela = ParcelaSana();
    parcela.opciones.independientes.areaBasimetrica = true;
    AnadirFila(parcela);
    EXPECT_TRUE(Revisar(parcela).empty());
}

TEST(RevisarFilas, UnaSolaCoordenadaTerminaEnFallo) {
    auto parcela = ParcelaSana();
    parcela.y.celdas[4] = Nulo{};
    const auto hallazgos = De(Sospecha::FilaConMediaCoordenada, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].fila, 6);
    EXPECT_EQ(hallazgos[0].numeroDeColumna, columnaDeY);
}

TEST(RevisarFilas, UnArbolSinCodigoNoSeCuenta) {
    auto parcela = ParcelaSana();
    parcela.codigo->celdas[2] = Nulo{};
    EXPECT_EQ(De(Sospecha::ArbolSinCodigo, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.datosDeParcela = true;
    const auto hallazgos = De(Sospecha::ArbolSinCodigo, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Numeros);
    EXPECT_EQ(hallazgos[0].efecto,
              "No se cuenta en los datos de parcela, y las cifras salen menores de lo que son, o negativas.");
    parcela.codigo.reset();
    EXPECT_FALSE(Tiene(Sospecha::ArbolSinCodigo, parcela));
}

TEST(RevisarFilas, LosPiesNegativosNoValen) {
    auto parcela = ParcelaSana();
    parcela.pies = {{"Ps", {105.5, ""}}, {"Qi", {-33.0, ""}}};
    const auto hallazgos = De(Sospecha::PiesNoPositivos, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Numeros);
    EXPECT_EQ(hallazgos[0].que, "Salen -33,0 pies por hectárea del código «Qi».");
}

TEST(RevisarFilas, UnaFilaSinSitioSoloCuentaDondeSuma) {
    auto parcela = ParcelaSana();
    const auto fila = AnadirFila(parcela);
    parcela.tamano->celdas[fila] = 0.0;
    parcela.opciones.independientes.areaBasimetrica = true;
    EXPECT_EQ(De(Sospecha::FilaSinSitio, parcela).at(0).gravedad, Gravedad::Mirar) << "0 no suma nada";
    parcela.tamano->celdas[fila] = 900.0;
    EXPECT_EQ(De(Sospecha::FilaSinSitio, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.independientes = {};
    parcela.opciones.independientes.areaDeMayores = true;
    EXPECT_EQ(De(Sospecha::FilaSinSitio, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.independientes = {};
    parcela.opciones.datosDeParcela = true;
    EXPECT_EQ(De(Sospecha::FilaSinSitio, parcela).at(0).gravedad, Gravedad::Mirar) << "se suma por códigos";
    parcela.codigo->celdas[fila] = std::string{"Ps"};
    EXPECT_EQ(De(Sospecha::FilaSinSitio, parcela).at(0).gravedad, Gravedad::Numeros);
}

TEST(RevisarFilas, UnaFilaSinSitioConCopaSumaEnLosDatosDeParcela) {
    auto parcela = ParcelaSana();
    const auto fila = AnadirFila(parcela);
    for (auto& medida : parcela.copa) {
        medida.celdas[fila] = 20.0;
    }
    EXPECT_EQ(De(Sospecha::FilaSinSitio, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.datosDeParcela = true;
    EXPECT_EQ(De(Sospecha::FilaSinSitio, parcela).at(0).efecto,
              "No se dibuja ni recibe índices, pero cuenta como un árbol más en los datos de parcela.");
    parcela.copa[1].celdas[fila] = Nulo{};
    EXPECT_FALSE(Tiene(Sospecha::FilaSinSitio, parcela)) << "sin una medida no hay área";
}

TEST(RevisarFilas, UnArbolLlamadoTotalNoEsUnArbol) {
    auto parcela = ParcelaSana();
    for (const char* const nombre : {"Total", "Nº medio", "SUMA:", "media"}) {
        parcela.numero.celdas[5] = std::string{nombre};
        parcela.codigo->celdas[5] = Nulo{};
        EXPECT_EQ(De(Sospecha::FilaDeSuma, parcela).at(0).gravedad, Gravedad::Numeros) << nombre;
        EXPECT_FALSE(Tiene(Sospecha::ArbolSinCodigo, parcela));
    }
    for (const char* const nombre : {"7b", "Totalán", "Maximiliano"}) {
        parcela.numero.celdas[5] = std::string{nombre};
        EXPECT_FALSE(Tiene(Sospecha::FilaDeSuma, parcela)) << nombre;
    }
}

TEST(RevisarFilas, LaUltimaFilaQueSumaLasDemasNoEsUnArbol) {
    auto parcela = ParcelaSana();
    double suma = 0;
    for (std::size_t i = 0; i < 11; ++i) {
        suma += std::get<double>(parcela.tamano->celdas[i]);
    }
    parcela.tamano->celdas[11] = suma;
    const auto hallazgos = De(Sospecha::FilaDeSuma, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].fila, 13);
    parcela.tamano->celdas[11] = suma + 0.1;
    EXPECT_FALSE(Tiene(Sospecha::FilaDeSuma, parcela));
}

TEST(RevisarFilas, UnaCabeceraRepetidaEsUnSoloHallazgo) {
    auto parcela = ParcelaSana();
    for (auto* const columna : {&parcela.x, &parcela.y, &*parcela.tamano, &*parcela.codigo}) {
        columna->celdas[5] = columna->cabecera;
    }
    for (auto& medida : parcela.copa) {
        medida.celdas[5] = medida.cabecera;
    }
    const auto hallazgos = Revisar(parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].sospecha, Sospecha::FilaDeCabecera);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].fila, 7);
}

TEST(RevisarFilas, ConElipsesCuentaElOrdenDeLaHoja) {
    auto parcela = ParcelaSana();
    parcela.enOrden = false;
    EXPECT_FALSE(Tiene(Sospecha::FilasDesordenadas, parcela));
    parcela.opciones.datosDeParcela = true;
    EXPECT_EQ(De(Sospecha::FilasDesordenadas, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.copasCirculares = true;
    EXPECT_FALSE(Tiene(Sospecha::FilasDesordenadas, parcela));
}

TEST(RevisarFilas, CeroPiesTerminanEnFalloDondeSeDividePorEllos) {
    auto parcela = ParcelaSana();
    parcela.pies = {{"", {0, ""}}};
    EXPECT_EQ(De(Sospecha::PiesNoPositivos, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.independientes.areasProporcionales = true;
    EXPECT_EQ(De(Sospecha::PiesNoPositivos, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.pies = {{"Ps", {0, ""}}};
    EXPECT_EQ(De(Sospecha::PiesNoPositivos, parcela).at(0).gravedad, Gravedad::Numeros)
        << "se divide por los de todos";
}

TEST(RevisarFilas, LaCuentaQueFallaSeDice) {
    auto parcela = ParcelaSana();
    parcela.pies = {{"O'Neill", {0, "el código lleva una comilla"}}};
    const auto hallazgos = De(Sospecha::CuentaConFallo, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].que,
              "Los pies por hectárea del código «O'Neill» no se pueden contar: el código lleva "
              "una comilla.");
}

TEST(RevisarFilas, SinCoordenadasNoHayArboles) {
    auto parcela = ParcelaSana();
    parcela.x.celdas.assign(12, Nulo{});
    EXPECT_FALSE(Tiene(Sospecha::SinArboles, parcela));
    parcela.y.celdas.assign(12, Nulo{});
    EXPECT_EQ(De(Sospecha::SinArboles, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarFilas, UnaHojaDemasiadoLargaNoSePuedeAbrir) {
    auto parcela = ParcelaSana();
    parcela.filas.resize(32'766);
    EXPECT_FALSE(Tiene(Sospecha::DemasiadasFilas, parcela));
    parcela.filas.resize(32'767);
    EXPECT_EQ(De(Sospecha::DemasiadasFilas, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(Cuaderno, DeUnaClaseSeDicenUnasFilasYLasDemasJuntas) {
    auto parcela = ParcelaSana();
    parcela.codigo->celdas.assign(12, Nulo{});
    parcela.codigo->celdas[11] = std::string{"Ps"};
    const auto hallazgos = Revisar(parcela, 9);
    ASSERT_EQ(hallazgos.size(), 10U); // 9, and one for the rest
    EXPECT_EQ(hallazgos.back().que, "Lo mismo pasa en otras 2 filas: 11, 12.");
    EXPECT_EQ(hallazgos.back().fila, 11);
}

TEST(Cuaderno, LoMasGraveVaDelanteYLuegoPorFilas) {
    auto parcela = ParcelaSana();
    parcela.y.celdas[9] = Nulo{};
    parcela.y.celdas[4] = Nulo{};
    parcela.codigo->celdas[2] = Nulo{};
    const auto hallazgos = Revisar(parcela);
    ASSERT_EQ(hallazgos.size(), 3U);
    EXPECT_EQ(hallazgos[0].fila, 6);
    EXPECT_EQ(hallazgos[1].fila, 11);
    EXPECT_EQ(hallazgos[2].fila, 4);
}

} // namespace
} // namespace varo
