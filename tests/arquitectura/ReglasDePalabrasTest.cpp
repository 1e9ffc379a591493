// The rules of the words find a breach made for each and let pass what is allowed.
#include "arquitectura/ReglasDePalabras.h"

#include <gtest/gtest.h>

namespace varo::arquitectura {

namespace {

using Lineas = std::vector<std::string>;

TEST(ReglasDePalabras, LaEtiquetaSeEscribeDeUnSoloModo) {
    EXPECT_EQ(EtiquetasMalEscritas({{"map/A.h", "// Meant: the last one stays.\n"
                                                "/// Draws it. Meant: without a frame.\n"
                                                "const char* meant = \"it is meant\";\n"}}),
              Lineas{});
    EXPECT_EQ(
        EtiquetasMalEscritas({{"map/A.h", "// One.\n"
                                          "// The last one stays: it is meant.\n"
                                          "int a; // meant: it stays\n"
                                          "/* Meant to stay. */\n"}}),
        (Lineas{"map/A.h:2 lo dice de otro modo que «Meant:»", "map/A.h:3 lo dice de otro modo que «Meant:»",
                "map/A.h:4 lo dice de otro modo que «Meant:»"}));
}

TEST(ReglasDePalabras, LosComentariosDelEscritorioNombranAQt) {
    EXPECT_EQ(ComentariosSinElNombreDeQt({{"desktop/A.h", "int toolkit; // what Qt reports\n"},
                                          {"formularios/A.h", "// with its toolkit\n"}}),
              Lineas{});
    EXPECT_EQ(ComentariosSinElNombreDeQt({{"desktop/A.h", "// what the\n// Toolkit reports\n"}}),
              (Lineas{"desktop/A.h:2 llama «toolkit» a Qt"}));
}

} // namespace

} // namespace varo::arquitectura
