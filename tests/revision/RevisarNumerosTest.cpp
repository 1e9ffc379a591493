#include "revision/FormaDeTexto.h"
#include "revision/ParcelaDePrueba.h"

#include <gtest/gtest.h>

#include <limits>

namespace varo {
namespace {

TEST(FormaDeTexto, UnSoloPuntoEsDudosoYLosGruposSonDeTres) {
    EXPECT_EQ(FormaDe("12,5", true), FormaDeTexto::Corriente);
    EXPECT_EQ(FormaDe("12.5", true), FormaDeTexto::ConPunto);
    EXPECT_EQ(FormaDe("1.234", true), FormaDeTexto::ConPunto);
    EXPECT_EQ(FormaDe("-1.234,5", true), FormaDeTexto::ConGrupos);
    EXPECT_EQ(FormaDe("1.234.567", true), FormaDeTexto::ConGrupos);
    EXPECT_EQ(FormaDe("1.23.456", true), FormaDeTexto::ConPunto);
    EXPECT_EQ(FormaDe("1234.567,8", true), FormaDeTexto::ConPunto);
    EXPECT_EQ(FormaDe(".5", true), FormaDeTexto::ConPunto);
}

TEST(FormaDeTexto, LaUnidadVaDetrasDelNumero) {
    EXPECT_EQ(FormaDe("12 cm", false), FormaDeTexto::ConUnidad);
    EXPECT_EQ(FormaDe("3m", false), FormaDeTexto::ConUnidad);
    EXPECT_EQ(FormaDe("m3", false), FormaDeTexto::OtraCosa);
    EXPECT_EQ(FormaDe("12-15", false), FormaDeTexto::OtraCosa);
    EXPECT_EQ(FormaDe("?", false), FormaDeTexto::OtraCosa);
    EXPECT_EQ(FormaDe(" \t\u00A0", false), FormaDeTexto::EnBlanco);
}

TEST(RevisarNumeros, UnTextoConPuntoSeLeeSinEl) {
    auto parcela = ParcelaSana();
    parcela.x.celdas[3] = std::string{"30.3"};
    const auto hallazgos = De(Sospecha::TextoConPunto, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Numeros);
    EXPECT_EQ(hallazgos[0].fila, 5);
    EXPECT_EQ(hallazgos[0].columna, "X");
    EXPECT_EQ(hallazgos[0].texto, "30.3");
    EXPECT_EQ(hallazgos[0].que,
              "La celda dice «30.3», un texto con punto. La separación decimal es la coma y los "
              "puntos se pasan por alto: se lee 303.");
}

TEST(RevisarNumeros, LosPuntosDeMillarSeLeenBienPeroNoEnTodasLasRazones) {
    auto parcela = ParcelaSana();
    parcela.tamano->celdas[3] = std::string{"1.234,5"};
    EXPECT_EQ(De(Sospecha::TextoConGrupos, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.independientes.medias = true;
    EXPECT_EQ(De(Sospecha::TextoConGrupos, parcela).at(0).gravedad, Gravedad::Numeros);
}

TEST(RevisarNumeros, LaUnidadEnLaCeldaTerminaEnFallo) {
    auto parcela = ParcelaSana();
    parcela.tamano->celdas[5] = std::string{"72 cm"};
    EXPECT_EQ(De(Sospecha::TextoConUnidad, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.DR.activa = true;
    const auto hallazgos = De(Sospecha::TextoConUnidad, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].efecto, "Terminan en un fallo: DR.");
    EXPECT_EQ(hallazgos[0].remedio, "Deje en la celda solo el número; la unidad se elige en las opciones.");
    parcela.x.celdas[5] = std::string{"11,03 m"};
    EXPECT_EQ(De(Sospecha::TextoConUnidad, parcela).at(0).remedio,
              "Deje en la celda solo el número, en metros.");
}

TEST(RevisarNumeros, UnaPalabraEnElTamanoDeUnVerticeTerminaEnFallo) {
    auto parcela = ParcelaSana();
    parcela.tamano->celdas[0] = std::string{"?"};
    EXPECT_EQ(De(Sospecha::TextoQueNoEsNumero, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarNumeros, UnaPalabraEnUnaCoordenadaOUnaCopaTerminaEnFallo) {
    auto parcela = ParcelaSana();
    parcela.y.celdas[5] = std::string{"?"};
    parcela.copa[2].celdas[6] = std::string{"nada"};
    const auto hallazgos = De(Sospecha::TextoQueNoEsNumero, parcela);
    ASSERT_EQ(hallazgos.size(), 2U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[1].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[1].columna, "RS");
}

TEST(RevisarNumeros, UnaPalabraDebajoDeLosArbolesSoloLaLeenLasConsultas) {
    auto parcela = ParcelaSana();
    const auto fila = AnadirFila(parcela);
    parcela.copa[1].celdas[fila] = std::string{"media"};
    EXPECT_EQ(De(Sospecha::TextoQueNoEsNumero, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.datosDeParcela = true;
    EXPECT_EQ(De(Sospecha::TextoQueNoEsNumero, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarNumeros, UnBlancoNoEsUnaCeldaVacia) {
    auto parcela = ParcelaSana();
    parcela.copa[0].celdas[5] = std::string{" "};
    EXPECT_EQ(De(Sospecha::CeldaEnBlanco, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarNumeros, UnTextoSinLetrasSoloEstorbaALasConsultas) {
    auto parcela = ParcelaSana();
    parcela.copa[1].celdas[5] = std::string{};
    parcela.tamano->celdas[5] = std::string{};
    EXPECT_FALSE(Tiene(Sospecha::TextoVacio, parcela));
    parcela.opciones.independientes.medias = true;
    auto hallazgos = De(Sospecha::TextoVacio, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].columna, "CAP");
    EXPECT_EQ(hallazgos[0].efecto, "Termina en un fallo el cálculo de las razones con la media.");
    parcela.opciones.independientes.medias = false;
    parcela.opciones.datosDeParcela = true;
    EXPECT_EQ(De(Sospecha::TextoVacio, parcela).size(), 2U);
    parcela.tamano->celdas[5] = Nulo{};
    EXPECT_EQ(De(Sospecha::TextoVacio, parcela).at(0).columna, "RE");
}

TEST(RevisarNumeros, ElTamanoConPuntosDeMillarRompeLaConsultaDeLosMayores) {
    auto parcela = ParcelaSana();
    parcela.tamano->celdas[5] = std::string{"1.234,5"};
    parcela.opciones.independientes.areaDeMayores = true;
    EXPECT_EQ(De(Sospecha::TextoConGrupos, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.tamano->celdas[5] = std::string{"1.2.3"};
    EXPECT_EQ(De(Sospecha::TextoConPunto, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.tamano->celdas[5] = std::string{"12.3"};
    EXPECT_EQ(De(Sospecha::TextoConPunto, parcela).at(0).gravedad, Gravedad::Numeros);
}

TEST(RevisarNumeros, UnaFechaNoEsUnTamano) {
    auto parcela = ParcelaSana();
    parcela.tamano->celdas[5] = Fecha{45000};
    parcela.opciones.APA.activa = true;
    const auto hallazgos = De(Sospecha::CeldaDeOtraClase, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].texto, "15/03/2023");
}

TEST(RevisarNumeros, UnNumeroDesmedidoPuedeNoCaber) {
    auto parcela = ParcelaSana();
    parcela.x.celdas[5] = 1E+12;
    EXPECT_EQ(De(Sospecha::NumeroDesmedido, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.x.celdas[5] = 4'500'000.0;
    EXPECT_FALSE(Tiene(Sospecha::NumeroDesmedido, parcela));
}

TEST(RevisarNumeros, UnNumeroGuardadoComoTextoSeLeeBien) {
    auto parcela = ParcelaSana();
    parcela.tamano->celdas[5] = std::string{"72,5"};
    parcela.opciones.IDP.activa = true;
    parcela.opciones.IDP.parametro = {"TxtBAF1(0)", "2", "2", "1"};
    EXPECT_EQ(De(Sospecha::NumeroComoTexto, parcela).at(0).gravedad, Gravedad::Mirar);
}

TEST(RevisarNumeros, ElVerticeEscritoDeOtroModoNoSeReconoce) {
    auto parcela = ParcelaSana();
    parcela.opciones.APA.activa = true;
    parcela.x.celdas[0] = std::string{"0,13"};
    EXPECT_EQ(De(Sospecha::NumeroComoTexto, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.x.celdas[0] = std::string{"0,130"};
    EXPECT_EQ(De(Sospecha::NumeroComoTexto, parcela).at(0).gravedad, Gravedad::Fallo) << "tiene altura 0";
    parcela.x.celdas[0] = 0.13;
    parcela.x.celdas[5] = std::string{"11,030"};
    EXPECT_EQ(De(Sospecha::NumeroComoTexto, parcela).at(0).gravedad, Gravedad::Mirar);
}

TEST(RevisarNumeros, UnaColumnaDeTextosEsUnSoloHallazgo) {
    auto parcela = ParcelaSana();
    for (auto& celda : parcela.tamano->celdas) {
        celda = std::string{"12.5"};
    }
    const auto hallazgos = De(Sospecha::TextoConPunto, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].fila, 0);
    EXPECT_EQ(hallazgos[0].columna, "CAP");
    EXPECT_EQ(hallazgos[0].que.substr(0, 44), "Todas las celdas de la columna son así. La ");
}

TEST(RevisarNumeros, UnaColumnaSinDatosSeDiceUnaVez) {
    auto parcela = ParcelaSana();
    parcela.tamano->celdas.assign(12, Nulo{});
    EXPECT_EQ(De(Sospecha::ColumnaSinDatos, parcela).at(0).gravedad, Gravedad::Mirar);
    EXPECT_FALSE(Tiene(Sospecha::TamanoVacio, parcela));
    parcela.opciones.AOI.activa = true;
    parcela.opciones.AOI.funciones = {"a: 1,0000; b: 0,0000; c: 0,0000; d: 0,0000; e: 0,0000"};
    EXPECT_EQ(De(Sospecha::ColumnaSinDatos, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.independientes.areaBasimetrica = true;
    EXPECT_EQ(De(Sospecha::ColumnaSinDatos, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarNumeros, SinCopasNoHayContorno) {
    auto parcela = ParcelaSana();
    parcela.copa[3].celdas.assign(12, Nulo{});
    const auto hallazgos = De(Sospecha::ColumnaSinDatos, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].columna, "RO");
}

TEST(RevisarNumeros, UnaColumnaCasiVaciaSeDice) {
    auto parcela = ParcelaSana();
    for (std::size_t i = 1; i < 12; ++i) {
        parcela.tamano->celdas[i] = Nulo{};
    }
    EXPECT_EQ(De(Sospecha::ColumnaCasiVacia, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.tamano->celdas[1] = 30.0;
    EXPECT_FALSE(Tiene(Sospecha::ColumnaCasiVacia, parcela));
}

TEST(RevisarFaltas, UnTamanoVacioSeMira) {
    auto parcela = ParcelaSana();
    parcela.tamano->celdas[5] = Nulo{};
    parcela.opciones.datosDeParcela = true;
    parcela.opciones.AOI.activa = true;
    EXPECT_EQ(De(Sospecha::TamanoVacio, parcela).at(0).gravedad, Gravedad::Mirar);
}

TEST(RevisarFaltas, UnTamanoCeroTerminaEnFalloDondeSeDividePorEl) {
    auto parcela = ParcelaSana();
    parcela.tamano->celdas[5] = 0.0;
    parcela.opciones.IDP.activa = true;
    EXPECT_EQ(De(Sospecha::TamanoCero, parcela).at(0).gravedad, Gravedad::Numeros) << "entra como vecino";
    parcela.opciones.DR.activa = true;
    EXPECT_EQ(De(Sospecha::TamanoCero, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.DR.k.desde = "-1";
    EXPECT_EQ(De(Sospecha::TamanoCero, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.opciones.DR.k.desde = "0";
    parcela.tamano->celdas[5] = std::string{"0,0"};
    EXPECT_EQ(De(Sospecha::TamanoCero, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.opciones.DR.activa = false;
    parcela.opciones.APA.activa = true;
    EXPECT_EQ(De(Sospecha::TamanoCero, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarFaltas, UnTamanoNegativoDaNumerosMalosOFalla) {
    auto parcela = ParcelaSana();
    parcela.tamano->celdas[5] = -20.0;
    EXPECT_EQ(De(Sospecha::TamanoNegativo, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.APA.activa = true;
    EXPECT_EQ(De(Sospecha::TamanoNegativo, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarFaltas, ConTodosLosTamanosCeroLasRazonesFallan) {
    auto parcela = ParcelaSana();
    parcela.tamano->celdas.assign(12, 0.0);
    EXPECT_FALSE(Tiene(Sospecha::ColumnaSinDatos, parcela));
    parcela.opciones.independientes.maximos = true;
    EXPECT_EQ(De(Sospecha::ColumnaSinDatos, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarFaltas, UnaCopaVaciaFallaEnElContornoYEnISC) {
    auto parcela = ParcelaSana();
    parcela.copa[1].celdas[5] = Nulo{};
    EXPECT_EQ(De(Sospecha::CopaVacia, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.datosDeParcela = true;
    EXPECT_EQ(De(Sospecha::CopaVacia, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.ISC.activa = true;
    EXPECT_EQ(De(Sospecha::CopaVacia, parcela).at(0).gravedad, Gravedad::Fallo);
    parcela.opciones = {};
    parcela.copa[1].celdas[5] = 20.0;
    parcela.copa[1].celdas[0] = Nulo{};
    EXPECT_EQ(De(Sospecha::CopaVacia, parcela).at(0).gravedad, Gravedad::Fallo);
}

TEST(RevisarFaltas, UnToconSinCopaNiTamanoSeDiceUnaVez) {
    auto parcela = ParcelaSana();
    parcela.opciones.datosDeParcela = true;
    for (auto& medida : parcela.copa) {
        medida.celdas[5] = Nulo{};
    }
    auto hallazgos = De(Sospecha::CopaVacia, parcela);
    ASSERT_EQ(hallazgos.size(), 1U);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Numeros);
    EXPECT_EQ(hallazgos[0].columna, "RN");
    parcela.tamano->celdas[5] = Nulo{};
    EXPECT_EQ(De(Sospecha::CopaVacia, parcela).at(0).gravedad, Gravedad::Mirar) << "sin elipse";
    parcela.opciones.copasCirculares = true;
    EXPECT_EQ(De(Sospecha::CopaVacia, parcela).at(0).gravedad, Gravedad::Numeros);
}

TEST(RevisarFaltas, UnaCopaNegativaSeDice) {
    auto parcela = ParcelaSana();
    parcela.copa[1].celdas[5] = -20.0;
    EXPECT_EQ(De(Sospecha::CopaNegativa, parcela).at(0).gravedad, Gravedad::Mirar);
    parcela.opciones.datosDeParcela = true;
    EXPECT_EQ(De(Sospecha::CopaNegativa, parcela).at(0).gravedad, Gravedad::Numeros);
    parcela.opciones.ISC.activa = true;
    EXPECT_EQ(De(Sospecha::CopaNegativa, parcela).at(0).gravedad, Gravedad::Fallo);
}

} // namespace
} // namespace varo
