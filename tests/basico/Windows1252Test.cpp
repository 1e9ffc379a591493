#include "basico/Texto.h"

#include <gtest/gtest.h>

#include <string>

using namespace varo;

TEST(Windows1252, ElTextoEspanolSonSusBytes) {
    EXPECT_EQ(AWindows1252("Nº de árbol, año"), "N\xBA de \xE1rbol, a\xF1o");
    EXPECT_EQ(DeWindows1252("N\xBA de \xE1rbol, a\xF1o"), "Nº de árbol, año");
}

TEST(Windows1252, LosCaracteresPropiosDeLaPagina) {
    const std::string bytes = "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"
                              "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F";
    const std::string texto = "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ";
    EXPECT_EQ(DeWindows1252(bytes), texto);
    EXPECT_EQ(AWindows1252(texto), bytes);
}

TEST(Windows1252, LoQueNoTieneByteEsUnaInterrogacion) {
    EXPECT_EQ(AWindows1252("aΩ𐍈b"), "a??b");
    EXPECT_EQ(AWindows1252("\u0080\u0091"), "??"); // control characters whose bytes mean something else
    EXPECT_EQ(AWindows1252("\xFF"), "?");
}

TEST(Windows1252, TodosLosBytesVuelvenComoFueron) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    EXPECT_EQ(Longitud(DeWindows1252(bytes)), 256U);
    EXPECT_EQ(AWindows1252(DeWindows1252(bytes)), bytes);
}
