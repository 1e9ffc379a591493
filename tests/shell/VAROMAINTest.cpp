#include "apoyo/Jornada.h"
#include "apoyo/OyenteDePrueba.h"
#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

namespace varo::prueba {
namespace {

/// mnuAbrir, mnuCerrar, mnuMapa, mnuOpciones.
using Menus = std::array<bool, 4>;

Menus EstadoDeMenus(Jornada& jornada) {
    const auto& marco = jornada.marco();
    return {marco.mnuAbrir.Enabled(), marco.mnuCerrar.Enabled(), marco.mnuMapa.Enabled(),
            marco.mnuOpciones.Enabled()};
}

const char* const preguntaDeSalida = "¿Realmente quieres salir del programa?";
const char* const cambioDeTipo =
    "Cambiaste el tipo de datos de entrada. Debes seleccionar de nuevo las columnas de entrada";

TEST(VAROMAIN, AlEmpezarSoloSePuedeAbrirYSalir) {
    Jornada jornada;
    const auto& marco = jornada.marco();
    EXPECT_EQ(marco.Caption(), "VARO 1.0");
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{true, false, false, false}));
    EXPECT_TRUE(marco.mnuArchivo.Enabled());
    EXPECT_TRUE(marco.mnuSalir.Enabled());
    EXPECT_EQ(jornada.programa.todas().size(), 1U);
}

TEST(VAROMAIN, LosMenusLlevanSuLeyendaYSuLugar) {
    Jornada jornada;
    const auto& marco = jornada.marco();
    EXPECT_EQ(marco.mnuArchivo.Caption(), "&Archivo");
    EXPECT_EQ(marco.mnuAbrir.Caption(), "&Abrir");
    EXPECT_EQ(marco.mnuCerrar.Caption(), "&Cerrar");
    EXPECT_EQ(marco.mnuSalir.Caption(), "&Salir");
    EXPECT_EQ(marco.mnuMapa.Caption(), "&Mapa de copas");
    EXPECT_EQ(marco.mnuOpciones.Caption(), "&Opciones");
    for (const Menu* const bajoArchivo : {&marco.mnuAbrir, &marco.mnuCerrar, &marco.mnuSalir}) {
        EXPECT_EQ(bajoArchivo->padre(), &marco.mnuArchivo);
    }
    EXPECT_EQ(marco.mnuMapa.padre(), nullptr);
    EXPECT_EQ(marco.mnuOpciones.padre(), nullptr);
}

TEST(VAROMAIN, CancelarElDialogoDeAbrirDejaElRelojYLosMenus) {
    Jornada jornada;
    jornada.servicios.prepararArchivo("");
    jornada.usuario.clic(jornada.marco().mnuAbrir);
    EXPECT_EQ(jornada.marco().MousePointer(), Formulario::relojDeArena);
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{true, false, false, false}));
    EXPECT_EQ(jornada.programa.cargada<FrmSeleccion>(), nullptr);
    ASSERT_NE(jornada.programa.cargada<Hojadedatos>(), nullptr);
    EXPECT_FALSE(jornada.programa.cargada<Hojadedatos>()->Visible());

    jornada.abrirParcela(CuadradoConCentro());
    EXPECT_EQ(jornada.marco().MousePointer(), Formulario::punteroNormal);
}

TEST(VAROMAIN, ElDialogoDeAbrirLlevaSuTituloYSusFiltros) {
    Jornada jornada;
    jornada.servicios.prepararArchivo("");
    jornada.usuario.clic(jornada.marco().mnuAbrir);
    const auto& dialogo = jornada.servicios.ultimoDialogo();
    EXPECT_EQ(dialogo.DialogTitle, "Abrir fichero de datos");
    EXPECT_EQ(dialogo.DefaultExt, "xls");
    EXPECT_EQ(dialogo.Filter, "Hoja de cálculo (*.xls)|*.xls|Base de datos (*.mdb)|*.mdb|");
    EXPECT_EQ(dialogo.Flags, 4096);
}

TEST(VAROMAIN, UnLibroDeUnaHojaDaUnaEntradaYLaCajaDiceNinguna) {
    Jornada jornada;
    jornada.abrirLibro({{"Hoja1", CuadradoConCentro()}});
    const auto& lista = jornada.programa.tocar<FrmSeleccion>().CboHoja;
    ASSERT_EQ(lista.ListCount(), 1);
    EXPECT_EQ(lista.List(0), "Hoja1$");
    EXPECT_EQ(lista.Text(), "(ninguna)");
    EXPECT_TRUE(jornada.programa.tocar<FrmSeleccion>().Visible());
}

