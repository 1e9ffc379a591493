#include "map/Formato.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

constexpr auto texto = TextoDeCelda;

TEST(FrmMapa, ElTituloEsElDeLaHojaSinSuUltimaLetra) {
    Formato formato{ConCodigos({texto("A"), texto("B"), texto("A"), texto("B")})};
    formato.usuario.clic(formato.ventana().CmdAceptar);
    auto& mapa = formato.programa.tocar<FrmMapa>();
    EXPECT_EQ(mapa.Caption(), "Mapa de la parcela Parcela1");
    EXPECT_EQ(mapa.mnuDatos.Caption(), "&Datos de parcela");
    EXPECT_EQ(mapa.mnuIndices.Caption(), "&Indices de rivanza");
    EXPECT_TRUE(mapa.mnuIndices.Enabled());
    EXPECT_EQ(mapa.Width(), formato.marco().Width());
    EXPECT_EQ(mapa.Height(), formato.marco().Height());
    EXPECT_FALSE(mapa.Lbcodigo(0).Visible()) << "la de diseño no es de ningún árbol";
}

TEST(FrmMapa, LasDosSuperficiesTomanLasMedidasDelMarco) {
    Jornada jornada;
    jornada.marco().Width = 12345;
    jornada.marco().Height = 6789;
    EXPECT_EQ(jornada.programa.tocar<FrmMapa>().Width(), 12345);
    EXPECT_EQ(jornada.programa.tocar<FrmMapa2>().Width(), 12345);
    EXPECT_EQ(jornada.programa.tocar<FrmMapa2>().Height(), 6789);
}

TEST(FrmMapa, PorDisenoMideComoElMarcoSinPantalla) {
    Jornada jornada;
    EXPECT_EQ(jornada.programa.tocar<FrmMapa>().Width(), 15000);
    EXPECT_EQ(jornada.programa.tocar<FrmMapa>().Height(), 10851);
}

TEST(FrmMapa, ElDobleClicEnLaLeyendaVuelveAlFormato) {
    Formato formato{ConCodigos({texto("A"), texto("B"), texto("A"), texto("B")})};
    formato.usuario.escribir(formato.ventana().TxtCodigo(1), "roble");
    formato.aceptar();
    formato.usuario.arrastrar(formato.mapa().LbLeyenda(1), 3, 4);
    formato.usuario.dobleClic(formato.mapa().LbLeyenda(1));
    EXPECT_EQ(formato.programa.cargada<FrmMapa>(), nullptr);
    EXPECT_TRUE(formato.ventana().Visible());
    EXPECT_TRUE(formato.marco().mnuMapa.Enabled());
    EXPECT_EQ(formato.ventana().TxtCodigo(1).Text(), "roble") << "con todo lo elegido en su sitio";

    formato.aceptar();
    EXPECT_EQ(formato.mapa().LbLeyenda(1).Caption(), "roble");
    EXPECT_NE(formato.mapa().LbLeyenda(1).Top(), 4) << "el sitio al que se llevó no se guarda";
    EXPECT_TRUE(formato.mapa().Visible());
    EXPECT_FALSE(formato.marco().mnuMapa.Enabled());
}

TEST(FrmMapa, CerrarElMapaDejaElFormatoOculto) {
    Formato formato{ConCodigos({texto("A"), texto("B"), texto("A"), texto("B")})};
    formato.usuario.clic(formato.ventana().CmdAceptar);
    formato.usuario.cerrar(formato.programa.tocar<FrmMapa>());
    EXPECT_FALSE(formato.ventana().Visible());
    EXPECT_TRUE(formato.marco().mnuMapa.Enabled());

    formato.pedirColumnas();
    formato.usuario.clic(formato.programa.tocar<SelColRM>().CmdDibujar);
    formato.usuario.clic(formato.ventana().CmdAceptar);
    EXPECT_TRUE(formato.programa.tocar<FrmMapa>().Visible());
}

TEST(FrmMapa, TodaEtiquetaDeLaLeyendaVuelveAlFormato) {
    Formato formato{ConCodigos(Textos{"A", "B", "A", "B"})};
    formato.aceptar();
    auto& leyenda = formato.mapa().crearLeyenda(7);
    leyenda.Visible = true;
    formato.usuario.dobleClic(leyenda);
    EXPECT_EQ(formato.programa.cargada<FrmMapa>(), nullptr);
    EXPECT_TRUE(formato.ventana().Visible());
}

TEST(FrmMapa, UnaEtiquetaSoltadaQuedaALaDerechaDelPunto) {
    Formato formato{ConCodigos(Textos{"A", "B", "A", "B"})};
    formato.aceptar();
    auto& titulo = formato.mapa().LbTitulo;
    titulo.Caption = "Parcela";
    titulo.Visible = true;
    const double ancho = titulo.Width();
    EXPECT_GT(ancho, 0);
    formato.usuario.arrastrar(titulo, 3, 4);
    EXPECT_EQ(titulo.Left(), 3 + ancho / 2);
    EXPECT_EQ(titulo.Top(), 4);
}

TEST(FrmMapa, LaEtiquetaDeUnArbolNiegaElPasoYSoloLaSuperficieMueve) {
    Formato formato{ConCodigos(Textos{"A", "B", "A", "B"})};
    formato.aceptar();
    auto& mapa = formato.mapa();
    auto& una = mapa.crearCodigo(101);
    auto& otra = mapa.crearCodigo(102);
    for (Etiqueta* const etiqueta : {&una, &otra}) {
        etiqueta->Visible = true;
        etiqueta->Left = 1;
    }
    EXPECT_EQ(una.DragIcon(), "dragmove.cur");
    auto arrastre = formato.usuario.empezarArrastre(una);
    EXPECT_EQ(una.DragIcon(), "nodrop01.cur") << "empieza encima de sí misma";
    arrastre.sobre(nullptr);
    EXPECT_EQ(una.DragIcon(), "dragmove.cur");
    arrastre.sobre(&otra);
    EXPECT_EQ(una.DragIcon(), "nodrop01.cur");
    EXPECT_EQ(otra.DragIcon(), "dragmove.cur") << "cambia el dibujo de la que se arrastra";
    arrastre.soltar(otra);
    EXPECT_EQ(una.Left(), 1);
    formato.usuario.arrastrar(una, una);
    EXPECT_EQ(una.Left(), 1) << "pulsar y soltar en el sitio no mueve nada";
    formato.usuario.arrastrar(una, 5, 6, {&otra});
    EXPECT_EQ(una.DragIcon(), "dragmove.cur");
    EXPECT_EQ(una.Top(), 6);
}

} // namespace
} // namespace varo::prueba
