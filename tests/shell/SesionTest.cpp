#include "apoyo/Jornada.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

TEST(Sesion, TodoEmpiezaEnCeroOVacio) {
    const Sesion sesion;
    EXPECT_EQ(sesion.Columnas.limite(), -1);
    EXPECT_EQ(sesion.UltimaColumna, 0);
    EXPECT_EQ(sesion.ColumnaDAP, 0);
    EXPECT_TRUE(sesion.Codigos.empty());
    EXPECT_EQ(sesion.NumCodigos, 0);
    EXPECT_EQ(sesion.CierresConMapa, 0);
    EXPECT_EQ(sesion.NumPuntosPoligono, 0);
    EXPECT_EQ(sesion.SupPoligono, 0);
    EXPECT_EQ(sesion.AnguloLado.limite(), -1);
    EXPECT_EQ(sesion.AnguloInterior.limite(), -1);
    EXPECT_EQ(sesion.CentroCircX, 0);
    EXPECT_EQ(sesion.CentroCircY, 0);
}

TEST(Sesion, ElCierreCuentaLosArchivosQueLlegaronAlFormato) {
    Sesion sesion;
    sesion.VecesFormato = 1;
    sesion.reiniciarAlCerrar();
    EXPECT_EQ(sesion.CierresConMapa, 1);
    EXPECT_EQ(sesion.VecesFormato, 0);
    sesion.VecesFormato = 1;
    sesion.reiniciarAlCerrar();
    EXPECT_EQ(sesion.CierresConMapa, 2);
    sesion.reiniciarAlCerrar();
    EXPECT_EQ(sesion.CierresConMapa, 0) << "un archivo que no llegó al formato empieza la cuenta";
}

TEST(Sesion, ElCierrePoneACeroLosCambiosYLosCodigosYDejaElResto) {
    Sesion sesion;
    sesion.CambiosCodigo = 3;
    sesion.NumCodigos = 4;
    sesion.UltimaColumna = 7;
    sesion.ColumnaDAP = 9;
    sesion.SupPoligono = 100;
    sesion.reiniciarAlCerrar();
    EXPECT_EQ(sesion.CambiosCodigo, 0);
    EXPECT_EQ(sesion.NumCodigos, 0);
    EXPECT_EQ(sesion.UltimaColumna, 7);
    EXPECT_EQ(sesion.ColumnaDAP, 9);
    EXPECT_EQ(sesion.SupPoligono, 100);
}

TEST(Sesion, DemasiadosCierresSeguidosDesbordan) {
    Sesion sesion;
    sesion.CierresConMapa = 32767;
    sesion.VecesFormato = 1;
    try {
        sesion.reiniciarAlCerrar();
        FAIL() << "debía desbordar";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), 6);
    }
}

TEST(Sesion, MasDe32767CambiosDeCodigoDesbordan) {
    Jornada jornada;
    jornada.programa.sesion.CambiosCodigo = 32767;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.programa.sesion.CambiosCodigo = 32767;
    jornada.usuario.clic(jornada.marco().mnuOpciones);
    jornada.servicios.esperarFallo(6);
    jornada.usuario.clic(jornada.opciones().ChCodigo);
    EXPECT_TRUE(jornada.servicios.todoPedido());
    EXPECT_FALSE(jornada.programa.terminado());
}

TEST(Sesion, UnNumeroParDeClicsEnElCodigoDejaElFormatoComoEstaba) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.dibujarCuadrado();
    auto& formato = jornada.programa.tocar<FrmFormato>();
    formato.TxtTitName.Text = "Mi título";
    jornada.cambiarOpciones([&](OpcionesPrograma& opciones) {
        jornada.usuario.clic(opciones.ChCodigo);
        jornada.usuario.clic(opciones.ChCodigo);
    });
    EXPECT_EQ(jornada.programa.sesion.CambiosCodigo, 2);
    jornada.pedirColumnas();
    jornada.usuario.clic(jornada.programa.tocar<SelCol4R>().CmdDibujar);
    EXPECT_EQ(jornada.programa.cargada<FrmFormato>(), &formato);
    EXPECT_EQ(formato.TxtTitName.Text(), "Mi título");
    EXPECT_EQ(jornada.programa.sesion.CambiosCodigo, 0);
}

TEST(Sesion, UnNumeroImparDeClicsEnElCodigoRehaceElFormato) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.dibujarCuadrado();
    jornada.programa.tocar<FrmFormato>().TxtTitName.Text = "Mi título";
    jornada.cambiarOpciones([&](OpcionesPrograma& opciones) { jornada.usuario.clic(opciones.ChCodigo); });
    jornada.pedirColumnas();
    jornada.usuario.clic(jornada.programa.tocar<SelCol4R>().CmdDibujar);
    EXPECT_EQ(jornada.programa.tocar<FrmFormato>().TxtTitName.Text(), "Parcela Parcela1$");
}

TEST(Sesion, CerrarUnArchivoNoBorraLaColumnaDelTamano) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.dibujarCuadrado();
    jornada.usuario.clic(jornada.marco().mnuCerrar);
    EXPECT_EQ(jornada.programa.sesion.ColumnaDAP, 9);
    EXPECT_EQ(jornada.programa.sesion.Columnas(0), 2);
    EXPECT_EQ(jornada.programa.sesion.SupPoligono, 100);
}

TEST(Sesion, UnArchivoSinTamanoElegidoVeLaColumnaDelArchivoAnterior) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.dibujarCuadrado();
    jornada.usuario.clic(jornada.marco().mnuCerrar);

    jornada.abrirParcela(CuadradoConCentro());
    jornada.cambiarOpciones([&](OpcionesPrograma& opciones) { jornada.usuario.clic(opciones.ChDmax); });
    jornada.pedirColumnas();
    auto& dialogo = jornada.programa.tocar<SelCol4R>();
    jornada.usuario.clic(dialogo.CmdQuitarTodo);
    for (int papel = 0; papel <= 5; ++papel) {
        jornada.elegirPapel(dialogo, papel, papel + 2);
    }
    jornada.elegirPapel(dialogo, 6, 1);
    jornada.elegirPapel(dialogo, 7, 8);
    jornada.usuario.clic(dialogo.CmdDibujar);
    jornada.usuario.clic(jornada.programa.tocar<FrmFormato>().CmdAceptar);
    jornada.usuario.clic(jornada.programa.tocar<FrmMapa>().mnuIndices);
    EXPECT_EQ(jornada.programa.resultados.IndDmax(1), 0.8);
}

TEST(Sesion, LaUltimaColumnaSobreviveAlCierreYElCambioDeTipoAvisaEnElArchivoSiguiente) {
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.pedirColumnas();
    jornada.usuario.clic(jornada.marco().mnuCerrar);
    jornada.abrirParcela(CuadradoConCentro());
    jornada.usuario.clic(jornada.marco().mnuOpciones);
    jornada.usuario.clic(jornada.opciones().Opt2D);
    jornada.servicios.esperarMensaje(
        "Cambiaste el tipo de datos de entrada. Debes seleccionar de nuevo las columnas de entrada");
    jornada.usuario.clic(jornada.opciones().CmdAceptar);
    EXPECT_TRUE(jornada.servicios.todoPedido());
}

} // namespace
} // namespace varo::prueba
