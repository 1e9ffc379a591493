// Each rule finds a breach made for it and lets pass what is allowed.
#include "arquitectura/Reglas.h"
#include "arquitectura/Fuente.h"

#include <gtest/gtest.h>

namespace varo::arquitectura {

namespace {

using Lineas = std::vector<std::string>;

TEST(Fuente, SeLeenLosIncludesDeCadaClase) {
    const std::string texto = "#pragma once\n"
                              "#include \"basico/Numeros.h\"\n"
                              "  #  include <vector>\n"
                              "// #include <cstdio>\n"
                              "#include <QString>";
    EXPECT_EQ(IncludesPropios(texto), (Lineas{"basico/Numeros.h"}));
    EXPECT_EQ(IncludesDeSistema(texto), (Lineas{"vector", "QString"}));
}

TEST(Fuente, LaSalaEsLaPrimeraCarpeta) {
    EXPECT_EQ(Sala("motor/lectores/LectorXls.h"), "motor");
    EXPECT_EQ(Sala("suelta.h"), "");
}

TEST(Fuente, LaEneCompuestaPasaYLaDescompuestaNo) {
    EXPECT_TRUE(EsUtf8Compuesto("a\xC3\xB1o \xE2\x82\xAC \xF0\x9F\x8C\xB2"));
    EXPECT_FALSE(EsUtf8Compuesto("an\xCC\x83o"));
}

TEST(Fuente, LosBytesQueNoSonUtf8NoPasan) {
    EXPECT_FALSE(EsUtf8Compuesto("a\xF1o"));
    EXPECT_FALSE(EsUtf8Compuesto("\xC3"));
    EXPECT_FALSE(EsUtf8Compuesto("\xC0\x80"));
    EXPECT_FALSE(EsUtf8Compuesto("\xE2\x82("));
}

TEST(Reglas, UnIncludeQueNoExisteYUnaCarpetaDesconocidaSeDicen) {
    EXPECT_EQ(IncludesQueNoExisten({{"basico/A.h", ""}, {"motor/B.h", "#include \"basico/A.h\"\n"}}),
              Lineas{});
    EXPECT_EQ(IncludesQueNoExisten({{"motor/B.h", "#include \"A.h\"\n"}, {"otra/C.h", ""}}),
              (Lineas{"motor/B.h incluye una cabecera que no existe bajo src/: A.h",
                      "otra/C.h no está en ninguna carpeta conocida"}));
}

TEST(Reglas, LasFlechasVanEnUnSoloSentido) {
    EXPECT_EQ(FlechasProhibidas({{"motor/A.h", "#include \"basico/B.h\"\n#include \"motor/C.h\"\n"},
                                 {"data/A.h", "#include \"motor/B.h\"\n#include \"options/C.h\"\n"},
                                 {"formularios/A.h", "#include \"lienzo/B.h\"\n"},
                                 {"sistema/A.h", "#include \"formularios/B.h\"\n"},
                                 {"desktop/A.h", "#include \"sistema/B.h\"\n"},
                                 {"desktop/main.cpp", "#include \"libros/B.h\"\n"},
                                 {"libros/A.h", "#include \"motor/B.h\"\n#include \"libros/C.h\"\n"},
                                 {"lote/A.h", "#include \"data/B.h\"\n#include \"sistema/C.h\"\n"}}),
              Lineas{});
    EXPECT_EQ(FlechasProhibidas({{"basico/A.h", "#include \"motor/B.h\"\n"},
                                 {"formularios/A.h", "#include \"motor/B.h\"\n"},
                                 {"lienzo/A.h", "#include \"map/B.h\"\n#include \"formularios/C.h\"\n"},
                                 {"data/A.h", "#include \"lote/B.h\"\n#include \"sistema/C.h\"\n"},
                                 {"sistema/A.h", "#include \"lote/B.h\"\n#include \"data/C.h\"\n"},
                                 {"libros/A.h", "#include \"formularios/B.h\"\n"},
                                 {"motor/A.h", "#include \"libros/B.h\"\n"},
                                 {"lote/A.cpp", "#include \"libros/B.h\"\n"},
                                 {"desktop/A.h", "#include \"lote/B.h\"\n"}}),
              (Lineas{"basico/A.h no puede conocer motor/B.h", "formularios/A.h no puede conocer motor/B.h",
                      "lienzo/A.h no puede conocer map/B.h", "lienzo/A.h no puede conocer formularios/C.h",
                      "data/A.h no puede conocer lote/B.h", "data/A.h no puede conocer sistema/C.h",
                      "sistema/A.h no puede conocer lote/B.h", "sistema/A.h no puede conocer data/C.h",
                      "libros/A.h no puede conocer formularios/B.h", "motor/A.h no puede conocer libros/B.h",
                      "lote/A.cpp no puede conocer libros/B.h", "desktop/A.h no puede conocer lote/B.h"}));
}

TEST(Reglas, FueraDeDesktopLoteYSistemaSoloEntranCabecerasDeCpp) {
    EXPECT_EQ(CabecerasAjenas({{"plot/A.h", "#include <charconv>\n#include <fstream>\n"},
                               {"desktop/A.h", "#include <QWidget>\n"},
                               {"sistema/A.h", "#include <unistd.h>\n"},
                               {"lote/A.h", "#include <toml++/toml.h>\n#include <CLI/CLI.hpp>\n"}}),
              Lineas{});
    EXPECT_EQ(CabecerasAjenas({{"plot/A.h", "#include <QWidget>\n#include <toml++/toml.h>\n"},
                               {"map/A.h", "#include <unistd.h>\n#include <sstream>\n"}}),
              (Lineas{"plot/A.h no puede incluir QWidget", "plot/A.h no puede incluir toml++/toml.h",
                      "map/A.h no puede incluir unistd.h", "map/A.h no puede incluir sstream"}));
}

TEST(Reglas, UnaVentanaSeVeAunqueLlegueATravesDeOtraCabecera) {
    const Fuente ventana{"options/OpcionesPrograma.h", ""};
    const Fuente puente{"shell/Programa.h", "#include \"options/OpcionesPrograma.h\"\n"};
    EXPECT_EQ(CalculoQueConoceVentanas(
                  {{"indices/apa/APA.cpp", "#include \"shell/Programa.h\"\n"}, ventana, puente}),
              (Lineas{"indices/apa/APA.cpp calcula y llega a options/OpcionesPrograma.h"}));
    EXPECT_EQ(
        CalculoQueConoceVentanas(
            {{"indices/archivo/FrmCrearArchivo.cpp", "#include \"shell/Programa.h\"\n"}, ventana, puente}),
        Lineas{});
    EXPECT_EQ(CalculoQueConoceVentanas(
                  {{"indices/CorridaIndices.cpp", "#include \"shell/Programa.h\"\n"}, ventana, puente}),
              Lineas{});
}

TEST(Reglas, LosNombresDeArchivoSonAscii) {
    EXPECT_EQ(LetrasFueraDeSitio({{"map/Anadir.cpp", "// Añadir\n"}}), Lineas{});
    EXPECT_EQ(LetrasFueraDeSitio({{"map/Añadir.cpp", ""}}),
              (Lineas{"map/Añadir.cpp lleva en su nombre letras que no son ASCII"}));
}

TEST(Reglas, SeiscientasLineasPasanYUnaMasNo) {
    EXPECT_EQ(FuentesDemasiadoLargas({{"map/A.cpp", std::string(600, '\n')}}), Lineas{});
    EXPECT_EQ(FuentesDemasiadoLargas({{"map/A.cpp", std::string(601, '\n')}}),
              (Lineas{"map/A.cpp tiene 601 líneas"}));
}

} // namespace

} // namespace varo::arquitectura
