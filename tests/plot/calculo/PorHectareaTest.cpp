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

} // namespace
} // namespace varo