TEST(VAROMAIN, UnaSegundaAperturaAnadeLasHojasNuevasTrasLasViejas) {
    Jornada jornada;
    jornada.abrirLibro({{"Vieja", CuadradoConCentro()}}, "uno.xls");
    jornada.abrirLibro({{"Nueva", CuadradoConCentro()}}, "dos.xls");
    auto& seleccion = jornada.programa.tocar<FrmSeleccion>();
    ASSERT_EQ(seleccion.CboHoja.ListCount(), 2);
    EXPECT_EQ(seleccion.CboHoja.List(0), "Vieja$");
    EXPECT_EQ(seleccion.CboHoja.List(1), "Nueva$");

    jornada.servicios.esperarMensaje("No se ha encontrado la hoja seleccionada. Intente de nuevo");
    jornada.usuario.elegir(seleccion.CboHoja, 0);
    jornada.usuario.clic(seleccion.CmdAceptar);
    EXPECT_TRUE(seleccion.Visible());
    jornada.usuario.elegir(seleccion.CboHoja, 1);
    jornada.usuario.clic(seleccion.CmdAceptar);
    EXPECT_FALSE(seleccion.Visible());
}

TEST(VAROMAIN, UnArchivoQueNoSePuedeLeerAcabaElProceso) {
    Jornada jornada;
    jornada.servicios.prepararArchivo(jornada.carpeta.archivo("no-existe.xls"));
    EXPECT_THROW(jornada.usuario.clic(jornada.marco().mnuAbrir), FalloInesperado);
    EXPECT_TRUE(jornada.programa.terminado());
    ASSERT_EQ(jornada.servicios.fallos().size(), 1U);
    EXPECT_NE(std::string{jornada.servicios.fallos()[0].what()}.find("no-existe.xls"), std::string::npos);
}

TEST(VAROMAIN, ReabrirElMismoArchivoTrasCancelarLoLeeDeNuevo) {
    Jornada jornada;
    jornada.abrirLibro({{"Vieja", CuadradoConCentro()}});
    jornada.usuario.clic(jornada.programa.tocar<FrmSeleccion>().CmdCancelar);
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{true, false, false, false}));
    jornada.abrirLibro({{"Nueva", CuadradoConCentro()}});
    const auto& lista = jornada.programa.tocar<FrmSeleccion>().CboHoja;
    ASSERT_EQ(lista.ListCount(), 1);
    EXPECT_EQ(lista.List(0), "Nueva$");
}

TEST(VAROMAIN, ElMapaPideLasColumnasDelTipoDeDatosElegido) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{false, true, true, true}));
    jornada.pedirColumnas();
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{false, true, false, true}));
    const auto& hoja = jornada.programa.tocar<Hojadedatos>();
    EXPECT_EQ(hoja.Height(), 3300);
    EXPECT_EQ(hoja.Top(), 100);
    EXPECT_EQ(hoja.Left(), 1500);
    const auto& dialogo = jornada.programa.tocar<SelCol4R>();
    EXPECT_TRUE(dialogo.Visible());
    EXPECT_EQ(dialogo.Top(), 3500);
    EXPECT_EQ(dialogo.Left(), 3000);
    EXPECT_EQ(jornada.programa.activa(), &dialogo);
}

TEST(VAROMAIN, CadaTipoDeDatosTieneSuDialogoDeColumnas) {
    const auto visibleTras = [](Opcion OpcionesPrograma::*tipo) {
        Jornada jornada;
        jornada.abrirParcela(CuadradoConCentro());
        jornada.cambiarOpciones([&](OpcionesPrograma& opciones) { jornada.usuario.clic(opciones.*tipo); });
        jornada.pedirColumnas();
        return jornada.programa.activa()->nombre();
    };
    EXPECT_EQ(visibleTras(&OpcionesPrograma::Opt2D), "SelCol2D");
    EXPECT_EQ(visibleTras(&OpcionesPrograma::OptRM), "SelColRM");
    EXPECT_EQ(visibleTras(&OpcionesPrograma::Opt4R), "SelCol4R");
}

