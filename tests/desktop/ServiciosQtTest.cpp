// The platform as a person sees it: message boxes, faults, and the choice of files, fonts and colours.
#include "desktop/ServiciosQt.h"
#include "desktop/Pantalla.h"
#include "desktop/Texto.h"
#include "pintura/Colores.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QDateTime>
#include <QFile>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include <optional>

namespace varo::prueba {

namespace {

/// What each set of buttons, by its options, answers.
using Respuestas = std::vector<std::pair<int, int>>;

const Respuestas respuestasAlSalir{{48, 1}, {21, 2}, {36, 7}, {67, 7}};

class LaPlataforma : public testing::Test {
protected:
    void esperarRespuestas(const Contestador::Acto& acto, const Respuestas& respuestas) {
        for (const auto& [opciones, respuesta] : respuestas) {
            contestador.preparar(acto);
            EXPECT_EQ(servicios.mensaje("x", "t", opciones), respuesta) << opciones;
        }
    }

    CarpetaTemporal carpeta;
    Contestador contestador;
    ServiciosQt servicios;
};

/// The request of the main window when it opens a plot.
DialogoAbrir AbrirDatos() {
    return {"Abrir fichero de datos", "", "xls", "Hoja de cálculo (*.xls)|*.xls|Base de datos (*.mdb)|*.mdb|",
            4096};
}

QLineEdit& Nombre(QWidget& dialogo) {
    return *dialogo.findChild<QLineEdit*>("fileNameEdit");
}

/// Chooses a line of a list by its text, as the arrow keys do.
void ElegirLinea(QListView& lista, const QString& texto) {
    const auto lineas =
        lista.model()->match(lista.model()->index(0, 0), Qt::DisplayRole, texto, 1, Qt::MatchExactly);
    ASSERT_EQ(lineas.size(), 1) << "no hay " << texto.toStdString();
    lista.setCurrentIndex(lineas[0]);
}

Contestador::Acto TeclearRuta(const std::string& ruta) {
    return [ruta](QWidget& dialogo) {
        QTest::keyClicks(&Nombre(dialogo), QString::fromStdString(ruta));
        QTest::keyClick(&Nombre(dialogo), Qt::Key_Return);
    };
}

} // namespace

// --- Message boxes ---

TEST_F(LaPlataforma, UnaCajaMuestraTextoYTituloTalCual) {
    contestador.pulsar("Aceptar");
    servicios.mensaje("Razón <b>1</b> & 2\nsegunda línea", "Título", mensaje::aceptar);
    ASSERT_EQ(contestador.cajas().size(), 1U);
    EXPECT_EQ(contestador.cajas()[0].texto.toStdString(), "Razón <b>1</b> & 2\nsegunda línea");
    EXPECT_EQ(contestador.cajas()[0].titulo.toStdString(), "Título");
}

TEST_F(LaPlataforma, ElTextoDeUnaCajaNoEsFormato) {
    contestador.preparar([](QWidget& caja) {
        EXPECT_EQ(dynamic_cast<QMessageBox&>(caja).textFormat(), Qt::PlainText);
        PulsarBoton(caja, "Aceptar");
    });
    servicios.mensaje("a < b", "t", mensaje::aceptar);
}

TEST_F(LaPlataforma, CadaIconoEsElSuyo) {
    const std::vector<std::pair<int, QMessageBox::Icon>> iconos{{0, QMessageBox::NoIcon},
                                                                {16, QMessageBox::Critical},
                                                                {32, QMessageBox::Question},
                                                                {48, QMessageBox::Warning},
                                                                {64, QMessageBox::Information}};
    for (const auto& [opciones, icono] : iconos) {
        contestador.pulsar("Aceptar");
        EXPECT_EQ(servicios.mensaje("x", "t", opciones), 1);
        EXPECT_EQ(contestador.cajas().back().icono, icono) << opciones;
    }
}

TEST_F(LaPlataforma, CadaJuegoDeBotonesYSusRespuestas) {
    struct Juego {
        int opciones;
        QStringList botones;
        std::vector<int> respuestas; ///< in the order of the buttons
    };
    const std::vector<Juego> juegos{{0, {"Aceptar"}, {1}},
                                    {16, {"Aceptar"}, {1}},
                                    {21, {"Reintentar", "Cancelar"}, {4, 2}},
                                    {36, {"Sí", "No"}, {6, 7}},
                                    {67, {"Sí", "No", "Cancelar"}, {6, 7, 2}}};
    for (const auto& juego : juegos) {
        for (qsizetype i = 0; i < juego.botones.size(); ++i) {
            contestador.pulsar(juego.botones[i]);
            EXPECT_EQ(servicios.mensaje("x", "t", juego.opciones),
                      juego.respuestas[static_cast<std::size_t>(i)])
                << juego.opciones;
            QStringList vistos = contestador.cajas().back().botones;
            QStringList esperados = juego.botones;
            vistos.sort();
            esperados.sort();
            EXPECT_EQ(vistos, esperados) << juego.opciones;
        }
    }
}

TEST_F(LaPlataforma, EntrarPulsaElPrimerBoton) {
    esperarRespuestas([](QWidget& caja) { QTest::keyClick(&caja, Qt::Key_Return); },
                      {{48, 1}, {21, 4}, {36, 6}, {67, 6}});
}

TEST_F(LaPlataforma, EscaparNuncaDiceQueSi) {
    esperarRespuestas([](QWidget& caja) { QTest::keyClick(&caja, Qt::Key_Escape); }, respuestasAlSalir);
}

TEST_F(LaPlataforma, CerrarUnaCajaEsComoEscapar) {
    esperarRespuestas([](QWidget& caja) { caja.close(); }, respuestasAlSalir);
}

TEST_F(LaPlataforma, SiYNoTienenAcelerador) {
    contestador.preparar([](QWidget& caja) {
        QTest::keyClick(&caja, Qt::Key_N, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !caja.isVisible(); })); // Qt shows the press first
    });
    EXPECT_EQ(servicios.mensaje("x", "t", 36), 7);
}

