// What the `.test` files cannot tell: texts of any length and depth, and what is left of the words of a
// query.
#include "motor/sql/Sintaxis.h"

#include "apoyo/Fallos.h"
#include "motor/BaseDatos.h"
#include "motor/TablasDePrueba.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace varo {

namespace {

using prueba::MensajeDe;
using prueba::TablaCon;

std::string Repetido(std::string_view trozo, int veces) {
    std::string texto;
    for (int i = 0; i < veces; ++i) {
        texto += trozo;
    }
    return texto;
}

/// The only value of a query over a table of one row.
Valor ValorDe(const std::string& expresion) {
    const BaseDatos base{{TablaCon("t", {"a"}, {{2.0}})}};
    return base.OpenRecordset("SELECT " + expresion + " FROM t").Fields(0).Value;
}

int FalloDeTexto(std::string_view texto) {
    return FalloDe([&] { (void)sql::Analizar(texto); });
}

TEST(Sintaxis, HastaCienParentesisUnosDentroDeOtrosSeLeen) {
    EXPECT_EQ(ValorDe(Repetido("(", 100) + "a" + Repetido(")", 100)), Valor{2.0});
    EXPECT_EQ(ValorDe(Repetido("-", 100) + "a"), Valor{2.0});
}

TEST(Sintaxis, DemasiadosParentesisOSignosSonUnFalloClaro) {
    for (const int veces : {101, 1000, 100000}) {
        for (const std::string abre : {"(", "-", "+", "NOT ", "(-"}) {
            const auto texto = "SELECT " + Repetido(abre, veces) + "a FROM t";
            EXPECT_EQ(FalloDeTexto(texto), fallo::sintaxisDeConsulta) << abre << " " << veces;
        }
    }
    const auto mensaje = MensajeDe([] { (void)sql::Analizar("SELECT " + Repetido("(", 101) + "a FROM t"); });
    EXPECT_NE(mensaje.find("demasiados paréntesis"), std::string::npos) << mensaje;
}

TEST(Sintaxis, LosParentesisSeguidosNoSonHondos) {
    EXPECT_EQ(ValorDe("0" + Repetido("+(1)", 50000)), Valor{50000.0});
    EXPECT_EQ(ValorDe("0" + Repetido("--a", 50000)), Valor{100000.0});
    EXPECT_EQ(ValorDe(Repetido("1^-", 50000) + "a"), Valor{1.0});
}

TEST(Sintaxis, UnaExpresionLarguisimaSeCalculaSinHundirse) {
    EXPECT_EQ(ValorDe("1" + Repetido("+1", 200000)), Valor{200001.0});
    EXPECT_EQ(ValorDe("a" + Repetido("^1", 100000)), Valor{2.0});
    EXPECT_EQ(ValorDe("a=2" + Repetido(" AND a=2", 50000)), Valor{true});
}

TEST(Sintaxis, CadaCampoSeAnotaUnaVez) {
    const auto consulta = sql::Analizar("SELECT a + [b] * a - c FROM t");
    EXPECT_EQ(consulta.elementos.at(0).expresion.campos, (std::vector<std::string>{"a", "b", "c"}));
}

TEST(Sintaxis, LosByteSinSentidoRompenElTexto) {
    using namespace std::string_view_literals;
    EXPECT_EQ(FalloDeTexto("SELECT \xFF FROM t"), fallo::sintaxisDeConsulta);
    EXPECT_EQ(FalloDeTexto("SELECT a\xC3"), fallo::sintaxisDeConsulta);
    EXPECT_EQ(FalloDeTexto("SELECT a\0 FROM t"sv), fallo::sintaxisDeConsulta);
    EXPECT_EQ(FalloDeTexto("SELECT a\u00A0FROM t"), fallo::sintaxisDeConsulta); // a no-break space
    EXPECT_EQ(FalloDeTexto("SELECT a×2 FROM t"), fallo::sintaxisDeConsulta);
    EXPECT_EQ(FalloDeTexto("SELECT a÷2 FROM t"), fallo::sintaxisDeConsulta);
}

TEST(Sintaxis, TabuladoresYFinesDeLineaSonBlancos) {
    EXPECT_EQ(FalloDeTexto("\tSELECT\r\na\nFROM\tt\r\n"), 0);
}

TEST(Sintaxis, LaPosicionCuentaLetrasYNoBytes) {
    const auto mensaje = MensajeDe([] { (void)sql::Analizar("SELECT [ñáé🌲] [x] FROM t"); });
    EXPECT_NE(mensaje.find("posición 15, cerca de «[x] FROM t»"), std::string::npos) << mensaje;
}

TEST(Sintaxis, DeUnTextoLargoSeDicenVeinteLetras) {
    const auto mensaje = MensajeDe([] { (void)sql::Analizar("SELECT a " + Repetido("ñ", 40)); });
    EXPECT_NE(mensaje.find("cerca de «" + Repetido("ñ", 20) + "»"), std::string::npos) << mensaje;
}

} // namespace

} // namespace varo
