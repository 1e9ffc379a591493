#include "revision/ParcelaDePrueba.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

TEST(RevisarNumerosDeArbol, UnNumeroVacioORepetidoSeMira) {
    auto parcela = ParcelaSana();
    parcela.numero.celdas[3] = Nulo{};
    parcela.numero.celdas[7] = std::string{"6"};
    EXPECT_EQ(De(Sospecha::NumeroVacio, parcela).at(0).fila, 5);
    const auto repetidos = De(Sospecha::NumeroRepetido, parcela);
    ASSERT_EQ(repetidos.size(), 1U);
    EXPECT_EQ(repetidos[0].gravedad, Gravedad::Mirar);
    EXPECT_EQ(repetidos[0].fila, 9);
    EXPECT_EQ(repetidos[0].que, "El número «6» ya es el del árbol de la fila 7.");
}

TEST(RevisarNumerosDeArbol, SinNingunNumeroEsLaColumna) {
    auto parcela = ParcelaSana();
    parcela.numero.celdas.assign(12, Nulo{});
    EXPECT_EQ(De(Sospecha::ColumnaSinDatos, parcela).at(0).gravedad, Gravedad::Mirar);
    EXPECT_FALSE(Tiene(Sospecha::NumeroVacio, parcela));
}

TEST(RevisarCodigos, LosCodigosParecidosSonDos) {
    auto parcela = ParcelaSana();
    parcela.codigo->celdas[4] = std::string{"qí "};
    auto hallazgos = De(Sospecha::CodigosParecidos, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Mirar);
    EXPECT_EQ(hallazgos[0].fila, 6);
    EXPECT_EQ(hallazgos[0].que, "El código «qí » se parece a «Qi» salvo en mayúsculas, blancos o acentos.");
    parcela.opciones.datosDeParcela = true;
    EXPECT_EQ(De(Sospecha::CodigosParecidos, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.codigo->celdas[4] = std::string{"Qii"};
    EXPECT_FALSE(Tiene(Sospecha::CodigosParecidos, parcela));
}

TEST(RevisarCodigos, UnaComillaRompeLaConsulta) {
    auto parcela = ParcelaSana();
    parcela.codigo->celdas[4] = std::string{"O'Neill"};
    EXPECT_FALSE(Tiene(Sospecha::CodigoSinConsulta, parcela));
    parcela.opciones.datosDeParcela = true;
    const auto hallazgos = De(Sospecha::CodigoSinConsulta, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].que, "El código «O'Neill» lleva una comilla.");
}

TEST(RevisarCodigos, LosCodigosQueLaConsultaNoEncuentra) {
    auto parcela = ParcelaSana();
    parcela.opciones.datosDeParcela = true;
    for (const Valor& malo : std::vector<Valor>{12.5, std::string{"1.234"}, Fecha{45000}, true}) {
        parcela.codigo->celdas[4] = malo;
        EXPECT_EQ(De(Sospecha::CodigoSinConsulta, parcela).size(), 1U) << ATexto(malo);
    }
    for (const Valor& bueno :
         std::vector<Valor>{12.0, std::string{"12"}, std::string{"a,b"}, std::string{"P.s"}}) {
        parcela.codigo->celdas[4] = bueno;
        EXPECT_FALSE(Tiene(Sospecha::CodigoSinConsulta, parcela)) << ATexto(bueno);
    }
}

TEST(RevisarCodigos, UnCodigoSinTamanosNoTieneAreaQueSumar) {
    auto parcela = ParcelaSana();
    parcela.codigo->celdas[4] = std::string{"tocón"};
    parcela.opciones.datosDeParcela = true;
    EXPECT_FALSE(Tiene(Sospecha::CodigoSinTamano, parcela));
    parcela.tamano->celdas[4] = Nulo{};
    const auto hallazgos = De(Sospecha::CodigoSinTamano, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].texto, "tocón");
}

TEST(RevisarCodigos, SinNingunCodigoEsLaColumna) {
    auto parcela = ParcelaSana();
    parcela.codigo->celdas.assign(12, Nulo{});
    EXPECT_EQ(De(Sospecha::ColumnaSinDatos, parcela).at(0).gravedad, Gravedad::Mirar);
    EXPECT_FALSE(Tiene(Sospecha::ArbolSinCodigo, parcela));
    parcela.opciones.independientes.pies = true;
    EXPECT_EQ(De(Sospecha::ColumnaSinDatos, parcela).at(0).gravedad, Gravedad::Numeros);
}

TEST(RevisarCabeceras, LaDelCodigoHaDeSerUnaPalabra) {
    auto parcela = ParcelaSana();
    EXPECT_FALSE(Tiene(Sospecha::CabeceraSinConsulta, parcela));
    parcela.codigo->cabecera = "Código de especie";
    parcela.codigo->unaPalabra = false;
    EXPECT_EQ(De(Sospecha::CabeceraSinConsulta, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.independientes.pies = true;
    const auto hallazgos = De(Sospecha::CabeceraSinConsulta, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].columna, "Código de especie");
}

TEST(RevisarCabeceras, LasDeLasCopasEntranEnLosDatosDeParcela) {
    auto parcela = ParcelaSana();
    parcela.copa[1].unaPalabra = false;
    parcela.opciones.independientes.pies = true;
    EXPECT_FALSE(Tiene(Sospecha::CabeceraSinConsulta, parcela));
    parcela.opciones.datosDeParcela = true;
    EXPECT_EQ(De(Sospecha::CabeceraSinConsulta, parcela).size(), 1U);
    parcela = ParcelaSana();
    parcela.copa[0].unaPalabra = false;
    parcela.opciones.independientes.pies = true;
    parcela.codigo.reset();
    EXPECT_EQ(De(Sospecha::CabeceraSinConsulta, parcela).size(), 1U);
}

TEST(RevisarCabeceras, UnCorcheteEnLaDelTamanoRompeLasConsultas) {
    auto parcela = ParcelaSana();
    parcela.tamano->cabecera = "CAP [cm]";
    EXPECT_FALSE(Tiene(Sospecha::CabeceraSinConsulta, parcela));
    parcela.opciones.independientes.areaDeMayores = true;
    EXPECT_EQ(De(Sospecha::CabeceraSinConsulta, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarCodigos, DosInventariosEnUnaHojaSonUnHallazgo) {
    auto parcela = ParcelaSana();
    for (std::size_t i = 6; i < 12; ++i) {
        parcela.numero.celdas[i] = static_cast<double>(i - 5);
    }
    const auto hallazgos = De(Sospecha::NumeroRepetido, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].que, "6 números de árbol se repiten.");
}

TEST(RevisarCodigos, UnaCabeceraQueDiceOtroPapelSeMira) {
    auto parcela = ParcelaSana();
    EXPECT_FALSE(Tiene(Sospecha::CabeceraDeOtroPapel, parcela));
    parcela.x.cabecera = "UTM_Y";
    EXPECT_EQ(De(Sospecha::CabeceraDeOtroPapel, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.x.cabecera = "UTM_X";
    EXPECT_FALSE(Tiene(Sospecha::CabeceraDeOtroPapel, parcela));
    parcela.tamano->cabecera = "Diámetro cm";
    EXPECT_TRUE(Tiene(Sospecha::CabeceraDeOtroPapel, parcela));
    parcela.opciones.circunferencia = false;
    EXPECT_FALSE(Tiene(Sospecha::CabeceraDeOtroPapel, parcela));
    parcela.tamano->cabecera = "CAP";
    EXPECT_TRUE(Tiene(Sospecha::CabeceraDeOtroPapel, parcela));
}

} // namespace
} // namespace varo