// --- Faults ---

TEST_F(LaPlataforma, UnFalloDiceNumeroDescripcionYLugarYSePuedeCopiar) {
    ErrorEjecucion error{11, "División por cero"};
    error.en("campo DAP");
    error.en("fila 7");
    contestador.preparar([](QWidget& modal) {
        auto& caja = dynamic_cast<QMessageBox&>(modal);
        const auto interaccion = caja.textInteractionFlags();
        EXPECT_TRUE(interaccion.testFlag(Qt::TextSelectableByMouse));
        EXPECT_TRUE(interaccion.testFlag(Qt::TextSelectableByKeyboard));
        EXPECT_TRUE(caja.findChild<QLabel*>("qt_msgbox_label")
                        ->textInteractionFlags()
                        .testFlag(Qt::TextSelectableByMouse));
        PulsarBoton(caja, "Aceptar");
    });
    servicios.fallo(error);
    ASSERT_EQ(contestador.cajas().size(), 1U);
    const CajaVista& caja = contestador.cajas()[0];
    EXPECT_EQ(caja.titulo, "VARO 1.0");
    EXPECT_EQ(caja.icono, QMessageBox::Critical);
    EXPECT_EQ(caja.botones, (QStringList{"Aceptar", "Copiar"}));
    for (const char* parte : {"11", "División por cero", "campo DAP", "fila 7"}) {
        EXPECT_TRUE(caja.texto.contains(QString::fromUtf8(parte))) << caja.texto.toStdString();
    }
}

TEST_F(LaPlataforma, CopiarUnFalloLoLlevaAlPortapapelesYDejaLaCaja) {
    QApplication::clipboard()->setText("antes");
    contestador.pulsar("Copiar");
    contestador.pulsar("Aceptar");
    servicios.fallo(ErrorEjecucion{11, "División por cero"});
    ASSERT_EQ(contestador.cajas().size(), 1U);
    EXPECT_EQ(QApplication::clipboard()->text(), contestador.cajas()[0].texto);
}

