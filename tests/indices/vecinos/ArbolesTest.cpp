#include "indices/vecinos/Arboles.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

Arboles ArbolesCon(std::vector<std::string> tamanos, const UnidadesTallo& unidades) {
    CeldasDeArboles celdas;
    celdas.x = {"X", std::vector<std::string>(tamanos.size(), "1")};
    celdas.y = {"Y", std::vector<std::string>(tamanos.size(), "2")};
    celdas.tamano = {"CAP", std::move(tamanos)};
    return {std::move(celdas), unidades, {}};
}

double Diametro(bool circunferencia, UnidadLongitud unidad) {
    return ArbolesCon({"31"}, {circunferencia, unidad}).diametro(0);
}

TEST(Arboles, ElDiametroSaleEnCentimetros) {
    EXPECT_EQ(Diametro(false, UnidadLongitud::Centimetros), 31);
    EXPECT_EQ(Diametro(false, UnidadLongitud::Decimetros), 310);
    EXPECT_EQ(Diametro(false, UnidadLongitud::Metros), 3100);
}

TEST(Arboles, ElFactorDeLaCircunferenciaEsDe32Bits) {
    // 1 / 3.1415927 in 32 bits is 10680707 / 2^25.
    EXPECT_EQ(Diametro(true, UnidadLongitud::Centimetros), 31 * (10680707 / 33554432.0));
    EXPECT_EQ(Diametro(true, UnidadLongitud::Decimetros), 31 * (10680707 / 33554432.0) * 10);
    EXPECT_EQ(ArbolesCon({"31"}, {true, UnidadLongitud::Metros}).d(0),
              31 * (10680707 / 33554432.0) * 100 / 100);
}

TEST(Arboles, UnaCeldaMalaFallaSoloCuandoSePide) {
    const Arboles arboles =
        ArbolesCon({"12", "doce", "", "1E+307", "1E+400"}, {false, UnidadLongitud::Metros});
    EXPECT_EQ(arboles.d(0), 12);
    EXPECT_TRUE(arboles.sinTamano(2));
    EXPECT_FALSE(arboles.sinTamano(1));
    EXPECT_EQ(FalloDe([&] { static_cast<void>(arboles.d(2)); }), 13);
    EXPECT_EQ(arboles.tamano(3), 1E+307);
    EXPECT_EQ(FalloDe([&] { static_cast<void>(arboles.d(3)); }), 6);
    EXPECT_EQ(FalloDe([&] { static_cast<void>(arboles.tamano(4)); }), 6);
    try {
        static_cast<void>(arboles.d(1));
        FAIL() << "debía fallar";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), 13);
        EXPECT_EQ(error.lugar(), "fila 2, columna «CAP»");
    }
}

TEST(Arboles, LosVerticesSeReconocenPorElTextoDeSusDosCoordenadas) {
    CeldasDeArboles celdas;
    celdas.x = {"X", {"0,5", "0,50", "0,5", "7", "3"}};
    celdas.y = {"Y", {"10", "10", "11", "8", "4"}};
    celdas.tamano = {"CAP", std::vector<std::string>(5, "")};
    const std::vector<double> x{0.5, 7, 0.5};
    const std::vector<double> y{10, 8, 10};
    const Arboles arboles{std::move(celdas), {}, {x, y}};
    std::vector<bool> vertices;
    for (std::size_t i = 0; i < 5; ++i) {
        vertices.push_back(arboles.esVertice(i));
    }
    EXPECT_EQ(vertices, (std::vector<bool>{true, false, false, true, false}));
}

} // namespace
} // namespace varo
