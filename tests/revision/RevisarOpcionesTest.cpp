#include "revision/ParcelaDePrueba.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

constexpr const char* radioConstante = "a: 1,5000; b: 0,0000; c: 0,0000; d: 0,0000; e: 0,0000";
constexpr const char* pesoExponencial = "EXP, a: 0,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000";

ParcelaPorRevisar ConIDP(const BarridoPorRevisar& parametro) {
    auto parcela = ParcelaSana();
    parcela.opciones.IDP.activa = true;
    parcela.opciones.IDP.parametro = parametro;
    return parcela;
}

ParcelaPorRevisar ConDR() {
    auto parcela = ParcelaSana();
    parcela.opciones.DR.activa = true;
    parcela.opciones.DR.parametro = {"TxtBAF1(2)", "2", "2", "1"};
    parcela.opciones.DR.k = {"TxtBAF1(4)", "1", "1", "1"};
    parcela.opciones.DR.distancias = {pesoExponencial};
    return parcela;
}

ParcelaPorRevisar ConAOI(const std::vector<std::string>& funciones) {
    auto parcela = ParcelaSana();
    parcela.opciones.AOI.activa = true;
    parcela.opciones.AOI.k = {"TxtBAF1(6)", "1", "1", "1"};
    parcela.opciones.AOI.funciones = funciones;
    return parcela;
}

TEST(RevisarOpciones, LasOpcionesBuenasNoDicenNada) {
    auto parcela = ConDR();
    parcela.opciones.IDP.activa = true;
    parcela.opciones.IDP.parametro = {"TxtBAF1(0)", "2", "6", "2"};
    parcela.opciones.AOI = ConAOI({radioConstante}).opciones.AOI;
    parcela.opciones.ISC.activa = true;
    parcela.opciones.APA.activa = true;
    parcela.opciones.APA.k = {"TxtBAF1(8)", "0", "2", "1"};
    parcela.opciones.datosDeParcela = true;
    EXPECT_TRUE(Revisar(parcela).empty());
}

TEST(RevisarOpciones, SinColumnaDelTamanoSeTomaElNumeroDeLaFila) {
    auto parcela = ParcelaSana();
    parcela.tamano.reset();
    EXPECT_FALSE(Tiene(Sospecha::SinColumnaDelTamano, parcela));
    parcela.opciones.independientes.pies = true;
    EXPECT_FALSE(Tiene(Sospecha::SinColumnaDelTamano, parcela));
    parcela.opciones.ISC.activa = true;
    const auto hallazgos = De(Sospecha::SinColumnaDelTamano, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Numeros);
    EXPECT_EQ(hallazgos[0].efecto, "Se tomará por tamaño el número de la fila, y saldrá mal ISC.");
    parcela.opciones.independientes.areaDeMayores = true;
    EXPECT_EQ(De(Sospecha::SinColumnaDelTamano, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarOpciones, UnBAFDeCeroDivide) {
    const auto hallazgos = De(Sospecha::BafNoPositivo, ConIDP({"TxtBAF1(0)", "0,00", "4", "2"}));
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].columna, "TxtBAF1(0)");
    EXPECT_EQ(hallazgos[0].que,
              "El factor de área basimétrica (BAF) de IDP es 0 o negativo: de «0,00» a «4» con "
              "intervalo «2».");
    EXPECT_FALSE(Tiene(Sospecha::BafNoPositivo, ConIDP({"TxtBAF1(0)", "2", "4", "2"})));
    auto distancia = ConIDP({"TxtBAF1(0)", "0", "4", "2"});
    distancia.opciones.IDP.regla = ReglaDeCompetidores::Distancia;
    EXPECT_FALSE(Tiene(Sospecha::BafNoPositivo, distancia));
}

TEST(RevisarOpciones, UnBarridoHaDeSerDeNumeros) {
    EXPECT_EQ(De(Sospecha::BarridoIlegible, ConIDP({"TxtBAF1(0)", "2", "", "2"})).at(0).gravedad,
              Gravedad::Fallo);
    auto conFunciones = ConIDP({"TxtBAF1(0)", "2", "", "2"});
    conFunciones.opciones.IDP.regla = ReglaDeCompetidores::Funcion;
    EXPECT_FALSE(Tiene(Sospecha::BarridoIlegible, conFunciones));
}

TEST(RevisarOpciones, UnBarridoSinValoresTerminaEnFallo) {
    for (const BarridoPorRevisar& malo : std::vector<BarridoPorRevisar>{
             {"TxtBAF1(0)", "4", "2", "1"}, {"TxtBAF1(0)", "2", "4", "0"}, {"TxtBAF1(0)", "2", "1,5", "1"}}) {
        EXPECT_EQ(De(Sospecha::BarridoSinValores, ConIDP(malo)).size(), 1U) << malo.desde << malo.hasta;
    }
    EXPECT_FALSE(Tiene(Sospecha::BarridoSinValores, ConIDP({"TxtBAF1(0)", "2", "2", "0"})));
    EXPECT_FALSE(Tiene(Sospecha::BarridoSinValores, ConIDP({"TxtBAF1(0)", "4", "2", "-1"})));
}