TEST_F(LaPlataforma, UnFalloSinLugarNoPreguntaDonde) {
    contestador.tecla(Qt::Key_Return);
    servicios.fallo(ErrorEjecucion{6, "Desbordamiento"});
    const QString texto = contestador.cajas().at(0).texto;
    EXPECT_TRUE(texto.contains("Error 6 ")) << texto.toStdString();
    EXPECT_TRUE(texto.contains("Desbordamiento"));
    EXPECT_FALSE(texto.contains(QString::fromUtf8("Dónde")));
}

TEST_F(LaPlataforma, UnFalloSeDespachaConEscape) {
    contestador.tecla(Qt::Key_Escape);
    servicios.fallo(ErrorEjecucion{6, "Desbordamiento"});
    EXPECT_EQ(contestador.cajas().size(), 1U);
}

TEST_F(LaPlataforma, TrasUnFalloFatalSeDiceQueElProgramaSeCierra) {
    contestador.pulsar("Aceptar");
    servicios.falloFatal(ErrorEjecucion{3343, "No es un libro"});
    contestador.pulsar("Aceptar");
    servicios.fallo(ErrorEjecucion{3343, "No es un libro"});
    ASSERT_EQ(contestador.cajas().size(), 2U);
    const std::string comun = "Error 3343 en tiempo de ejecución:\n\nNo es un libro";
    EXPECT_EQ(contestador.cajas()[0].texto.toStdString(), comun + "\n\nEl programa se cerrará.");
    EXPECT_EQ(contestador.cajas()[1].texto.toStdString(), comun);
}

// --- Files ---

TEST_F(LaPlataforma, ElDialogoDeArchivosLlevaSuTituloYSusDosFiltros) {
    DialogoAbrir dialogo = AbrirDatos();
    contestador.preparar([](QWidget& modal) {
        auto& ventana = dynamic_cast<QFileDialog&>(modal);
        EXPECT_EQ(ventana.windowTitle(), "Abrir fichero de datos");
        const auto& filtros = *ventana.findChild<QComboBox*>("fileTypeCombo");
        ASSERT_EQ(filtros.count(), 2);
        EXPECT_EQ(filtros.itemText(0).toStdString(), "Hoja de cálculo (*.xls)");
        EXPECT_EQ(filtros.itemText(1).toStdString(), "Base de datos (*.mdb)");
        EXPECT_EQ(ventana.fileMode(), QFileDialog::ExistingFile);
        EXPECT_EQ(ventana.acceptMode(), QFileDialog::AcceptOpen);
        QTest::keyClick(&modal, Qt::Key_Escape);
    });
    servicios.elegirArchivo(dialogo);
    EXPECT_EQ(dialogo.FileName, "");
}

/// The names in the list of the dialog.
QStringList Listados(const QFileDialog& ventana) {
    const auto& lista = *ventana.findChild<QListView*>("listView");
    QStringList nombres;
    for (int i = 0; i < lista.model()->rowCount(lista.rootIndex()); ++i) {
        nombres << lista.model()->index(i, 0, lista.rootIndex()).data().toString();
    }
    nombres.sort();
    return nombres;
}

TEST_F(LaPlataforma, CadaFiltroMuestraTambienLosFormatosPosterioresDeSuClase) {
    for (const auto* nombre : {"a.xls", "b.XLSX", "c.ods", "d.csv", "e.mdb", "f.accdb", "g.txt", "h.xlsb"}) {
        carpeta.Escribir(nombre, "x");
    }
    servicios.carpetaAlAbrir = [this] { return carpeta.ruta().string(); };
    DialogoAbrir dialogo = AbrirDatos();
    contestador.preparar([](QWidget& modal) {
        auto& ventana = dynamic_cast<QFileDialog&>(modal);
        const QStringList hojas{"a.xls", "b.XLSX", "c.ods", "d.csv"};
        const QStringList bases{"e.mdb", "f.accdb"};
        // The list fills from a thread of its own.
        EXPECT_TRUE(QTest::qWaitFor([&] { return Listados(ventana) == hojas; }))
            << Listados(ventana).join(' ').toStdString();
        ventana.selectNameFilter(ventana.nameFilters().at(1));
        EXPECT_TRUE(QTest::qWaitFor([&] { return Listados(ventana) == bases; }))
            << Listados(ventana).join(' ').toStdString();
        QTest::keyClick(&modal, Qt::Key_Escape);
    });
    servicios.elegirArchivo(dialogo);
}

