// The whole way from a plot file to the file of its indices, at a screen, with mouse and keyboard.
#include "apoyo/CarpetaTemporal.h"
#include "apoyo/Jornada.h"
#include "apoyo/Lugares.h"
#include "apoyo/Proceso.h"
#include "desktop/ventanas/VistaDeMapa.h"
#include "recorrido/Pasos.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

#include <gtest/gtest.h>

#include <fstream>

namespace varo::prueba {

namespace {

void MarcarIndices(const Manos& manos) {
    manos.tecla("alt+o");
    manos.esperarVentana("OpcionesPrograma");
    manos.foto("06-opciones-4");
    for (const int ficha : {0, 2, 3, 5, 6, 1}) {
        manos.clic("OpcionesPrograma", "SSTab1", EnLaFicha(ficha));
        manos.foto("06-opciones-" + std::to_string(ficha));
    }
    for (const char* casilla : {"ChN", "ChAB", "ChABj", "ChDmed", "ChDmax", "ChDdom", "ChBmed", "ChBmax",
                                "ChBdom", "ChAPDmed", "ChAPDmax", "ChAPDsum", "ChAPBmed", "ChAPBmax"}) {
        manos.clic("OpcionesPrograma", casilla, EnLaMarca);
        // A click may make the page scroll: the next one needs it at rest.
        manos.esperar(std::string{casilla} + " encendida", [&] {
            return dynamic_cast<QCheckBox&>(*ControlDe("OpcionesPrograma", casilla)).isChecked();
        });
    }
    manos.tecla("Tab"); // the last check, with the keyboard
    manos.tecla("space");
    manos.foto("07-independientes");
    manos.tecla("Return");
    manos.esperarQueSeVaya("OpcionesPrograma");
}

/// Drags the title into the corner of the map.
void ArrastrarElTitulo(const Manos& manos) {
    const auto mapa = [](QWidget& vista) -> FrmMapa& { return dynamic_cast<VistaDeMapa&>(vista).mapa(); };
    const auto enElTitulo = [&](QWidget& vista) {
        const auto& lienzo = dynamic_cast<VistaDeMapa&>(vista);
        const QRectF lugar =
            LugarDeEtiqueta(mapa(vista).aspecto({"LbTitulo"}), lienzo.encuadre(), lienzo.pluma());
        // On a small screen the label of a tree may lie over its middle.
        return QPointF{lugar.left() + lugar.width() / 12, lugar.center().y()}.toPoint();
    };
    const auto sitio = [&] {
        return manos.leer("FrmMapa", "lienzo",
                          [&](QWidget& vista) { return QString::number(mapa(vista).LbTitulo.Left()); });
    };
    const QString antes = sitio();
    manos.arrastrar("FrmMapa", "lienzo", enElTitulo, [](QWidget& /*vista*/) { return QPoint{12, 12}; });
    manos.esperar("el título en su nuevo sitio", [&] {
        return QString::number(mapa(*ControlDe("FrmMapa", "lienzo")).LbTitulo.Left()) != antes;
    });
    manos.foto("11-mapa-titulo-arrastrado");
}

void Dibujar(const Manos& manos) {
    manos.esperarVentana("FrmFormato");
    manos.foto("10-formato");
    EXPECT_EQ(manos.leer("FrmFormato", "", LoQueNoCabe), "");
    manos.clic("FrmFormato", "TxtTitName");
    manos.tecla("ctrl+a");
    manos.teclear("Parcela de ejemplo");
    manos.clic("FrmFormato", "CmdAceptar");
    manos.esperarVentana("FrmMapa");
    manos.foto("11-mapa");
    ArrastrarElTitulo(manos);
}

/// Looks at the plot data and closes them. Each label shows what the file of a job has.
void MirarLosDatos(const Manos& manos, const std::filesystem::path& datos) {
    manos.tecla("alt+d");
    manos.esperarVentana("FrmResultados");
    manos.foto("12-datos");
    std::ifstream archivo{datos};
    ASSERT_TRUE(archivo);
    int cifras = 0;
    for (std::string nombre, leyenda; std::getline(archivo, nombre, '\t') && std::getline(archivo, leyenda);
         ++cifras) {
        const auto texto = [](QWidget& widget) { return dynamic_cast<QLabel&>(widget).text(); };
        EXPECT_EQ(manos.leer("FrmResultados", nombre.c_str(), texto).toStdString(), leyenda) << nombre;
    }
    EXPECT_EQ(cifras, 22);
    manos.tecla("ctrl+F4");
    manos.esperarQueSeVaya("FrmResultados");
}

void GuardarIndices(const Manos& manos, const std::filesystem::path& resultados) {
    manos.tecla("alt+i");
    manos.esperarVentana("FrmCrearArchivo");
    manos.foto("13-crear-archivo");
    const auto nombre = [] { return qobject_cast<QLineEdit*>(ControlDe("FrmCrearArchivo", "TxtLista")); };
    manos.esperar("el foco en el nombre", [&] { return nombre()->hasFocus(); });
    manos.teclear(resultados.filename().string()); // over the name that is proposed
    manos.esperar("el nombre escrito",
                  [&] { return nombre()->text().toStdString() == resultados.filename().string(); });
    manos.foto("14-nombre");
    manos.tecla("Return");
    manos.esperarVentana("CajaDeMensaje");
    manos.foto("15-creado");
    EXPECT_EQ(
        manos.leer("CajaDeMensaje", "", [](QWidget& caja) { return dynamic_cast<QMessageBox&>(caja).text(); })
            .toStdString(),
        resultados.string() + " fue creado correctamente");
    manos.tecla("Return");
    manos.esperarQueSeVaya("CajaDeMensaje");
}

void Salir(const Manos& manos) {
    manos.esperarVentana("VAROMAIN");
    manos.tecla("alt+a");
    manos.tecla("s");
    manos.esperarVentana("CajaDeMensaje");
    manos.foto("16-salir");
    manos.tecla("Escape"); // the program goes on
    manos.esperarQueSeVaya("CajaDeMensaje");
    manos.esperarVentana("VAROMAIN");
    manos.tecla("alt+a");
    manos.tecla("s");
    manos.esperarVentana("CajaDeMensaje");
    manos.tecla("alt+s");
    manos.esperarQueSeVaya("VAROMAIN");
}

} // namespace

TEST(RecorridoEnPantalla, ElArchivoDeIndicesEsElDeVaroLote) {
    const CarpetaTemporal carpeta;
    const auto esperado = Ejecutar(
        ProgramaLote(), {(Ejemplos() / "trabajo.toml").string(), "--salida", carpeta.archivo("lote")});
    ASSERT_EQ(esperado.estado, 0) << esperado.errores;

    const auto parcela = carpeta / "parcela.xls"; // the last window offers the folder of the plot
    std::filesystem::copy_file(Ejemplos() / "parcela.xls", parcela);
    const auto resultados = carpeta / "indices.txt";
    const Programado programado;
    ConLasManos([&](const Manos& manos) {
        AbrirArchivo(manos, parcela);
        ElegirHoja(manos);
        MarcarIndices(manos);
        ElegirColumnas(manos);
        Dibujar(manos);
        MirarLosDatos(manos, carpeta / "lote/datos.txt");
        GuardarIndices(manos, resultados);
        Salir(manos);
    });
    EXPECT_TRUE(programado.terminado);
    ASSERT_TRUE(std::filesystem::exists(resultados));
    EXPECT_EQ(LeerArchivo(resultados), LeerArchivo(carpeta / "lote/indices.txt"));
}

} // namespace varo::prueba
