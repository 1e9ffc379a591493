#include "indices/FasesDeVecindad.h"

#include "apoyo/Jornada.h"
#include "basico/Texto.h"
#include "data/Hojadedatos.h"
#include "indices/archivo/FrmCrearArchivo.h"
#include "map/FrmMapa.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <variant>
#include <vector>

namespace varo::prueba {
namespace {

/// The square with its tree in the middle drawn; the options are set by code once the map is there.
struct Corrida : Jornada {
    explicit Corrida(const Filas& filas = CuadradoConCentro()) {
        abrirParcela(filas);
        dibujarCuadrado();
        opciones().OptDAP.Value = true;
        opciones().OptMDIA.Value = true;
    }
    FrmMapa& mapa() { return programa.tocar<FrmMapa>(); }
    ResultadosIndices& resultados() { return programa.resultados; }
    void correr() { usuario.clic(mapa().mnuIndices); }
    void barrer(int i, const std::string& desde, const std::string& hasta, const std::string& paso) {
        opciones().TxtBAF1(i).Text = desde;
        opciones().TxtBAF2(i).Text = hasta;
        opciones().TxtBAF3(i).Text = paso;
    }
    /// The text of the file that a saving would write now.
    std::string guardar() {
        auto& dialogo = programa.tocar<FrmCrearArchivo>();
        dialogo.Show();
        dialogo.DirLista.Path(carpeta.ruta().string());
        const std::string nombre = "indices" + std::to_string(++guardados_) + ".txt";
        usuario.escribir(dialogo.TxtLista, nombre);
        servicios.esperarMensaje(carpeta.archivo(nombre) + " fue creado correctamente");
        usuario.clic(dialogo.CmdAceptar);
        return LeerArchivo(carpeta.archivo(nombre));
    }
    /// The labels behind "NºOrden" and "NºArbol", in UTF-8.
    std::string cabecera() {
        std::string linea = DeWindows1252(guardar());
        linea.resize(linea.find('\r'));
        return linea.substr(linea.find("Arbol") + 5);
    }
    void pedirIDP(const std::string& distancia = "20") {
        opciones().ChIDPActivar.Value = 1;
        opciones().OptRadioFijo(0).Value = true;
        barrer(0, distancia, distancia, "0");
    }
    void pedirDR() {
        opciones().ChDRActivar.Value = 1;
        opciones().OptNumFijo(1).Value = true;
        barrer(3, "1", "2", "1");
        barrer(4, "0", "0", "0");
        opciones().LstDist.AddItem("HIP, a: 1,0000; b: 0,0000; c: 1,0000; d: 0,0000; e: 0,0000");
    }

private:
    int guardados_ = 0;
};

const std::string radioUno = "a: 1,0000; b: 0,0000; c: 1,0000; d: 0,0000; e: 0,0000";
const std::string richards = "A: 1,00; k: 1,00; m: 0,50";

TEST(FasesDeVecindad, CadaFamiliaTieneSusColumnasYSusArboles) {
    Corrida corrida;
    auto& opciones = corrida.opciones();
    opciones.Optcirc.Value = true;
    opciones.ChSupCopa.Value = 1;
    opciones.ChISCUni.Value = 1;
    opciones.ChAOIActivar.Value = 1;
    opciones.ChAOIUni.Value = 1;
    opciones.LstAOI.AddItem(radioUno);
    corrida.barrer(6, "0", "1", "0,5");
    corrida.pedirIDP();
    opciones.ChIDPNo.Value = 1;
    corrida.pedirDR();
    corrida.correr();
    const auto& r = corrida.resultados();
    EXPECT_EQ(r.IndISC.limite(), 1);
    EXPECT_EQ(r.IndISC.limite2(), 5) << "con un elemento de sobra";
    EXPECT_EQ(r.IndAOI.limite(), 5);
    EXPECT_EQ(r.IndAOI.limite2(), 4);
    EXPECT_EQ(r.IndIDP.limite(), 1);
    EXPECT_EQ(r.IndDR.limite(), 1);
    EXPECT_EQ(r.IndAPA.limite(), -1);
    EXPECT_EQ(r.IndISC(0, 4), 0) << "la del centro no toca las esquinas";
    EXPECT_EQ(r.IndISC(1, 0), -1);
    EXPECT_EQ(corrida.cabecera(), "\tISC(Bil.)\tISC(Uni.)"
                                  "\tAOI(k:0;Ec:1;Bil.)\tAOI(k:0,5;Ec:1;Bil.)\tAOI(k:1;Ec:1;Bil.)"
                                  "\tAOI(k:0;Ec:1;Uni.)\tAOI(k:0,5;Ec:1;Uni.)\tAOI(k:1;Ec:1;Uni.)"
                                  "\tIDP(R:20;Bil.;Sí)\tIDP(R:20;Bil.;No)"
                                  "\tDR(k:0;n:1;Fdis:1;Bil.)\tDR(k:0;n:2;Fdis:1;Bil.)");
}

TEST(FasesDeVecindad, ElRelojQuedaPuestoTrasUnaFamiliaYSeQuitaTrasUnFallo) {
    Corrida corrida;
    corrida.pedirIDP();
    corrida.correr();
    EXPECT_EQ(corrida.mapa().MousePointer(), Formulario::relojDeArena);
    corrida.servicios.esperarMensaje("El valor debe ser numérico");
    corrida.opciones().TxtBAF1(0).Text = "x";
    corrida.servicios.esperarFallo(13);
    corrida.correr();
    EXPECT_EQ(corrida.mapa().MousePointer(), Formulario::punteroNormal);
    EXPECT_EQ(corrida.servicios.fallos().back().lugar(), "familia IDP, campo TxtBAF1(0)");
}

TEST(FasesDeVecindad, SinFuncionesElAOISePasaPorAltoYElDRFalla) {
    Corrida corrida;
    corrida.opciones().ChAOIActivar.Value = 1;
    corrida.correr();
    EXPECT_EQ(corrida.resultados().IndAOI.limite(), -1);
    EXPECT_TRUE(corrida.programa.tocar<FrmCrearArchivo>().Visible());
    EXPECT_EQ(corrida.cabecera(), "");
    corrida.opciones().ChDRActivar.Value = 1;
    corrida.servicios.esperarFallo(9);
    corrida.correr();
    EXPECT_EQ(corrida.servicios.fallos().back().lugar(), "familia DR");
}

TEST(FasesDeVecindad, UnaListaDeLimitesVaciaOUnBarridoHaciaAtrasNoTienenColumnas) {
    Corrida corrida;
    corrida.opciones().ChIDPActivar.Value = 1;
    corrida.opciones().OptFunc(0).Value = true;
    corrida.servicios.esperarFallo(9);
    corrida.correr();
    corrida.opciones().OptBAF(0).Value = true;
    corrida.barrer(0, "3", "1", "1");
    corrida.servicios.esperarFallo(9);
    corrida.correr();
    corrida.barrer(0, "3", "4", "0");
    corrida.servicios.esperarFallo(11);
    corrida.correr();
    EXPECT_TRUE(corrida.servicios.todoPedido());
}

TEST(FasesDeVecindad, DemasiadasColumnasDesbordan) {
    Corrida corrida;
    corrida.pedirIDP();
    corrida.barrer(0, "0", "40000", "1");
    corrida.servicios.esperarFallo(6);
    corrida.correr();
    EXPECT_TRUE(corrida.servicios.todoPedido());
}

TEST(FasesDeVecindad, UnBarridoQuePierdeSuUltimoValorDejaUnaColumnaDeCerosSinRotulo) {
    Corrida corrida;
    corrida.pedirIDP();
    corrida.barrer(0, "0,1", "0,3", "0,1");
    corrida.correr();
    EXPECT_EQ(corrida.resultados().IndIDP.limite(), 2);
    EXPECT_EQ(corrida.resultados().IndIDP(0, 0), -1);
    EXPECT_EQ(corrida.resultados().IndIDP(2, 0), 0);
    const std::string texto = DeWindows1252(corrida.guardar());
    EXPECT_NE(texto.find("Arbol\tIDP(R:0,1;Bil.;Sí)\tIDP(R:0,2;Bil.;Sí)\r\n1\t1\t-1,00\t-1,00\t0,00\r"),
              std::string::npos)
        << texto;
}

TEST(FasesDeVecindad, LosLadosApagadosCalculanElBilateralYRotulanElUnilateral) {
    Corrida corrida;
    auto& opciones = corrida.opciones();
    opciones.Optcirc.Value = true;
    opciones.ChSupCopa.Value = 1;
    corrida.pedirIDP("2");
    opciones.ChAOIActivar.Value = 1;
    opciones.LstAOI.AddItem(radioUno);
    for (Casilla* const casilla :
         {&opciones.ChISCBil, &opciones.ChAOIBil, &opciones.ChIDPBil, &opciones.ChIDPSi}) {
        casilla->Value = 0;
    }
    corrida.correr();
    EXPECT_EQ(corrida.resultados().IndISC.limite(), 0);
    EXPECT_EQ(corrida.cabecera(), "\tISC(Uni.)\tAOI(k:0;Ec:1;Uni.)\tIDP(R:2;Uni.;No)");
}

TEST(FasesDeVecindad, ElLadoDeUnaSolaPasadaDelDRSeRotulaConLaCasillaDelIDP) {
    Corrida corrida;
    corrida.pedirDR();
    corrida.opciones().ChIDPBil.Value = 0;
    corrida.correr();
    EXPECT_EQ(corrida.cabecera(), "\tDR(k:0;n:1;Fdis:1;Uni.)\tDR(k:0;n:2;Fdis:1;Uni.)");
}

TEST(FasesDeVecindad, SiYNoApagadosTomanLaFormaDeSi) {
    Corrida corrida;
    corrida.pedirIDP("3");
    corrida.opciones().ChIDPSi.Value = 0;
    corrida.programa.tocar<Hojadedatos>().MSFlexGrid1.TextMatrix(1, 2, "4");
    corrida.programa.tocar<Hojadedatos>().MSFlexGrid1.TextMatrix(1, 3, "8");
    corrida.programa.tocar<Hojadedatos>().MSFlexGrid1.TextMatrix(1, 9, "0,5");
    corrida.correr();
    // One competitor of 0.5 m at 2 m: (1 + 1/2) 2500 (0.5 / 2)^2.
    EXPECT_EQ(corrida.resultados().IndIDP(0, 4), 234.375);
    EXPECT_EQ(corrida.cabecera(), "\tIDP(R:3;Bil.;No)");
}

TEST(FasesDeVecindad, GuardarDosVecesConFuncionesCuentaLaSegundaDesdeDos) {
    Corrida corrida;
    corrida.pedirDR();
    auto& opciones = corrida.opciones();
    opciones.ChIDPActivar.Value = 1;
    for (int familia : {0, 1}) {
        opciones.OptFunc(familia).Value = true;
        opciones.LstRich(familia).AddItem(richards);
    }
    corrida.correr();
    EXPECT_EQ(corrida.cabecera(), "\tIDP(Ec:1;Bil.;Sí)\tDR(k:0;Ec:1;Fdis:1;Bil.)");
    EXPECT_EQ(corrida.cabecera(), "\tIDP(Ec:2;Bil.;Sí)\tDR(k:0;Ec:2;Fdis:1;Bil.)");
    corrida.correr();
    EXPECT_EQ(corrida.cabecera(), "\tIDP(Ec:1;Bil.;Sí)\tDR(k:0;Ec:1;Fdis:1;Bil.)");
}

TEST(FasesDeVecindad, ElBarridoSubeAntesDeRotularYAunqueLosRotulosFallen) {
    Corrida corrida;
    auto& opciones = corrida.opciones();
    opciones.ChIDPActivar.Value = 1;
    opciones.OptFunc(0).Value = true;
    opciones.LstRich(0).AddItem(richards);
    corrida.correr();
    corrida.resultados().IDP = {0, 3, 0}; // a step that leads nowhere
    EXPECT_EQ(corrida.cabecera(), "");
    EXPECT_EQ(corrida.resultados().IDP.Desde, 1);
    EXPECT_EQ(corrida.resultados().IDP.Hasta, 4);
    ASSERT_EQ(corrida.programa.fallosAlGuardar.size(), 1U);
    EXPECT_EQ(corrida.programa.fallosAlGuardar.front().numero(), 9);
}

TEST(FasesDeVecindad, UnaCasillaEncendidaTrasLaCorridaNoTieneColumnas) {
    Corrida corrida;
    corrida.correr();
    auto& opciones = corrida.opciones();
    for (Casilla* const casilla : {&opciones.ChSupCopa, &opciones.ChAOIActivar, &opciones.ChIDPActivar,
                                   &opciones.ChDRActivar, &opciones.ChAPA}) {
        casilla->Value = 1;
    }
    EXPECT_EQ(corrida.cabecera(), "");
}

TEST(FasesDeVecindad, ElAOISinFuncionesConservaLasColumnasDeLaCorridaAnterior) {
    Corrida corrida;
    corrida.opciones().ChAOIActivar.Value = 1;
    corrida.opciones().LstAOI.AddItem(radioUno);
    corrida.correr();
    const std::string antes = corrida.guardar();
    EXPECT_NE(antes.find("\tAOI(k:0;Ec:1;Bil.)\r\n1\t1\t-1,00\r"), std::string::npos);
    corrida.opciones().LstAOI.Clear();
    corrida.correr();
    EXPECT_EQ(corrida.guardar(), antes);
}

TEST(FasesDeVecindad, UnaCasillaEncendidaTrasLaCorridaLeeLaTablaDeOtraConLaReglaDeAhora) {
    Corrida corrida;
    auto& rejilla = corrida.programa.tocar<Hojadedatos>().MSFlexGrid1;
    rejilla.Rows(3);
    corrida.pedirIDP();
    corrida.correr();
    rejilla.Rows(6);
    corrida.opciones().ChIDPActivar.Value = 0;
    corrida.correr();
    corrida.opciones().ChIDPActivar.Value = 1;
    corrida.opciones().OptBAF(0).Value = true;
    // The table has two trees; the cells of the others are left out with their tabs.
    EXPECT_EQ(DeWindows1252(corrida.guardar()),
              "NºOrden\tNºArbol\tIDP(BAF:20;Bil.;Sí)\r\n1\t1\t-1,00\r2\t2\t-1,00\r3\t\r4\t\r5\t\r\r\n");
    EXPECT_EQ(corrida.programa.fallosAlGuardar.size(), 3U);
}

TEST(FasesDeVecindad, ElISCLlevaCuatroDecimales) {
    Corrida corrida;
    corrida.opciones().Optcirc.Value = true;
    corrida.opciones().ChSupCopa.Value = 1;
    corrida.correr();
    EXPECT_NE(corrida.guardar().find("\r5\t5\t0,0000\r"), std::string::npos);
}

TEST(FasesDeVecindad, LasCopasDeElipseSePintanEnLaSegundaSuperficie) {
    Corrida corrida;
    auto& rejilla = corrida.programa.tocar<Hojadedatos>().MSFlexGrid1;
    rejilla.TextMatrix(1, 4, "200"); // dm to the north
    rejilla.TextMatrix(1, 5, "200"); // and to the east: the crown of the corner covers that of the middle
    corrida.opciones().ChSupCopa.Value = 1;
    corrida.opciones().ChISCUni.Value = 1;
    int avisos = 0;
    corrida.programa.tocar<FrmMapa2>().observar([&avisos] { ++avisos; });
    corrida.correr();
    EXPECT_EQ(avisos, 2) << "uno por columna";
    EXPECT_EQ(corrida.resultados().IndISC(0, 4), 1);
    EXPECT_EQ(corrida.resultados().IndISC(1, 4), 1);
    EXPECT_EQ(corrida.resultados().IndISC(0, 0), -1);
    auto& superficie = corrida.programa.tocar<FrmMapa2>().lienzo;
    const Copa laDelMedio{4, 6, 1, 1, 1, 1};
    const Copa laDeLaEsquina{0, 0, 20, 20, 1, 1};
    EXPECT_EQ(superficie.figuras(), (std::vector<Figura>{CopaLlena{laDelMedio, 0}, CopaLlena{laDelMedio, 0},
                                                         CopaLlena{laDeLaEsquina, 0x00FF0000}}));
    EXPECT_EQ(superficie.Point(4, 6), 0x00FF0000);
}

TEST(FasesDeVecindad, LasMuestrasFueraDelMapaNoCuentan) {
    Corrida corrida;
    corrida.programa.tocar<FrmMapa2>().lienzo.escala({100, 110, 100, 110});
    corrida.opciones().ChSupCopa.Value = 1;
    corrida.servicios.esperarFallo(11);
    corrida.correr();
    EXPECT_EQ(corrida.servicios.fallos().back().lugar(),
              "familia ISC, columna ISC(Bil.), fila 6 de «Parcela1$», árbol 5");
}

/// A tree inside a square that lies askew; the sizes of all five differ.
Filas CuadradoSesgado() {
    auto filas = CuadradoConCentro();
    const std::vector<std::pair<double, double>> sitios{{0, 0}, {2, 1}, {-1, 2}, {-2, -1}, {1, -2}};
    for (std::size_t i = 0; i < sitios.size(); ++i) {
        filas[i + 1][1] = sitios[i].first;
        filas[i + 1][2] = sitios[i].second;
    }
    return filas;
}

/// Where the last circle of APA is centred after a run over these exponents.
std::pair<double, double> CentroTrasElAPA(const char* primero, const char* ultimo, const char* paso) {
    Corrida corrida{CuadradoSesgado()};
    corrida.opciones().ChAPA.Value = 1;
    corrida.barrer(8, primero, ultimo, paso);
    corrida.correr();
    return {corrida.programa.sesion.CentroCircX, corrida.programa.sesion.CentroCircY};
}

TEST(FasesDeVecindad, TrasElAPAQuedaElCentroDelUltimoCirculo) {
    // The first tree, the only one inside, turns about the others in the order of the rows. The last circle
    // goes through it, (-2, -1) and (1, -2): its centre lies where -2x - y = 2.5 and x - 2y = 2.5.
    constexpr double redondeo = 1E-14; // m
    const auto [x, y] = CentroTrasElAPA("0", "0", "0");
    EXPECT_NEAR(x, -0.5, redondeo);
    EXPECT_NEAR(y, -1.5, redondeo);
}

TEST(FasesDeVecindad, TrasUnBarridoDelAPAElCentroEsElDelUltimoExponente) {
    EXPECT_EQ(CentroTrasElAPA("0", "1", "1"), CentroTrasElAPA("1", "1", "1"));
    EXPECT_NE(CentroTrasElAPA("0", "1", "1"), CentroTrasElAPA("0", "0", "0"));
}

/// The lines on the second surface behind its frame.
std::vector<Linea> LineasDeCeldas(const FrmMapa2& superficie) {
    std::vector<Linea> lineas;
    for (const Figura& figura : superficie.lienzo.figuras()) {
        lineas.push_back(std::get<Linea>(figura));
    }
    constexpr std::ptrdiff_t delMarco = 4;
    lineas.erase(lineas.begin(), lineas.begin() + delMarco);
    return lineas;
}

TEST(FasesDeVecindad, ElAPADibujaSusCeldasEnLaSegundaSuperficieYLaEnsena) {
    auto filas = CuadradoConCentro();
    filas[2][1] = 1.0; // (1, 10), (11, 11) and (10, 1): no side is upright
    filas[3][1] = 11.0;
    filas[3][2] = 11.0;
    filas[4][2] = 1.0;
    Corrida corrida{filas};
    corrida.pedirIDP();
    corrida.correr();
    auto& superficie = corrida.programa.tocar<FrmMapa2>();
    EXPECT_FALSE(superficie.Visible());
    EXPECT_TRUE(LineasDeCeldas(superficie).empty());

    corrida.opciones().ChAPA.Value = 1;
    corrida.barrer(8, "0", "0", "0");
    corrida.correr();
    EXPECT_TRUE(superficie.Visible());
    // The corners of the cell of the tree at (4, 6) are the centres of the circles through it and two
    // vertices: C (9,192, 6,131) and D (4,946, 1,036) inside, A (-1,265, 5,176) and B (5,988, 10,616)
    // outside. So CD is drawn whole, DA to the left side, where x = y / 10, CB to the upper one, and AB not
    // at all.
    const auto lineas = LineasDeCeldas(superficie);
    ASSERT_EQ(lineas.size(), 3U + 4U) << "tres trazos de la celda y cuatro lados de la parcela";
    const auto hay = [&](double x1, double y1, double x2, double y2) {
        constexpr double redondeo = 1E-9; // m
        const auto cerca = [&](double a, double b, double c, double d) {
            return std::abs(a - x1) + std::abs(b - y1) + std::abs(c - x2) + std::abs(d - y2) < redondeo;
        };
        return std::any_of(lineas.begin(), lineas.end(), [&](const Linea& l) {
            return cerca(l.x1, l.y1, l.x2, l.y2) || cerca(l.x2, l.y2, l.x1, l.y1);
        });
    };
    constexpr double cx = 239.0 / 26;
    constexpr double cy = 797.0 / 130;
    constexpr double dx = 277.0 / 56;
    constexpr double dy = 29.0 / 28;
    EXPECT_TRUE(hay(cx, cy, dx, dy));
    EXPECT_TRUE(hay(dx, dy, 0.40625, 4.0625));
    EXPECT_TRUE(hay(cx, cy, 9.1 / 1.5, 19 - 1.4 * 9.1 / 1.5));
    EXPECT_TRUE(hay(0, 0, 1, 10));
    for (const Linea& linea : lineas) {
        EXPECT_EQ(linea.color, 0);
    }

    corrida.usuario.cerrar(superficie);
    corrida.correr();
    EXPECT_TRUE(superficie.Visible()) << "otra corrida la vuelve a enseñar";
    EXPECT_EQ(LineasDeCeldas(superficie).size(), 14U) << "lo dibujado queda hasta el dibujo siguiente";
}

TEST(FasesDeVecindad, UnaRejillaConSoloCabeceraDaLaCabeceraYNingunaFila) {
    Corrida corrida;
    corrida.pedirIDP();
    corrida.pedirDR();
    corrida.programa.tocar<Hojadedatos>().MSFlexGrid1.Rows(1);
    corrida.correr();
    EXPECT_EQ(
        DeWindows1252(corrida.guardar()),
        "NºOrden\tNºArbol\tIDP(R:20;Bil.;Sí)\tDR(k:0;n:1;Fdis:1;Bil.)\tDR(k:0;n:2;Fdis:1;Bil.)\r\n\r\n");
}

TEST(FasesDeVecindad, UnFalloDiceFamiliaColumnaYArboles) {
    Corrida corrida;
    corrida.pedirIDP("2");
    corrida.programa.tocar<Hojadedatos>().MSFlexGrid1.TextMatrix(2, 9, "grande");
    corrida.programa.tocar<Hojadedatos>().MSFlexGrid1.TextMatrix(1, 2, "5");
    corrida.servicios.esperarFallo(13);
    corrida.correr();
    EXPECT_EQ(corrida.servicios.fallos().back().lugar(),
              "familia IDP, columna IDP(R:2;Bil.;Sí), al calcular la fila 2, árbol 1, "
              "fila 3 de «Parcela1$», árbol 2, columna «CAP»");
}

} // namespace
} // namespace varo::prueba
