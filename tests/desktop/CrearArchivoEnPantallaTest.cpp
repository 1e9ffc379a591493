// The window that names the results file: folders, files, a name, and the file that it writes.
#include "desktop/Pantalla.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include <algorithm>
#include <filesystem>

namespace varo::prueba {

/// The window comes up in the folder of the test, which holds "viejo.txt" and the folder "dentro" with
/// "otro.txt".
class CrearArchivoEnPantalla : public Pantalla {
protected:
    CrearArchivoEnPantalla() {
        std::filesystem::create_directory(carpeta / "dentro");
        carpeta.Escribir("viejo.txt", "lo de antes");
        carpeta.Escribir("dentro/otro.txt", "x");
        std::filesystem::current_path(carpeta.ruta());
        llegarA(Etapa::CrearArchivo);
    }
    ~CrearArchivoEnPantalla() override { std::filesystem::current_path(aqui_); }

    QListWidget& lista(const std::string& nombre) const {
        return widget<QListWidget>("FrmCrearArchivo", nombre);
    }
    QLineEdit& nombre() const { return widget<QLineEdit>("FrmCrearArchivo", "TxtLista"); }
    static QStringList lineas(const QListWidget& lista) {
        QStringList textos;
        for (int i = 0; i < lista.count(); ++i) {
            textos << lista.item(i)->text();
        }
        return textos;
    }
    static QPoint lugar(const QListWidget& lista, const QString& texto) {
        return lista.visualItemRect(lista.findItems(texto, Qt::MatchExactly).at(0)).center();
    }
    void entrarEn(const QString& texto) const {
        QListWidget& carpetas = lista("DirLista");
        QTest::mouseClick(carpetas.viewport(), Qt::LeftButton, Qt::NoModifier, lugar(carpetas, texto));
        QTest::mouseDClick(carpetas.viewport(), Qt::LeftButton, Qt::NoModifier, lugar(carpetas, texto));
        Reposar();
    }
    /// The labels of the window that show this path.
    auto rotulosCon(const std::filesystem::path& ruta) const {
        const auto rotulos = ventana("FrmCrearArchivo").findChildren<QLabel*>();
        return std::count_if(rotulos.begin(), rotulos.end(), [&](const QLabel* rotulo) {
            return rotulo->isVisible() && rotulo->text().toStdString() == ruta.string();
        });
    }
    void clicArchivo(const QString& texto) const {
        QListWidget& archivos = lista("FilLista");
        Clic(*archivos.viewport(), lugar(archivos, texto));
    }
    void entrar() const {
        QTest::keyClick(&nombre(), Qt::Key_Return);
        Reposar();
    }

