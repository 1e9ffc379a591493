// The window that names the results file: places, folders, files, a name, and the file that it writes.
#include "apoyo/ComoOtraPersona.h"
#include "desktop/Pantalla.h"
#include "desktop/widgets/SelectorDeArchivo.h"
#include "indices/archivo/FrmCrearArchivo.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <filesystem>

namespace varo::prueba {

/// The window comes up in the folder of the plot, which holds "viejo.txt" and the folder "dentro" with
/// "otro.txt" and "mapa.svg".
class CrearArchivoEnPantalla : public Pantalla {
protected:
    CrearArchivoEnPantalla() {
        std::filesystem::create_directory(carpeta / "dentro");
        carpeta.Escribir("viejo.txt", "lo de antes");
        carpeta.Escribir("dentro/otro.txt", "x");
        carpeta.Escribir("dentro/mapa.svg", "x");
        llegarA(Etapa::CrearArchivo);
    }

    FrmCrearArchivo& ventanaModelo() const {
        return dynamic_cast<FrmCrearArchivo&>(*modelo("FrmCrearArchivo"));
    }
    SelectorDeArchivo& selector() const { return widget<SelectorDeArchivo>("FrmCrearArchivo", "DirLista"); }
    QTreeView& lista() const { return widget<QTreeView>("FrmCrearArchivo", "treeView"); }
    QLineEdit& nombre() const { return widget<QLineEdit>("FrmCrearArchivo", "TxtLista"); }

    QStringList lineas() const {
        QStringList textos;
        for (int fila = 0; fila < lista().model()->rowCount(lista().rootIndex()); ++fila) {
            textos << lista().model()->index(fila, 0, lista().rootIndex()).data().toString();
        }
        return textos;
    }
    /// Qt reads folders beside the thread of the windows.
    void esperarLineas(const QStringList& esperadas) const {
        EXPECT_TRUE(QTest::qWaitFor([&] { return lineas() == esperadas; }))
            << lineas().join(' ').toStdString();
        Reposar();
    }
    QPoint lugar(const QString& texto) const {
        EXPECT_TRUE(QTest::qWaitFor([&] { return lineas().contains(texto); })) << texto.toStdString();
        return lista()
            .visualRect(
                lista().model()->index(static_cast<int>(lineas().indexOf(texto)), 0, lista().rootIndex()))
            .center();
    }
    void clicEn(const QString& texto) const { Clic(*lista().viewport(), lugar(texto)); }
    void dobleClicEn(const QString& texto) const {
        clicEn(texto);
        QTest::mouseDClick(lista().viewport(), Qt::LeftButton, Qt::NoModifier, lugar(texto));
        Reposar();
    }
    void entrar() const {
        QTest::keyClick(&nombre(), Qt::Key_Return);
        Reposar();
    }
    /// Both the chooser and the model stand in this folder.
    void esperarEn(const std::filesystem::path& ruta) const {
        EXPECT_EQ(selector().carpeta().toStdString(), ruta.string());
        EXPECT_EQ(ventanaModelo().DirLista.Path(), ruta.string());
        EXPECT_EQ(ventanaModelo().FilLista.Path(), ruta.string());
    }
    void esperarNombre(const QString& texto) const {
        EXPECT_EQ(nombre().text(), texto);
        EXPECT_EQ(ventanaModelo().TxtLista.Text(), texto.toStdString());
    }
    bool existe(const std::string& archivo) const { return std::filesystem::exists(carpeta / archivo); }

