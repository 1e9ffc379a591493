#include "map/Formato.h"

#include "apoyo/OyenteDePrueba.h"
#include "map/TextoDelMapa.h"
#include "map/ValoresDeFormato.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <variant>
#include <vector>

namespace varo::prueba {
namespace {

template <class Forma>
std::vector<Forma> Formas(const Lienzo& lienzo) {
    std::vector<Forma> formas;
    for (const Figura& figura : lienzo.figuras()) {
        if (const auto* const forma = std::get_if<Forma>(&figura)) {
            formas.push_back(*forma);
        }
    }
    return formas;
}

/// The colours of the points of the trees, in the order of drawing.
std::vector<Color> ColoresDeArboles(const Lienzo& lienzo) {
    std::vector<Color> colores;
    for (const Punto& punto : Formas<Punto>(lienzo)) {
        colores.push_back(punto.color);
    }
    return colores;
}

constexpr Color morado = 0x400040;
constexpr Color azul = 0xB27200;

/// CuadradoConCentro up to its format window: four radii of 10 dm, codes PS and QP.
struct FormatoDeCuadrado : Jornada {
    explicit FormatoDeCuadrado(Filas filas = CuadradoConCentro(),
                               const std::function<void(OpcionesPrograma&)>& cambio = {}) {
        abrirParcela(filas);
        if (cambio) {
            cambiarOpciones(cambio);
        }
        dibujarCuadrado();
    }
    FrmFormato& formato() { return programa.tocar<FrmFormato>(); }
    FrmMapa& mapa() { return programa.tocar<FrmMapa>(); }
    FrmMapa2& gemela() { return programa.tocar<FrmMapa2>(); }
    /// Back to the format window while the map is up, through the options and the column dialog.
    FrmFormato& volver(const std::function<void(OpcionesPrograma&)>& cambio = [](OpcionesPrograma&) {}) {
        cambiarOpciones(cambio);
        pedirColumnas();
        usuario.clic(programa.tocar<SelCol4R>().CmdDibujar);
        return formato();
    }
    void aceptar() { usuario.clic(formato().CmdAceptar); }
};

TEST(DibujoDelMapa, LasMismasLineasDeMarcoVanALasDosSuperficies) {
    FormatoDeCuadrado p;
    const auto marco = Formas<Linea>(p.gemela().lienzo);
    ASSERT_EQ(marco.size(), 4U);
    const auto lineas = Formas<Linea>(p.mapa().lienzo);
    EXPECT_TRUE(std::equal(marco.begin(), marco.end(), lineas.begin()));
    EXPECT_EQ(marco[0].color, morado);
    EXPECT_EQ(p.gemela().lienzo.escala(), p.mapa().lienzo.escala());
    EXPECT_EQ(p.gemela().lienzo.figuras().size(), 4U) << "las copas no se pintan en ella";
    EXPECT_FALSE(p.gemela().Visible());
    EXPECT_EQ(p.mapa().lienzo.BackColor, 0xC0E0FF);
}

TEST(DibujoDelMapa, LaLeyendaDeCuatroCodigosReparteElMarcoEnCuartos) {
    Formato formato{ConCodigos(Textos{"A", "B", "C", "D"})};
    formato.usuario.escribir(formato.ventana().TxtCodigo(2), "  roble ");
    formato.aceptar();
    auto& mapa = formato.mapa();
    const Escala marco = MarcoDe(mapa.lienzo.escala());
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(mapa.LbLeyenda(i).Left(), ((i + 0.1) * marco.ancho()) / 4 + marco.izquierda) << i;
        EXPECT_EQ(mapa.LbLeyenda(i).Top(), marco.abajo) << i;
        EXPECT_EQ(mapa.LbLeyenda(i).ForeColor(), FrmFormato::colorDeLinea(i)) << i;
        EXPECT_TRUE(mapa.LbLeyenda(i).Visible()) << i;
    }
    EXPECT_EQ(mapa.LbLeyenda(2).Caption(), "roble");
    EXPECT_EQ(mapa.LbLeyenda(3).Caption(), "");
}

TEST(DibujoDelMapa, LasEtiquetasMidenEnMetrosPorLaReglaDelTexto) {
    FormatoDeCuadrado p;
    const Escala& escala = p.mapa().lienzo.escala();
    const auto& titulo = p.mapa().LbTitulo; // "Parcela Parcela1$": 17 characters, 8 points
    EXPECT_NEAR(titulo.Width(), 17 * 75.0 * escala.ancho() / 15000, 1e-12);
    EXPECT_NEAR(titulo.Height(), 192.0 * -escala.alto() / 10851, 1e-12);
    EXPECT_NEAR(titulo.Left() + titulo.Width() / 2, 5, 1e-12) << "centrado sobre la parcela";
    EXPECT_NEAR(p.mapa().LbLeyenda(0).Width(), 300.0 * escala.ancho() / 15000, 1e-12) << "sin texto";
}

TEST(DibujoDelMapa, EnUnaVentanaDeOtraFormaUnMetroMideLoMismoEnLasDosDirecciones) {
    Jornada jornada;
    auto& mapa = jornada.programa.tocar<FrmMapa>();
    mapa.lienzo.escala({0, 100, 0, 50});
    mapa.Width = 20000;
    mapa.Height = 5000;
    EXPECT_EQ(mapa.enUnidades(100), 1) << "cabe todo: mandan los 50 m de alto";
    mapa.Width = 5000;
    EXPECT_EQ(mapa.enUnidades(100), 2);
    mapa.Width = 0;
    EXPECT_EQ(mapa.enUnidades(100), 0);
}

TEST(DibujoDelMapa, ElTituloTomaLoElegidoYNingunFondo) {
    Formato formato{ConCodigos(Textos{"A", "B", "A"})};
    formato.servicios.prepararFuente(Fuente{.nombre = "Times", .tamano = 20, .cursiva = true});
    formato.servicios.prepararColor(0x112233);
    formato.servicios.prepararColor(0x445566);
    formato.usuario.desplegar(formato.ventana().CboTitFont);
    formato.usuario.desplegar(formato.ventana().CboTitColor);
    formato.usuario.desplegar(formato.ventana().CboTitBackColor);
    formato.usuario.escribir(formato.ventana().TxtTitName, "  Ladera  ");
    formato.aceptar();
    const auto& titulo = formato.mapa().LbTitulo;
    EXPECT_EQ(titulo.Caption(), "Ladera");
    EXPECT_EQ(titulo.Font(), (Fuente{.nombre = "Times", .tamano = 20, .cursiva = true}));
    EXPECT_EQ(titulo.ForeColor(), 0x112233);
    EXPECT_EQ(titulo.BackColor(), std::nullopt);
}

TEST(DibujoDelMapa, ElDibujoLlenaLosValoresQueNadieEligioYLosGuarda) {
    Formato formato{ConCodigos(Textos{"A", "B", "A"})};
    formato.servicios.prepararColor(0x010203);
    formato.usuario.desplegar(formato.ventana().CboCodColor(1));
    formato.aceptar();
    const auto& sesion = formato.programa.sesion;
    EXPECT_EQ(sesion.TituloFuente, "Arial");
    EXPECT_EQ(sesion.TituloTamano, "8");
    EXPECT_EQ(sesion.TituloColor, "4194368");
    EXPECT_EQ(sesion.CodColor(0), "4194368");
    EXPECT_EQ(sesion.CodColor(1), "66051");
    EXPECT_EQ(sesion.CodColorFondo(0), "12640511") << "el fondo de la superficie";
    EXPECT_EQ(sesion.CodFuente(1), "MS Sans Serif");
    EXPECT_EQ(sesion.CodNegrita(1), "Falso");
    EXPECT_EQ(sesion.CodColor.limite(), 2);

    formato.abrirOtraParcela(ConCodigos(Textos{"C", "D", "E", "F"}));
    formato.aceptar();
    EXPECT_EQ(sesion.CodColor(1), "66051") << "lo del otro archivo sigue";
    EXPECT_EQ(formato.mapa().LbLeyenda(1).ForeColor(), 0x010203);
    EXPECT_EQ(formato.mapa().LbLeyenda(3).ForeColor(), FrmFormato::colorDeLinea(3));
}

TEST(DibujoDelMapa, UnCodigoDesconocidoVaEnNegroYLosDemasEnSuColor) {
    Formato formato{ConCodigos(std::vector<Valor>{TextoDeCelda("A"), Valor{}, TextoDeCelda("B")})};
    formato.aceptar();
    EXPECT_EQ(ColoresDeArboles(formato.mapa().lienzo), (std::vector<Color>{morado, 0, azul}));
    EXPECT_EQ(formato.mapa().Lbcodigo(2).ForeColor(), morado) << "sin código, el color de diseño";
    EXPECT_EQ(formato.mapa().Lbcodigo(3).ForeColor(), azul);
}

TEST(DibujoDelMapa, SinCodigosTodoVaEnElColorDeLaSuperficie) {
    Formato formato{ConCodigos(Textos{"A", "B", "C"}), false};
    formato.aceptar();
    EXPECT_EQ(ColoresDeArboles(formato.mapa().lienzo), std::vector<Color>(3, morado));
    EXPECT_FALSE(formato.mapa().LbLeyenda(0).Visible());
    EXPECT_EQ(Formas<Linea>(formato.mapa().lienzo).back().color, morado);
}

TEST(DibujoDelMapa, UnaColumnaDeCodigosVaciaNoTieneLeyenda) {
    Formato formato{ConCodigos(std::vector<Valor>(3))};
    formato.aceptar();
    EXPECT_FALSE(formato.mapa().LbLeyenda(0).Visible());
    EXPECT_EQ(ColoresDeArboles(formato.mapa().lienzo), std::vector<Color>(3, 0));
}

TEST(DibujoDelMapa, DosClicsEnChCodigoDejanTodoEnNegroYSinLeyenda) {
    FormatoDeCuadrado p;
    auto& formato = p.volver([&](OpcionesPrograma& opciones) {
        p.usuario.clic(opciones.ChCodigo);
        p.usuario.clic(opciones.ChCodigo);
    });
    EXPECT_TRUE(formato.LbCodigo.tiene(1)) << "hay filas de códigos";
    EXPECT_EQ(p.programa.sesion.NumCodigos, 0);
    p.aceptar();
    EXPECT_EQ(ColoresDeArboles(p.mapa().lienzo), std::vector<Color>(5, 0));
    EXPECT_FALSE(p.mapa().LbLeyenda.tiene(1));
    EXPECT_FALSE(p.mapa().LbLeyenda(0).Visible());
    EXPECT_EQ(p.mapa().Lbcodigo(1).ForeColor(), morado);
}

TEST(DibujoDelMapa, SoloSeRellenanLasCopasDeCuatroRadiosConUnFondoElegido) {
    FormatoDeCuadrado p;
    for (const Arco& arco : Formas<Arco>(p.mapa().lienzo)) {
        EXPECT_EQ(arco.relleno, std::nullopt);
    }
    auto& formato = p.volver();
    p.servicios.prepararColor(0x123456);
    p.usuario.desplegar(formato.CboCodBackColor(1));
    p.aceptar();
    auto& lienzo = p.mapa().lienzo;
    EXPECT_EQ(lienzo.Point(0, 10), 0x123456) << "árbol 2, QP";
    EXPECT_EQ(lienzo.Point(0, 0), 0xC0E0FF) << "árbol 1, PS, con el fondo que le dio la superficie";
    for (const Circulo& vineta : Formas<Circulo>(lienzo)) {
        EXPECT_EQ(vineta.relleno, std::nullopt);
    }
    p.volver();
    p.aceptar();
    EXPECT_EQ(lienzo.Point(0, 10), 0x123456) << "lo elegido sigue en el dibujo siguiente";
}

TEST(DibujoDelMapa, ElFondoElegidoNoRellenaUnRadioMedio) {
    Formato formato{ConCodigos(Textos{"A", "B", "A"})};
    formato.servicios.prepararColor(0x123456);
    formato.usuario.desplegar(formato.ventana().CboCodBackColor(0));
    formato.aceptar();
    EXPECT_EQ(formato.mapa().lienzo.Point(0, 0), 0xC0E0FF);
}

TEST(DibujoDelMapa, UnRadioCeroSePintaDeMedioMetroTrasConvertirse) {
    auto filas = CuadradoConCentro();
    filas[5][3] = 3.0;
    filas[5][4] = 2.0;
    filas[5][5] = 0.0;
    filas[5][6] = 1.0;
    FormatoDeCuadrado p{filas};
    const auto arcos = Formas<Arco>(p.mapa().lienzo);
    const std::vector<Arco> delQuinto(arcos.end() - 4, arcos.end());
    EXPECT_EQ(delQuinto[0].radio, 0.3); // 0,3 north, 0,2 east, 0,5 south, 0,1 west
    EXPECT_EQ(delQuinto[0].aspecto, 0.3 / 0.2);
    EXPECT_EQ(delQuinto[1].radio, 0.5);
    EXPECT_EQ(delQuinto[1].aspecto, 0.5 / 0.2);
    EXPECT_EQ(delQuinto[2].aspecto, 0.5 / 0.1);
    EXPECT_EQ(delQuinto[3].aspecto, 0.3 / 0.1);
    EXPECT_EQ(p.mapa().arboles.back().copa, (Copa{4, 6, 0.3, 0.2, 0, 0.1})) << "lo medido sigue como es";
}

TEST(DibujoDelMapa, UnaCeldaDeRadioVaciaCuentaComoCero) {
    auto filas = CuadradoConCentro();
    filas[5][3] = {};
    FormatoDeCuadrado p{filas};
    EXPECT_EQ(p.mapa().arboles.back().copa, (Copa{4, 6, 0, 1, 1, 1}));
}

TEST(DibujoDelMapa, CadaArbolGuardaLoQueDiceElMapaDeEl) {
    FormatoDeCuadrado p;
    ASSERT_EQ(p.mapa().arboles.size(), 5U);
    const auto& segundo = p.mapa().arboles[1];
    EXPECT_EQ(segundo.numero, "2");
    EXPECT_EQ(segundo.codigo, "QP");
    EXPECT_EQ(segundo.tamano, "80");
    EXPECT_EQ(segundo.copa, (Copa{0, 10, 1, 1, 1, 1}));
}

TEST(DibujoDelMapa, ElContornoTieneElColorDelUltimoArbol) {
    FormatoDeCuadrado p; // trees 1 to 5: PS, QP, PS, QP, PS
    const auto lineas = Formas<Linea>(p.mapa().lienzo);
    ASSERT_EQ(lineas.size(), 4U + 4U);
    for (std::size_t i = 4; i < lineas.size(); ++i) {
        EXPECT_EQ(lineas[i].color, morado);
    }
    EXPECT_EQ(lineas[4], (Linea{0, 0, 0, 10, morado}));
    EXPECT_EQ(lineas[7], (Linea{10, 0, 0, 0, morado}));
}

TEST(DibujoDelMapa, SinPoligonoExteriorSeConstruyeYNoSeDibuja) {
    FormatoDeCuadrado p{CuadradoConCentro(), [](OpcionesPrograma& opciones) { opciones.ChPolExt.Value = 0; }};
    EXPECT_EQ(Formas<Linea>(p.mapa().lienzo).size(), 4U);
    EXPECT_EQ(p.programa.sesion.NumPuntosPoligono, 5);
}

TEST(DibujoDelMapa, DibujarOtraVezDejaLaVentanaComoNueva) {
    FormatoDeCuadrado p;
    const std::string primero = TextoDelMapa(p.mapa());
    const std::size_t controles = p.mapa().controles().size();
    p.usuario.arrastrar(p.mapa().LbTitulo, 1, 2);
    p.usuario.arrastrar(p.mapa().Lbcodigo(3), 5, 5);
    p.usuario.arrastrar(p.mapa().LbLeyenda(1), 7, 7);
    EXPECT_NE(TextoDelMapa(p.mapa()), primero);
    p.volver();
    p.aceptar();
    EXPECT_EQ(TextoDelMapa(p.mapa()), primero);
    EXPECT_EQ(p.mapa().controles().size(), controles);
    EXPECT_EQ(p.gemela().lienzo.figuras().size(), 4U);
}

TEST(DibujoDelMapa, UnSegundoDibujoConMenosCodigosPierdeSuLeyenda) {
    FormatoDeCuadrado p;
    p.volver([&](OpcionesPrograma& opciones) {
        p.usuario.clic(opciones.ChCodigo);
        p.usuario.clic(opciones.ChCodigo);
    });
    p.aceptar();
    EXPECT_FALSE(p.mapa().LbLeyenda.tiene(1));
    EXPECT_EQ(p.mapa().LbLeyenda(0).Caption(), "");
}

TEST(DibujoDelMapa, UnaCoordenadaMalaDejaElContornoYElOrdenDeAntesYLoDibujadoHastaElla) {
    FormatoDeCuadrado p;
    auto& rejilla = p.programa.tocar<Hojadedatos>().MSFlexGrid1;
    p.volver();
    rejilla.TextMatrix(2, 2, "cien");
    rejilla.TextMatrix(1, 2, "3"); // the boundary would change
    p.servicios.esperarFallo(13);
    p.aceptar();
    EXPECT_EQ(p.programa.sesion.SupPoligono, 100);
    EXPECT_EQ(p.programa.sesion.Poligono.contorno().x[0], 0);
    EXPECT_EQ(rejilla.TextMatrix(5, 1), "5") << "sin ordenar por la X";
    EXPECT_EQ(Formas<Punto>(p.mapa().lienzo).size(), 1U);
    EXPECT_TRUE(p.mapa().LbTitulo.Visible());
    EXPECT_FALSE(p.mapa().Lbcodigo.tiene(2));
    EXPECT_TRUE(p.formato().Visible());
    EXPECT_TRUE(p.mapa().Visible()) << "la de antes, con lo que se dibujó";
}

TEST(DibujoDelMapa, LoQueNoEsNumeroCuentaComoMenosUnoEnLosExtremos) {
    for (const Valor& celda : {TextoDeCelda("diez"), Valor{}}) {
        auto filas = ConCodigos(Textos{"A", "B", "A", "B"});
        filas[3][1] = celda;
        Formato formato{filas};
        formato.servicios.esperarFallo(13);
        formato.aceptar();
        const Escala& escala = formato.mapa().lienzo.escala(); // x from -1 to 10, y from 0 to 10
        EXPECT_DOUBLE_EQ(escala.izquierda, -1 - 11 * 15.0 / 70);
        EXPECT_DOUBLE_EQ(escala.derecha, 10 + 11 * 15.0 / 70);
        EXPECT_EQ(Formas<Punto>(formato.mapa().lienzo).size(), 2U) << "los árboles de antes";
    }
}

TEST(DibujoDelMapa, ElMarcoTieneSuColorEnTodosLosDibujos) {
    FormatoDeCuadrado p;
    p.servicios.prepararColor(azul);
    p.usuario.desplegar(p.volver().CboCodColor(0)); // the code of the last tree
    for (int vez = 1; vez <= 2; ++vez) {
        p.aceptar();
        const auto lineas = Formas<Linea>(p.mapa().lienzo);
        ASSERT_EQ(lineas.size(), 8U);
        EXPECT_EQ(lineas.front().color, morado) << vez;
        EXPECT_EQ(lineas.back().color, azul) << vez;
        EXPECT_EQ(Formas<Linea>(p.gemela().lienzo).front().color, morado) << vez;
        p.volver();
    }
}

TEST(DibujoDelMapa, UnTituloVacioEsUnaEtiquetaVacia) {
    Formato formato{ConCodigos(Textos{"A", "B", "A"})};
    formato.usuario.escribir(formato.ventana().TxtTitName, "   ");
    formato.aceptar();
    const auto& titulo = formato.mapa().LbTitulo;
    EXPECT_EQ(titulo.Caption(), "");
    EXPECT_TRUE(titulo.Visible());
    EXPECT_NEAR(titulo.Width(), 300.0 * formato.mapa().lienzo.escala().ancho() / 15000, 1e-12);
}

TEST(DibujoDelMapa, ElFondoElegidoRellenaTambienLosCirculosDeCuatroRadios) {
    FormatoDeCuadrado p{CuadradoConCentro(),
                        [](OpcionesPrograma& opciones) { opciones.Optcirc.Value = true; }};
    p.servicios.prepararColor(0x123456);
    p.usuario.desplegar(p.volver().CboCodBackColor(1));
    p.aceptar();
    EXPECT_TRUE(Formas<Arco>(p.mapa().lienzo).empty());
    EXPECT_EQ(p.mapa().lienzo.Point(0, 10), 0x123456) << "árbol 2, QP";
    EXPECT_EQ(p.mapa().lienzo.Point(0, 0), 0xC0E0FF);
}

TEST(DibujoDelMapa, CincoArbolesEnUnPuntoTampocoTienenDibujo) {
    auto filas = CuadradoConCentro();
    for (std::size_t i = 1; i < filas.size(); ++i) {
        filas[i][1] = 3.0;
        filas[i][2] = 4.0;
    }
    FormatoDeCuadrado p{filas};
    EXPECT_NE(p.mapa().aviso, "");
    EXPECT_EQ(p.mapa().lienzo.figuras().size(), 1U);
    EXPECT_TRUE(p.mapa().Visible());
    EXPECT_FALSE(p.formato().Visible());
}

TEST(DibujoDelMapa, UnSoloArbolLoDiceElMapa) {
    auto filas = CuadradoConCentro();
    filas.resize(2);
    FormatoDeCuadrado p{filas};
    EXPECT_NE(p.mapa().aviso, "");
    EXPECT_EQ(p.mapa().LbTitulo.Caption(), "Todos los árboles están en el mismo punto");
    EXPECT_TRUE(p.mapa().LbTitulo.Visible());
    EXPECT_EQ(p.mapa().lienzo.figuras().size(), 1U);
    EXPECT_TRUE(p.mapa().lienzo.escala().sinExtension());
    EXPECT_TRUE(p.gemela().lienzo.figuras().empty());
    EXPECT_TRUE(p.mapa().Visible());
    EXPECT_EQ(p.programa.sesion.NumPuntosPoligono, 2);
}

TEST(DibujoDelMapa, QuienMiraElMapaOyeQueHayDibujo) {
    FormatoDeCuadrado p;
    int avisos = 0;
    p.mapa().observar([&] { ++avisos; });
    auto& formato = p.volver();
    avisos = 0;
    p.servicios.esperarFallo(13);
    p.programa.tocar<Hojadedatos>().MSFlexGrid1.TextMatrix(3, 3, "x");
    p.usuario.clic(formato.CmdAceptar);
    EXPECT_GE(avisos, 1) << "también de un dibujo que no llega al final";
}

TEST(DibujoDelMapa, LosNumerosDeLosArbolesLlevanSusEtiquetasDosMetrosAlNorte) {
    FormatoDeCuadrado p;
    EXPECT_EQ(p.mapa().Lbcodigo(5).Left(), 4);
    EXPECT_EQ(p.mapa().Lbcodigo(5).Top(), 8);
    EXPECT_EQ(p.mapa().Lbcodigo(5).Caption(), "5");
    EXPECT_TRUE(p.mapa().Lbcodigo(5).arrastrable);
    EXPECT_EQ(&p.mapa().etiqueta({"Lbcodigo", 5}), &p.mapa().Lbcodigo(5));
    EXPECT_EQ(&p.mapa().etiqueta({"LbLeyenda", 1}), &p.mapa().LbLeyenda(1));
    EXPECT_EQ(&p.mapa().etiqueta({"LbTitulo"}), &p.mapa().LbTitulo);
}

TEST(DibujoDelMapa, QuienPintaTieneTodoLoDeCadaEtiqueta) {
    FormatoDeCuadrado p;
    auto& titulo = p.mapa().LbTitulo;
    const AspectoDeEtiqueta aspecto = p.mapa().aspecto({"LbTitulo"});
    EXPECT_EQ(aspecto.texto, "Parcela Parcela1$");
    EXPECT_EQ(aspecto.izquierda, titulo.Left());
    EXPECT_EQ(aspecto.arriba, titulo.Top());
    EXPECT_EQ(aspecto.ancho, titulo.Width());
    EXPECT_EQ(aspecto.color, morado);
    EXPECT_EQ(aspecto.fuente.nombre, "Arial");
    EXPECT_EQ(aspecto.fondo, std::nullopt);
    EXPECT_TRUE(aspecto.centrada);
    EXPECT_FALSE(p.mapa().aspecto({"Lbcodigo", 2}).centrada);
    EXPECT_EQ(p.mapa().aspecto({"Lbcodigo", 2}).texto, "2");
    EXPECT_EQ(p.mapa().aspecto({"LbLeyenda", 1}).color, azul);
}

TEST(DibujoDelMapa, EnCoordenadasUtmSePintaComoEnElOrigen) {
    auto filas = CuadradoConCentro();
    for (std::size_t i = 1; i < filas.size(); ++i) {
        filas[i][1] = std::get<double>(filas[i][1]) + 450000.125;
        filas[i][2] = std::get<double>(filas[i][2]) + 4600000.375;
    }
    FormatoDeCuadrado p{filas};
    EXPECT_EQ(p.mapa().Lbcodigo(5).Left(), 450004.125);
    EXPECT_EQ(p.mapa().Lbcodigo(5).Top(), 4600008.375);
    EXPECT_EQ(Formas<Punto>(p.mapa().lienzo).back().x, 450004.125);
}

TEST(FrmMapa2, SuCajaDeCierreLaEscondeYGuardaSusFiguras) {
    FormatoDeCuadrado p;
    p.gemela().Show();
    p.usuario.cerrar(p.gemela());
    EXPECT_FALSE(p.gemela().Visible());
    EXPECT_EQ(p.gemela().lienzo.figuras().size(), 4U);
    p.usuario.clic(p.marco().mnuCerrar);
    ASSERT_NE(p.programa.cargada<FrmMapa2>(), nullptr) << "cerrar el archivo no la descarga";
    EXPECT_EQ(p.gemela().lienzo.figuras().size(), 4U);
}

/// Whether the five menus of both windows can be chosen.
std::vector<bool> MenusDe(Jornada& jornada) {
    auto& marco = jornada.marco();
    auto& mapa = jornada.programa.tocar<FrmMapa>();
    return {marco.mnuAbrir.Enabled(),    marco.mnuCerrar.Enabled(), marco.mnuMapa.Enabled(),
            marco.mnuOpciones.Enabled(), mapa.mnuDatos.Enabled(),   mapa.mnuIndices.Enabled()};
}

TEST(DibujoDelMapa, CanceladoAcabaDondeEsta) {
    FormatoDeCuadrado entero;
    const std::string esperado = TextoDelMapa(entero.mapa());
    FormatoDeCuadrado p;
    p.volver();
    const auto contorno = p.programa.sesion.Poligono.filas();
    const double superficie = p.programa.sesion.SupPoligono;
    p.programa.sesion.SupPoligono = 7; // nobody measures it
    const auto menus = MenusDe(p);
    OyenteDePrueba oyente;
    oyente.cancelarEn = 3;
    p.servicios.oyente = &oyente;
    p.aceptar();
    p.servicios.oyente = nullptr;
    EXPECT_EQ(oyente.etapas, Textos{"Dibujo del mapa"});
    EXPECT_EQ(oyente.ultima.pasos, 5U);
    EXPECT_EQ(p.mapa().arboles.size(), 3U);
    EXPECT_EQ(ColoresDeArboles(p.mapa().lienzo).size(), 3U);
    EXPECT_EQ(p.programa.sesion.Poligono.filas(), contorno);
    EXPECT_EQ(p.programa.sesion.SupPoligono, 7);
    EXPECT_EQ(MenusDe(p), menus);
    EXPECT_TRUE(p.formato().Visible());
    EXPECT_EQ(p.formato().MousePointer(), Formulario::punteroNormal);
    EXPECT_EQ(p.programa.activa(), &p.formato());
    EXPECT_TRUE(p.servicios.fallos().empty());
    p.aceptar();
    EXPECT_EQ(TextoDelMapa(p.mapa()), esperado);
    EXPECT_EQ(p.programa.sesion.SupPoligono, superficie);
    EXPECT_TRUE(p.mapa().Visible());
}

} // namespace
} // namespace varo::prueba
