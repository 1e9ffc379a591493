// A plot file by other ways than the dialog: the command line, a drop on the window, the list of recent ones.
#include "apoyo/EscritorMdb.h"
#include "desktop/Pantalla.h"
#include "desktop/Texto.h"
#include "desktop/widgets/RotuloRecortado.h"
#include "indices/archivo/FrmCrearArchivo.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QUrl>

#include <filesystem>

namespace varo::prueba {

class AbrirDeOtrosModos : public Pantalla {
protected:
    QString escribirParcela(const std::string& nombre) {
        Hoja hoja;
        hoja.nombre = "Parcela1";
        hoja.celdas = filas;
        EscribirArchivoXls(carpeta / nombre, {hoja});
        return QString::fromStdString(carpeta.archivo(nombre));
    }
    void abrir(const QString& archivo) {
        comodidades.abrir(archivo);
        Reposar();
    }
    /// Drops these files on a widget, as the file manager does.
    static void soltar(QWidget& widget, const QList<QUrl>& lugares) {
        QMimeData datos;
        datos.setUrls(lugares);
        const QPoint punto = widget.rect().center();
        QDragEnterEvent entrada{punto, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(&widget, &entrada);
        EXPECT_TRUE(entrada.isAccepted());
        QDropEvent caida{punto, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(&widget, &caida);
        EXPECT_TRUE(caida.isAccepted());
        Reposar();
    }
    QString estado(const std::string& rotulo) const {
        return dynamic_cast<const RotuloRecortado&>(widget<QWidget>("VAROMAIN", rotulo)).texto();
    }
    QStringList recientesALaVista() const {
        QStringList textos;
        for (int i = 1; i <= Recientes::cuantos; ++i) {
            const QAction& entrada = menu("Reciente" + std::to_string(i));
            if (entrada.isVisible()) {
                textos << entrada.data().toString();
            }
        }
        return textos;
    }
    QStringList hojas() const {
        const auto& lista = widget<QComboBox>("FrmSeleccion", "CboHoja");
        QStringList textos;
        for (int i = 0; i < lista.count(); ++i) {
            textos << lista.itemText(i);
        }
        return textos;
    }
};

TEST_F(AbrirDeOtrosModos, UnArchivoDadoSeAbreComoPorElMenu) {
    abrir(escribirParcela("una.xls"));
    EXPECT_TRUE(alaVista("FrmSeleccion"));
    EXPECT_EQ(hojas(), QStringList{"Parcela1$"});
    EXPECT_EQ(widget<QComboBox>("FrmSeleccion", "CboHoja").currentText(), "(ninguna)");
    EXPECT_EQ(menusHabilitados(), "mnuAbrir");
    aceptarHoja();
    EXPECT_TRUE(alaVista("Hojadedatos"));
    EXPECT_EQ(ventana("Hojadedatos").windowTitle(), "Parcela1$ una.xls");
}

TEST_F(AbrirDeOtrosModos, MientrasSeEligeLaHojaOtroArchivoAnadeLasSuyasComoPorElMenu) {
    abrir(escribirParcela("una.xls"));
    abrir(escribirParcela("otra.xls"));
    EXPECT_EQ(hojas(), (QStringList{"Parcela1$", "Parcela1$"}));
}

TEST_F(AbrirDeOtrosModos, ConUnaHojaAbiertaNoSeAbreYLaBarraDiceQueHayQueCerrarla) {
    llegarA(Etapa::Hoja);
    const QString otra = escribirParcela("otra.xls");
    abrir(otra);
    EXPECT_FALSE(alaVista("FrmSeleccion"));
    EXPECT_EQ(ventana("Hojadedatos").windowTitle(), "Parcela1$ parcela.xls");
    EXPECT_EQ(estado("EstadoMensaje"),
              "No se abre «" + otra + "»: ya hay un archivo abierto; ciérrelo antes (Archivo, Cerrar).");
    EXPECT_TRUE(contestador.cajas().empty());
    EXPECT_FALSE(menu("Reciente1").isEnabled());
}

TEST_F(AbrirDeOtrosModos, UnArchivoQueSeNiegaNoSeAbreConElMenuSiguiente) {
    llegarA(Etapa::Hoja);
    abrir(escribirParcela("otra.xls"));
    clicMenu("VAROMAIN", "mnuCerrar");
    contestador.preparar([](QWidget& dialogo) {
        EXPECT_EQ(dialogo.objectName(), "DlogoAbrir");
        QTest::keyClick(&dialogo, Qt::Key_Escape);
    });
    clicMenu("VAROMAIN", "mnuAbrir");
    EXPECT_FALSE(alaVista("FrmSeleccion"));
}

TEST_F(AbrirDeOtrosModos, UnArchivoQueNoEstaSeDiceYElProgramaSigue) {
    contestador.pulsar("Aceptar");
    const QString ruta = AQt(carpeta.archivo("no-esta.xls"));
    abrir(ruta);
    ASSERT_EQ(contestador.cajas().size(), 1U);
    EXPECT_TRUE(contestador.cajas()[0].texto.startsWith("No se encuentra «" + ruta + "»."));
    EXPECT_EQ(terminaciones, 0);
    EXPECT_FALSE(alaVista("FrmSeleccion"));
    EXPECT_TRUE(recientesALaVista().isEmpty());
}

TEST_F(AbrirDeOtrosModos, UnaCarpetaNoEsUnArchivo) {
    contestador.pulsar("Aceptar");
    const QString ruta = AQt(carpeta.ruta().string());
    abrir(ruta);
    ASSERT_EQ(contestador.cajas().size(), 1U);
    EXPECT_EQ(contestador.cajas()[0].texto, "«" + ruta + "» no es un archivo. Elija el de la parcela.");
}

TEST_F(AbrirDeOtrosModos, UnArchivoRotoTerminaElProgramaComoPorElMenu) {
    const auto roto = carpeta.Escribir("roto.xls", "esto no es un libro");
    contestador.preparar([](QWidget& caja) {
        EXPECT_EQ(caja.objectName(), "CajaDeFallo");
        PulsarBoton(caja, "Aceptar");
    });
    abrir(QString::fromStdString(roto.string()));
    EXPECT_EQ(terminaciones, 1);
    EXPECT_TRUE(recientes.archivos().isEmpty());
}

TEST_F(AbrirDeOtrosModos, UnArchivoSoltadoEnElMarcoSeAbre) {
    soltar(escritorio.marco(), {QUrl::fromLocalFile(escribirParcela("una.xls"))});
    EXPECT_TRUE(alaVista("FrmSeleccion"));
}

TEST_F(AbrirDeOtrosModos, UnArchivoSoltadoSobreLaRejillaSeNiegaEnLaBarra) {
    llegarA(Etapa::Hoja);
    soltar(*rejilla().viewport(), {QUrl::fromLocalFile(escribirParcela("otra.xls"))});
    EXPECT_TRUE(estado("EstadoMensaje").startsWith("No se abre "));
}

TEST_F(AbrirDeOtrosModos, VariosArchivosSoltadosALaVezNoSeAbren) {
    soltar(escritorio.marco(), {QUrl::fromLocalFile(escribirParcela("una.xls")),
                                QUrl::fromLocalFile(escribirParcela("otra.xls"))});
    EXPECT_FALSE(alaVista("FrmSeleccion"));
    EXPECT_EQ(estado("EstadoMensaje"), "Suelte un solo archivo de este equipo: se abre uno cada vez.");
}

// --- Recent files ---

TEST_F(AbrirDeOtrosModos, LosOchoUltimosArchivosEstanBajoLasEntradasDeArchivo) {
    QStringList esperados;
    for (int i = 1; i <= 10; ++i) {
        const QString ruta = escribirParcela("p" + std::to_string(i) + ".xls");
        abrir(ruta);
        esperados.prepend(ruta);
    }
    EXPECT_EQ(recientesALaVista(), esperados.mid(0, 8));
    abrir(esperados[4]);
    EXPECT_EQ(recientesALaVista().front(), esperados[4]);
    EXPECT_EQ(recientesALaVista().size(), 8);
    const auto entradas = menu("mnuArchivo").menu()->actions();
    EXPECT_LT(entradas.indexOf(&menu("mnuSalir")), entradas.indexOf(&menu("Reciente1")));
    EXPECT_TRUE(menu("Reciente1").text().startsWith("&1 p6.xls  ("));
}

TEST_F(AbrirDeOtrosModos, UnRecienteElegidoSeAbre) {
    llegarA(Etapa::Hoja);
    clicMenu("VAROMAIN", "mnuCerrar");
    clicMenu("VAROMAIN", "Reciente1");
    EXPECT_TRUE(alaVista("FrmSeleccion"));
    EXPECT_EQ(hojas(), QStringList{"Parcela1$"});
}

TEST_F(AbrirDeOtrosModos, UnRecienteQueYaNoEstaSeDiceAlElegirlo) {
    llegarA(Etapa::Hoja);
    clicMenu("VAROMAIN", "mnuCerrar");
    std::filesystem::remove(carpeta / "parcela.xls");
    contestador.pulsar("Aceptar");
    clicMenu("VAROMAIN", "Reciente1");
    ASSERT_EQ(contestador.cajas().size(), 1U);
    EXPECT_TRUE(contestador.cajas()[0].texto.startsWith("No se encuentra «"));
}

TEST_F(AbrirDeOtrosModos, ElDialogoEmpiezaEnLaCarpetaDelUltimoArchivo) {
    std::filesystem::create_directory(carpeta / "datos");
    abrir(escribirParcela("datos/una.xls"));
    contestador.preparar([this](QWidget& dialogo) {
        EXPECT_EQ(dynamic_cast<QFileDialog&>(dialogo).directory().path(), AQt(carpeta.archivo("datos")));
        QTest::keyClick(&dialogo, Qt::Key_Escape);
    });
    clicMenu("VAROMAIN", "mnuAbrir");
}

TEST(LosRecientes, QuedanParaLaSesionSiguiente) {
    const CarpetaTemporal carpeta;
    const QString ajustes = QString::fromStdString(carpeta.archivo("recientes.ini"));
    Recientes{ajustes}.anotar("/datos/una.xls");
    Recientes{ajustes}.anotar("/otros/dos.xls");
    const Recientes recientes{ajustes};
    EXPECT_EQ(recientes.archivos(), (QStringList{"/otros/dos.xls", "/datos/una.xls"}));
    EXPECT_EQ(recientes.carpeta(), "/otros");
    EXPECT_EQ(Recientes{QString::fromStdString(carpeta.archivo("nadie.ini"))}.carpeta(), "");
}

TEST(LosRecientes, LaCarpetaDeLosUltimosResultadosEsDeLasParcelasDeUnaCarpeta) {
    const CarpetaTemporal carpeta;
    const QString ajustes = QString::fromStdString(carpeta.archivo("recientes.ini"));
    Recientes{ajustes}.anotarResultados("/datos", "/salida");
    EXPECT_EQ(Recientes{ajustes}.carpetaDeResultados("/datos"), "/salida");
    EXPECT_EQ(Recientes{ajustes}.carpetaDeResultados("/otros"), "");
    EXPECT_EQ(Recientes{QString::fromStdString(carpeta.archivo("nadie.ini"))}.carpetaDeResultados("/datos"),
              "");
}

// --- The folder of the results ---

TEST_F(AbrirDeOtrosModos, LosResultadosEmpiezanEnLaCarpetaDeLaParcelaYLuegoEnLaDeLosUltimos) {
    std::filesystem::create_directory(carpeta / "salida");
    llegarA(Etapa::CrearArchivo);
    auto& nombre = widget<QLineEdit>("FrmCrearArchivo", "TxtLista");
    EXPECT_EQ(nombre.selectedText(), "*.txt");
    QTest::keyClicks(&nombre, "uno.txt");
    contestador.pulsar("Aceptar");
    clic("FrmCrearArchivo", "CmdAceptar");
    EXPECT_TRUE(std::filesystem::exists(carpeta / "uno.txt"));

    clicMenu("FrmMapa", "mnuIndices");
    Usuario{programa}.elegir(dynamic_cast<Lista&>(modelo("FrmCrearArchivo")->control("DirLista")), 1);
    Usuario{programa}.dobleClic(modelo("FrmCrearArchivo")->control("DirLista"));
    Escribir(widget("FrmCrearArchivo", "TxtLista"), "dos.txt");
    contestador.pulsar("Aceptar");
    clic("FrmCrearArchivo", "CmdAceptar");
    EXPECT_TRUE(std::filesystem::exists(carpeta / "salida/dos.txt"));
    EXPECT_EQ(recientes.carpetaDeResultados(AQt(carpeta.ruta().string())), AQt(carpeta.archivo("salida")));

    clicMenu("FrmMapa", "mnuIndices");
    Escribir(widget("FrmCrearArchivo", "TxtLista"), "tres.txt");
    contestador.pulsar("Aceptar");
    clic("FrmCrearArchivo", "CmdAceptar");
    EXPECT_TRUE(std::filesystem::exists(carpeta / "salida/tres.txt"));
    EXPECT_EQ(estado("EstadoMensaje"), AQt(carpeta.archivo("salida/tres.txt") + " fue creado correctamente"));
}

TEST_F(AbrirDeOtrosModos, ParcelasDeLaMismaCarpetaGuardanDondeLaSesionDeAntes) {
    std::filesystem::create_directory(carpeta / "salida");
    recientes.anotarResultados(AQt(carpeta.ruta().string()), AQt(carpeta.archivo("salida")));
    llegarA(Etapa::CrearArchivo);
    const auto& crear = dynamic_cast<const FrmCrearArchivo&>(*modelo("FrmCrearArchivo"));
    EXPECT_EQ(crear.DirLista.Path(), carpeta.archivo("salida"));
}

TEST_F(AbrirDeOtrosModos, SinLaCarpetaDeLosUltimosResultadosSeEmpiezaEnLaDeLaParcela) {
    llegarA(Etapa::Mapa);
    servicios.alEscribir(carpeta.archivo("ya-no-esta/r.txt"));
    clicMenu("FrmMapa", "mnuIndices");
    Escribir(widget("FrmCrearArchivo", "TxtLista"), "r.txt");
    contestador.pulsar("Aceptar");
    clic("FrmCrearArchivo", "CmdAceptar");
    EXPECT_TRUE(std::filesystem::exists(carpeta / "r.txt"));
}

// --- The status bar ---

TEST_F(AbrirDeOtrosModos, LaBarraDiceElArchivoLaHojaYCuantosArboles) {
    EXPECT_EQ(estado("EstadoArchivo") + estado("EstadoHoja") + estado("EstadoArboles"), "");
    llegarA(Etapa::Seleccion);
    EXPECT_EQ(estado("EstadoArchivo"), "parcela.xls");
    EXPECT_EQ(estado("EstadoHoja") + estado("EstadoArboles"), "");
    aceptarHoja();
    EXPECT_EQ(estado("EstadoHoja"), "Parcela1$");
    EXPECT_EQ(estado("EstadoArboles"), "5 árboles");
    clicMenu("VAROMAIN", "mnuCerrar");
    EXPECT_EQ(estado("EstadoArchivo") + estado("EstadoHoja") + estado("EstadoArboles"), "");
}

TEST_F(AbrirDeOtrosModos, LaBarraGuardaLaCausaDeUnaHojaNoEncontrada) {
    llegarA(Etapa::Seleccion);
    contestador.pulsar("Aceptar");
    clic("FrmSeleccion", "CmdAceptar");
    EXPECT_EQ(contestador.cajas().back().texto, "No se ha encontrado la hoja seleccionada. Intente de nuevo");
    EXPECT_EQ(estado("EstadoMensaje").toStdString(),
              "Hoja no encontrada. No se encuentra «(ninguna)» en esta colección");
    aceptarHoja();
    EXPECT_EQ(estado("EstadoMensaje"), "");
}

TEST_F(AbrirDeOtrosModos, LaBarraDicePorQueNoSeLeeUnaTabla) {
    TablaMdb parcela{"Parcela1", {{"X", TipoMdb::Doble}, {"Y", TipoMdb::Doble}}, {{1.0, 2.0}}};
    TablaMdb vinculada{"Censo", {}, {}};
    vinculada.vinculada = true;
    EscribirArchivoMdb(carpeta / "monte.mdb", {{parcela, vinculada}});
    abrir(QString::fromStdString(carpeta.archivo("monte.mdb")));
    Escribir(*widget<QComboBox>("FrmSeleccion", "CboHoja").lineEdit(), "Censo");
    contestador.pulsar("Aceptar");
    clic("FrmSeleccion", "CmdAceptar");
    EXPECT_TRUE(estado("EstadoMensaje").contains(AQt("está vinculada, y sus filas están en otro archivo")))
        << estado("EstadoMensaje").toStdString();
}

} // namespace varo::prueba
