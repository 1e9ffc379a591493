#include "basico/Valor.h"
#include "apoyo/Fallos.h"
#include "basico/ErrorEjecucion.h"
#include "basico/Numeros.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>
#include <string>

using namespace varo;

TEST(Valor, EsNuloDeEntrada) {
    EXPECT_TRUE(EsNulo(Valor{}));
    EXPECT_TRUE(EsNulo(Nulo{}));
    EXPECT_FALSE(EsNulo(Valor{0.0}));
    EXPECT_FALSE(EsNulo(Valor{""}));
}

TEST(Valor, ComoNumero) {
    EXPECT_EQ(ANumero(Valor{12.5}), 12.5);
    EXPECT_EQ(ANumero(Valor{" 1.234,5 "}), 1234.5);
    EXPECT_EQ(ANumero(Valor{Fecha{39508.25}}), 39508.25);
    EXPECT_EQ(ANumero(Valor{true}), -1);
    EXPECT_EQ(ANumero(Valor{false}), 0);
}

TEST(Valor, ComoNumeroUnTextoQueNoLoEsFalla) {
    EXPECT_EQ(FalloDe([] { (void)ANumero(Valor{"Pino"}); }), fallo::tiposDistintos);
    EXPECT_EQ(FalloDe([] { (void)ANumero(Valor{""}); }), fallo::tiposDistintos);
    EXPECT_EQ(FalloDe([] { (void)ANumero(Valor{"1E400"}); }), fallo::desbordamiento);
}

TEST(Valor, ElNuloNoSeConvierte) {
    EXPECT_EQ(FalloDe([] { (void)ANumero(Valor{}); }), fallo::usoDeNulo);
    EXPECT_EQ(FalloDe([] { (void)ATexto(Valor{}); }), fallo::usoDeNulo);
}

TEST(Valor, ComoTexto) {
    EXPECT_EQ(ATexto(Valor{0.1 + 0.2}), "0,3");
    EXPECT_EQ(ATexto(Valor{" 1.5 "}), " 1.5 ");
    EXPECT_EQ(ATexto(Valor{true}), "Verdadero");
    EXPECT_EQ(ATexto(Valor{false}), "Falso");
}

TEST(Valor, LosTextosDeSiempreNoPasanPorUnValor) {
    // With both headers at hand each kind of text finds the same reader.
    const std::string texto = "1,5";
    EXPECT_EQ(ANumero(texto), 1.5);
    EXPECT_EQ(ANumero("1,5"), 1.5);
    EXPECT_EQ(ANumero(std::string_view{texto}), 1.5);
}

TEST(Valor, UnaFechaSeEscribeConSuHora) {
    const struct {
        double serie;
        std::string texto;
    } casos[] = {
        {0, "0:00:00"},
        {-0.0, "0:00:00"},
        {0.5, "12:00:00"},
        {0.37847222222222221, "9:05:00"},
        {1, "31/12/1899"},
        {2, "01/01/1900"},
        {60, "28/02/1900"}, // 1900 was no leap year
        {61, "01/03/1900"},
        {36525, "31/12/1999"},
        {36526, "01/01/2000"},
        {36585, "29/02/2000"},
        {39508, "01/03/2008"},
        {39508.378472222222, "01/03/2008 9:05:00"},
        {39508.999988425923, "01/03/2008 23:59:59"},
        {39508.999999, "02/03/2008"}, // the rounded second carries into the day
        {0.999999, "31/12/1899"},
        {39508.0000001, "01/03/2008"},
        {-1, "29/12/1899"},
        {-1.25, "29/12/1899 6:00:00"}, // the time of day counts forward before the epoch too
        {-0.25, "6:00:00"},
        {-1.999999, "0:00:00"},
        {-36522, "01/01/1800"}, // 36524 days before 1 January 1900
        {-657434, "01/01/0100"},
        {2958465, "31/12/9999"},
    };
    for (const auto& [serie, texto] : casos) {
        EXPECT_EQ(ATexto(Valor{Fecha{serie}}), texto) << serie;
    }
}

TEST(Valor, UnaFechaFueraDelCalendarioDesborda) {
    for (const double serie : {-657435.0, 2958466.0, 1e300, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(FalloDe([&] { (void)ATexto(Valor{Fecha{serie}}); }), fallo::desbordamiento) << serie;
    }
}

RC_GTEST_PROP(Valor, CadaDiaSigueAlAnterior, ()) {
    // A calendar counted by hand: the last day of the month, the leap years.
    const int dia = *rc::gen::inRange(-657434, 2958465);
    const std::string hoy = dia == 0 ? "30/12/1899" : ATexto(Valor{Fecha{static_cast<double>(dia)}});
    const std::string manana = dia == -1 ? "30/12/1899" : ATexto(Valor{Fecha{static_cast<double>(dia + 1)}});
    int d = std::stoi(hoy.substr(0, 2));
    int m = std::stoi(hoy.substr(3, 2));
    int a = std::stoi(hoy.substr(6));
    const bool bisiesto = (a % 4 == 0 && a % 100 != 0) || a % 400 == 0;
    const int dias[] = {31, bisiesto ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (++d > dias[m - 1]) {
        d = 1;
        if (++m > 12) {
            m = 1;
            ++a;
        }
    }
    RC_ASSERT(std::stoi(manana.substr(0, 2)) == d);
    RC_ASSERT(std::stoi(manana.substr(3, 2)) == m);
    RC_ASSERT(std::stoi(manana.substr(6)) == a);
    RC_ASSERT(manana.size() == 10U);
}
