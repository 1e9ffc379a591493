#include "indices/independientes/Razones.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace varo {
namespace {

const Valor nada{};

BaseDatos Tallos(const std::vector<Valor>& tamanos) {
    std::vector<std::vector<Valor>> filas;
    filas.reserve(tamanos.size());
    for (const auto& tamano : tamanos) {
        filas.push_back({tamano});
    }
    return BaseDatos{{Tabla{"P$", Coleccion<Campo>{{Campo{"CAP"}}}, std::move(filas)}}};
}

std::vector<double> Razones(Independiente familia, const std::vector<Valor>& tabla,
                            const std::vector<double>& tamanos, double supPoligono = 100,
                            double piesHa = 1000) {
    return CalcularRazones(familia, Tallos(tabla), "CAP", "P$", tamanos, supPoligono, piesHa);
}

const std::vector<Valor> cuatro{10.0, 20.0, 30.0, 40.0};
const std::vector<double> cuatroTamanos{10, 20, 30, 40};

TEST(Razones, CadaFamiliaLlevaSuConsulta) {
    const auto consulta = [](Independiente familia) { return ConsultaEstadistico(familia, "CAP", "P$"); };
    EXPECT_EQ(consulta(Independiente::Dmed), "SELECT Avg( [CAP] ) as [DMED] FROM [P$] WHERE [CAP] <> 0");
    EXPECT_EQ(consulta(Independiente::Dmax), "SELECT Max( [CAP] ) as [DMAX] FROM [P$]");
    EXPECT_EQ(consulta(Independiente::Bmed), "SELECT Avg( [CAP]^2) as [BMED] FROM [P$] WHERE [CAP] <> 0");
    EXPECT_EQ(consulta(Independiente::Bmax), "SELECT Max( [CAP]^2) as [BMAX] FROM [P$]");
    EXPECT_EQ(consulta(Independiente::APDmed), consulta(Independiente::Dmed));
    EXPECT_EQ(consulta(Independiente::APDmax), consulta(Independiente::Dmax));
    EXPECT_EQ(consulta(Independiente::APDsum), "SELECT Sum( [CAP] ) as [Dsum] FROM [P$]");
    EXPECT_EQ(consulta(Independiente::APBmed), consulta(Independiente::Bmed));
    EXPECT_EQ(consulta(Independiente::APBmax), "SELECT Max( [CAP]^2) as [BMAX] FROM [P$] WHERE [CAP] <> 0");
    EXPECT_EQ(consulta(Independiente::APBsum), "SELECT Sum( [CAP]^2) as [BSUM] FROM [P$] WHERE [CAP] <> 0");
}

TEST(Razones, ALaMediaAlMayorYALaSuma) {
    using Valores = std::vector<double>;
    EXPECT_EQ(Razones(Independiente::Dmed, cuatro, cuatroTamanos),
              (Valores{10 / 25.0, 20 / 25.0, 30 / 25.0, 40 / 25.0}));
    EXPECT_EQ(Razones(Independiente::Dmax, cuatro, cuatroTamanos), (Valores{0.25, 0.5, 0.75, 1}));
    EXPECT_EQ(Razones(Independiente::Bmed, cuatro, cuatroTamanos),
              (Valores{100 / 750.0, 400 / 750.0, 900 / 750.0, 1600 / 750.0}));
    EXPECT_EQ(Razones(Independiente::Bmax, cuatro, cuatroTamanos), (Valores{0.0625, 0.25, 0.5625, 1}));
    EXPECT_EQ(Razones(Independiente::APDsum, cuatro, cuatroTamanos),
              (Valores{10 * (10 / 100.0), 10 * (20 / 100.0), 10 * (30 / 100.0), 10 * (40 / 100.0)}));
    EXPECT_EQ(Razones(Independiente::APBsum, cuatro, cuatroTamanos),
              (Valores{10 * (100 / 3000.0), 10 * (400 / 3000.0), 10 * (900 / 3000.0), 10 * (1600 / 3000.0)}));
    EXPECT_EQ(Razones(Independiente::APDmax, cuatro, cuatroTamanos), (Valores{2.5, 5, 7.5, 10}));
    EXPECT_EQ(Razones(Independiente::APBmax, cuatro, cuatroTamanos), (Valores{0.625, 2.5, 5.625, 10}));
    EXPECT_EQ(Razones(Independiente::APDmed, cuatro, cuatroTamanos)[3], 10 * (40 / 25.0));
    EXPECT_EQ(Razones(Independiente::APBmed, cuatro, cuatroTamanos)[3], 10 * (1600 / 750.0));
}

TEST(Razones, UnTamanoVacioDaCeroYNoCuentaEnLaMedia) {
    EXPECT_EQ(Razones(Independiente::Dmed, {10.0, nada, 0.0, 30.0}, {10, 0, 0, 30}),
              (std::vector<double>{0.5, 0, 0, 1.5}));
    // Two dominant trees: the two sizes that are left.
    EXPECT_EQ(Razones(Independiente::Bdom, {10.0, nada, 0.0, 30.0}, {10, 0, 0, 30}, 200)[1], 0);
    EXPECT_EQ(Razones(Independiente::Bdom, {10.0, nada, 0.0, 30.0}, {10, 0, 0, 30}, 200)[3], 900 / 500.0);
}

TEST(Razones, LosDominantesSonCienPorHectareaConSusEmpates) {
    const std::vector<Valor> tabla{50.0, 40.0, 40.0, 40.0, 10.0};
    const std::vector<double> tamanos{50, 40, 40, 40, 10};
    // 200 m2 ask for two; the second size has three ties, so four trees are averaged.
    const double media = (2500 + 1600 + 1600 + 1600) / 4.0;
    EXPECT_EQ(Razones(Independiente::Bdom, tabla, tamanos, 200)[0], 2500 / media);
    EXPECT_EQ(Razones(Independiente::Ddom, tabla, tamanos, 200)[0], 50 / std::sqrt(media));
}

TEST(Razones, ElNumeroDeDominantesSeRedondeaAPar) {
    EXPECT_EQ(TamanoDominante(Tallos(cuatro), "CAP", "P$", 250, 4, false), (1600 + 900) / 2.0);
    EXPECT_EQ(TamanoDominante(Tallos(cuatro), "CAP", "P$", 350, 4, false), (1600 + 900 + 400 + 100) / 4.0);
    EXPECT_EQ(TamanoDominante(Tallos(cuatro), "CAP", "P$", 150, 4, false), (1600 + 900) / 2.0);
}

TEST(Razones, NoHayMasDominantesQueArboles) {
    EXPECT_EQ(TamanoDominante(Tallos(cuatro), "CAP", "P$", 3000000, 3, false), (1600 + 900 + 400) / 3.0);
}

TEST(Razones, MenosDeMedioDominanteNoTieneRegistros) {
    EXPECT_EQ(FalloDe([] { TamanoDominante(Tallos(cuatro), "CAP", "P$", 50, 4, true); }), 3021);
    EXPECT_EQ(FalloDe([] { TamanoDominante(Tallos({nada, 0.0}), "CAP", "P$", 1000, 2, true); }), 3021);
}

TEST(Razones, DemasiadaSuperficieDesborda) {
    EXPECT_EQ(TamanoDominante(Tallos(cuatro), "CAP", "P$", 3276700, 1, false), 1600);
    EXPECT_EQ(FalloDe([] { TamanoDominante(Tallos(cuatro), "CAP", "P$", 3276760, 4, true); }), 6);
}

TEST(Razones, SinTamanosLaMediaEsNula) {
    EXPECT_EQ(FalloDe([] { Razones(Independiente::Dmed, {nada, 0.0}, {0, 0}); }), 94);
    EXPECT_EQ(FalloDe([] { Razones(Independiente::Dmax, {nada, nada}, {0, 0}); }), 94);
    EXPECT_EQ(FalloDe([] { Razones(Independiente::APBmax, {0.0, nada}, {0, 0}); }), 94);
}

TEST(Razones, UnEstadisticoCeroDivideEntreCero) {
    for (const auto familia :
         {Independiente::Dmax, Independiente::Bmax, Independiente::APDmax, Independiente::APDsum}) {
        EXPECT_EQ(FalloDe([&] { Razones(familia, {0.0, nada}, {0, 0}); }), 11);
    }
}

TEST(Razones, SinPiesPorHectareaNoHayAreaProporcional) {
    EXPECT_EQ(FalloDe([] { Razones(Independiente::APDmed, cuatro, cuatroTamanos, 100, 0); }), 11);
}

TEST(Razones, ElFalloDiceLaFila) {
    try {
        Razones(Independiente::APDmed, cuatro, cuatroTamanos, 100, 0);
        FAIL();
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.lugar(), "fila 1");
    }
}

TEST(Razones, UnaParcelaSinArbolesNoCalculaNada) {
    EXPECT_TRUE(Razones(Independiente::Dmed, {nada}, {}).empty());
}

TEST(Razones, LaCeldaSeLeeHastaDondeEsNumero) {
    EXPECT_EQ(TamanoDeCelda("12,5"), 12.5);
    EXPECT_EQ(TamanoDeCelda(""), 0);
    EXPECT_EQ(TamanoDeCelda("12,5 cm"), 12.5);
    EXPECT_EQ(TamanoDeCelda("seco"), 0);
    EXPECT_EQ(TamanoDeCelda("1,2,3"), 1.2);
}

} // namespace
} // namespace varo
