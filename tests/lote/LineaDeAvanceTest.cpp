#include "lote/LineaDeAvance.h"

#include <gtest/gtest.h>

#include <sstream>

namespace varo::prueba {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using Instante = std::chrono::steady_clock::time_point;

const std::string vacia = "\r\x1b[K";

Marcha Media(const std::string& etapa) {
    return {etapa, 62, 100, Instante{}};
}

TEST(LineaDeAvance, ElTextoDiceLosTrabajosLaEtapaLosArbolesYElTiempo) {
    TrabajoEnMarcha trabajo{"p.toml: abriendo p.xls", {}, 0};
    EXPECT_EQ(TextoDeAvance(0, 1, trabajo, {}), "p.toml: abriendo p.xls");
    EXPECT_EQ(TextoDeAvance(2, 5, trabajo, {}), "2 de 5 trabajos; p.toml: abriendo p.xls");
    trabajo = {"p.toml: calculando los índices", Media("DR, columna 3 de 4"), 32766};
    // 62 parts in 62 s: 38 s are left.
    EXPECT_EQ(TextoDeAvance(2, 5, trabajo, Instante{seconds{62}}),
              "2 de 5 trabajos; DR, columna 3 de 4, 62 %, quedan 38 s; 32.766 árboles; "
              "p.toml: calculando los índices");
    trabajo.arboles = 1;
    trabajo.marcha->hechos = 0;
    EXPECT_EQ(TextoDeAvance(0, 1, trabajo, Instante{seconds{62}}),
              "DR, columna 3 de 4, 0 %; 1 árbol; p.toml: calculando los índices");
}

TEST(LineaDeAvance, LoQueUnTerminalTomaPorUnaOrdenNoLlega) {
    EXPECT_EQ(TextoDeAvance(0, 1, {"a\x1b[2J\nb\x7f", Media("\tDR"), 0}, Instante{}),
              " DR, 62 %, quedan menos de 1 s; a [2J b ");
}

struct Terminal {
    std::ostringstream escrito;
    Instante ahora{};
    LineaDeAvance linea{escrito, 80, 3, [this] { return ahora; }};

    std::string visto() {
        std::string texto = escrito.str();
        escrito.str("");
        return texto;
    }
};

TEST(LineaDeAvance, SeReescribeEnSuSitioCincoVecesPorSegundoComoMucho) {
    Terminal t;
    t.linea.etapa(0, "uno");
    EXPECT_EQ(t.visto(), vacia + "0 de 3 trabajos; uno");
    for (int vez = 0; vez < 1000; ++vez) {
        t.linea.marcha(0, Media("DR"), 5);
        t.ahora += milliseconds{1};
    }
    std::size_t veces = 0;
    const std::string visto = t.visto();
    for (std::size_t i = visto.find('\r'); i != std::string::npos; i = visto.find('\r', i + 1)) {
        ++veces;
    }
    EXPECT_EQ(veces, 4U) << "la primera fue la de la etapa";
    EXPECT_EQ(visto.find('\n'), std::string::npos);
}

TEST(LineaDeAvance, CuentaElPrimeroDeLosTrabajosQueSeCorren) {
    Terminal t;
    t.linea.etapa(1, "dos");
    t.ahora += seconds{1};
    t.linea.etapa(0, "uno");
    t.ahora += seconds{1};
    t.linea.marcha(1, Media("DR"), 5);
    t.visto();
    t.ahora += seconds{1};
    t.linea.marcha(1, Media("DR"), 5);
    EXPECT_EQ(t.visto(), vacia + "0 de 3 trabajos; uno");
    t.ahora += seconds{1};
    t.linea.acabado(0);
    EXPECT_EQ(t.visto().substr(0, vacia.size() + 26), vacia + "1 de 3 trabajos; DR, 62 %,");
}

TEST(LineaDeAvance, UnaLineaQueSeQuedaLaBorraAntes) {
    Terminal t;
    t.linea.etapa(0, "uno");
    t.visto();
    t.linea.decir("hecho");
    EXPECT_EQ(t.visto(), vacia + "hecho\n");
    t.linea.decir("otro");
    EXPECT_EQ(t.visto(), "otro\n") << "ya no había nada que borrar";
    t.ahora += seconds{1};
    t.linea.etapa(0, "sigue");
    t.visto();
    std::ostringstream otra;
    t.linea.decir("resumen", otra);
    EXPECT_EQ(t.visto(), vacia);
    EXPECT_EQ(otra.str(), "resumen\n");
}

TEST(LineaDeAvance, AlFinalNoQuedaNada) {
    std::ostringstream escrito;
    {
        LineaDeAvance linea{escrito, 80, 1};
        linea.etapa(0, "uno");
        escrito.str("");
    }
    EXPECT_EQ(escrito.str(), vacia);
}

TEST(LineaDeAvance, CabeEnElAnchoDelTerminal) {
    std::ostringstream escrito;
    LineaDeAvance linea{escrito, 10, 1};
    linea.etapa(0, "áéíóúáéíóú");
    EXPECT_EQ(escrito.str(), vacia + "áéíóúáéíó");
}

TEST(LineaDeAvance, SinTerminalSoloSeDicenLasLineasEnteras) {
    std::ostringstream escrito;
    {
        LineaDeAvance linea{escrito, 0, 1};
        EXPECT_FALSE(linea.seVe());
        linea.etapa(0, "uno");
        linea.marcha(0, Media("DR"), 5);
        linea.acabado(0);
        linea.decir("hecho");
    }
    EXPECT_EQ(escrito.str(), "hecho\n");
}

} // namespace
} // namespace varo::prueba
