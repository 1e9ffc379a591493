// What it costs at most to read a text of cells: ten times its size and 64 MB, whatever it says.
#include "memoria/MemoriaPermitida.h"
#include "motor/lectores/LectorCsv.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <span>
#include <string>

namespace varo::prueba {
namespace {

testing::AssertionResult TextoCabe(const std::string& texto) {
    return CabeEnLaMemoria(texto.size(),
                           [&] { return LeerCsv(std::as_bytes(std::span{texto}), "t.csv", "t"); });
}

TEST(MemoriaDeLectorCsv, MuchasCifrasSueltas) {
    const auto fila = Repetido("1;", 255) + "1\n";
    EXPECT_TRUE(TextoCabe(Repetido("a;", 255) + "a\n" + Repetido(fila, 30'000)));
}

TEST(MemoriaDeLectorCsv, MuchasFilasDeUnaCifra) {
    EXPECT_TRUE(TextoCabe("a;b\n" + Repetido("1;\n", 6'000'000)));
}

TEST(MemoriaDeLectorCsv, MuchasFilasVacias) {
    EXPECT_TRUE(TextoCabe("a;b\n" + Repetido("\n", 20'000'000) + "1;2\n"));
}

TEST(MemoriaDeLectorCsv, UnaFilaDeMillonesDeColumnas) {
    EXPECT_TRUE(TextoCabe(Repetido(";", 20'000'000) + "\n"));
    EXPECT_TRUE(TextoCabe("a;b\n" + Repetido(";", 20'000'000) + "\n"));
    EXPECT_TRUE(TextoCabe(Repetido("a;", 10'000'000) + "\n"));
}

TEST(MemoriaDeLectorCsv, TextosMedianosYTextosEntreComillas) {
    EXPECT_TRUE(TextoCabe("a;b\n" + Repetido("nueve.let;\"\"\"\"\n", 1'500'000)));
    EXPECT_TRUE(TextoCabe("a;b\n1;\"" + Repetido("x", 20'000'000) + "\"\n"));
    EXPECT_TRUE(TextoCabe("a;b\n1;\"" + Repetido("\"", 20'000'000) + "\"\n"));
}

TEST(MemoriaDeLectorCsv, LetrasDeWindows) {
    EXPECT_TRUE(TextoCabe("a;b\n" + Repetido("\xF1\xF1\xF1\xF1\xF1;\xF1\n", 2'500'000)));
}

} // namespace
} // namespace varo::prueba