TEST(VAROMAIN, LasOpcionesOcultanElDialogoDeColumnasQueEsteALaVista) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.pedirColumnas();
    jornada.usuario.clic(jornada.marco().mnuOpciones);
    EXPECT_FALSE(jornada.programa.tocar<SelCol4R>().Visible());
    EXPECT_TRUE(jornada.opciones().Visible());
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{false, true, false, false}));

    jornada.usuario.clic(jornada.opciones().CmdCancelar);
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{false, true, true, true}));
    EXPECT_FALSE(jornada.programa.tocar<SelCol4R>().Visible()) << "sigue oculto hasta que se pida el mapa";
    jornada.pedirColumnas();
    EXPECT_TRUE(jornada.programa.tocar<SelCol4R>().Visible());
}

TEST(VAROMAIN, CambiarElTipoDeDatosYCancelarAvisaIgual) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.cambiarOpciones([&](OpcionesPrograma& opciones) { jornada.usuario.clic(opciones.OptRM); });
    jornada.pedirColumnas();
    jornada.elegirPapel(jornada.programa.tocar<SelColRM>(), 0, 2);

    jornada.usuario.clic(jornada.marco().mnuOpciones);
    jornada.usuario.clic(jornada.opciones().Opt2D);
    jornada.servicios.esperarMensaje(cambioDeTipo);
    jornada.usuario.clic(jornada.opciones().CmdCancelar);
    const auto& mensaje = jornada.servicios.mensajes().back();
    EXPECT_EQ(mensaje.titulo, "Cambiaste el tipo de datos de entrada");
    EXPECT_EQ(mensaje.opciones, 48);
    EXPECT_FALSE(jornada.opciones().Visible());
    EXPECT_TRUE(jornada.opciones().Opt2D.Value());
    EXPECT_EQ(jornada.programa.cargada<SelColRM>(), nullptr) << "su lista se pierde con él";
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{false, true, true, true}));
}

TEST(VAROMAIN, CerrarElArchivoVuelveAlPrincipio) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.cambiarOpciones([&](OpcionesPrograma& opciones) { jornada.usuario.clic(opciones.Optmetro); });
    jornada.usuario.clic(jornada.marco().mnuCerrar);
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{true, false, false, false}));
    EXPECT_EQ(jornada.programa.cargada<Hojadedatos>(), nullptr);
    EXPECT_EQ(jornada.programa.cargada<FrmSeleccion>(), nullptr);
    EXPECT_EQ(jornada.programa.cargada<OpcionesPrograma>(), nullptr);
    EXPECT_TRUE(jornada.opciones().Optdecim.Value()) << "las opciones vuelven a su diseño";
}

std::vector<std::string> VentanasCargadas(const Jornada& jornada) {
    std::vector<std::string> nombres;
    for (const Formulario* const ventana : jornada.programa.todas()) {
        nombres.push_back(ventana->nombre() + (ventana->Visible() ? "" : " (oculta)"));
    }
    return nombres;
}

TEST(VAROMAIN, CerrarLaHojaConSuBotonHaceLoMismoQueElMenu) {
    const auto trasCerrar = [](const std::function<void(Jornada&)>& cerrar) {
        Jornada jornada;
        jornada.abrirParcela(CuadradoConCentro());
        jornada.dibujarCuadrado();
        jornada.programa.sesion.CambiosCodigo = 3;
        cerrar(jornada);
        const auto& sesion = jornada.programa.sesion;
        return std::tuple{VentanasCargadas(jornada), EstadoDeMenus(jornada), sesion.CierresConMapa.valor(),
                          sesion.CambiosCodigo.valor(), sesion.VecesFormato.valor()};
    };
    const auto conElMenu =
        trasCerrar([](Jornada& jornada) { jornada.usuario.clic(jornada.marco().mnuCerrar); });
    const auto conElBoton =
        trasCerrar([](Jornada& jornada) { jornada.usuario.cerrar(jornada.programa.tocar<Hojadedatos>()); });
    EXPECT_EQ(conElBoton, conElMenu);
    // Nobody leaves the options here, so nothing touches the two other column dialogs.
    const std::vector<std::string> quedan{"VAROMAIN", "SelCol4R (oculta)", "FrmMapa2 (oculta)"};
    auto ventanas = std::get<0>(conElMenu);
    EXPECT_TRUE(std::is_permutation(ventanas.begin(), ventanas.end(), quedan.begin(), quedan.end()))
        << ::testing::PrintToString(ventanas);
    EXPECT_EQ(std::get<1>(conElMenu), (Menus{true, false, false, false}))
        << "aunque el mapa, al irse, dé su menú";
    EXPECT_EQ(std::get<2>(conElMenu), 1);
    EXPECT_EQ(std::get<3>(conElMenu), 0);
}