TEST(RevisarOpciones, UnBarridoDeMasiadasColumnasNoCabe) {
    EXPECT_EQ(De(Sospecha::BarridoQueNoCabe, ConIDP({"TxtBAF1(0)", "1", "32768", "1"})).at(0).gravedad,
              Gravedad::Fallo);
    EXPECT_FALSE(Tiene(Sospecha::BarridoQueNoCabe, ConIDP({"TxtBAF1(0)", "1", "32767", "1"})));
    EXPECT_EQ(
        De(Sospecha::BarridoQueNoCabe, ConIDP({"TxtBAF1(0)", "1E+20", "1,00000000000001E+20", "1"})).size(),
        1U);
}

TEST(RevisarOpciones, ElRedondeoPierdeElUltimoValor) {
    EXPECT_EQ(
        De(Sospecha::BarridoConColumnaDeSobra, ConIDP({"TxtBAF1(0)", "0,1", "0,3", "0,1"})).at(0).gravedad,
        Gravedad::Numeros);
    EXPECT_EQ(De(Sospecha::BarridoConColumnaDeSobra, ConIDP({"TxtBAF1(0)", "1", "2,6", "1"})).size(), 1U);
    EXPECT_FALSE(Tiene(Sospecha::BarridoConColumnaDeSobra, ConIDP({"TxtBAF1(0)", "1", "3", "1"})));
}

