#include "apoyo/Fallos.h"
#include "basico/ErrorEjecucion.h"
#include "basico/Numeros.h"
#include "basico/Texto.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <locale>
#include <optional>
#include <sstream>
#include <string>
#include <utility>

using namespace varo;

namespace {

/// Texts that are numbers, nearly numbers and not numbers at all.
rc::Gen<std::string> TextoCasiNumerico() {
    const auto deNumero = rc::gen::container<std::string>(
        rc::gen::element('0', '1', '5', '9', '0', '2', '.', ',', '+', '-', 'e', 'E', ' ', '\t'));
    const auto deTodo = rc::gen::container<std::string>(rc::gen::arbitrary<char>());
    const auto conExponente = rc::gen::apply(
        [](int cifras, int decimales, int exponente) {
            return std::to_string(cifras) + "," + std::to_string(decimales) + "E" + std::to_string(exponente);
        },
        rc::gen::arbitrary<int>(), rc::gen::inRange(0, 100'000), rc::gen::inRange(-345, 330));
    return rc::gen::oneOf(deNumero, deTodo, conExponente);
}

bool SonCifras(const std::string& texto) {
    return texto.find_first_not_of("0123456789") == std::string::npos;
}

/// The text up to one of these characters, and what stands behind it (nothing at all where there is none).
std::pair<std::string, std::optional<std::string>> Partir(const std::string& texto, const char* donde) {
    const auto corte = texto.find_first_of(donde);
    if (corte == std::string::npos) {
        return {texto, std::nullopt};
    }
    return {texto.substr(0, corte), texto.substr(corte + 1)};
}

std::string SinSigno(const std::string& texto) {
    return texto.empty() || (texto[0] != '+' && texto[0] != '-') ? texto : texto.substr(1);
}

/// A second reader that splits the text instead of walking it, and leaves the value to the stream's own
/// conversion. Nothing where the text is no number, an infinity where the number is too large.
std::optional<double> LeerDeOtroModo(std::string texto) {
    texto.erase(0, texto.find_first_not_of(" \t"));
    texto.erase(texto.find_last_not_of(" \t") + 1);
    const auto [mantisa, exponente] = Partir(SinSigno(texto), "eE");
    const auto [parteEntera, parteDecimal] = Partir(mantisa, ",");
    const std::string enteras = Reemplazar(parteEntera, ".", "");
    const std::string decimales = parteDecimal.value_or("");
    const std::string potencia = SinSigno(exponente.value_or("0"));
    if (!SonCifras(enteras + decimales + potencia) || (enteras + decimales).empty() || potencia.empty()) {
        return std::nullopt;
    }
    const std::string signo = texto[0] == '-' ? "-" : "";
    std::istringstream lectura{signo + "0" + enteras + "." + decimales + "0e" + exponente.value_or("0")};
    lectura.imbue(std::locale::classic());
    double valor = 0;
    lectura >> valor;
    return lectura.fail() && std::fabs(valor) > 1 ? HUGE_VAL : valor;
}

} // namespace

TEST(ANumero, LeeConComaDecimal) {
    const struct {
        std::string texto;
        double numero;
    } casos[] = {
        {"0", 0},
        {"12,5", 12.5},
        {"0,1", 0.1},
        {",5", 0.5},
        {"5,", 5},
        {"007", 7},
        {"-3", -3},
        {"+3", 3},
        {"-,5", -0.5},
        {"1E+20", 1e20},
        {"1E20", 1e20},
        {"1e-2", 0.01},
        {"1,5E-05", 1.5e-5},
        {"5,E1", 50},
        {"0E999999999999", 0},
        {"9007199254740993", 9007199254740992.0},                         // a tie goes to the even neighbour
        {"9007199254740993,00000000000000000000001", 9007199254740994.0}, // and just above it up
        {"1,00000000000000011102230246251565404236316680908203125", 1.0},
        {"1,00000000000000011102230246251565404236316680908203126", 0x1.0000000000001p+0},
        {"2,2250738585072011E-308", 0x0.fffffffffffffp-1022},
        {"4,9406564584124654E-324", 0x0.0000000000001p-1022},
        {"2,4703282292062328E-324", 0x0.0000000000001p-1022},
        {"1,7976931348623158E308", 0x1.fffffffffffffp+1023},
        {"1E23", 0x1.52d02c7e14af6p+76},
    };
    for (const auto& [texto, numero] : casos) {
        EXPECT_EQ(ANumero(texto), numero) << texto;
        EXPECT_TRUE(EsNumerico(texto)) << texto;
    }
}

TEST(ANumero, ElPuntoSeparaGruposEnCualquierLugarDeLaParteEntera) {
    EXPECT_EQ(ANumero("1.5"), 15);
    EXPECT_EQ(ANumero("1.234,5"), 1234.5);
    EXPECT_EQ(ANumero("1.234.567"), 1234567);
    EXPECT_EQ(ANumero("1..2"), 12);
    EXPECT_EQ(ANumero(".5"), 5);
    EXPECT_EQ(ANumero("5."), 5);
    EXPECT_EQ(ANumero("-1.000,25E1"), -10002.5);
}

TEST(ANumero, LosBlancosDeLosExtremosNoCuentan) {
    EXPECT_EQ(ANumero("  12,5"), 12.5);
    EXPECT_EQ(ANumero("12,5 \t "), 12.5);
    EXPECT_EQ(ANumero("\u00A0 12,5\u00A0"), 12.5);
}

TEST(ANumero, LoQueNoEsNumeroNoCoincideEnTipo) {
    const std::string textos[] = {
        "",    " ",   "\u00A0", ".",          ",",     "-",      "+",     "..",      ".,",  "E5",
        ",E5", "1E",  "1E+",    "1E1,5",      "1E1.5", "1,2,3",  "1,2.3", "1,.5",    "5-",  "--5",
        "+-5", "- 5", "1 000",  "1\u00A0000", "12 m",  "x",      "&H10",  "0x10",    "5 €", "$5",
        "(5)", "inf", "nan",    "1e5f",       "1D5",   "12,5\n", "\n1",   "\u22125", "٣",   "5\xA0"};
    for (const std::string& texto : textos) {
        EXPECT_EQ(FalloDe([&] { (void)ANumero(texto); }), fallo::tiposDistintos) << texto;
        EXPECT_FALSE(EsNumerico(texto)) << texto;
    }
}

TEST(ANumero, ElFalloDiceElTextoYUnoLargoSeCorta) {
    const auto descripcion = [](const std::string& texto) {
        try {
            return ATexto(ANumero(texto));
        } catch (const ErrorEjecucion& error) {
            return error.descripcion();
        }
    };
    EXPECT_EQ(descripcion("1,2,3"), "No coinciden los tipos: «1,2,3» no es un número");
    EXPECT_EQ(descripcion(""), "No coinciden los tipos: no hay nada donde se espera un número");
    EXPECT_EQ(descripcion(" "), "No coinciden los tipos: « » no es un número");
    EXPECT_EQ(descripcion("1E400"), "Desbordamiento: «1E400» es un número demasiado grande");
    EXPECT_EQ(descripcion(std::string(300, '9') + "x"),
              "No coinciden los tipos: «" + std::string(40, '9') + "…» no es un número");
}

TEST(ANumero, UnCaracterNuloNoAcabaElTexto) {
    const std::string texto{"1\0", 2};
    EXPECT_EQ(FalloDe([&] { (void)ANumero(texto); }), fallo::tiposDistintos);
}

TEST(ANumero, LoDemasiadoGrandeDesborda) {
    for (const std::string texto : {"1E309", "-1E309", "1,7976931348623159E+308", "179769313486231580793e289",
                                    "1E99999999999999999999", "0,001E312"}) {
        EXPECT_EQ(FalloDe([&] { (void)ANumero(texto); }), fallo::desbordamiento) << texto;
        EXPECT_FALSE(EsNumerico(texto)) << texto;
    }
    EXPECT_EQ(FalloDe([] { (void)ANumero(std::string(400, '9')); }), fallo::desbordamiento);
}

TEST(ANumero, LoDemasiadoPequenoEsCero) {
    EXPECT_EQ(ANumero("1E-400"), 0);
    EXPECT_EQ(ANumero("-1E-400"), 0);
    EXPECT_EQ(ANumero("2,4703282292062327E-324"), 0);
    EXPECT_EQ(ANumero("1E-99999999999999999999"), 0);
    EXPECT_EQ(ANumero("123456E-331"), 0);
    EXPECT_EQ(ANumero("0," + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(ANumero("0," + std::string(400, '0') + "1E400"), 0.1);
    EXPECT_EQ(ANumero("1" + std::string(400, '0') + "E-400"), 1);
}

RC_GTEST_PROP(EsNumerico, EsCiertoDondeANumeroNoFalla, ()) {
    const std::string texto = *TextoCasiNumerico();
    RC_ASSERT(EsNumerico(texto) == (FalloDe([&] { (void)ANumero(texto); }) == 0));
}

RC_GTEST_PROP(ANumero, LeeLoMismoQuePartiendoloYConUnFlujo, ()) {
    const std::string texto = *TextoCasiNumerico();
    const auto esperado = LeerDeOtroModo(texto);
    if (!esperado) {
        RC_ASSERT(FalloDe([&] { (void)ANumero(texto); }) == fallo::tiposDistintos);
    } else if (std::isinf(*esperado)) {
        RC_ASSERT(FalloDe([&] { (void)ANumero(texto); }) == fallo::desbordamiento);
    } else {
        RC_ASSERT(ANumero(texto) == *esperado);
    }
}

TEST(Val, LeeElNumeroDelComienzoConPuntoDecimal) {
    const struct {
        std::string texto;
        double numero;
    } casos[] = {
        {"", 0},        {"12.5", 12.5},     {"1,5", 1},    {".5", 0.5},   {"5.", 5},
        {"-3", -3},     {"+3", 3},          {"x", 0},      {"12 m2", 12}, {" 1 2\t3\n4", 1234},
        {"- 5", -5},    {"--5", 0},         {"-", 0},      {".", 0},      {"-.", 0},
        {"E5", 0},      {".E5", 0},         {"1E2", 100},  {"1e2", 100},  {"1D2", 100},
        {"1d-2", 0.01}, {"1E", 1},          {"1E+", 1},    {"1E+x", 1},   {"1 E + 2", 100},
        {"1.2.3", 1.2}, {"1.234,5", 1.234}, {"5-3", 5},    {"3/4", 3},    {"&H10", 0},
        {"1E-400", 0},  {"1E2E3", 100},     {"2 de 3", 2}, {"0x10", 0},   {"3d", 3},
        {"\u00A05", 0}, {"1\r2", 1},
    };
    for (const auto& [texto, numero] : casos) {
        EXPECT_EQ(Val(texto), numero) << texto;
    }
}

TEST(Val, LoDemasiadoGrandeDesborda) {
    EXPECT_EQ(FalloDe([] { (void)Val("1E309"); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([] { (void)Val("-1D400 m"); }), fallo::desbordamiento);
}

RC_GTEST_PROP(Val, DaLoMismoQueANumeroEnUnNumeroSinPuntos, ()) {
    const int entero = *rc::gen::arbitrary<int>();
    const std::string decimales = std::to_string(*rc::gen::inRange(0, 1'000'000));
    const std::string exponente = "E" + std::to_string(*rc::gen::inRange(-30, 30));
    const std::string conComa = std::to_string(entero) + "," + decimales + exponente;
    const std::string conPunto = std::to_string(entero) + "." + decimales + exponente;
    RC_ASSERT(Val(conPunto) == ANumero(conComa));
    RC_ASSERT(Val(conPunto + ";7") == ANumero(conComa));
}
