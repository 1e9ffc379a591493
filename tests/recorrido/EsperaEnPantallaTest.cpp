// A long run at a screen: it is cancelled, and then run whole.
#include "apoyo/CarpetaTemporal.h"
#include "apoyo/EscritorXls.h"
#include "apoyo/Jornada.h"
#include "apoyo/Lugares.h"
#include "apoyo/Proceso.h"
#include "recorrido/Pasos.h"

#include <QMessageBox>

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>

namespace varo::prueba {

namespace {

/// A square of trees with the columns of the example plot: a sweep of APA over them takes seconds. It is
/// turned by the golden section and moved a little tree by tree, so that no two trees stand in line with an
/// axis.
Filas Bosque(int lado) {
    Filas filas{{}};
    for (const char* const cabecera :
         {"Arbol", "X", "Y", "Especie", "CAP", "RN", "RE", "RS", "RO", "Observaciones"}) {
        filas.front().emplace_back(std::string{cabecera});
    }
    constexpr double entreArboles = 3.3;
    constexpr double giro = 1.0172219678978514; // atan of 1.618...
    std::mt19937 azar{12};
    std::uniform_real_distribution<double> metros{0, 0.01};
    std::uniform_real_distribution<double> centimetros{30, 120};
    for (int i = 0; i < lado; ++i) {
        for (int j = 0; j < lado; ++j) {
            const double x = entreArboles * (i * std::cos(giro) - j * std::sin(giro));
            const double y = entreArboles * (i * std::sin(giro) + j * std::cos(giro));
            filas.push_back({static_cast<double>(filas.size()), x + metros(azar), y + metros(azar),
                             std::string{"Ps"}, centimetros(azar), 20.0, 20.0, 20.0, 20.0, std::string{"-"}});
        }
    }
    return filas;
}

const char* const trabajo = R"toml(archivo = "bosque.xls"
hoja = "Bosque$"
[columnas]
X = "X"
Y = "Y"
N = "RN"
E = "RE"
S = "RS"
O = "RO"
Indice = "Arbol"
Codigo = "Especie"
DAP = "CAP"
[opciones]
ChAPA = 1
"TxtBAF1(8)" = 0
"TxtBAF2(8)" = 2
"TxtBAF3(8)" = 1
[salida]
resultados = "indices.txt"
)toml";

void Teclear(const Manos& manos, const QString& campo, const std::string& texto) {
    manos.clic("OpcionesPrograma", campo);
    manos.tecla("ctrl+a");
    manos.teclear(texto);
}

/// Does something on the page of APA and accepts.
void EnLaPaginaDeAPA(const Manos& manos, const std::function<void()>& acto) {
    manos.tecla("alt+o");
    manos.esperarVentana("OpcionesPrograma");
    manos.clic("OpcionesPrograma", "SSTab1", EnLaFicha(6));
    acto();
    manos.clic("OpcionesPrograma", "CmdAceptar");
    manos.esperarQueSeVaya("OpcionesPrograma");
    manos.esperarVentana("VAROMAIN");
}

} // namespace

TEST(EsperaEnPantalla, UnaCorridaCanceladaDejaHacerOtraEntera) {
    const CarpetaTemporal carpeta;
    Hoja hoja;
    hoja.nombre = "Bosque";
    hoja.celdas = Bosque(45);
    EscribirArchivoXls(carpeta / "bosque.xls", {hoja});
    std::ofstream{carpeta / "trabajo.toml"} << trabajo;
    const auto esperado =
        Ejecutar(ProgramaLote(), {carpeta.archivo("trabajo.toml"), "--salida", carpeta.archivo("lote")});
    ASSERT_EQ(esperado.estado, 0) << esperado.errores;

    const Programado programado;
    ConLasManos([&](const Manos& manos) {
        AbrirArchivo(manos, carpeta / "bosque.xls");
        ElegirHoja(manos);
        EnLaPaginaDeAPA(manos, [&] {
            manos.clic("OpcionesPrograma", "ChAPA", EnLaMarca);
            Teclear(manos, "TxtBAF1(8)", "0");
            Teclear(manos, "TxtBAF2(8)", "2");
            Teclear(manos, "TxtBAF3(8)", "0,0005"); // columns that take minutes
        });
        ElegirColumnas(manos);
        manos.esperarVentana("FrmFormato");
        manos.clic("FrmFormato", "CmdAceptar");
        manos.esperarVentana("FrmMapa");

        manos.tecla("alt+i");
        manos.esperarVentana("VentanaDeAvance");
        manos.fotoEnMarcha("espera-corrida");
        manos.tecla("Escape");
        manos.esperarQueSeVaya("VentanaDeAvance");
        manos.esperarVentana("FrmMapa2"); // with the cells up to there
        manos.foto("espera-cancelada");
        manos.tecla("ctrl+F4");
        manos.esperarQueSeVaya("FrmMapa2");
        manos.esperarVentana("VAROMAIN");

        EnLaPaginaDeAPA(manos, [&] { Teclear(manos, "TxtBAF3(8)", "1"); });
        manos.tecla("alt+i");
        manos.esperarVentana("FrmCrearArchivo");
        manos.escribir("FrmCrearArchivo", "TxtLista", "indices.txt");
        manos.tecla("Return");
        manos.esperarVentana("CajaDeMensaje");
        manos.tecla("Return");
        manos.esperarQueSeVaya("CajaDeMensaje");
        manos.esperarVentana("VAROMAIN");
        manos.tecla("alt+a");
        manos.tecla("s");
        manos.esperarVentana("CajaDeMensaje");
        manos.tecla("alt+s");
        manos.esperarQueSeVaya("VAROMAIN");
    });
    EXPECT_TRUE(programado.terminado);
    EXPECT_EQ(LeerArchivo(carpeta / "indices.txt"), LeerArchivo(carpeta / "lote/indices.txt"));
}

} // namespace varo::prueba
