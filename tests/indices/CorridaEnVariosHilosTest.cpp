#include "indices/CorridaDePrueba.h"

#include "apoyo/EnVariosHilos.h"
#include "lienzo/TextoDeLienzo.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

TEST(CorridaEnVariosHilos, ElArchivoElDibujoYElUltimoCirculoSonLosDeUno) {
    CorridaDePrueba sola{true};
    sola.correr();
    const std::string archivo = sola.guardar();
    const auto& superficie = sola.programa.tocar<FrmMapa2>();
    for (Cuadrilla* const cuadrilla : Cuadrillas()) {
        CorridaDePrueba corrida{true};
        corrida.servicios.ayuda = cuadrilla;
        OyenteDePrueba oyente;
        corrida.servicios.oyente = &oyente;
        corrida.correr();
        corrida.servicios.oyente = nullptr;
        EXPECT_EQ(oyente.oidos, 5U + 5U + 9U * 5U);
        EXPECT_EQ(corrida.guardar(), archivo);
        EXPECT_EQ(corrida.programa.sesion.CentroCircX, sola.programa.sesion.CentroCircX);
        EXPECT_EQ(corrida.programa.sesion.CentroCircY, sola.programa.sesion.CentroCircY);
        EXPECT_EQ(corrida.programa.tocar<FrmMapa2>().lienzo.figuras(), superficie.lienzo.figuras());
        corrida.correr(); // the dialog hides after a saving
        for (const std::size_t paso : {12U, 30U, 47U, 55U}) {
            corrida.cancelarEn(paso);
            EXPECT_EQ(corrida.mapa().MousePointer(), Formulario::punteroNormal);
        }
        EXPECT_EQ(corrida.guardar(), archivo) << "el de antes";
    }
}

} // namespace
} // namespace varo::prueba