TEST(VAROMAIN, ElBotonDeCierreDeLasOpcionesHaceLoQueCancelar) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.usuario.clic(jornada.marco().mnuOpciones);
    jornada.usuario.clic(jornada.opciones().Optmetro);
    jornada.usuario.cerrar(jornada.opciones());
    EXPECT_FALSE(jornada.opciones().Visible());
    EXPECT_TRUE(jornada.opciones().Optmetro.Value());
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{false, true, true, true}));
}

TEST(VAROMAIN, PedirElMapaDevuelveLaHojaASuEstadoNormal) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    auto& hoja = jornada.programa.tocar<Hojadedatos>();
    hoja.WindowState = 1;
    jornada.pedirColumnas();
    EXPECT_EQ(hoja.WindowState(), 0);
}

TEST(VAROMAIN, MasDe32767TablasDesbordanYAcabanElProceso) {
    Jornada jornada;
    std::vector<Hoja> hojas(32768);
    for (std::size_t i = 0; i < hojas.size(); ++i) {
        hojas[i].nombre = "H" + std::to_string(i);
    }
    EXPECT_THROW(jornada.abrirLibro(hojas), FalloInesperado);
    ASSERT_EQ(jornada.servicios.fallos().size(), 1U);
    EXPECT_EQ(jornada.servicios.fallos()[0].numero(), 6);
    EXPECT_TRUE(jornada.programa.terminado());
}

TEST(VAROMAIN, CerrarElArchivoDejaAbiertoElDialogoDeColumnas) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.pedirColumnas();
    auto& dialogo = jornada.programa.tocar<SelCol4R>();
    jornada.elegirPapel(dialogo, 0, 2);
    jornada.usuario.clic(jornada.marco().mnuCerrar);
    ASSERT_EQ(jornada.programa.cargada<SelCol4R>(), &dialogo);
    EXPECT_TRUE(dialogo.Visible());
    EXPECT_EQ(dialogo.List1.ListCount(), 1);
    // The grid behind it is a new, empty one.
    jornada.usuario.clic(dialogo.Command1(1));
    EXPECT_EQ(dialogo.List1.List(1), "Coordenada Y: Columna: 1 ()");
}

TEST(VAROMAIN, CancelarElFormatoDejaSinMapaYSinOpciones) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.dibujarCuadrado();
    jornada.usuario.clic(jornada.marco().mnuOpciones);
    jornada.usuario.clic(jornada.opciones().CmdAceptar);
    jornada.pedirColumnas();
    jornada.usuario.clic(jornada.programa.tocar<SelCol4R>().CmdDibujar);
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{false, true, false, false}));
    jornada.usuario.clic(jornada.programa.tocar<FrmFormato>().CmdCancelar);
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{false, true, false, false}));
    EXPECT_EQ(jornada.programa.cargada<FrmFormato>(), nullptr);
}

TEST(VAROMAIN, ElMapaDibujadoDejaLasOpcionesYDevuelveElMenuAlCerrarse) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.dibujarCuadrado();
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{false, true, false, true}));
    auto& mapa = jornada.programa.tocar<FrmMapa>();
    EXPECT_TRUE(mapa.Visible());
    jornada.usuario.cerrar(mapa);
    EXPECT_EQ(EstadoDeMenus(jornada), (Menus{false, true, true, true}));
}

TEST(VAROMAIN, DecirQueNoALaSalidaDejaTodoComoEstaba) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.dibujarCuadrado();
    const auto antes = EstadoDeMenus(jornada);
    const auto ventanas = jornada.programa.todas();
    jornada.servicios.esperarMensaje(preguntaDeSalida, mensaje::respondeNo);
    jornada.usuario.clic(jornada.marco().mnuSalir);
    EXPECT_EQ(jornada.servicios.mensajes().back(),
              (ServiciosPreparados::Mensaje{preguntaDeSalida, "VARO 1.0", 36}));
    EXPECT_FALSE(jornada.programa.terminado());
    EXPECT_EQ(EstadoDeMenus(jornada), antes);
    EXPECT_EQ(jornada.programa.todas(), ventanas);
}

