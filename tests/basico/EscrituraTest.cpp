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
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

using namespace varo;

namespace {

/// A written number, whatever its notation: ±0,ddd × 10^punto, no digits for zero.
struct Leido {
    bool negativo = false;
    std::string cifras;
    int punto = 0;
};

Leido Leer(std::string texto) {
    Leido leido;
    if (const auto e = texto.find('E'); e != std::string::npos) {
        leido.punto = std::stoi(texto.substr(e + 1));
        texto.erase(e);
    }
    if (texto.front() == '-') {
        leido.negativo = true;
        texto.erase(0, 1);
    }
    const auto coma = std::min(texto.find(','), texto.size());
    leido.punto += static_cast<int>(coma);
    leido.cifras = texto.substr(0, coma) + texto.substr(std::min(coma + 1, texto.size()));
    const auto primera = std::min(leido.cifras.find_first_not_of('0'), leido.cifras.size());
    leido.punto -= static_cast<int>(primera);
    leido.cifras.erase(0, primera);
    leido.cifras.erase(leido.cifras.find_last_not_of('0') + 1);
    return leido;
}

std::string ConComaTras(std::size_t enteras, const std::string& cifras) {
    return enteras < cifras.size() ? cifras.substr(0, enteras) + "," + cifras.substr(enteras) : cifras;
}

/// The one way of writing each number.
std::string Escrito(const Leido& numero) {
    if (numero.cifras.empty()) {
        return "0";
    }
    const std::string signo = numero.negativo ? "-" : "";
    if (numero.punto < -3 || numero.punto > 15) {
        const int exponente = numero.punto - 1;
        const std::string dosCifras = std::abs(exponente) < 10 ? "0" : "";
        return signo + ConComaTras(1, numero.cifras) + (exponente < 0 ? "E-" : "E+") + dosCifras +
               std::to_string(std::abs(exponente));
    }
    std::string cifras = numero.cifras;
    int enteras = numero.punto;
    for (; enteras < 1; ++enteras) {
        cifras.insert(0, 1, '0');
    }
    while (static_cast<int>(cifras.size()) < enteras) {
        cifras += '0';
    }
    return signo + ConComaTras(static_cast<std::size_t>(enteras), cifras);
}

/// What the exact value rounded to so many digits looks like.
std::string EscritoConCifras(double numero, int cifras) {
    const DecimalExacto redondo = DecimalExacto::De(numero).conCifras(cifras);
    return Escrito({numero < 0, redondo.cifrasSinCeros(), redondo.punto()});
}

} // namespace

TEST(ATexto, EscribeHastaQuinceCifras) {
    const struct {
        double numero;
        std::string texto;
    } casos[] = {
        {0.1, "0,1"},
        {0.2, "0,2"},
        {0.30000000000000004, "0,3"},
        {2.675, "2,675"},
        {1.005, "1,005"},
        {1e15, "1E+15"},
        {999999999999999.0, "999999999999999"},
        {999999999999999.4, "999999999999999"},
        {999999999999999.5, "1E+15"},
        {999999999999999.9, "1E+15"},
        {99999999999999.95, "100000000000000"},
        {99999999999999.94, "99999999999999,9"},
        {1e14, "100000000000000"},
        {123456789012345.5, "123456789012346"},
        {123456789012346.5, "123456789012347"},
        {1000000000000005.0, "1,00000000000001E+15"},
        {1234567890123455.0, "1,23456789012346E+15"},
        {9007199254740993.0, "9,00719925474099E+15"},
        {1e20, "1E+20"},
        {1e22, "1E+22"},
        {1e23, "1E+23"},
        {1.5e-5, "1,5E-05"},
        {0.0001, "0,0001"},
        {0.00009999999999999995, "0,0001"},
        {0.000099999999999999999, "0,0001"},
        {0.000099999999999999, "9,9999999999999E-05"},
        {1e-4, "0,0001"},
        {1e-5, "1E-05"},
        {3.1415927, "3,1415927"},
        {3.141592653589793, "3,14159265358979"},
        {0.3333333333333333, "0,333333333333333"},
        {0.6666666666666666, "0,666666666666667"},
        {100.0, "100"},
        {1e100, "1E+100"},
        {5e-324, "4,94065645841247E-324"},
        {2.2250738585072014e-308, "2,2250738585072E-308"},
        {2.225073858507201e-308, "2,2250738585072E-308"},
        {1.7976931348623157e308, "1,79769313486232E+308"},
        {4503599627370497.5, "4,5035996273705E+15"},
        {70368744177664.015625, "70368744177664"},
        {12.5, "12,5"},
        {-0.0, "0"},
        {-12.5, "-12,5"},
        {1e-300, "1E-300"},
    };
    for (const auto& [numero, texto] : casos) {
        EXPECT_EQ(ATexto(numero), texto);
    }
}

TEST(ATexto, SumarUnDecimoYDosDecimosDaTresDecimos) {
    EXPECT_EQ(ATexto(0.1 + 0.2), "0,3");
}

