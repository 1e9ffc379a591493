#include "apoyo/Fallos.h"
#include "basico/DecimalExacto.h"
#include "basico/DoblesAlAzar.h"
#include "basico/ErrorEjecucion.h"
#include "basico/Numeros.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <string>

using namespace varo;

namespace {

/// What "#...0.0..." with one whole digit at least and so many decimals gives, out of exact decimal
/// arithmetic.
std::string FormatoExacto(double numero, int cifras, int decimales) {
    const DecimalExacto redondo = DecimalExacto::De(numero).conCifras(cifras).conDecimales(decimales);
    std::string texto = redondo.entero();
    const auto minimo = static_cast<std::size_t>(decimales) + 1;
    texto.insert(0, minimo - std::min(minimo, texto.size()), '0');
    texto.insert(texto.size() - static_cast<std::size_t>(decimales), ",");
    return (numero < 0 ? "-" : "") + texto;
}

} // namespace

TEST(Formato, RedondeaLaFormaDecimalConLasMitadesHaciaFuera) {
    const struct {
        double numero;
        std::string formato;
        std::string texto;
    } casos[] = {
        {0.0, "##0.00", "0,00"},
        {0.125, "##0.00", "0,13"},
        {0.285, "##0.00", "0,29"},
        {1.005, "##0.00", "1,01"},
        {2.675, "##0.00", "2,68"},
        {0.005, "##0.00", "0,01"},
        {0.015, "##0.00", "0,02"},
        {0.004999999999999999, "##0.00", "0,01"},
        {0.00499999999999999, "##0.00", "0,00"},
        {-0.004, "##0.00", "-0,00"},
        {-0.005, "##0.00", "-0,01"},
        {-0.0, "##0.00", "0,00"},
        {1e20, "##0.00", "100000000000000000000,00"},
        {123456789012345678.0, "##0.00", "123456789012346000,00"},
        {1e15, "##0.00", "1000000000000000,00"},
        {999.995, "##0.00", "1000,00"},
        {9.995, "##0.00", "10,00"},
        {0.995, "##0.00", "1,00"},
        {99999999999999.99, "##0.00", "100000000000000,00"},
        {1e-320, "##0.00", "0,00"},
        {-1234.5, "##0.00", "-1234,50"},
        {8.345, "##0.00", "8,35"},
        {1.115, "##0.00", "1,12"},
        {1.145, "##0.00", "1,15"},
        {4.35, "##0.00", "4,35"},
        {0.1e-3, "##0.00", "0,00"},
        {1000000000000.005, "##0.00", "1000000000000,01"},
        {12345678901.235, "##0.00", "12345678901,24"},
        {-3.0, "##0.00", "-3,00"}, // the result markers
        {-2.0, "##0.00", "-2,00"},
        {-1.0, "##0.00", "-1,00"},
        {0.0, "##0.0000", "0,0000"},
        {1.0, "##0.0000", "1,0000"},
        {0.00005, "##0.0000", "0,0001"},
        {0.00015, "##0.0000", "0,0002"},
        {0.12345, "##0.0000", "0,1235"},
        {2.00005, "##0.0000", "2,0001"},
        {-0.00004, "##0.0000", "-0,0000"},
        {33.33333333333333, "##0.0000", "33,3333"},
        {0.00004999999999999999, "##0.0000", "0,0001"},
        {0.00005, "#0.0000", "0,0001"},
        {12.34565, "#0.0000", "12,3457"},
        {0.5, "#0.0000", "0,5000"},
        {0.5, "##.0;;0", ",5"},
        {0.0, "##.0;;0", "0"},
        {-0.0, "##.0;;0", "0"},
        {0.04, "##.0;;0", ",0"},
        {0.05, "##.0;;0", ",1"},
        {-3.0, "##.0;;0", ""},
        {12.34, "##.0;;0", "12,3"},
        {1234.56, "##.0;;0", "1234,6"},
        {99.95, "##.0;;0", "100,0"},
        {1e20, "##.0;;0", "100000000000000000000,0"},
        {0.5, "###.0;;0", ",5"},
        {0.0, "###.0;;0", "0"},
        {-0.5, "###.0;;0", ""},
        {1999.96, "###.0;;0", "2000,0"},
        {0.5, "##.0", ",5"},
        {0.0, "##.0", ",0"},
        {-0.5, "##.0", "-,5"},
        {-0.04, "##.0", "-,0"},
        {0.0, "#0.0", "0,0"},
        {0.05, "#0.0", "0,1"},
        {0.25, "#0.0", "0,3"},
        {0.35, "#0.0", "0,4"},
        {-0.04, "#0.0", "-0,0"},
        {14.95, "#0.0", "15,0"},
        {0.0, "##0.0", "0,0"},
        {99.95, "##0.0", "100,0"},
        {0.0, "#0.0;;0", "0"},
        {0.04, "#0.0;;0", "0,0"},
        {-0.04, "#0.0;;0", ""},
        {3.14, "#0.0;;0", "3,1"},
        {0.0, "###0.0", "0,0"},
        {12345.65, "###0.0", "12345,7"},
        {-0.05, "###0.0", "-0,1"},
        {0.0, "0.00", "0,00"},
        {0.045, "0.00", "0,05"},
        {7.0, "0.00", "7,00"},
        {0.0, "#", ""},
        {0.5, "#", "1"},
        {12.0, "#", "12"},
        {0.0, "0.0#", "0,0"},
        {0.126, "0.0#", "0,13"},
        {0.5, "0.0#", "0,5"},
        {0.05, "0.0#", "0,05"},
        {0.0, "000.0", "000,0"},
        {7.25, "000.0", "007,3"},
        {1234.5, "000.0", "1234,5"},
        {0.0, "0;0.0", "0"},
        {-7.25, "0;0.0", "7,3"},
        {7.25, "0;0.0", "7"},
        {0.0, "0.0;0.0;", ""},
        {-7.25, "0.0;0.0;", "7,3"},
        {7.25, "0.0;0.0;", "7,3"},
    };
    for (const auto& [numero, formato, texto] : casos) {
        EXPECT_EQ(Formato(numero, formato), texto) << formato << " de " << ATextoCorto(numero);
    }
}