TEST(RevisarOpciones, UnaFamiliaSinFuncionNoTieneColumnas) {
    EXPECT_EQ(De(Sospecha::FamiliaSinFuncion, ConAOI({})).at(0).gravedad, Gravedad::Numeros);
    EXPECT_FALSE(Tiene(Sospecha::FamiliaSinFuncion, ConAOI({radioConstante})));
    auto parcela = ConDR();
    parcela.opciones.DR.distancias.clear();
    EXPECT_EQ(De(Sospecha::FamiliaSinFuncion, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela = ConIDP({"TxtBAF1(0)", "2", "2", "1"});
    parcela.opciones.IDP.regla = ReglaDeCompetidores::Funcion;
    EXPECT_EQ(De(Sospecha::FamiliaSinFuncion, parcela).at(0).columna, "LstRich(0)");
    parcela.opciones.IDP.limites = {"A: 12,00; k: 5,00; m: 0,50"};
    EXPECT_FALSE(Tiene(Sospecha::FamiliaSinFuncion, parcela));
}

TEST(RevisarOpciones, ElRotuloPuedeDecirOtraForma) {
    auto parcela = ConDR();
    EXPECT_FALSE(Tiene(Sospecha::RotuloEquivocado, parcela));
    parcela.opciones.DR.lados = {false, true}; // labelled by the check of IDP, which is on
    EXPECT_EQ(De(Sospecha::RotuloEquivocado, parcela).at(0).efecto,
              "Se calcula la forma unilateral de DR, pero su cabecera dice bilateral.");
    parcela.opciones.IDP.lados = {false, true};
    EXPECT_FALSE(Tiene(Sospecha::RotuloEquivocado, parcela));
    parcela.opciones.DR.lados = {true, false};
    EXPECT_EQ(De(Sospecha::RotuloEquivocado, parcela).at(0).efecto,
              "Se calcula la forma bilateral de DR, pero su cabecera dice unilateral.");
    parcela.opciones.DR.lados = {true, true};
    EXPECT_FALSE(Tiene(Sospecha::RotuloEquivocado, parcela));
}

TEST(RevisarOpciones, SinFormaMarcadaElRotuloNoEsElDelCalculo) {
    auto parcela = ConIDP({"TxtBAF1(0)", "2", "2", "1"});
    parcela.opciones.IDP.lados = {false, false};
    EXPECT_EQ(De(Sospecha::RotuloEquivocado, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.IDP.lados = {true, false};
    EXPECT_FALSE(Tiene(Sospecha::RotuloEquivocado, parcela));
    parcela.opciones.IDP.conArbolCentral = false;
    EXPECT_TRUE(Tiene(Sospecha::RotuloEquivocado, parcela));
    parcela.opciones.IDP.sinArbolCentral = true;
    EXPECT_FALSE(Tiene(Sospecha::RotuloEquivocado, parcela));
}

TEST(RevisarOpciones, ConTodosLosTamanosIgualesHayColumnasIguales) {
    auto parcela = ConAOI({radioConstante});
    parcela.tamano->celdas.assign(12, 60.0);
    EXPECT_FALSE(Tiene(Sospecha::ColumnasIguales, parcela));
    parcela.opciones.AOI.lados = {true, true};
    EXPECT_EQ(De(Sospecha::ColumnasIguales, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.AOI.lados = {true, false};
    parcela.opciones.AOI.k = {"TxtBAF1(6)", "1", "2", "1"};
    EXPECT_TRUE(Tiene(Sospecha::ColumnasIguales, parcela));
    parcela.tamano->celdas[3] = 61.0;
    EXPECT_FALSE(Tiene(Sospecha::ColumnasIguales, parcela));
}

TEST(RevisarOpciones, MasCompetidoresQueArbolesDanColumnasIguales) {
    auto parcela = ConIDP({"TxtBAF1(1)", "1", "12", "1"});
    parcela.opciones.IDP.regla = ReglaDeCompetidores::NumeroFijo;
    EXPECT_TRUE(Tiene(Sospecha::ColumnasIguales, parcela)); // 11 and 12 of 11
    parcela.opciones.IDP.parametro.hasta = "11";
    EXPECT_FALSE(Tiene(Sospecha::ColumnasIguales, parcela));
}

TEST(RevisarFunciones, DosLineasPuedenSerLaMismaFuncion) {
    EXPECT_TRUE(Tiene(Sospecha::ColumnasIguales,
                      ConAOI({radioConstante, "a: 1,5000; b: 0,0000; c: 2,0000; d: 0,0000; e: 1,0000"})));
    EXPECT_FALSE(Tiene(Sospecha::ColumnasIguales,
                       ConAOI({radioConstante, "a: 1,5000; b: 0,1000; c: 2,0000; d: 0,0000; e: 1,0000"})));
}

TEST(RevisarFunciones, UnaLineaEnBlancoNoEsFuncion) {
    auto parcela = ConDR();
    EXPECT_FALSE(Tiene(Sospecha::FuncionQueFalla, parcela));
    parcela.opciones.DR.distancias.emplace_back("");
    EXPECT_EQ(De(Sospecha::FuncionQueFalla, parcela).at(0).que,
              "La línea 2 de la lista de DR no es una función: está en blanco.");
}

TEST(RevisarFunciones, UnRadioDeInfluenciaCeroONegativo) {
    const auto cero =
        De(Sospecha::FuncionQueFalla, ConAOI({"a: 0,0000; b: 0,0000; c: 0,0000; d: 0,0000; e: 0,0000"}));
    EXPECT_EQ(cero.at(0).gravedad, Gravedad::Fallo);
    const auto negativo =
        De(Sospecha::FuncionQueFalla, ConAOI({"a: -1,0000; b: 0,0000; c: 0,0000; d: 0,0000; e: 0,0000"}));
    EXPECT_EQ(negativo.at(0).gravedad, Gravedad::Numeros);
    auto conCero = ConAOI({"a: 1,0000; b: 1,0000; c: -1,0000; d: 0,0000; e: 0,0000"});
    EXPECT_FALSE(Tiene(Sospecha::FuncionQueFalla, conCero));
    conCero.tamano->celdas[3] = 0.0; // a neighbour of size 0 to a negative power
    EXPECT_EQ(De(Sospecha::FuncionQueFalla, conCero).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarFunciones, ElLimiteDeRichardsPierdeLosDecimalesDeA) {
    auto parcela = ConIDP({});
    parcela.opciones.IDP.regla = ReglaDeCompetidores::Funcion;
    parcela.opciones.IDP.limites = {"A: 9,75; k: 5,00; m: 0,50"};
    const auto hallazgos = De(Sospecha::FuncionCortada, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Numeros);
    EXPECT_EQ(hallazgos[0].que, "La A de la función de Richards, 9,75, se calcula sin sus decimales: 9.");
    parcela.opciones.IDP.limites = {"A: 9,00; k: 5,00; m: 0,50"};
    EXPECT_FALSE(Tiene(Sospecha::FuncionCortada, parcela));
    EXPECT_FALSE(Tiene(Sospecha::FuncionQueFalla, parcela));
}

TEST(RevisarFunciones, UnLimiteQueNoPasaDeCeroNoDaCompetidores) {
    auto parcela = ConDR();
    parcela.opciones.DR.regla = ReglaDeCompetidores::Funcion;
    parcela.opciones.DR.limites = {"A: 9,00; k: 0,00; m: 0,50"};
    EXPECT_EQ(De(Sospecha::FuncionQueFalla, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.DR.limites = {"A: 9,00; k: 0,00; m: 2,00"}; // 0 to a negative power
    EXPECT_EQ(De(Sospecha::FuncionQueFalla, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.opciones.DR.limites = {"A: 9,00; k: 1,00; a: 1,00; b: 1,00; c: 1,00; d: 0,00; e: 0,00"};
    EXPECT_FALSE(Tiene(Sospecha::FuncionQueFalla, parcela));
}

TEST(RevisarFunciones, UnPesoQueFallaSiempre) {
    auto parcela = ConDR();
    parcela.opciones.DR.distancias = {"HIP, a: 1,0000; b: -1,0000; c: 0,0000; d: 0,0000; e: 0,0000"};
    EXPECT_EQ(De(Sospecha::FuncionQueFalla, parcela).at(0).gravedad, Gravedad::Fallo);
}

} // namespace
} // namespace varo