    /// The file of a run without indices: order and number of each tree of the square with its centre.
    const std::string indices = "N\xBAOrden\tN\xBA"
                                "Arbol\r\n1\t1\r2\t2\r3\t3\r4\t4\r5\t5\r\r\n";
};

TEST_F(CrearArchivoEnPantalla, EmpiezaEnLaCarpetaDeLaParcelaConUnNombrePorPoner) {
    esperarEn(carpeta.ruta());
    esperarNombre("*.txt");
    EXPECT_EQ(nombre().selectedText(), "*.txt");
    EXPECT_TRUE(nombre().hasFocus());
    EXPECT_EQ(ventana("FrmCrearArchivo").windowTitle(), "Crear archivo");
    EXPECT_FALSE(ventana("FrmCrearArchivo").isModal());
}

TEST_F(CrearArchivoEnPantalla, SeVenLasCarpetasYLosTxtHastaQueSePidenTodos) {
    esperarLineas({"dentro", "viejo.txt"});
    auto& tipos = widget<QComboBox>("FrmCrearArchivo", "fileTypeCombo");
    QTest::keyClick(&tipos, Qt::Key_Down);
    esperarLineas({"dentro", "parcela.xls", "recientes.ini", "viejo.txt"});
}

TEST_F(CrearArchivoEnPantalla, UnDobleClicEntraEnLaCarpetaYMuestraSusArchivos) {
    dobleClicEn("dentro");
    esperarEn(carpeta / "dentro");
    esperarLineas({"otro.txt"});
    QTest::mouseClick(&widget("FrmCrearArchivo", "toParentButton"), Qt::LeftButton);
    Reposar();
    esperarEn(carpeta.ruta());
    QTest::mouseClick(&widget("FrmCrearArchivo", "backButton"), Qt::LeftButton);
    Reposar();
    esperarEn(carpeta / "dentro");
}

TEST_F(CrearArchivoEnPantalla, UnClicSoloNoCambiaDeCarpeta) {
    clicEn("dentro");
    esperarEn(carpeta.ruta());
    esperarNombre("*.txt");
}

TEST_F(CrearArchivoEnPantalla, EntrarEnUnaCarpetaNoEscribeNada) {
    Escribir(nombre(), "nuevo.txt");
    clicEn("dentro");
    QTest::keyClick(&lista(), Qt::Key_Return);
    Reposar();
    esperarEn(carpeta / "dentro");
    EXPECT_TRUE(contestador.cajas().empty());
    EXPECT_TRUE(alaVista("FrmCrearArchivo"));
    esperarNombre("nuevo.txt");
    EXPECT_FALSE(existe("nuevo.txt"));
    EXPECT_FALSE(existe("dentro/nuevo.txt"));
}

TEST_F(CrearArchivoEnPantalla, UnSitioDelMargenLlevaASuCarpetaSinEscribirNada) {
    auto& sitios = widget<QListView>("FrmCrearArchivo", "sidebar");
    const auto casa = sitios.model()->match(sitios.model()->index(0, 0), Qt::UserRole + 1,
                                            QUrl::fromLocalFile(QDir::homePath()));
    ASSERT_EQ(casa.size(), 1);
    Clic(*sitios.viewport(), sitios.visualRect(casa[0]).center());
    esperarEn(QDir::homePath().toStdString());
    sitios.setCurrentIndex(casa[0]);
    QTest::keyClick(&sitios, Qt::Key_Return);
    Reposar();
    EXPECT_TRUE(alaVista("FrmCrearArchivo"));
    EXPECT_TRUE(contestador.cajas().empty());
}

TEST_F(CrearArchivoEnPantalla, UnaCarpetaNuevaSirveParaGuardar) {
    QTest::mouseClick(&widget("FrmCrearArchivo", "newFolderButton"), Qt::LeftButton);
    Reposar();
    const auto nueva = carpeta / "Nueva carpeta";
    ASSERT_TRUE(std::filesystem::is_directory(nueva));
    Escribir(nombre(), "Nueva carpeta/uno.txt");
    contestador.pulsar("Aceptar");
    entrar();
    EXPECT_EQ(LeerArchivo(nueva / "uno.txt"), indices);
}

// --- The name ---

TEST_F(CrearArchivoEnPantalla, UnArchivoElegidoPoneSuNombre) {
    clicEn("viejo.txt");
    esperarNombre("viejo.txt");
    EXPECT_EQ(ventanaModelo().FilLista.FileName(), "viejo.txt");
    EXPECT_TRUE(lista().hasFocus());
}

TEST_F(CrearArchivoEnPantalla, UnClicEnElArchivoYaElegidoDevuelveSuNombre) {
    clicEn("viejo.txt");
    Escribir(nombre(), "nuevo.txt");
    clicEn("viejo.txt");
    esperarNombre("viejo.txt");
}

TEST_F(CrearArchivoEnPantalla, UnArchivoQueLlegaDespuesTambienSeElige) {
    esperarLineas({"dentro", "viejo.txt"});
    carpeta.Escribir("reciente.txt", "x");
    clicEn("reciente.txt");
    esperarNombre("reciente.txt");
}

TEST_F(CrearArchivoEnPantalla, EntrarEscribeElArchivoYLoDice) {
    dobleClicEn("dentro");
    Escribir(nombre(), "nuevo.txt");
    contestador.pulsar("Aceptar");
    entrar();
    const auto ruta = carpeta / "dentro" / "nuevo.txt";
    ASSERT_EQ(contestador.cajas().size(), 1U);
    EXPECT_EQ(contestador.cajas()[0].texto.toStdString(), ruta.string() + " fue creado correctamente");
    EXPECT_EQ(contestador.cajas()[0].titulo, "Creado archivo");
    EXPECT_EQ(contestador.cajas()[0].icono, QMessageBox::NoIcon);
    EXPECT_EQ(modelo("FrmCrearArchivo"), nullptr);
    EXPECT_EQ(LeerArchivo(ruta), indices);
    EXPECT_TRUE(alaVista("FrmMapa"));
}

TEST_F(CrearArchivoEnPantalla, ElNombreQuedaComoSeEscribe) {
    Escribir(nombre(), "sin final");
    contestador.pulsar("Aceptar");
    entrar();
    EXPECT_EQ(LeerArchivo(carpeta / "sin final"), indices);
}

TEST_F(CrearArchivoEnPantalla, UnaRutaEnElNombreLlevaASuCarpeta) {
    for (const std::string& ruta : {std::string{"dentro/uno.txt"}, carpeta.archivo("dentro/dos.txt")}) {
        Escribir(nombre(), QString::fromStdString(ruta));
        contestador.pulsar("Aceptar");
        entrar();
        clicMenu("FrmMapa", "mnuIndices");
        ventanaModelo().DirLista.Path(carpeta.ruta().string());
        Reposar();
    }
    EXPECT_EQ(LeerArchivo(carpeta / "dentro/uno.txt"), indices);
    EXPECT_EQ(LeerArchivo(carpeta / "dentro/dos.txt"), indices);
}

TEST_F(CrearArchivoEnPantalla, UnaCarpetaEnElNombreSeAbreYNadaSeEscribe) {
    Escribir(nombre(), "dentro");
    clic("FrmCrearArchivo", "CmdAceptar");
    esperarEn(carpeta / "dentro");
    esperarNombre("");
    Escribir(nombre(), "..");
    entrar();
    esperarEn(carpeta.ruta());
    EXPECT_TRUE(contestador.cajas().empty());
    EXPECT_TRUE(alaVista("FrmCrearArchivo"));
}

TEST_F(CrearArchivoEnPantalla, LoEscritoQuedaCuandoLaListaDeNombresQuitaElFocoUnMomento) {
    const QString ruta = QString::fromStdString(carpeta.archivo("dentro/nuevo.txt"));
    Escribir(nombre(), ruta);
    QApplication::setActiveWindow(nullptr);
    ASSERT_FALSE(nombre().hasFocus());
    nombre().setText("nuevo.txt"); // what Qt does then
    esperarNombre(ruta);
}

TEST_F(CrearArchivoEnPantalla, ElNombrePropuestoNoValeYSeDice) {
    for (int caja = 0; caja < 5; ++caja) {
        contestador.pulsar("Aceptar");
    }
    clic("FrmCrearArchivo", "CmdAceptar");
    ASSERT_EQ(contestador.cajas().size(), 5U);
    EXPECT_EQ(contestador.cajas()[0].texto, "*.txt no es un nombre correcto");
    EXPECT_EQ(contestador.cajas()[0].titulo, "Archivo incorrecto");
    EXPECT_FALSE(existe("*.txt"));
}

// --- A file that exists ---

TEST_F(CrearArchivoEnPantalla, AnteUnArchivoQueYaExisteSePreguntaUnaVezYNoLoDejaComoEstaba) {
    clicEn("viejo.txt");
    contestador.pulsar("No");
    clic("FrmCrearArchivo", "CmdAceptar");
    ASSERT_EQ(contestador.cajas().size(), 1U);
    EXPECT_EQ(contestador.cajas()[0].texto.toStdString(), "viejo.txt ya existe. ¿Desea escribir sobre él?");
    EXPECT_EQ(contestador.cajas()[0].titulo, "El archivo ya existe");
    EXPECT_EQ(contestador.cajas()[0].icono, QMessageBox::Information);
    EXPECT_TRUE(alaVista("FrmCrearArchivo"));
    EXPECT_EQ(LeerArchivo(carpeta / "viejo.txt"), "lo de antes");
}

TEST_F(CrearArchivoEnPantalla, UnDobleClicEnUnArchivoLoAceptaConLaMismaPregunta) {
    contestador.pulsar(QString::fromUtf8("Sí"));
    contestador.pulsar("Aceptar");
    dobleClicEn("viejo.txt");
    EXPECT_EQ(contestador.cajas().size(), 2U);
    EXPECT_EQ(LeerArchivo(carpeta / "viejo.txt"), indices);
}

TEST_F(CrearArchivoEnPantalla, CancelarLaPreguntaEscribeComoSi) {
    clicEn("viejo.txt");
    contestador.pulsar("Cancelar");
    contestador.pulsar("Aceptar");
    clic("FrmCrearArchivo", "CmdAceptar");
    EXPECT_EQ(LeerArchivo(carpeta / "viejo.txt"), indices);
}

TEST_F(CrearArchivoEnPantalla, EscaparDeLaPreguntaOCerrarlaDejaElArchivoComoEstaba) {
    clicEn("viejo.txt");
    contestador.tecla(Qt::Key_Escape);
    clic("FrmCrearArchivo", "CmdAceptar");
    contestador.preparar([](QWidget& caja) { caja.close(); });
    clic("FrmCrearArchivo", "CmdAceptar");
    EXPECT_EQ(contestador.cajas().size(), 2U);
    EXPECT_TRUE(alaVista("FrmCrearArchivo"));
    EXPECT_EQ(LeerArchivo(carpeta / "viejo.txt"), "lo de antes");
}

TEST_F(CrearArchivoEnPantalla, UnArchivoDeSoloLecturaSeDiceEnLaUltimaCaja) {
    std::filesystem::permissions(carpeta / "viejo.txt", std::filesystem::perms::owner_read);
    clicEn("viejo.txt");
    contestador.pulsar(QString::fromUtf8("Sí"));
    for (int caja = 0; caja < 4; ++caja) {
        contestador.pulsar("Aceptar");
    }
    clic("FrmCrearArchivo", "CmdAceptar");
    ASSERT_EQ(contestador.cajas().size(), 5U);
    const CajaVista& ultima = contestador.cajas()[4];
    EXPECT_EQ(ultima.texto.toStdString(), "No se ha escrito «" + carpeta.archivo("viejo.txt") +
                                              "»: es de solo lectura. El archivo anterior queda como "
                                              "estaba.");
    EXPECT_EQ(ultima.titulo, "Archivo no escrito");
    EXPECT_EQ(ultima.icono, QMessageBox::Critical);
    EXPECT_EQ(LeerArchivo(carpeta / "viejo.txt"), "lo de antes");
}

// --- Folders that may not be read ---

TEST_F(CrearArchivoEnPantalla, UnaCarpetaQueNoSePuedeLeerLoDiceYElSelectorVuelve) {
    std::filesystem::permissions(carpeta / "dentro", std::filesystem::perms::none);
    clicEn("dentro");
    contestador.preparar([this](QWidget& caja) {
        EXPECT_EQ(caja.objectName(), "CajaDeFallo");
        EXPECT_TRUE(dynamic_cast<QMessageBox&>(caja).text().contains(
            "No se puede leer la carpeta «" + QString::fromStdString(carpeta.archivo("dentro")) +
            "»: no hay permiso para leerla"));
        PulsarBoton(caja, "Aceptar");
    });
    {
        const ComoOtraPersona otra;
        QTest::keyClick(&lista(), Qt::Key_Return);
        Reposar();
    }
    std::filesystem::permissions(carpeta / "dentro", std::filesystem::perms::owner_all);
    EXPECT_EQ(contestador.cajas().size(), 1U);
    esperarEn(carpeta.ruta());
    esperarNombre("*.txt");
}

TEST_F(CrearArchivoEnPantalla, UnaRutaPorUnaCarpetaQueNoEstaSeDiceYNadaSeEscribe) {
    Escribir(nombre(), "no-esta/uno.txt");
    contestador.pulsar("Aceptar");
    entrar();
    ASSERT_EQ(contestador.cajas().size(), 1U);
    EXPECT_TRUE(contestador.cajas()[0].texto.contains("No se puede leer la carpeta «"));
    EXPECT_TRUE(alaVista("FrmCrearArchivo"));
    esperarEn(carpeta.ruta());
    esperarNombre("no-esta/uno.txt");
}

// --- Leaving ---

TEST_F(CrearArchivoEnPantalla, EscaparSeVaSinEscribirNada) {
    Escribir(nombre(), "nuevo.txt");
    QTest::keyClick(&nombre(), Qt::Key_Escape);
    Reposar();
    EXPECT_EQ(modelo("FrmCrearArchivo"), nullptr);
    EXPECT_FALSE(existe("nuevo.txt"));
}

TEST_F(CrearArchivoEnPantalla, EscaparDeLaListaYCerrarTambien) {
    clicEn("viejo.txt");
    QTest::keyClick(&lista(), Qt::Key_Escape);
    Reposar();
    EXPECT_EQ(modelo("FrmCrearArchivo"), nullptr);
    clicMenu("FrmMapa", "mnuIndices");
    cerrar("FrmCrearArchivo");
    EXPECT_EQ(modelo("FrmCrearArchivo"), nullptr);
    EXPECT_EQ(LeerArchivo(carpeta / "viejo.txt"), "lo de antes");
}

} // namespace varo::prueba
