#include "plot/calculo/AreaBasimetrica.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

constexpr UnidadesTallo capCm{true, UnidadLongitud::Centimetros};
constexpr UnidadesTallo capDm{true, UnidadLongitud::Decimetros};
constexpr UnidadesTallo capM{true, UnidadLongitud::Metros};
constexpr UnidadesTallo dapCm{false, UnidadLongitud::Centimetros};
constexpr UnidadesTallo dapDm{false, UnidadLongitud::Decimetros};
constexpr UnidadesTallo dapM{false, UnidadLongitud::Metros};

TEST(AreaBasimetrica, DeUnArbolPorTamanoYUnidad) {
    EXPECT_EQ(AreaBasimetrica(100, capCm), 10000 / 125663.708);
    EXPECT_EQ(AreaBasimetrica(10, capDm), 100 / 1256.63708);
    EXPECT_EQ(AreaBasimetrica(1, capM), 1 / 12.5663708);
    EXPECT_EQ(AreaBasimetrica(20, dapCm), 400 * 3.1415927 / 40000.0);
    EXPECT_EQ(AreaBasimetrica(2, dapDm), 4 * 3.1415927 / 400.0);
    EXPECT_EQ(AreaBasimetrica(0.2, dapM), 0.2 * 0.2 * 3.1415927 / 4.0);
    EXPECT_EQ(AreaBasimetrica(0, capCm), 0);
}

TEST(AreaBasimetrica, LaConsultaLlevaLaUnidadEnSuExpresion) {
    const auto consulta = [](const UnidadesTallo& unidades) {
        return ConsultaAreaBasimetrica("CAP", "Hoja1$", unidades);
    };
    EXPECT_EQ(consulta(capCm), "SELECT Sum ( [CAP]^2/(4*3.1415927*10000) ) as [AB] FROM [Hoja1$");
    EXPECT_EQ(consulta(capDm), "SELECT Sum ( [CAP]^2/(4*3.1415927*100) ) as [AB] FROM [Hoja1$");
    EXPECT_EQ(consulta(capM), "SELECT Sum ( [CAP]^2/(4*3.1415927) ) as [AB] FROM [Hoja1$");
    EXPECT_EQ(consulta(dapCm), "SELECT Sum ( [CAP]^2*3.1415927/(4*10000) ) as [AB] FROM [Hoja1$");
    EXPECT_EQ(consulta(dapDm), "SELECT Sum ( [CAP]^2*3.1415927/(4*100) ) as [AB] FROM [Hoja1$");
    EXPECT_EQ(consulta(dapM), "SELECT Sum ( [CAP]^2*3.1415927/4 ) as [AB] FROM [Hoja1$");
}

TEST(AreaBasimetrica, LaConsultaDeUnCodigoLlevaSuCondicionYOtrosDivisores) {
    const auto consulta = [](const UnidadesTallo& unidades) {
        return ConsultaAreaBasimetrica("CAP", "Hoja1$", unidades, "Cod = 12");
    };
    EXPECT_EQ(consulta(capCm),
              "SELECT Sum ( [CAP]^2/(4*3.1415927*10000) ) as [AB] FROM [Hoja1$] WHERE Cod = 12");
    EXPECT_EQ(consulta(dapCm), "SELECT Sum ( [CAP]^2*3.1415927/40000 ) as [AB] FROM [Hoja1$] WHERE Cod = 12");
    EXPECT_EQ(consulta(dapDm), "SELECT Sum ( [CAP]^2*3.1415927/400 ) as [AB] FROM [Hoja1$] WHERE Cod = 12");
    EXPECT_EQ(consulta(dapM), "SELECT Sum ( [CAP]^2*3.1415927/4 ) as [AB] FROM [Hoja1$] WHERE Cod = 12");
}

} // namespace
} // namespace varo
