#include "plot/calculo/PorHectarea.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varo {
namespace {

BaseDatos Hoja(std::vector<std::vector<Valor>> filas) {
    Tabla tabla{"Hoja1$", Coleccion<Campo>{{Campo{"Cod"}, Campo{"CAP"}, Campo{"Radio N"}}}, std::move(filas)};
    return BaseDatos{{tabla}};
}

const Valor nada{};

TEST(PorHectarea, CadaVerticeCuentaMedioPie) {
    const auto base =
        Hoja({{1.0, 1.0, 1.0}, {1.0, 1.0, 1.0}, {1.0, 1.0, 1.0}, {1.0, 1.0, 1.0}, {1.0, 1.0, 1.0}});
    // (5 - 4 / 2) / 100 * 10000
    EXPECT_EQ(PiesPorHectarea(base, "Cod", "Hoja1$", 5, 100), 300);
}

TEST(PorHectarea, LasCeldasVaciasNoCuentanComoPies) {
    const auto base = Hoja({{1.0, 1.0, 1.0}, {nada, 1.0, 1.0}, {std::string{"A"}, 1.0, 1.0}});
    EXPECT_EQ(PiesPorHectarea(base, "Cod", "Hoja1$", 1, 10000), 2);
}

TEST(PorHectarea, UnCampoConBlancosNoSePuedeContar) {
    const auto base = Hoja({{1.0, 1.0, 1.0}});
    EXPECT_EQ(FalloDe([&] { PiesPorHectarea(base, "Radio N", "Hoja1$", 5, 100); }), 3075);
}

TEST(PorHectarea, UnaParcelaSinSuperficieDivideEntreCero) {
    const auto base = Hoja({{1.0, 1.0, 1.0}});
    EXPECT_EQ(FalloDe([&] { PiesPorHectarea(base, "Cod", "Hoja1$", 5, 0); }), 11);
    EXPECT_EQ(FalloDe([] { AreaBasimetricaPorHectarea(Valor{1.0}, 0, 0); }), 11);
}

TEST(PorHectarea, LaSumaDeAreasSeHaceEnLaConsulta) {
    const auto base = Hoja({{1.0, 100.0, 1.0}, {1.0, nada, 1.0}, {1.0, std::string{"50"}, 1.0}});
    const auto suma = SumaAreaBasimetrica(base, "CAP", "Hoja1$", {true, UnidadLongitud::Centimetros});
    EXPECT_EQ(ANumero(suma), 10000 / (4 * 3.1415927 * 10000) + 2500 / (4 * 3.1415927 * 10000));
}

TEST(PorHectarea, SinTamanosLaSumaEsNulaYNoSePuedeUsar) {
    const auto base = Hoja({{1.0, nada, 1.0}});
    const auto suma = SumaAreaBasimetrica(base, "CAP", "Hoja1$", {});
    EXPECT_TRUE(EsNulo(suma));
    EXPECT_EQ(FalloDe([&] { AreaBasimetricaPorHectarea(suma, 0, 100); }), 94);
}

TEST(PorHectarea, UnVerticePesaPorSuAnguloInterior) {
    TablaPoligono poligono;
    poligono.anadir(0, 0, {Valor{std::string{"PS"}}, Valor{0.8}});
    poligono.anadir(0, 10, {Valor{std::string{"PS"}}, Valor{0.4}});
    poligono.anadir(0, 0, {Valor{std::string{"PS"}}, Valor{0.8}});
    MatrizDinamica<double> angulos;
    angulos.redimensionar(1);
    angulos(0) = 90;
    angulos(1) = 180;
    // 0,8 * 3/4 + 0,4 * 1/2
    EXPECT_DOUBLE_EQ(AreaBasimetricaDeBorde(poligono, 3, 3, angulos), 0.8);
    EXPECT_EQ(FalloDe([&] { AreaBasimetricaDeBorde(poligono, 2, 3, angulos); }), 13)
        << "un código que no es número no se puede sumar";
    EXPECT_EQ(FalloDe([&] { AreaBasimetricaDeBorde(poligono, 4, 3, angulos); }), 9);
    angulos.redimensionar(0);
    EXPECT_EQ(FalloDe([&] { AreaBasimetricaDeBorde(poligono, 3, 3, angulos); }), 9)
        << "un vértice sin ángulo";
}

TEST(PorHectarea, ElAreaPorHectareaQuitaElBorde) {
    EXPECT_DOUBLE_EQ(AreaBasimetricaPorHectarea(Valor{1.5}, 0.5, 100), 100);
}

/// A square of 10 m: two of its corners have code A, and none has code B.
TablaPoligono CuadradoDeCodigos() {
    TablaPoligono poligono;
    const auto vertice = [&](double x, double y, const char* codigo) {
        poligono.anadir(x, y, {Valor{std::string{codigo}}, Valor{0.4}});
    };
    vertice(0, 0, "A");
    vertice(0, 10, "A");
    vertice(10, 10, "C");
    vertice(10, 0, "C");
    vertice(0, 0, "A");
    return poligono;
}

MatrizDinamica<double> AngulosRectos() {
    MatrizDinamica<double> angulos;
    angulos.redimensionar(3);
    for (int i = 0; i <= 3; ++i) {
        angulos(i) = 90;
    }
    return angulos;
}

std::vector<double> PorHectarea(const CifrasPorCodigo& cifras) {
    std::vector<double> porHectarea;
    for (int c = 0; c <= cifras.porHectarea.limite(); ++c) {
        porHectarea.push_back(cifras.porHectarea(c));
    }
    return porHectarea;
}

Valor Letra(const char* codigo) {
    return std::string{codigo};
}

TEST(PorHectarea, LaCorreccionDeLosPiesSigueDeCodigoEnCodigo) {
    const auto base = Hoja({{Letra("A"), 1.0, 1.0},
                            {Letra("A"), 1.0, 1.0},
                            {Letra("A"), 1.0, 1.0},
                            {Letra("B"), 1.0, 1.0},
                            {Letra("C"), 1.0, 1.0},
                            {Letra("C"), 1.0, 1.0}});
    const std::vector<std::string> codigos{"A", "B", "C"};
    CifrasPorCodigo pies;
    PiesDeCodigos({base, "Cod", "Hoja1$", codigos}, CuadradoDeCodigos(), 5, 100, pies);
    // A: 3 - 2/2. B has no vertex, and carries those of A: 1 - 2/2. C: 2 - 4/2.
    EXPECT_EQ(PorHectarea(pies), (std::vector<double>{200, 0, 0}));
    EXPECT_EQ(pies.total, 200);

    const std::vector<std::string> alReves{"B", "A"};
    PiesDeCodigos({base, "Cod", "Hoja1$", alReves}, CuadradoDeCodigos(), 5, 100, pies);
    EXPECT_EQ(PorHectarea(pies), (std::vector<double>{100, 200})) << "antes de A no hay vértices";
}

TEST(PorHectarea, UnCodigoConMasVerticesQuePiesDaMenosDeCero) {
    const auto base = Hoja({{Letra("A"), 1.0, 1.0}, {Letra("C"), 1.0, 1.0}});
    const std::vector<std::string> codigos{"C", "A"};
    CifrasPorCodigo pies;
    PiesDeCodigos({base, "Cod", "Hoja1$", codigos}, CuadradoDeCodigos(), 5, 100, pies);
    EXPECT_EQ(PorHectarea(pies), (std::vector<double>{0, -100}));
}

TEST(PorHectarea, LaCorreccionDelAreaSigueDeCodigoEnCodigo) {
    const auto base = Hoja({{Letra("A"), 200.0, 1.0}, {Letra("B"), 100.0, 1.0}, {Letra("B"), nada, 1.0}});
    const std::vector<std::string> codigos{"A", "B"};
    CifrasPorCodigo area;
    const UnidadesTallo metros{false, UnidadLongitud::Metros};
    AreaBasimetricaDeCodigos({base, "Cod", "Hoja1$", codigos}, "CAP", metros, CuadradoDeCodigos(), 5,
                             AngulosRectos(), 100, area);
    const double quitar = 0.4 * 0.75 + 0.4 * 0.75;
    const double deA = (200.0 * 200.0 * 3.1415927 / 4 - quitar) / 100 * 10000;
    const double deB = (100.0 * 100.0 * 3.1415927 / 4 - quitar) / 100 * 10000;
    EXPECT_EQ(PorHectarea(area), (std::vector<double>{deA, deB}));
    EXPECT_EQ(area.total, deA + deB);
}

TEST(PorHectarea, UnCodigoDeNumerosVaSinComillas) {
    EXPECT_EQ(CondicionDeCodigo("Cod", "12"), "Cod = 12");
    EXPECT_EQ(CondicionDeCodigo("Cod", "Ps"), "Cod = 'Ps'");
    EXPECT_EQ(CondicionDeCodigo("Cod", "1A"), "Cod = '1A'");
    const auto base = Hoja({{12.0, 1.0, 1.0}, {Letra("12"), 1.0, 1.0}, {13.0, 1.0, 1.0}});
    const std::vector<std::string> codigos{"12"};
    CifrasPorCodigo pies;
    PiesDeCodigos({base, "Cod", "Hoja1$", codigos}, CuadradoDeCodigos(), 1, 10000, pies);
    EXPECT_EQ(PorHectarea(pies), (std::vector<double>{2}));
}

TEST(PorHectarea, UnaComillaEnUnCodigoRompeLaConsultaYDejaLosDeAntes) {
    const auto base = Hoja({{Letra("A"), 1.0, 1.0}, {Letra("L'Aliga"), 1.0, 1.0}});
    const std::vector<std::string> codigos{"A", "L'Aliga"};
    CifrasPorCodigo pies;
    EXPECT_TRUE(prueba::FallaCon(3075, "el código «L'Aliga» lleva una comilla", [&] {
        PiesDeCodigos({base, "Cod", "Hoja1$", codigos}, CuadradoDeCodigos(), 1, 10000, pies);
    }));
    EXPECT_EQ(pies.total, 1);
}

TEST(PorHectarea, UnCodigoSinTamanosNoTieneArea) {
    const auto base = Hoja({{Letra("A"), nada, 1.0}});
    const std::vector<std::string> codigos{"A"};
    CifrasPorCodigo area;
    EXPECT_TRUE(prueba::FallaCon<ErrorEjecucion>(94, "ninguno de sus árboles tiene tamaño", [&] {
        AreaBasimetricaDeCodigos({base, "Cod", "Hoja1$", codigos}, "CAP", {}, CuadradoDeCodigos(), 5,
                                 AngulosRectos(), 100, area);
    }));
}

TEST(PorHectarea, UnCodigoQueLaConsultaNoHallaLoDice) {
    // Text in the sheet, but a number in the query: 1.000 is not 1000 there.
    const auto base = Hoja({{Letra("1.000"), 50.0, 1.0}});
    const std::vector<std::string> codigos{"1.000"};
    CifrasPorCodigo area;
    EXPECT_TRUE(prueba::FallaCon<ErrorEjecucion>(94, "la consulta no halla ninguno de sus árboles", [&] {
        AreaBasimetricaDeCodigos({base, "Cod", "Hoja1$", codigos}, "CAP", {}, CuadradoDeCodigos(), 5,
                                 AngulosRectos(), 100, area);
    }));
}

TEST(PorHectarea, UnaPalabraEnElTamanoDeOtroCodigoNoEstorba) {
    const auto base = Hoja({{Letra("A"), 1.0, 1.0}, {Letra("B"), Letra("gordo"), 1.0}});
    const std::vector<std::string> codigos{"A"};
    CifrasPorCodigo area;
    EXPECT_EQ(FalloDe([&] {
                  AreaBasimetricaDeCodigos({base, "Cod", "Hoja1$", codigos}, "CAP", {}, CuadradoDeCodigos(),
                                           1, AngulosRectos(), 100, area);
              }),
              0);
    EXPECT_EQ(area.porHectarea.limite(), 0);
}

} // namespace
} // namespace varo
