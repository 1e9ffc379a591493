#include "indices/CorridaDePrueba.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace varo::prueba {
namespace {

TEST(CorridaCancelada, LaCorridaDiceCadaColumnaYCadaArbol) {
    CorridaDePrueba corrida{true};
    OyenteDePrueba oyente;
    corrida.servicios.oyente = &oyente;
    corrida.correr();
    EXPECT_EQ(oyente.etapas,
              (std::vector<std::string>{"ABha(dj>di)", "ISC, columna 1 de 2", "ISC, columna 2 de 2",
                                        "AOI, columna 1 de 3", "AOI, columna 2 de 3", "AOI, columna 3 de 3",
                                        "IDP, columna 1 de 1", "DR, columna 1 de 2", "DR, columna 2 de 2",
                                        "APA, columna 1 de 1"}));
    // Five sizes and five trees, then five trees in each of nine columns.
    EXPECT_EQ(oyente.oidos, 5U + 5U + 9U * 5U);
    EXPECT_EQ(oyente.ultima.hechos, oyente.ultima.pasos);
}

class CancelarLaCorrida : public testing::TestWithParam<bool> {};

TEST_P(CancelarLaCorrida, NoDejaResultadosYLaSiguienteLosDaEnteros) {
    CorridaDePrueba entera{GetParam()};
    entera.correr();
    const std::string esperado = entera.guardar();
    CorridaDePrueba corrida{GetParam()};
    for (const std::size_t paso : {1U, 7U, 11U, 14U, 23U, 38U, 47U, 52U, 55U}) {
        corrida.cancelarEn(paso);
        EXPECT_EQ(corrida.dialogo(), nullptr) << paso;
        EXPECT_EQ(corrida.mapa().MousePointer(), Formulario::punteroNormal) << paso;
        // The one cell of APA, at the last step, brings the second surface to the front.
        const Formulario* const celdas = corrida.programa.cargada<FrmMapa2>();
        EXPECT_EQ(corrida.programa.activa(), paso < 55 ? &corrida.mapa() : celdas) << paso;
        EXPECT_TRUE(corrida.mapa().mnuIndices.Enabled()) << paso;
        const auto& r = corrida.programa.resultados;
        EXPECT_EQ(r.IndABj.limite(), -1) << paso;
        EXPECT_EQ(r.IndISC.limite(), -1) << paso;
        EXPECT_EQ(r.NumColDR, 0) << paso;
    }
    EXPECT_TRUE(corrida.servicios.mensajes().empty());
    EXPECT_TRUE(corrida.servicios.fallos().empty());
    corrida.correr();
    EXPECT_EQ(corrida.guardar(), esperado);
}

TEST_P(CancelarLaCorrida, LosResultadosDeAntesSiguenSiendoLosDeAntes) {
    CorridaDePrueba corrida{GetParam()};
    corrida.correr();
    const std::string antes = corrida.guardar();
    corrida.correr(); // the dialog hides after a saving
    ASSERT_TRUE(corrida.dialogo()->Visible());
    corrida.opciones().TxtBAF2(6).Text = "0";
    corrida.opciones().TxtBAF1(3).Text = "2";
    corrida.cancelarEn(40);
    corrida.opciones().TxtBAF2(6).Text = "1";
    corrida.opciones().TxtBAF1(3).Text = "1";
    EXPECT_EQ(corrida.guardar(), antes);
}

INSTANTIATE_TEST_SUITE_P(CorridaCancelada, CancelarLaCorrida, testing::Bool(),
                         [](const auto& dato) { return std::string{dato.param ? "Circulos" : "Elipses"}; });

} // namespace
} // namespace varo::prueba
