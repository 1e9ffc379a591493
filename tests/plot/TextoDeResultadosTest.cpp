#include "plot/TextoDeResultados.h"

#include "apoyo/Jornada.h"
#include "plot/FrmResultados.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

CifrasDeParcela DosCodigos() {
    CifrasDeParcela cifras{.numCodigos = 2,
                           .codigos = {"Pino silvestre", "Haya"},
                           .piesHa = 900.04,
                           .abHa = 31.25,
                           .titulo = "Parcela Lillo$",
                           .superficie = 1963.5,
                           .areaCopas = 2100,
                           .areaCopasInterior = 1800.25,
                           .areaIntersecCopas = 0,
                           .fcc = 0.875F};
    cifras.piesHaCodigo.redimensionar(1);
    cifras.piesHaCodigo(0) = 1000.5;
    cifras.piesHaCodigo(1) = -100.46;
    cifras.abHaCodigo.redimensionar(1);
    cifras.abHaCodigo(0) = 30;
    cifras.abHaCodigo(1) = 1.25;
    return cifras;
}

TEST(TextoDeResultados, ConCodigosEsUnaTablaConUnaColumnaPorCodigo) {
    Jornada dia;
    auto& ventana = dia.programa.tocar<FrmResultados>();
    ventana.tablasConCodigos(DosCodigos());
    ventana.resumen(DosCodigos());
    EXPECT_EQ(TextoDeResultados(ventana), "Parcela Lillo$\n"
                                          "Area:\t1963,5\tm2\n"
                                          "Nº de pies/ha:\n"
                                          "Cod:\tPino silvestre\tHaya\tTotal\n"
                                          "Valor:\t1000,5\t\t900,0\n"
                                          "Area basimétrica (m2/ha):\n"
                                          "Cod:\tPino silvestre\tHaya\tTotal\n"
                                          "Valor:\t30,0\t1,3\t31,3\n"
                                          "Area total de copas:\t2100,0\tm2\n"
                                          "Area total de copas dentro de parcela:\t1800,3\tm2\n"
                                          "Area total de intersección de copas:\t0,0\tm2\n"
                                          "Fcc:\t0,88\n");
}

TEST(TextoDeResultados, SinCodigosHayUnaColumna) {
    Jornada dia;
    auto& ventana = dia.programa.tocar<FrmResultados>();
    ventana.tablasSinCodigos(DosCodigos());
    EXPECT_EQ(TextoDeResultados(ventana), "Label1\n"
                                          "Superficie\n"
                                          "Nº de pies/ha:\n"
                                          "Cod:\tTotal\n"
                                          "Valor:\t900,0\n"
                                          "Area basimétrica (m2/ha):\n"
                                          "Cod:\tTotal\n"
                                          "Valor:\t31,3\n"
                                          "Area total de Copas:\n"
                                          "Area total de Copas interior:\n"
                                          "Area de Intersección de copas:\n"
                                          "Fcc:\n");
}

TEST(TextoDeResultados, NingunTextoParteSuFilaNiSuColumna) {
    Jornada dia;
    auto& ventana = dia.programa.tocar<FrmResultados>();
    ventana.LbParcela.Caption = "Parcela: 1\tNorte\r\nSur";
    ventana.LbPiesHaCodigo(0).Caption = " A\tB\n";
    const std::string texto = TextoDeResultados(ventana);
    EXPECT_TRUE(texto.starts_with("Parcela: 1 Norte Sur\n")) << texto;
    EXPECT_NE(texto.find("\nCod:\tA B\nValor:\t\n"), std::string::npos) << texto;
}

TEST(TextoDeResultados, UnaComillaAlPrincipioNoSeTragaLasCeldasQueSiguen) {
    Jornada dia;
    auto& ventana = dia.programa.tocar<FrmResultados>();
    ventana.LbParcela.Caption = "Monte \"Alto\"";
    ventana.LbPiesHaCodigo(0).Caption = "\"A\" y \"B";
    const std::string texto = TextoDeResultados(ventana);
    EXPECT_TRUE(texto.starts_with("Monte \"Alto\"\n")) << texto;
    EXPECT_NE(texto.find("\nCod:\t\"\"\"A\"\" y \"\"B\"\nValor:"), std::string::npos) << texto;
}

TEST(TextoDeResultados, LoQueNoSeVeNoSeCopia) {
    Jornada dia;
    auto& ventana = dia.programa.tocar<FrmResultados>();
    ventana.tablasConCodigos(DosCodigos());
    ventana.LbPiesHaCodigo(1).Visible = false;
    ventana.LbFcc.Visible = false;
    ventana.LbPiesHa.Visible = false;
    const std::string texto = TextoDeResultados(ventana);
    EXPECT_NE(texto.find("\nSuperficie\nCod:\tPino silvestre\tTotal\n"), std::string::npos) << texto;
    EXPECT_EQ(texto.find("Fcc"), std::string::npos) << texto;
}

} // namespace
} // namespace varo::prueba
