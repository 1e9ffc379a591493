#include "map/Formato.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

constexpr auto texto = TextoDeCelda;

TEST(FrmFormato, LosCodigosDistintosSeListanPorSuOrden) {
    Formato formato{ConCodigos({texto("QP"), texto("PS"), texto("QP"), 7.0, texto("PS"), {}})};
    EXPECT_EQ(formato.programa.sesion.Codigos, (Textos{"7", "PS", "QP"}));
    EXPECT_EQ(formato.programa.sesion.NumCodigos, 3);
    EXPECT_EQ(formato.ventana().LbCodigo(0).Caption(), "7");
    EXPECT_EQ(formato.ventana().LbCodigo(2).Caption(), "QP");
    EXPECT_EQ(formato.ventana().CboCodFont(2).Text(), "MS Sans Serif");
    EXPECT_TRUE(formato.ventana().LbCod.Visible());
    EXPECT_EQ(formato.columna(1), (Textos{"1", "2", "3", "4", "5", "6"}))
        << "ordenada otra vez por la primera columna";
}

TEST(FrmFormato, UnSoloCodigoNoCreaControles) {
    Formato formato{ConCodigos({texto("PS"), texto("PS"), texto("PS")})};
    EXPECT_EQ(formato.programa.sesion.NumCodigos, 1);
    EXPECT_TRUE(formato.ventana().LbCodigo.tiene(0));
    EXPECT_FALSE(formato.ventana().LbCodigo.tiene(1));
}

TEST(FrmFormato, UnaColumnaDeCodigosVaciaDaCeroCodigos) {
    Formato formato{ConCodigos(std::vector<Valor>(3))};
    EXPECT_EQ(formato.programa.sesion.NumCodigos, 0);
    EXPECT_EQ(formato.ventana().LbCodigo(0).Caption(), "");
    EXPECT_FALSE(formato.ventana().LbCod.Visible());
}

TEST(FrmFormato, UnCodigoIgualALaCabeceraNoSeTomaDeLaPrimeraFila) {
    Formato formato{ConCodigos({texto("Cod"), texto("Cod"), texto("PS")})};
    EXPECT_EQ(formato.programa.sesion.Codigos, (Textos{"PS"}));
}

TEST(FrmFormato, SinCodigoNoSeOrdenaNiHayFilas) {
    auto filas = ConCodigos({texto("B"), texto("A"), texto("C")});
    std::swap(filas[1][0], filas[3][0]);
    Formato formato{filas, false};
    EXPECT_EQ(formato.columna(1), (Textos{"3", "2", "1"}));
    EXPECT_EQ(formato.programa.sesion.NumCodigos, 0);
    EXPECT_FALSE(formato.ventana().LbCodigo(0).Visible());
}

TEST(FrmFormato, UnaColumnaDeCodigosQueEsLaDeLaXNoSeOrdenaNiSeLista) {
    auto filas = ConCodigos({texto("B"), texto("A"), texto("C")});
    std::swap(filas[1][0], filas[3][0]);
    Formato formato{filas};
    formato.programa.descargar<FrmFormato>();
    formato.programa.sesion.Codigos.clear();
    formato.programa.sesion.Columnas(4) = formato.programa.sesion.Columnas(0);
    auto& rejilla = formato.programa.tocar<Hojadedatos>().MSFlexGrid1;
    rejilla.TextMatrix(1, 1, "9");
    formato.ventana();
    EXPECT_EQ(formato.columna(1), (Textos{"9", "2", "3"})) << "sin ordenar";
    EXPECT_TRUE(formato.programa.sesion.Codigos.empty());
    EXPECT_FALSE(formato.ventana().LbCodigo(0).Visible());
}

TEST(FrmFormato, RehacerElDialogoConElArchivoAbiertoVuelveACrecerDesdeSuAlto) {
    Formato formato{ConCodigos({texto("A"), texto("B"), texto("C")})};
    const float crecido = formato.ventana().Height();
    formato.usuario.clic(formato.ventana().CmdCancelar);
    EXPECT_EQ(formato.ventana().Height(), crecido);
}

