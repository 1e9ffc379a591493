#include "plot/DatosDeParcela.h"

#include "apoyo/Fallos.h"
#include "apoyo/Jornada.h"
#include "apoyo/OyenteDePrueba.h"
#include "data/Hojadedatos.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"
#include "plot/FrmResultados.h"
#include "plot/TextoDeDatos.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace varo::prueba {
namespace {

/// A plot drawn with crowns as circles, unless `cambio` says otherwise.
struct Datos : Jornada {
    explicit Datos(
        const Filas& filas = CuadradoConCentro(), const std::function<void(Datos&)>& cambio = [](Datos&) {}) {
        abrirParcela(filas);
        cambiarOpciones([&](OpcionesPrograma& opciones) {
            usuario.clic(opciones.Optdecim);
            usuario.clic(opciones.Optcirc);
            cambio(*this);
        });
        dibujarCuadrado();
    }
    FrmMapa& mapa() { return programa.tocar<FrmMapa>(); }
    FrmResultados& ventana() { return programa.tocar<FrmResultados>(); }
    void pedir() { usuario.clic(mapa().mnuDatos); }
    std::string texto() { return TextoDeDatos(ventana()); }
};

Filas CuadradoCon(const std::function<void(Filas&)>& cambio) {
    Filas filas = CuadradoConCentro();
    cambio(filas);
    return filas;
}

// Girths 100, 60, 50 of PS and 80, 40 of QP; the corners are 1 to 4. Stems: (3 - 2/2) and (2 - 4/2) in
// 100 m2. Basal area of a girth c: c^2 / 125663,7; off go 3/4 of the corners, those of PS from QP as well:
// 0,1281197 - 0,0811690 = 0,0469507 and 0,0636620 - 0,1289155 = -0,0652535. Five circles of 1 m have
// 15,7079635 m2; at the corners 3/4 of four of them lie outside. The first row is a corner, so no side cuts a
// crown. The sides of the square that stand upright leave the cover at 0.
const char* const cifrasDelCuadrado = "LbPiesHaCodigo(0)\tPS\n"
                                      "LbPiesHaValor(0)\t200,0\n"
                                      "LbPiesHaCodigo(1)\tQP\n"
                                      "LbPiesHaValor(1)\t0\n"
                                      "LbPiesHaCodigo(2)\tTotal\n"
                                      "LbPiesHaValor(2)\t200,0\n"
                                      "LbAbHaCodigo(0)\tPS\n"
                                      "LbAbHaValor(0)\t4,7\n"
                                      "LbAbHaCodigo(1)\tQP\n"
                                      "LbAbHaValor(1)\t-6,5\n"
                                      "LbAbHaCodigo(2)\tTotal\n"
                                      "LbAbHaValor(2)\t-1,8\n"
                                      "LbParcela\tParcela Parcela1$\n"
                                      "LbAreaTotal\tArea: 100,0 m2\n"
                                      "LbAreaCopas\tArea total de copas: 15,7 m2\n"
                                      "LbAreaCopasInterior\tArea total de copas dentro de parcela: 6,3 m2\n"
                                      "LbAreaIntersecCopas\tArea total de intersección de copas: 0,0 m2\n"
                                      "LbFcc\tFcc: 0,00\n";

TEST(DatosDeParcela, LasCifrasDelCuadrado) {
    Datos datos;
    datos.pedir();
    EXPECT_EQ(datos.texto(), cifrasDelCuadrado);
    EXPECT_TRUE(datos.ventana().Visible());
    EXPECT_EQ(datos.mapa().MousePointer(), Formulario::punteroNormal);
    EXPECT_DOUBLE_EQ(datos.programa.sesion.PiesHaActual, 200);
    EXPECT_EQ(datos.programa.sesion.CampoSupCopa, "SupCirc");
    EXPECT_EQ(datos.programa.sesion.CampoRadioO, "RO");
    EXPECT_EQ(datos.mapa().solape.NumParesCopas, -1);
}

TEST(DatosDeParcela, SinCodigosHayUnaCifraDePiesYUnaDeArea) {
    Datos datos{CuadradoConCentro(), [](Datos& dia) { dia.usuario.clic(dia.opciones().ChCodigo); }};
    datos.pedir();
    // Five stems less 4/2; all girths less 3/4 of the corners: 0,1917817 - 0,1289155.
    EXPECT_EQ(datos.texto().substr(0, datos.texto().find("LbParcela")), "LbPiesHaCodigo(0)\tTotal\n"
                                                                        "LbPiesHaValor(0)\t300,0\n"
                                                                        "LbAbHaCodigo(0)\tTotal\n"
                                                                        "LbAbHaValor(0)\t6,3\n");
}

TEST(DatosDeParcela, UnaSegundaVezEnsanchaLaVentanaYDaLoMismo) {
    Datos datos;
    datos.pedir();
    const double ancho = datos.ventana().Width();
    datos.pedir();
    EXPECT_EQ(datos.ventana().Width(), ancho + 500);
    EXPECT_EQ(datos.texto(), cifrasDelCuadrado);
}

TEST(DatosDeParcela, CerrarLaVentanaPoneSusCifrasACero) {
    Datos datos;
    datos.pedir();
    datos.usuario.cerrar(datos.ventana());
    EXPECT_EQ(datos.programa.sesion.PiesHaActual, 0);
    EXPECT_EQ(datos.programa.sesion.AbHaActual, 0);
    EXPECT_NE(datos.programa.sesion.AreaTotalCopas, 0);
}

TEST(DatosDeParcela, LosParesDeCopasQuedanEnElMapa) {
    // The tree in the middle has crowns of 8 m: it covers those of the corners in part.
    Datos datos{CuadradoCon([](Filas& filas) {
        for (std::size_t radio = 3; radio <= 6; ++radio) {
            filas[5][radio] = 80.0;
        }
    })};
    datos.pedir();
    const SolapeDeCopas& solape = datos.mapa().solape;
    ASSERT_EQ(solape.NumParesCopas, 3);
    double suma = 0;
    for (int i = 0; i <= 3; ++i) {
        const ParDeCopas& par = solape.ParesCopas[static_cast<std::size_t>(i)];
        EXPECT_EQ(par.primera, i + 1);
        EXPECT_EQ(par.segunda, 5);
        EXPECT_GT(par.area, 0);
        suma += par.area;
    }
    EXPECT_EQ(solape.AreaIntersecCopas, suma);
}

TEST(DatosDeParcela, UnaFilaSinMedidasDeCopaNoSumaSuperficie) {
    Datos datos{CuadradoCon([](Filas& filas) { filas[5][3] = Nulo{}; })};
    datos.pedir();
    EXPECT_DOUBLE_EQ(datos.programa.sesion.AreaTotalCopas, 4 * 3.1415927);
}

TEST(DatosDeParcela, UnaPalabraEnLaCopaDeUnaFilaSinSitioAcabaConTodo) {
    Datos datos{CuadradoCon([](Filas& filas) {
        filas.push_back(filas.back());
        filas.back()[1] = Nulo{};
        filas.back()[2] = Nulo{};
        filas.back()[4] = std::string{"ancha"};
    })};
    datos.servicios.esperarFallo(fallo::tiposDistintosEnConsulta);
    datos.pedir();
    const std::string mensaje = datos.servicios.fallos().back().what();
    EXPECT_NE(mensaje.find("superficie de las copas"), std::string::npos) << mensaje;
    EXPECT_NE(mensaje.find("fila 7 de «Parcela1$», árbol 5, columna «RE»"), std::string::npos) << mensaje;
    EXPECT_NE(mensaje.find("ancha"), std::string::npos) << mensaje;
    EXPECT_EQ(datos.programa.cargada<FrmResultados>(), nullptr);
    EXPECT_EQ(datos.mapa().MousePointer(), Formulario::punteroNormal);
    EXPECT_DOUBLE_EQ(datos.programa.sesion.PiesHaActual, 300) << "lo de antes está hecho, y la fila cuenta";
}

TEST(DatosDeParcela, UnaCabeceraDeDosPalabrasDiceQueSeCambie) {
    Datos datos{CuadradoCon([](Filas& filas) { filas[0][5] = std::string{"Radio S"}; })};
    datos.servicios.esperarFallo(fallo::sintaxisDeConsulta);
    datos.pedir();
    const std::string mensaje = datos.servicios.fallos().back().what();
    EXPECT_NE(mensaje.find("las copas se calculan por las columnas «RN», «RE», «Radio S», «RO», y alguna "
                           "cabecera no es una palabra"),
              std::string::npos)
        << mensaje;
}

TEST(DatosDeParcela, ConUnaCabeceraDeCodigoDeDosPalabrasNoSeCuentanLosPies) {
    Datos datos{CuadradoCon([](Filas& filas) { filas[0][7] = std::string{"Cod 1"}; })};
    datos.servicios.esperarFallo(fallo::sintaxisDeConsulta);
    datos.pedir();
    const std::string mensaje = datos.servicios.fallos().back().what();
    EXPECT_NE(mensaje.find("los pies se cuentan por la columna «Cod 1»"), std::string::npos) << mensaje;
}

TEST(DatosDeParcela, UnCodigoSinTamanosAcabaConTodo) {
    Datos datos{CuadradoCon([](Filas& filas) {
        filas[2][8] = Nulo{};
        filas[4][8] = Nulo{};
    })};
    datos.servicios.esperarFallo(fallo::usoDeNulo);
    datos.pedir();
    const std::string mensaje = datos.servicios.fallos().back().what();
    EXPECT_NE(mensaje.find("ninguno de sus árboles tiene tamaño en la columna «CAP»"), std::string::npos)
        << mensaje;
    EXPECT_NE(mensaje.find("área basimétrica, código «QP»"), std::string::npos) << mensaje;
}

TEST(DatosDeParcela, UnaParcelaSinSuperficieLoDice) {
    Datos datos{CuadradoCon([](Filas& filas) { filas.resize(3); })};
    datos.servicios.esperarFallo(fallo::divisionPorCero);
    datos.pedir();
    const std::string mensaje = datos.servicios.fallos().back().what();
    EXPECT_NE(mensaje.find("la superficie de la parcela es 0: tiene solo dos árboles"), std::string::npos)
        << mensaje;
    EXPECT_EQ(datos.programa.cargada<FrmResultados>(), nullptr);
}

TEST(DatosDeParcela, SinColumnaDeTamanoSeDicePorQueNo) {
    Datos datos;
    datos.programa.sesion.ColumnaDAP = 0;
    datos.servicios.esperarFallo(fallo::elementoNoEncontrado);
    datos.pedir();
    const std::string mensaje = datos.servicios.fallos().back().what();
    EXPECT_NE(mensaje.find("no se ha elegido la columna DAP"), std::string::npos) << mensaje;
}

TEST(DatosDeParcela, ElTituloEsElDeLaVentanaDeFormatoAunqueNoSeDibujeDeNuevo) {
    Datos datos;
    datos.programa.tocar<FrmFormato>().TxtTitName.Text = "Monte 12";
    datos.pedir();
    EXPECT_EQ(datos.ventana().LbParcela.Caption(), "Monte 12");
}

TEST(DatosDeParcela, ConElFormatoDescargadoSeCargaDeNuevoOculto) {
    Datos datos;
    datos.programa.tocar<FrmFormato>().TxtTitName.Text = "Monte 12";
    datos.programa.descargar<FrmFormato>();
    datos.pedir();
    EXPECT_EQ(datos.ventana().LbParcela.Caption(), "Parcela Parcela1$");
    const auto* const formato = datos.programa.cargada<FrmFormato>();
    ASSERT_NE(formato, nullptr);
    EXPECT_FALSE(formato->Visible());
}

TEST(DatosDeParcela, ConLaCasillaDeCodigosPulsadaDosVecesNoHayFilasDeCodigos) {
    Datos datos;
    datos.cambiarOpciones([&](OpcionesPrograma& opciones) {
        datos.usuario.clic(opciones.ChCodigo);
        datos.usuario.clic(opciones.ChCodigo);
    });
    datos.pedir();
    EXPECT_EQ(datos.ventana().LbPiesHaCodigo(0).Caption(), "PS") << "los códigos siguen ahí";
    EXPECT_EQ(datos.ventana().LbPiesHaValor(0).Caption(), " ");
    EXPECT_FALSE(datos.ventana().LbPiesHaCodigo.tiene(1));
    EXPECT_EQ(datos.programa.sesion.PiesHaActual, 0);
}

TEST(DatosDeParcela, UnMapaDibujadoConCodigosYSinPedirlosYaDiceQueSeDibujeDeNuevo) {
    Datos datos;
    datos.cambiarOpciones([&](OpcionesPrograma& opciones) { datos.usuario.clic(opciones.ChCodigo); });
    datos.servicios.esperarFallo(fallo::tiposDistintos);
    datos.pedir();
    const std::string mensaje = datos.servicios.fallos().back().what();
    EXPECT_NE(
        mensaje.find("contorno de un mapa que se dibujó con códigos, y ahora no se piden: dibújelo de nuevo"),
        std::string::npos)
        << mensaje;
}

TEST(DatosDeParcela, LaCubiertaDeUnRadioMedioSonCirculosConCualquierForma) {
    Datos datos;
    datos.opciones().OptRM.Value = true;
    datos.opciones().OptElipse.Value = true; // no person can
    datos.pedir();
    Lienzo& superficie = datos.programa.tocar<FrmMapa2>().lienzo;
    EXPECT_EQ(superficie.Point(4.9, 6), 0);
    EXPECT_NE(superficie.Point(5.1, 6), 0);
}

TEST(DatosDeParcela, LasElipsesSeRecortanYSeCubrenPorMuestras) {
    // A rhombus has no upright side. One tree inside with an ellipse of 1 by 2 m, the others without crowns.
    Filas filas = CuadradoCon([](Filas& hoja) {
        const auto mover = [&](std::size_t fila, double x, double y) {
            hoja[fila][1] = x;
            hoja[fila][2] = y;
            for (std::size_t radio = 3; radio <= 6; ++radio) {
                hoja[fila][radio] = 0.0;
            }
        };
        mover(1, 0, 5);
        mover(2, 5, 10);
        mover(3, 10, 5);
        mover(4, 5, 0);
        mover(5, 5, 5);
        hoja[5][3] = hoja[5][5] = 20.0;
        hoja[5][4] = hoja[5][6] = 10.0;
    });
    Datos datos{filas, [](Datos& dia) { dia.usuario.clic(dia.opciones().OptElipse); }};
    datos.pedir();
    const Sesion& sesion = datos.programa.sesion;
    EXPECT_EQ(sesion.CampoSupCopa, "SupElipse");
    EXPECT_DOUBLE_EQ(sesion.AreaTotalCopas, 3.1415927 / 400 * 4 * 200);
    EXPECT_EQ(sesion.XMaxPoligono, 10);
    EXPECT_EQ(sesion.YMaxPoligono, 10);
    EXPECT_EQ(sesion.YMinPoligono, 0);
    // Radii of 0 are painted as half a metre. Of the whole metres inside the rhombus, which
    // are 41 (|x-5| + |y-5| < 5), the ellipse covers x = 5, y = 3 to 7, and (4, 5), (6, 5).
    EXPECT_FLOAT_EQ(sesion.Fcc, 7.0F / 41.0F);
    EXPECT_EQ(datos.ventana().LbAreaCopasInterior.Caption(), "Area total de copas dentro de parcela: 6,3 m2");
}

TEST(CopiaDeLaHoja, SinCopiaNoSeHaceNada) {
    Datos datos;
    datos.mapa().ComprobarRepeticionDeHoja();
    EXPECT_FALSE(datos.mapa().filasDeLaCopia.has_value());
}

struct Copia : Jornada {
    explicit Copia(const std::string& nombreDeLaCopia) {
        Hoja hoja;
        hoja.nombre = "Parcela1";
        hoja.celdas = CuadradoConCentro();
        Hoja copia;
        copia.nombre = nombreDeLaCopia;
        copia.celdas = CuadradoConCentro();
        abrirLibro({hoja, copia});
        aceptarHoja("Parcela1$");
        cambiarOpciones([&](OpcionesPrograma& opciones) { usuario.clic(opciones.Optcirc); });
        dibujarCuadrado();
    }
    FrmMapa& mapa() { return programa.tocar<FrmMapa>(); }
};

TEST(CopiaDeLaHoja, UnaHojaCopiaSeConsultaYAcabaEnFalloSinEscribirNada) {
    Copia copia{"Parcela1COPIA"};
    const std::string antes = LeerArchivo(copia.carpeta.archivo("parcela.xls"));
    EXPECT_TRUE(FallaCon(3075, "cerca de «)^2 AS [SupCirc]", [&] {
        copia.mapa().ComprobarRepeticionDeHoja();
    })) << "antes de los datos de parcela no hay nombres de campos";

    copia.usuario.clic(copia.mapa().mnuDatos);
    const double area = copia.programa.sesion.AreaTotalCopas;
    EXPECT_TRUE(FallaCon(3075, "no hay ningún nombre entre los corchetes",
                         [&] { copia.mapa().ComprobarRepeticionDeHoja(); }));
    ASSERT_TRUE(copia.mapa().filasDeLaCopia.has_value());
    EXPECT_EQ(copia.mapa().filasDeLaCopia->RecordCount(), 5);
    EXPECT_EQ(copia.mapa().filasDeLaCopia->campos()(0).Name, "SupCirc");
    EXPECT_EQ(copia.programa.sesion.AreaTotalCopas, area);
    EXPECT_EQ(LeerArchivo(copia.carpeta.archivo("parcela.xls")), antes);
}

TEST(CopiaDeLaHoja, OtraHojaNoEsCopia) {
    Copia copia{"Parcela1COPIAS"};
    copia.mapa().ComprobarRepeticionDeHoja();
    EXPECT_FALSE(copia.mapa().filasDeLaCopia.has_value());
}

/// Runs the plot data to their end and tells what was heard.
std::vector<std::string> EtapasDe(Datos& datos, std::size_t& pasos) {
    OyenteDePrueba oyente;
    datos.servicios.oyente = &oyente;
    datos.pedir();
    datos.servicios.oyente = nullptr;
    pasos = oyente.oidos;
    return oyente.etapas;
}

void CancelarEnCadaPaso(const std::function<void(Datos&)>& cambio) {
    Datos enteros{CuadradoConCentro(), cambio};
    std::size_t pasos = 0;
    EXPECT_EQ(EtapasDe(enteros, pasos),
              (std::vector<std::string>{"Datos de parcela: recorte de las copas",
                                        "Datos de parcela: solape de las copas",
                                        "Datos de parcela: cubierta de las copas"}));
    Datos datos{CuadradoConCentro(), cambio};
    for (std::size_t paso = 1; paso <= pasos; ++paso) {
        OyenteDePrueba oyente;
        oyente.cancelarEn = paso;
        datos.servicios.oyente = &oyente;
        datos.pedir();
        EXPECT_EQ(oyente.oidos, paso);
        EXPECT_EQ(datos.programa.cargada<FrmResultados>(), nullptr) << paso;
        EXPECT_EQ(datos.mapa().MousePointer(), Formulario::punteroNormal) << paso;
        EXPECT_EQ(datos.programa.activa(), &datos.mapa()) << paso;
        // What its statements have set by then stays.
        EXPECT_EQ(datos.programa.sesion.PiesHaActual, enteros.programa.sesion.PiesHaActual) << paso;
        EXPECT_EQ(datos.programa.sesion.AreaTotalCopas, enteros.programa.sesion.AreaTotalCopas) << paso;
    }
    datos.servicios.oyente = nullptr;
    EXPECT_TRUE(datos.servicios.mensajes().empty());
    datos.pedir();
    EXPECT_EQ(datos.texto(), enteros.texto());
}

TEST(DatosDeParcela, CanceladosNoMuestranVentanaYVuelvenASalirEnteros) {
    CancelarEnCadaPaso([](Datos&) {});
    CancelarEnCadaPaso([](Datos& datos) { datos.usuario.clic(datos.opciones().OptElipse); });
}

TEST(DatosDeParcela, UnSolapeCanceladoConservaSusParesYLaSumaDeAntes) {
    // Crowns of 10 m: all ten pairs overlap.
    Datos datos{CuadradoCon([](Filas& filas) {
        for (std::size_t fila = 1; fila < filas.size(); ++fila) {
            for (std::size_t radio = 3; radio <= 6; ++radio) {
                filas[fila][radio] = 100.0;
            }
        }
    })};
    datos.pedir();
    const auto entero = datos.mapa().solape;
    ASSERT_EQ(entero.ParesCopas.size(), 10U);
    OyenteDePrueba oyente;
    datos.servicios.oyente = &oyente;
    datos.pedir();
    // Behind it five crowns are painted, and the first point of the cover faults. The walk of the first tree
    // is over when that of the second one begins.
    const std::size_t hastaElSolape = oyente.oidos - (4 + 5 + 1);
    OyenteDePrueba otro;
    otro.cancelarEn = hastaElSolape + 2;
    datos.servicios.oyente = &otro;
    datos.pedir();
    EXPECT_EQ(datos.mapa().solape.ParesCopas.size(), 4U);
    EXPECT_EQ(datos.mapa().solape.AreaIntersecCopas, entero.AreaIntersecCopas);
}

} // namespace
} // namespace varo::prueba
