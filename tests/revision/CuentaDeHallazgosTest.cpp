#include "revision/CuentaDeHallazgos.h"

#include <gtest/gtest.h>

#include <vector>

namespace varo::prueba {
namespace {

std::vector<Hallazgo> DeGravedades(const std::vector<Gravedad>& gravedades) {
    std::vector<Hallazgo> hallazgos;
    for (const Gravedad gravedad : gravedades) {
        hallazgos.emplace_back().gravedad = gravedad;
    }
    return hallazgos;
}

TEST(LaCuentaDeHallazgos, DiceCuantosDeCadaGravedad) {
    EXPECT_EQ(CuentaDeHallazgos({}), "sin avisos");
    EXPECT_EQ(CuentaDeHallazgos(DeGravedades({Gravedad::Fallo, Gravedad::Numeros, Gravedad::Mirar})),
              "3 avisos: 1 de fallo, 1 de cifras equivocadas, 1 por mirar");
    EXPECT_EQ(CuentaDeHallazgos(DeGravedades({Gravedad::Mirar})), "1 aviso: 1 por mirar");
}

TEST(LaCuentaDeHallazgos, SoloElNumeroTieneSingularYPlural) {
    EXPECT_EQ(CuantosAvisos(0), "sin avisos");
    EXPECT_EQ(CuantosAvisos(1), "1 aviso");
    EXPECT_EQ(CuantosAvisos(2), "2 avisos");
}

TEST(LaCuentaDeHallazgos, CadaGravedadTieneSuPalabra) {
    EXPECT_EQ(PalabraDe(Gravedad::Fallo), "fallo");
    EXPECT_EQ(PalabraDe(Gravedad::Numeros), "cifras");
    EXPECT_EQ(PalabraDe(Gravedad::Mirar), "mirar");
}

} // namespace
} // namespace varo::prueba