TEST_F(LaPlataforma, UnArchivoElegidoDaSuRutaEntera) {
    carpeta.Escribir("parcela.xls", "x");
    DialogoAbrir dialogo = AbrirDatos();
    contestador.preparar(TeclearRuta(carpeta.archivo("parcela.xls")));
    servicios.elegirArchivo(dialogo);
    EXPECT_EQ(dialogo.FileName, carpeta.archivo("parcela.xls"));
}

TEST_F(LaPlataforma, LaExtensionQueFaltaSePone) {
    carpeta.Escribir("parcela.xls", "x");
    DialogoAbrir dialogo = AbrirDatos();
    contestador.preparar(TeclearRuta(carpeta.archivo("parcela")));
    servicios.elegirArchivo(dialogo);
    EXPECT_EQ(dialogo.FileName, carpeta.archivo("parcela.xls"));
}

TEST_F(LaPlataforma, UnArchivoQueNoExisteNoSePuedeElegir) {
    DialogoAbrir dialogo = AbrirDatos();
    contestador.preparar(TeclearRuta(carpeta.archivo("ninguno.xls")));
    contestador.tecla(Qt::Key_Return); // the box of Qt that says that there is no such file
    contestador.tecla(Qt::Key_Escape);
    servicios.elegirArchivo(dialogo);
    EXPECT_EQ(dialogo.FileName, "");
    EXPECT_EQ(contestador.cajas().size(), 1U);
}

TEST_F(LaPlataforma, AlCancelarNoQuedaElArchivoDeAntes) {
    DialogoAbrir dialogo = AbrirDatos();
    dialogo.FileName = "antes.xls";
    contestador.tecla(Qt::Key_Escape);
    servicios.elegirArchivo(dialogo);
    EXPECT_EQ(dialogo.FileName, "");
}

// --- Colours and fonts ---

TEST(ColoresDeLaPlataforma, ElRojoEsElByteBajoYElAzulElAlto) {
    EXPECT_EQ(ColorQt(0x00FF8001), QColor(0x01, 0x80, 0xFF));
    EXPECT_EQ(ColorDe(QColor(0x01, 0x80, 0xFF)), 0x00FF8001);
    EXPECT_EQ(ColorQt(0x000000FF), QColor(Qt::red));
    EXPECT_EQ(ColorDe(QColor(Qt::blue)), 0x00FF0000);
}

TEST_F(LaPlataforma, ElDialogoDeColorEmpiezaEnElActualYDaElElegido) {
    contestador.preparar([](QWidget& modal) {
        auto& dialogo = dynamic_cast<QColorDialog&>(modal);
        EXPECT_EQ(dialogo.currentColor(), QColor(0x01, 0x80, 0xFF));
        dialogo.setCurrentColor(QColor(0x10, 0x20, 0x30));
        dialogo.accept();
    });
    EXPECT_EQ(servicios.elegirColor(0x00FF8001), std::optional<Color>{0x00302010});
}

TEST_F(LaPlataforma, CancelarElColorNoDaNinguno) {
    contestador.tecla(Qt::Key_Escape);
    EXPECT_EQ(servicios.elegirColor(0), std::nullopt);
}