    /// The file of a run without indices: order and number of each tree of the square with its centre.
    const std::string indices = "N\xBAOrden\tN\xBA"
                                "Arbol\r\n1\t1\r2\t2\r3\t3\r4\t4\r5\t5\r\r\n";

private:
    std::filesystem::path aqui_ = std::filesystem::current_path();
};

TEST_F(CrearArchivoEnPantalla, EmpiezaEnLaCarpetaActualConUnNombrePorPoner) {
    EXPECT_EQ(nombre().text(), "*.txt");
    EXPECT_TRUE(lineas(lista("FilLista")).contains("viejo.txt"));
    EXPECT_FALSE(lineas(lista("FilLista")).contains("dentro"));
    EXPECT_EQ(lineas(lista("DirLista")), (QStringList{"..", "dentro"}));
}

TEST_F(CrearArchivoEnPantalla, UnDobleClicEntraEnLaCarpetaYMuestraSusArchivos) {
    entrarEn("dentro");
    EXPECT_EQ(lineas(lista("FilLista")), QStringList{"otro.txt"});
    EXPECT_EQ(lineas(lista("DirLista")), QStringList{".."});
    entrarEn("..");
    EXPECT_TRUE(lineas(lista("FilLista")).contains("viejo.txt"));
}

TEST_F(CrearArchivoEnPantalla, UnClicSoloNoCambiaDeCarpeta) {
    QListWidget& carpetas = lista("DirLista");
    Clic(*carpetas.viewport(), lugar(carpetas, "dentro"));
    EXPECT_TRUE(lineas(lista("FilLista")).contains("viejo.txt"));
}

TEST_F(CrearArchivoEnPantalla, EntrarEnUnaCarpetaNoEscribeNada) {
    Escribir(nombre(), "nuevo.txt");
    QListWidget& carpetas = lista("DirLista");
    Clic(*carpetas.viewport(), lugar(carpetas, "dentro"));
    QTest::keyClick(&carpetas, Qt::Key_Return);
    Reposar();
    EXPECT_EQ(lineas(lista("FilLista")), QStringList{"otro.txt"});
    EXPECT_TRUE(contestador.cajas().empty());
    EXPECT_TRUE(alaVista("FrmCrearArchivo"));
    EXPECT_EQ(nombre().text(), "nuevo.txt");
    EXPECT_FALSE(std::filesystem::exists(carpeta / "nuevo.txt"));
    EXPECT_FALSE(std::filesystem::exists(carpeta / "dentro/nuevo.txt"));
}

TEST_F(CrearArchivoEnPantalla, LaCarpetaALaVistaEsLaDeLosArchivos) {
    const auto aqui = std::filesystem::current_path();
    EXPECT_EQ(rotulosCon(aqui), 1);
    entrarEn("dentro");
    EXPECT_EQ(rotulosCon(aqui / "dentro"), 1);
    EXPECT_EQ(rotulosCon(aqui), 0);
    entrarEn("..");
    EXPECT_EQ(rotulosCon(aqui), 1);
}

TEST_F(CrearArchivoEnPantalla, UnArchivoElegidoPoneSuNombre) {
    clicArchivo("viejo.txt");
    EXPECT_EQ(nombre().text(), "viejo.txt");
}

TEST_F(CrearArchivoEnPantalla, UnClicEnElArchivoYaElegidoDevuelveSuNombre) {
    clicArchivo("viejo.txt");
    Escribir(nombre(), "nuevo.txt");
    clicArchivo("viejo.txt");
    EXPECT_EQ(nombre().text(), "viejo.txt");
}

TEST_F(CrearArchivoEnPantalla, EntrarEscribeElArchivoYLoDice) {
    entrarEn("dentro");
    Escribir(nombre(), "nuevo.txt");
    contestador.pulsar("Aceptar");
    entrar();
    const auto ruta = std::filesystem::current_path() / "dentro" / "nuevo.txt";
    ASSERT_EQ(contestador.cajas().size(), 1U);
    EXPECT_EQ(contestador.cajas()[0].texto.toStdString(), ruta.string() + " fue creado correctamente");
    EXPECT_EQ(contestador.cajas()[0].titulo, "Creado archivo");
    EXPECT_EQ(contestador.cajas()[0].icono, QMessageBox::NoIcon);
    EXPECT_EQ(modelo("FrmCrearArchivo"), nullptr);
    EXPECT_EQ(LeerArchivo(ruta), indices);
    EXPECT_TRUE(alaVista("FrmMapa"));
}

TEST_F(CrearArchivoEnPantalla, AnteUnArchivoQueYaExisteSePreguntaYNoLoDejaComoEstaba) {
    clicArchivo("viejo.txt");
    contestador.pulsar("No");
    clic("FrmCrearArchivo", "CmdAceptar");
    ASSERT_EQ(contestador.cajas().size(), 1U);
    EXPECT_EQ(contestador.cajas()[0].texto.toStdString(), "viejo.txt ya existe. ¿Desea escribir sobre él?");
    EXPECT_EQ(contestador.cajas()[0].titulo, "El archivo ya existe");
    EXPECT_EQ(contestador.cajas()[0].icono, QMessageBox::Information);
    EXPECT_TRUE(alaVista("FrmCrearArchivo"));
    EXPECT_EQ(LeerArchivo(carpeta / "viejo.txt"), "lo de antes");
}

TEST_F(CrearArchivoEnPantalla, CancelarLaPreguntaEscribeComoSi) {
    clicArchivo("viejo.txt");
    contestador.pulsar("Cancelar");
    contestador.pulsar("Aceptar");
    clic("FrmCrearArchivo", "CmdAceptar");
    EXPECT_EQ(LeerArchivo(carpeta / "viejo.txt"), indices);
}

TEST_F(CrearArchivoEnPantalla, EscaparDeLaPreguntaOCerrarlaDejaElArchivoComoEstaba) {
    clicArchivo("viejo.txt");
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
    clicArchivo("viejo.txt");
    contestador.pulsar(QString::fromUtf8("Sí"));
    for (int caja = 0; caja < 4; ++caja) {
        contestador.pulsar("Aceptar");
    }
    clic("FrmCrearArchivo", "CmdAceptar");
    ASSERT_EQ(contestador.cajas().size(), 5U);
    const CajaVista& ultima = contestador.cajas()[4];
    const auto ruta = std::filesystem::current_path() / "viejo.txt";
    EXPECT_EQ(ultima.texto.toStdString(), "No se ha escrito «" + ruta.string() +
                                              "»: es de solo lectura. El archivo anterior queda como "
                                              "estaba.");
    EXPECT_EQ(ultima.titulo, "Archivo no escrito");
    EXPECT_EQ(ultima.icono, QMessageBox::Critical);
    EXPECT_EQ(LeerArchivo(carpeta / "viejo.txt"), "lo de antes");
}

TEST_F(CrearArchivoEnPantalla, EscaparSeVaSinEscribirNada) {
    Escribir(nombre(), "nuevo.txt");
    QTest::keyClick(&nombre(), Qt::Key_Escape);
    Reposar();
    EXPECT_EQ(modelo("FrmCrearArchivo"), nullptr);
    EXPECT_FALSE(std::filesystem::exists(carpeta / "nuevo.txt"));
}

} // namespace varo::prueba
