#include "motor/lectores/PaginasDeCodigos.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

TEST(PaginasDeCodigos, CadaPaginaTieneSusLetras) {
    EXPECT_EQ("ñ €", DePaginaDeCodigos("\xF1 \x80", 1252));
    EXPECT_EQ("Łódź €", DePaginaDeCodigos("\xA3\xF3"
                                          "d\x9F \x80",
                                          1250));
    EXPECT_EQ("Бук я", DePaginaDeCodigos("\xC1\xF3\xEA \xFF", 1251));
    EXPECT_EQ("Πεύκο", DePaginaDeCodigos("\xD0\xE5\xFD\xEA\xEF", 1253));
    EXPECT_EQ("çığ Ş", DePaginaDeCodigos("\xE7\xFD\xF0 \xDE", 1254));
    EXPECT_EQ("Ąžuolas ž", DePaginaDeCodigos("\xC0\xFEuolas \xFE", 1257));
}

TEST(PaginasDeCodigos, UnByteLibreSeMarca) {
    EXPECT_EQ("a\uFFFD", DePaginaDeCodigos("a\x81", 1250));
}

TEST(PaginasDeCodigos, LasLetrasCorrientesSonLasMismasEnTodas) {
    EXPECT_EQ("Arbol 12", DePaginaDeCodigos("Arbol 12", 932));
}

TEST(PaginasDeCodigos, UnaPaginaQueNoSeLeeSeDice) {
    EXPECT_TRUE(prueba::FallaCon(fallo::formatoNoReconocido, "la página de códigos 932, que no se lee",
                                 [] { DePaginaDeCodigos("\x83\x41", 932); }));
}

} // namespace
} // namespace varo