TEST_F(LaPlataforma, LaFuenteElegidaVaYVieneConTodosSusRasgos) {
    // The dialog offers the faces that are installed and no others.
    ASSERT_TRUE(QFontDatabase::styles("DejaVu Sans Mono").contains("Bold")) << "falta fonts-dejavu-core";
    ASSERT_TRUE(QFontDatabase::styles("DejaVu Serif").contains("Italic")) << "falta fonts-dejavu-extra";
    const Fuente actual{"DejaVu Sans Mono", 9, true, false, true, false};
    contestador.preparar([](QWidget& modal) {
        auto& dialogo = dynamic_cast<QFontDialog&>(modal);
        const QFont letra = dialogo.currentFont();
        EXPECT_EQ(letra.family(), "DejaVu Sans Mono");
        EXPECT_EQ(letra.pointSizeF(), 9.0);
        EXPECT_TRUE(letra.bold());
        EXPECT_FALSE(letra.italic());
        EXPECT_TRUE(letra.strikeOut());
        EXPECT_FALSE(letra.underline());
        const auto listas = dialogo.findChildren<QListView*>(); // families, styles and sizes
        ASSERT_GE(listas.size(), 3);
        ElegirLinea(*listas[0], "DejaVu Serif");
        ElegirLinea(*listas[1], "Italic");
        ElegirLinea(*listas[2], "14");
        for (QCheckBox* const rasgo : dialogo.findChildren<QCheckBox*>()) {
            rasgo->click(); // strikeout goes off, underline on
        }
        dialogo.accept();
    });
    EXPECT_EQ(servicios.elegirFuente(actual),
              (std::optional<Fuente>{Fuente{"DejaVu Serif", 14, false, true, false, true}}));
}

TEST_F(LaPlataforma, LosDialogosDeQtHablanEspanolSeaCualSeaElIdiomaDelEntorno) {
    EXPECT_TRUE(QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs));
    const auto mirar = [this](const char* texto) {
        contestador.preparar([texto](QWidget& dialogo) {
            EXPECT_EQ(dialogo.locale().language(), QLocale::Spanish);
            QStringList textos;
            for (const QAbstractButton* const boton : dialogo.findChildren<QAbstractButton*>()) {
                textos << boton->text().remove('&');
            }
            EXPECT_TRUE(textos.contains(texto)) << textos.join('|').toStdString();
            QTest::keyClick(&dialogo, Qt::Key_Escape);
        });
    };
    mirar("Cancelar");
    DialogoAbrir dialogo;
    servicios.elegirArchivo(dialogo);
    mirar("Cancelar");
    servicios.elegirFuente(Fuente{});
    mirar("Cancelar");
    servicios.elegirColor(0);
}

TEST_F(LaPlataforma, ElDialogoDeArchivosCuentaCadaArchivoEnEspanol) {
    carpeta.Escribir("parcela.xls", std::string(2048, 'x'));
    std::filesystem::create_directory(carpeta / "otra");
    const QDateTime fecha{QDate{2026, 1, 31}, QTime{17, 5}};
    QFile archivo{QString::fromStdString(carpeta.archivo("parcela.xls"))};
    ASSERT_TRUE(archivo.open(QIODevice::ReadWrite));
    ASSERT_TRUE(archivo.setFileTime(fecha, QFileDevice::FileModificationTime));
    archivo.close();
    contestador.preparar([this](QWidget& modal) {
        auto& ventana = dynamic_cast<QFileDialog&>(modal);
        ventana.setDirectory(QString::fromStdString(carpeta.ruta().string()));
        const auto& vista = *ventana.findChild<QTreeView*>();
        const auto filas = [&] { return vista.model()->rowCount(vista.rootIndex()); };
        EXPECT_TRUE(QTest::qWaitFor([&] { return filas() == 2; }));
        QStringList textos;
        for (int fila = 0; fila < filas(); ++fila) {
            for (int columna = 1; columna < 4; ++columna) {
                textos << vista.model()->index(fila, columna, vista.rootIndex()).data().toString();
            }
        }
        EXPECT_TRUE(textos.contains("Carpeta"));
        EXPECT_TRUE(textos.contains("2,00 KiB"));
        EXPECT_TRUE(textos.contains("Archivo XLS"));
        EXPECT_TRUE(textos.contains("31/1/26 17:05")) << textos.join('|').toStdString();
        QTest::keyClick(&modal, Qt::Key_Escape);
    });
    DialogoAbrir dialogo;
    servicios.elegirArchivo(dialogo);
    EXPECT_EQ(dialogo.FileName, "");
}

TEST_F(LaPlataforma, CancelarLaFuenteNoDaNinguna) {
    contestador.tecla(Qt::Key_Escape);
    EXPECT_EQ(servicios.elegirFuente(Fuente{}), std::nullopt);
}

} // namespace varo::prueba
