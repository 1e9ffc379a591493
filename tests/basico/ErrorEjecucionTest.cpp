#include "basico/ErrorEjecucion.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

using namespace varo;

TEST(DescripcionError, UsaLasPalabrasDeLaPlataforma) {
    const std::pair<int, std::string> casos[] = {
        {5, "Argumento o llamada a procedimiento no válida"},
        {6, "Desbordamiento"},
        {9, "El subíndice está fuera del intervalo"},
        {11, "División por cero"},
        {13, "No coinciden los tipos"},
        {52, "Nombre o número de archivo incorrecto"},
        {94, "Uso no válido de Null"},
    };
    for (const auto& [numero, texto] : casos) {
        EXPECT_EQ(DescripcionError(numero), texto);
    }
}

TEST(DescripcionError, CadaFalloConNombreTieneLaSuya) {
    const int numeros[] = {fallo::argumentoNoValido,
                           fallo::desbordamiento,
                           fallo::fueraDeIndice,
                           fallo::divisionPorCero,
                           fallo::tiposDistintos,
                           fallo::nombreDeArchivo,
                           fallo::archivoNoEncontrado,
                           fallo::discoLleno,
                           fallo::permisoDenegado,
                           fallo::accesoAlArchivo,
                           fallo::rutaNoEncontrada,
                           fallo::objetoNoEstablecido,
                           fallo::usoDeNulo,
                           fallo::funcionDeHoja,
                           fallo::sinRegistroActual,
                           fallo::formatoNoReconocido,
                           fallo::archivoDanado,
                           fallo::archivoCifrado,
                           fallo::elementoNoEncontrado,
                           fallo::nombreDesconocido,
                           fallo::tablaDesconocida,
                           fallo::sintaxisDeConsulta,
                           fallo::tiposDistintosEnConsulta};
    std::set<std::string> textos{DescripcionError(-1)};
    for (const int numero : numeros) {
        EXPECT_TRUE(textos.insert(DescripcionError(numero)).second) << numero;
    }
}

TEST(DescripcionError, UnNumeroCualquieraTieneUnTextoGeneral) {
    EXPECT_EQ(DescripcionError(12345), "Error definido por la aplicación o el objeto");
}

TEST(ErrorEjecucion, DiceSuNumeroYSuDescripcion) {
    const ErrorEjecucion error{fallo::divisionPorCero};
    EXPECT_EQ(error.numero(), 11);
    EXPECT_EQ(error.lugar(), "");
    EXPECT_STREQ(error.what(), "Error 11: División por cero");
}

TEST(ErrorEjecucion, CadaCapaAnadeSuLugarPorDelante) {
    ErrorEjecucion error{fallo::tiposDistintos};
    error.en("celda «CAP»").en("fila 12");
    error.en("familia di/dmed");
    EXPECT_EQ(error.lugar(), "familia di/dmed, fila 12, celda «CAP»");
    EXPECT_STREQ(error.what(), "Error 13: No coinciden los tipos (familia di/dmed, fila 12, celda «CAP»)");
}

TEST(ErrorEjecucion, ElLugarAnadidoAlVueloSeVeMasArriba) {
    const auto dentro = [] {
        try {
            throw ErrorMotor{fallo::archivoDanado, "parcela.xls: el libro está incompleto"};
        } catch (ErrorEjecucion& error) {
            error.en("tabla «Parcela1$»");
            throw;
        }
    };
    try {
        dentro();
        FAIL() << "no falló";
    } catch (const ErrorMotor& error) { // still the kind it was
        EXPECT_EQ(error.numero(), fallo::archivoDanado);
        EXPECT_EQ(error.descripcion(), "parcela.xls: el libro está incompleto");
        EXPECT_STREQ(error.what(), "Error 3049: parcela.xls: el libro está incompleto (tabla «Parcela1$»)");
    }
}

TEST(ErrorEjecucion, LaFilaDeLaHojaSePrecisaDetrasDeElla) {
    ErrorEjecucion error{fallo::tiposDistintos};
    EXPECT_FALSE(error.fila());
    error.en("columna «CAP»").enFila(12, "fila 12 de «Parcela1$»").en("familia di/dmed");
    error.precisarFila("árbol 7").precisarFila("árbol 8");
    EXPECT_EQ(error.fila(), 12);
    EXPECT_EQ(error.lugar(), "familia di/dmed, fila 12 de «Parcela1$», árbol 7, columna «CAP»");
    ErrorEjecucion solo{fallo::tiposDistintos};
    solo.enFila(3, "fila 3").precisarFila("árbol 1");
    EXPECT_EQ(solo.lugar(), "fila 3, árbol 1");
    EXPECT_STREQ(solo.what(), "Error 13: No coinciden los tipos (fila 3, árbol 1)");
}

TEST(ErrorEjecucion, LaCausaVaTrasLaDescripcionYQuedaLaPrimera) {
    ErrorEjecucion error{fallo::divisionPorCero};
    EXPECT_EQ(error.causa(), "");
    error.porque("el BAF es 0").porque("otra cosa").en("familia IDP");
    EXPECT_EQ(error.causa(), "el BAF es 0");
    EXPECT_STREQ(error.what(), "Error 11: División por cero: el BAF es 0 (familia IDP)");
}