TEST(FrmFormato, ConUnSoloCodigoLasFilasYLosBotonesBajan) {
    Formato sinCodigos{ConCodigos({texto("A"), texto("A"), texto("A")}), false};
    Formato conUno{ConCodigos({texto("A"), texto("A"), texto("A")})};
    EXPECT_EQ(conUno.ventana().TxtCodigo(0).Top(), sinCodigos.ventana().TxtCodigo(0).Top() + 600);
    EXPECT_EQ(conUno.ventana().CmdAceptar.Top(), sinCodigos.ventana().CmdAceptar.Top() + 1320);
    EXPECT_EQ(conUno.ventana().CmdCancelar.Top(), sinCodigos.ventana().CmdCancelar.Top() + 1320);
}

TEST(FrmFormato, LlevaSusLeyendas) {
    Jornada jornada;
    const FrmFormato ventana{jornada.programa};
    const std::vector<std::pair<const Control*, const char*>> leyendas{
        {&ventana.Label1, " Título"},        {&ventana.Label2, "Texto:"},
        {&ventana.Label3, "Tipo de letra:"}, {&ventana.Label4, "Color letra:"},
        {&ventana.Label8, "Color fondo:"},   {&ventana.LbCod, " Códigos"},
        {&ventana.Label10, "Código:"},       {&ventana.Label7, "Texto:"},
        {&ventana.Label6, "Tipo de letra:"}, {&ventana.Label5, "Color linea:"},
        {&ventana.Label9, "Color fondo:"},   {&ventana.CmdAceptar, "Aceptar"},
        {&ventana.CmdCancelar, "Cancelar"}};
    for (const auto& [control, leyenda] : leyendas) {
        EXPECT_EQ(control->Caption(), leyenda) << control->Name();
    }
}

TEST(FrmFormato, SinPoligonoExteriorElContornoSeConstruyeIgual) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.cambiarOpciones([&](OpcionesPrograma& opciones) { jornada.usuario.clic(opciones.ChPolExt); });
    jornada.dibujarCuadrado();
    EXPECT_EQ(jornada.programa.sesion.NumPuntosPoligono, 5);
    EXPECT_EQ(jornada.programa.sesion.SupPoligono, 100);
}

TEST(FrmFormato, TresArbolesAlineadosDanUnaParcelaSinSuperficie) {
    auto filas = ConCodigos({texto("A"), texto("B"), texto("A")});
    filas[2][1] = 0.0;
    filas[3][1] = 0.0;
    filas[3][2] = 5.0;
    Formato formato{filas};
    formato.usuario.clic(formato.ventana().CmdAceptar);
    EXPECT_EQ(formato.programa.sesion.SupPoligono, 0);
}

TEST(FrmFormato, ElTituloYLaFuenteTomanSuValorAlCargarse) {
    Formato formato{ConCodigos({texto("PS"), texto("QP"), texto("PS")})};
    EXPECT_EQ(formato.ventana().Caption(), "Formato");
    EXPECT_EQ(formato.ventana().TxtTitName.Text(), "Parcela Parcela1$");
    EXPECT_EQ(formato.ventana().CboTitFont.Text(), "Arial");
}

TEST(FrmFormato, ElDialogoCreceConLosCodigosYVuelveASuAltoEnElArchivoSiguiente) {
    Formato formato{ConCodigos({texto("A"), texto("B"), texto("C")})};
    const int alto = formato.programa.sesion.AltoFormato.valor();
    EXPECT_GT(alto, 0);
    EXPECT_EQ(formato.ventana().Height(), static_cast<float>(alto + 1290 + 2 * 630));
    EXPECT_EQ(formato.ventana().CmdAceptar.Top(), formato.ventana().Height() - 910);
    EXPECT_EQ(formato.ventana().TxtCodigo(2).Top(), formato.ventana().TxtCodigo(0).Top() + 2 * 630);

    formato.abrirOtraParcela(ConCodigos({texto("A"), texto("B"), texto("B")}));
    EXPECT_EQ(formato.programa.sesion.CierresConMapa, 1);
    EXPECT_EQ(formato.ventana().Height(), static_cast<float>(alto + 1290 + 630));
    EXPECT_EQ(formato.programa.sesion.AltoFormato, alto);
}

