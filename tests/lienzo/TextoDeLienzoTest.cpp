#include "lienzo/TextoDeLienzo.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

AspectoDeEtiqueta SinEtiquetas(const EtiquetaMostrada& etiqueta) {
    ADD_FAILURE() << "no hay etiqueta " << etiqueta.nombre;
    return {};
}

TEST(TextoDeLienzo, UnaFiguraPorLineaEnElOrdenEnQueSeDibujaron) {
    Lienzo lienzo;
    lienzo.escala({-15, 85, -21.17, 51.25});
    lienzo.ForeColor = 0x00400040;
    lienzo.linea(-5, 0.1, 75, 1E+20);
    lienzo.FillColor = 0x00D9F0D3;
    lienzo.arco(1, 2, 0.5, 0, static_cast<double>(1.57F), 0.6);
    lienzo.FillColor.reset();
    lienzo.arco(1, 2, 0.5, static_cast<double>(4.712F), 0, 1);
    lienzo.circulo(452133.21, 4481207.05, 1.0 / 3);
    lienzo.FillColor = 0;
    lienzo.circulo(0, 0, 0);
    lienzo.ForeColor = 255;
    lienzo.punto(-0.00001, 3);
    lienzo.copa({1, 2, 0, 4, 5, 6});
    EXPECT_EQ(TextoDeLienzo(lienzo, SinEtiquetas),
              "escala\t-15\t51,25\t100\t-72,42\n"
              "linea\t-5\t0,1\t75\t1E+20\t00400040\n"
              "arco\t1\t2\t0,5\t0\t1,57000005245209\t0,6\t00400040\t00D9F0D3\n"
              "arco\t1\t2\t0,5\t4,71199989318848\t0\t1\t00400040\t-\n"
              "circulo\t452133,21\t4481207,05\t0,333333333333333\t00400040\t-\n"
              "circulo\t0\t0\t0\t00400040\t00000000\n"
              "punto\t-1E-05\t3\t000000FF\n"
              "copa\t1\t2\t0,5\t4\t5\t6\t000000FF\n");
}

TEST(TextoDeLienzo, UnaEtiquetaDiceSuNombreSuSitioSuColorYSuTextoEnUnaLinea) {
    Lienzo lienzo;
    lienzo.etiqueta("LbTitulo");
    lienzo.etiqueta("LbLeyenda", 0);
    lienzo.etiqueta("Lbcodigo", 12);
    const auto aspecto = [](const EtiquetaMostrada& etiqueta) -> AspectoDeEtiqueta {
        if (etiqueta.nombre == "LbTitulo") {
            return {1.5, 20, 0x00400040, "Parcela\t12\r\nñu\nfin"};
        }
        return {etiqueta.indice + 0.25, 3, 0, ""};
    };
    EXPECT_EQ(TextoDeLienzo(lienzo, aspecto), "escala\t0\t0\t0\t0\n"
                                              "etiqueta\tLbTitulo\t1,5\t20\t00400040\tParcela 12 ñu fin\n"
                                              "etiqueta\tLbLeyenda(0)\t0,25\t3\t00000000\t\n"
                                              "etiqueta\tLbcodigo(12)\t12,25\t3\t00000000\t\n");
}

} // namespace
} // namespace varo::prueba