TEST(Formato, ElMayorNumeroSaleConTodasSusCifras) {
    const std::string esperado = "179769313486232" + std::string(294, '0') + ",00";
    EXPECT_EQ(Formato(std::numeric_limits<double>::max(), "##0.00"), esperado);
}

TEST(Formato, UnNumeroDe32BitsSeRedondeaEnSusSieteCifras) {
    const struct {
        float numero;
        std::string formato;
        std::string texto;
    } casos[] = {
        {0.285F, "##0.00", "0,29"},           {32.015625F, "##0.00", "32,02"},
        {1.005F, "##0.00", "1,01"},           {0.125F, "##0.00", "0,13"},
        {2.345F, "##0.00", "2,35"},           {0.33333334F, "##0.0000", "0,3333"},
        {1234567.5F, "##0.00", "1234568,00"}, {16777216.0F, "##0.00", "16777220,00"},
        {12345.675F, "##0.00", "12345,67"},   {0.1F, "#0.0000", "0,1000"},
    };
    for (const auto& [numero, formato, texto] : casos) {
        EXPECT_EQ(Formato(numero, formato), texto) << formato << " de " << ATexto(numero);
    }
}

TEST(Formato, ElMismoValorEn64BitsConservaLasCifrasQueLe32BitsPierde) {
    EXPECT_EQ(Formato(static_cast<double>(1.005F), "##0.00"), "1,00"); // 1,00499999523162…
    EXPECT_EQ(Formato(1.005F, "##0.00"), "1,01");
}

TEST(Formato, UnFormatoQueNoEsDeLosNuestrosEsUnArgumentoNoValido) {
    for (const std::string formato : {"0,0", "x", "0.0.0", "##0.00 m", "0.0;x"}) {
        EXPECT_EQ(FalloDe([&] { (void)Formato(-1.0, formato); }), fallo::argumentoNoValido) << formato;
    }
}

TEST(Formato, LoQueNoEsFinitoDesborda) {
    const double infinito = std::numeric_limits<double>::infinity();
    const double noNumero = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(FalloDe([&] { (void)Formato(infinito, "##0.00"); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([&] { (void)Formato(noNumero, "##0.00"); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([&] { (void)Formato(static_cast<float>(noNumero), "##0.00"); }), fallo::desbordamiento);
}

RC_GTEST_PROP(Formato, CoincideConLaAritmeticaDecimalExacta, ()) {
    const double numero = *DobleAlAzar();
    RC_ASSERT(Formato(numero, "##0.00") == FormatoExacto(numero, 15, 2));
    RC_ASSERT(Formato(numero, "##0.0000") == FormatoExacto(numero, 15, 4));
    RC_ASSERT(Formato(numero, "#0.0") == FormatoExacto(numero, 15, 1));
}

RC_GTEST_PROP(Formato, CoincideConLaAritmeticaDecimalExactaEn32Bits, ()) {
    const auto numero = static_cast<float>(*DobleAlAzar());
    RC_PRE(std::isfinite(numero));
    RC_ASSERT(Formato(numero, "##0.00") == FormatoExacto(static_cast<double>(numero), 7, 2));
    RC_ASSERT(Formato(numero, "##0.0000") == FormatoExacto(static_cast<double>(numero), 7, 4));
}

RC_GTEST_PROP(Formato, LasMitadesDeUnDecimalEscritoSubenSiempre, ()) {
    // n,dd5 as a person writes it, whatever its binary value: the third decimal carries into the second.
    const int centesimas = *rc::gen::inRange(0, 100'000'000);
    const double numero = ANumero(ATexto(centesimas / 100) + "," + std::to_string(centesimas / 10 % 10) +
                                  std::to_string(centesimas % 10) + "5");
    const std::string resultado = Formato(numero, "##0.00");
    const std::string entero = std::to_string(centesimas + 1);
    const std::string esperado = entero.size() < 3 ? std::string(3 - entero.size(), '0') + entero : entero;
    RC_ASSERT(resultado ==
              esperado.substr(0, esperado.size() - 2) + "," + esperado.substr(esperado.size() - 2));
}