TEST(FrmFormato, SinCodigosEnElPrimerArchivoElSegundoCreceDesdeCero) {
    Formato formato{ConCodigos({texto("A"), texto("B"), texto("A")}), false};
    formato.abrirOtraParcela(ConCodigos({texto("A"), texto("B"), texto("C")}));
    EXPECT_EQ(formato.programa.sesion.CierresConMapa, 1);
    EXPECT_EQ(formato.programa.sesion.AltoFormato, 0) << "nadie lo tomó";
    EXPECT_EQ(formato.ventana().Height(), 1290 + 2 * 630);
    EXPECT_EQ(formato.ventana().CmdAceptar.Top(), 1290 + 2 * 630 - 910);
}

TEST(FrmFormato, ElPunteroEsUnRelojMientrasSeDibuja) {
    Formato formato{ConCodigos({texto("A"), texto("B"), texto("A")})};
    std::vector<int> punteros;
    formato.ventana().observar([&] { punteros.push_back(formato.ventana().MousePointer()); });
    formato.aceptar();
    ASSERT_FALSE(punteros.empty());
    EXPECT_EQ(punteros.front(), 11);
    EXPECT_EQ(formato.ventana().MousePointer(), 0);
}

TEST(FrmFormato, AceptarQuitaLasFilasSinCoordenadas) {
    auto filas = ConCodigos({texto("A"), texto("B"), texto("A"), texto("B"), texto("A")});
    filas[5][1] = {};
    filas[5][2] = {};
    Formato formato{filas};
    formato.usuario.clic(formato.ventana().CmdAceptar);
    EXPECT_EQ(formato.columna(1), (Textos{"1", "2", "3", "4"}));
    EXPECT_EQ(formato.programa.sesion.NumPuntosPoligono, 5);
    EXPECT_EQ(formato.programa.sesion.SupPoligono, 100);
}

TEST(FrmFormato, UnaHojaSinCoordenadasNoSeQuedaSinFilas) {
    auto filas = ConCodigos({texto("A"), texto("B")});
    for (std::size_t i = 1; i <= 2; ++i) {
        filas[i][1] = {};
        filas[i][2] = {};
    }
    Formato formato{filas};
    formato.servicios.esperarFallo(13);
    formato.usuario.clic(formato.ventana().CmdAceptar);
    EXPECT_EQ(formato.columna(1).size(), 1U);
    EXPECT_TRUE(formato.servicios.todoPedido());
    EXPECT_EQ(formato.ventana().MousePointer(), Formulario::punteroNormal);
    EXPECT_FALSE(formato.programa.terminado()) << "el programa sigue";
}

TEST(FrmFormato, AceptarDaLaEscalaALasDosSuperficiesYPasaAlMapa) {
    Formato formato{ConCodigos({texto("A"), texto("B"), texto("A"), texto("B")})};
    formato.usuario.clic(formato.ventana().CmdAceptar);
    EXPECT_FALSE(formato.ventana().Visible());
    const auto& mapa = formato.programa.tocar<FrmMapa>();
    EXPECT_TRUE(mapa.Visible());
    EXPECT_NEAR(mapa.lienzo.escala().abajo, -10.0 * 15 / 70,
                1e-12); // metres: last places of quotient and product
    EXPECT_EQ(formato.programa.tocar<FrmMapa2>().lienzo.escala(), mapa.lienzo.escala());
    EXPECT_FALSE(formato.marco().mnuMapa.Enabled());
    EXPECT_TRUE(formato.marco().mnuOpciones.Enabled());
}

TEST(FrmFormato, UnaCoordenadaQueNoEsNumeroDiceDondeEsta) {
    auto filas = ConCodigos({texto("A"), texto("B"), texto("A"), texto("B")});
    filas[3][1] = texto("diez");
    Formato formato{filas};
    formato.servicios.esperarFallo(13);
    formato.usuario.clic(formato.ventana().CmdAceptar);
    const std::string& lugar = formato.servicios.fallos().back().lugar();
    EXPECT_NE(lugar.find("fila 4 de «"), std::string::npos) << lugar;
    EXPECT_NE(lugar.find('X'), std::string::npos) << lugar;
}

} // namespace
} // namespace varo::prueba