TEST(ATexto, UnNumeroDe32BitsTieneSieteCifras) {
    const struct {
        float numero;
        std::string texto;
    } casos[] = {
        {0.1F, "0,1"},
        {0.333333333F, "0,3333333"},
        {1234567.5F, "1234568"},
        {1234566.5F, "1234567"},
        {32.015625F, "32,01563"},
        {16777216.0F, "16777220"},
        {1e15F, "1E+15"},
        {9.9999995e14F, "999999900000000"},
        {1e20F, "1E+20"},
        {0.0001F, "0,0001"},
        {1e-5F, "1E-05"},
        {3.4028234663852886e38F, "3,402823E+38"},
        {1.401298464324817e-45F, "1,401298E-45"},
        {0.05F, "0,05"},
        {1.625F, "1,625"},
        {2.3F, "2,3"},
        {1234567.0F, "1234567"},
        {12345678.0F, "12345680"},
    };
    for (const auto& [numero, texto] : casos) {
        EXPECT_EQ(ATexto(numero), texto);
    }
}

TEST(ATexto, EscribeLosEnteros) {
    EXPECT_EQ(ATexto(0), "0");
    EXPECT_EQ(ATexto(-3), "-3");
    EXPECT_EQ(ATexto(32767), "32767");
    EXPECT_EQ(ATexto(std::numeric_limits<int>::min()), "-2147483648");
}

TEST(ATexto, LoQueNoEsFinitoDesborda) {
    const double infinito = std::numeric_limits<double>::infinity();
    const double noNumero = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(FalloDe([&] { (void)ATexto(infinito); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([&] { (void)ATexto(noNumero); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([&] { (void)ATexto(static_cast<float>(infinito)); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([&] { (void)ATextoCorto(-infinito); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([&] { (void)ATextoCorto(noNumero); }), fallo::desbordamiento);
}

TEST(ATextoCorto, EscribeLasCifrasJustas) {
    const struct {
        double numero;
        std::string texto;
    } casos[] = {
        {0.1, "0,1"},
        {0.1 + 0.2, "0,30000000000000004"},
        {1.0 / 3, "0,3333333333333333"},
        {-0.0, "0"},
        {-12.5, "-12,5"},
        {0.0001, "0,0001"},
        {0.00001234, "1,234E-05"},
        {999999999999999.9, "999999999999999,9"},
        {999999999999999.0, "999999999999999"},
        {1e15, "1E+15"},
        {1234567890123456.0, "1,234567890123456E+15"},
        {9007199254740993.0, "9,007199254740992E+15"},
        {1e23, "1E+23"},
        {5e-324, "5E-324"},
        {std::numeric_limits<double>::max(), "1,7976931348623157E+308"},
    };
    for (const auto& [numero, texto] : casos) {
        EXPECT_EQ(ATextoCorto(numero), texto);
    }
}

RC_GTEST_PROP(ATexto, EsElRedondeoExactoAQuinceCifras, ()) {
    const double numero = *DobleAlAzar();
    RC_ASSERT(ATexto(numero) == EscritoConCifras(numero, 15));
}

RC_GTEST_PROP(ATexto, EsElRedondeoExactoASieteCifras, ()) {
    const auto numero = std::bit_cast<float>(*rc::gen::arbitrary<std::uint32_t>());
    RC_PRE(std::isfinite(numero));
    RC_ASSERT(ATexto(numero) == EscritoConCifras(static_cast<double>(numero), 7));
}

RC_GTEST_PROP(ATexto, SeLeeDeVueltaConQuinceCifras, ()) {
    const double numero = *DobleAlAzar();
    // Past this the 15 digits may round above the largest number; below, they have fewer bits to say.
    RC_PRE(numero == 0 || (std::fabs(numero) < 1.797e308 && std::fabs(numero) > 1e-290));
    const double vuelta = ANumero(ATexto(numero));
    // Half a unit of the 15th digit, and the rounding of the reading.
    RC_ASSERT(std::fabs(vuelta - numero) <= 5.2e-15 * std::fabs(numero));
    RC_ASSERT(ATexto(vuelta) == ATexto(numero));
}

RC_GTEST_PROP(ATextoCorto, SeLeeDeVueltaIgualBitABit, ()) {
    const double numero = *DobleAlAzar();
    const std::string texto = ATextoCorto(numero);
    const double esperado = numero == 0 ? 0.0 : numero; // minus zero is written without a sign
    RC_ASSERT(std::bit_cast<std::uint64_t>(ANumero(texto)) == std::bit_cast<std::uint64_t>(esperado));
}

RC_GTEST_PROP(ATextoCorto, EstaEnLaMismaNotacionQueElOtro, ()) {
    const std::string texto = ATextoCorto(*DobleAlAzar());
    RC_ASSERT(Leer(texto).cifras.size() <= 17);
    RC_ASSERT(texto == Escrito(Leer(texto)));
}

TEST(ATexto, ElMayorNumeroNoCabeDeVueltaConSusQuinceCifras) {
    const double mayor = std::numeric_limits<double>::max();
    EXPECT_EQ(FalloDe([&] { (void)ANumero(ATexto(mayor)); }), fallo::desbordamiento);
}
