#include "lote/revision/InformeDeRevision.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varo::prueba {
namespace {

Hallazgo UnHallazgo(Gravedad gravedad, int fila) {
    Hallazgo hallazgo;
    hallazgo.gravedad = gravedad;
    hallazgo.fila = fila;
    hallazgo.arbol = fila > 0 ? std::to_string(fila - 1) : "";
    hallazgo.columna = "CAP";
    hallazgo.numeroDeColumna = 9;
    hallazgo.texto = "doce";
    hallazgo.que = "El texto no es un número.";
    hallazgo.efecto = "La columna di/dmed no se calcula.";
    hallazgo.remedio = "Escriba el número.";
    return hallazgo;
}

const std::vector<Hallazgo> tres{UnHallazgo(Gravedad::Fallo, 12), UnHallazgo(Gravedad::Numeros, 7),
                                 UnHallazgo(Gravedad::Mirar, 0)};

TEST(InformeDeRevision, LaTablaPoneCadaCosaBajoSuCabecera) {
    EXPECT_EQ(TablaDeHallazgos("t.toml", {}), "t.toml: sin avisos\n");
    const std::string tabla = TablaDeHallazgos("t.toml", tres);
    EXPECT_TRUE(tabla.starts_with("t.toml: 3 avisos: 1 de fallo")) << tabla;
    EXPECT_NE(tabla.find("\nGRAVEDAD  FILA  ÁRBOL  COLUMNA  TEXTO\n"
                         "fallo     12    11     CAP      doce\n"
                         "    El texto no es un número.\n"
                         "    La columna di/dmed no se calcula.\n"
                         "    Escriba el número.\n"
                         "cifras    7     6      CAP      doce\n"),
              std::string::npos)
        << tabla;
    EXPECT_NE(tabla.find("\nmirar                  CAP      doce\n"), std::string::npos)
        << "sin fila ni árbol";
}

TEST(InformeDeRevision, LosTabuladoresYLosFinalesDeLineaNoRompenNada) {
    Hallazgo raro = UnHallazgo(Gravedad::Fallo, 3);
    raro.texto = "uno\tdos\r\ntres";
    const std::string lineas = LineasDeHallazgos("t.toml", std::vector{raro});
    EXPECT_EQ(std::ranges::count(lineas, '\n'), 1);
    EXPECT_EQ(std::ranges::count(lineas, '\t'), std::ranges::count(CabeceraDeHallazgos(), '\t'));
    EXPECT_NE(TablaDeHallazgos("t.toml", std::vector{raro}).find("uno dos tres"), std::string::npos);
}

TEST(InformeDeRevision, UnaCorridaDiceCuantosHayYLosCincoPeores) {
    EXPECT_TRUE(AvisosDeHallazgos("t.toml", {}).empty());
    EXPECT_EQ(
        AvisosDeHallazgos("t.toml", std::span{tres}.last(1)),
        std::vector<std::string>{"t.toml: 1 aviso: 1 por mirar; los explica varo-lote --revisar t.toml"});
    const auto avisos = AvisosDeHallazgos("t.toml", tres);
    ASSERT_EQ(avisos.size(), 3U);
    EXPECT_EQ(avisos[0],
              "t.toml: 3 avisos: 1 de fallo, 1 de cifras equivocadas, 1 por mirar; los explica varo-lote "
              "--revisar t.toml");
    EXPECT_EQ(avisos[1],
              "t.toml: fila 12, árbol 11, columna CAP, «doce»: El texto no es un número. La columna "
              "di/dmed no se calcula.");
    EXPECT_EQ(AvisosDeHallazgos("t.toml", std::vector(20, tres.front())).size(), 6U);
}

TEST(InformeDeRevision, ElEstadoEsElDelMasGrave) {
    EXPECT_EQ(EstadoDeRevision({}), Estado::Hecho);
    EXPECT_EQ(EstadoDeRevision(std::span{tres}.last(1)), Estado::Hecho);
    EXPECT_EQ(EstadoDeRevision(std::span{tres}.last(2)), Estado::CifrasEquivocadas);
    EXPECT_EQ(EstadoDeRevision(tres), Estado::FalloDeCalculo);
}

} // namespace
} // namespace varo::prueba