TEST(VAROMAIN, SalirDescargaLasHijasYAcaba) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.dibujarCuadrado();
    jornada.servicios.esperarMensaje(preguntaDeSalida, mensaje::respondeSi);
    jornada.usuario.cerrar(jornada.marco());
    EXPECT_TRUE(jornada.programa.terminado());
    EXPECT_FALSE(jornada.programa.conFalloFatal());
    EXPECT_EQ(jornada.programa.cargada<Hojadedatos>(), nullptr);
    EXPECT_EQ(jornada.programa.cargada<FrmMapa>(), nullptr);
    EXPECT_EQ(jornada.programa.cargada<SelCol4R>(), nullptr);
    EXPECT_EQ(jornada.programa.cargada<OpcionesPrograma>(), nullptr);
}

/// What opening, or its cancelling, leaves.
using Apertura = std::tuple<Menus, int, bool, bool, std::string, std::string>;

Apertura EstadoDeApertura(Jornada& jornada) {
    auto& datos = jornada.programa.tocar<Hojadedatos>();
    const auto* const seleccion = jornada.programa.cargada<FrmSeleccion>();
    return {EstadoDeMenus(jornada), jornada.marco().MousePointer(),      datos.Visible(),
            seleccion != nullptr,   jornada.marco().DlogoAbrir.FileName, datos.Data1.DatabaseName()};
}

TEST(VAROMAIN, CancelarLaLecturaEsComoCancelarElDialogoDeAbrir) {
    Jornada cancelado;
    cancelado.servicios.prepararArchivo("");
    cancelado.usuario.clic(cancelado.marco().mnuAbrir);
    Jornada jornada;
    Hoja hoja;
    hoja.nombre = "Parcela1";
    hoja.celdas = CuadradoConCentro();
    OyenteDePrueba oyente;
    oyente.cancelarEn = 9;
    jornada.servicios.oyente = &oyente;
    jornada.abrirLibro({hoja});
    EXPECT_EQ(oyente.oidos, 9U);
    EXPECT_EQ(oyente.etapas, std::vector<std::string>{"Lectura de «parcela.xls»"});
    EXPECT_EQ(EstadoDeApertura(jornada), EstadoDeApertura(cancelado));
    EXPECT_THROW(static_cast<void>(jornada.programa.tocar<Hojadedatos>().Data1.Database()), ErrorEjecucion);
    EXPECT_FALSE(jornada.programa.terminado());
    jornada.servicios.oyente = nullptr;
    jornada.abrirLibro({hoja}, "otra.xls");
    EXPECT_EQ(jornada.programa.tocar<FrmSeleccion>().CboHoja.ListCount(), 1);
    jornada.aceptarHoja("Parcela1$");
    EXPECT_EQ(jornada.marco().MousePointer(), Formulario::punteroNormal);
    EXPECT_TRUE(jornada.programa.tocar<Hojadedatos>().Visible());
}

TEST(VAROMAIN, LaLecturaCanceladaDeOtroArchivoDejaElQueSeElegia) {
    Jornada jornada;
    Hoja hoja;
    hoja.nombre = "Parcela1";
    hoja.celdas = CuadradoConCentro();
    jornada.abrirLibro({hoja});
    OyenteDePrueba oyente;
    oyente.cancelarEn = 1;
    jornada.servicios.oyente = &oyente;
    jornada.abrirLibro({hoja}, "otra.xls");
    EXPECT_EQ(oyente.oidos, 1U);
    EXPECT_EQ(jornada.programa.tocar<FrmSeleccion>().CboHoja.ListCount(), 1);
    jornada.servicios.oyente = nullptr;
    jornada.aceptarHoja("Parcela1$");
    EXPECT_EQ(jornada.programa.tocar<Hojadedatos>().MSFlexGrid1.Rows(), 6);
}

TEST(VAROMAIN, LaLecturaCuentaLosBytesDelArchivo) {
    Jornada jornada;
    OyenteDePrueba oyente;
    jornada.servicios.oyente = &oyente;
    Hoja hoja;
    hoja.nombre = "Parcela1";
    hoja.celdas = CuadradoConCentro();
    jornada.abrirLibro({hoja});
    EXPECT_GT(oyente.ultima.hechos, 0U);
    EXPECT_LE(oyente.ultima.hechos, oyente.ultima.pasos);
}

} // namespace
} // namespace varo::prueba
