#include "libros/Referencias.h"

#include <gtest/gtest.h>

#include <string>

namespace varo {
namespace {

TEST(CeldaEscrita, LeeLetrasYNumeros) {
    const auto sitio = [](const std::string& texto) {
        const auto leida = CeldaEscrita(texto);
        return leida ? std::to_string(leida->fila) + "," + std::to_string(leida->columna) : "nada";
    };
    EXPECT_EQ(sitio("A1"), "0,0");
    EXPECT_EQ(sitio("z10"), "9,25");
    EXPECT_EQ(sitio("AA2"), "1,26");
    EXPECT_EQ(sitio("XFD1048576"), "1048575,16383");
    // Numbers without end stop far beyond any sheet.
    EXPECT_EQ(sitio("A" + std::string(30, '9')), "99999999,0");
    EXPECT_EQ(sitio(std::string(30, 'Z') + "1"), "0,99999999");
    for (const std::string mala : {"", "A", "1", "1A", "A0", "A1B", "$A$1", "Á1"}) {
        EXPECT_EQ(sitio(mala), "nada") << mala;
    }
}

TEST(NombreDeCelda, EscribeLoQueSeLee) {
    for (const std::string nombre : {"A1", "Z9", "AA10", "AZ1", "BA1", "ZZ1", "AAA1", "XFD1048576"}) {
        EXPECT_EQ(NombreDeCelda(CeldaEscrita(nombre).value()), nombre);
    }
}

std::string Dicha(const std::optional<ZonaEscrita>& zona) {
    if (!zona) {
        return "nada";
    }
    const auto& z = zona->zona;
    return zona->hoja + ": " + NombreDeCelda({z.primeraFila, z.primeraColumna}) + " " +
           NombreDeCelda({z.ultimaFila, z.ultimaColumna});
}

TEST(ZonaDeXlsx, LeeRectangulosFijosDeUnaHoja) {
    EXPECT_EQ(Dicha(ZonaDeXlsx("Hoja1!$A$1:$C$9")), "Hoja1: A1 C9");
    EXPECT_EQ(Dicha(ZonaDeXlsx("Hoja1!$B$2")), "Hoja1: B2 B2");
    EXPECT_EQ(Dicha(ZonaDeXlsx("'La d''aquí'!$B$2")), "La d'aquí: B2 B2");
    EXPECT_EQ(Dicha(ZonaDeXlsx("'La d\\'aquí'!$B$2")), "La d'aquí: B2 B2");
    EXPECT_EQ(Dicha(ZonaDeXlsx("H!$A:$C")), "H: A1 C1048576");
    EXPECT_EQ(Dicha(ZonaDeXlsx("H!$2:$3")), "H: A2 XFD3");
    for (const std::string mala : {"", "H", "H!", "H!A1", "H!$A1", "H!A$1", "H!$A$1:", "H!$A$1:$B", "H!$A:$2",
                                   "H!$A", "H!$C$1:$A$2", "H!$A$1:$XFE$1", "H!$A$1,H!$B$2", "[1]H!$A$1",
                                   "'[libro.xlsx]H'!$A$1", "'H!$A$1", "'H'$A$1", "$A$1"}) {
        EXPECT_EQ(Dicha(ZonaDeXlsx(mala)), "nada") << mala;
    }
}

TEST(ZonaDeOds, LeeRectangulosFijosDeUnaHoja) {
    EXPECT_EQ(Dicha(ZonaDeOds("$Hoja1.$A$1:.$C$9")), "Hoja1: A1 C9");
    EXPECT_EQ(Dicha(ZonaDeOds("Hoja1.$B$2")), "Hoja1: B2 B2");
    EXPECT_EQ(Dicha(ZonaDeOds("$H.$A:.$C")), "H: A1 C1048576");
    EXPECT_EQ(Dicha(ZonaDeOds("$'La d''aquí'.$B$2:$'La d''aquí'.$C$3")), "La d'aquí: B2 C3");
    for (const std::string mala : {"", "$H", "$H.A1", "$H.$A$1:", "$H.$A$1:$B$2", "$H.$A$1:$Otra.$B$2",
                                   "$H.$A", "$H.$A:.$2", "$H.$B$2:.$A$1", "$'H.$A$1", "$H.$A$1 $H.$B$2"}) {
        EXPECT_EQ(Dicha(ZonaDeOds(mala)), "nada") << mala;
    }
}

} // namespace
} // namespace varo
