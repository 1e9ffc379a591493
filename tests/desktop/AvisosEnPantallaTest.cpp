// What looks wrong in the sheet: the count in the status bar, the window of the findings, their places in the
// grid.
#include "desktop/comodidades/AvisosEnPantalla.h"

#include "data/Hojadedatos.h"
#include "desktop/Pantalla.h"
#include "desktop/comodidades/VentanaDeAvisos.h"
#include "desktop/widgets/RotuloRecortado.h"
#include "revision/CuentaDeHallazgos.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStatusBar>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>

namespace varo::prueba {

namespace {

/// Below the trees, as spreadsheets add up a column.
std::vector<Valor> FilaDeTotales() {
    std::vector<Valor> fila(10);
    fila[0] = std::string{"Total"};
    fila[8] = 330.0;
    return fila;
}

} // namespace

class LosAvisos : public Pantalla {
protected:
    LosAvisos() { filas.push_back(FilaDeTotales()); }

    static constexpr int filaDeTotales = 7; ///< of the sheet

    QToolButton& boton() const { return widget<QToolButton>("VAROMAIN", "EstadoAvisos"); }
    QWidget* avisos() const { return ventana("VAROMAIN").findChild<QWidget*>("Avisos"); }
    QTableWidget& tabla() const { return widget<QTableWidget>("VAROMAIN", "TablaDeAvisos"); }
    QString resumen() const { return widget<QLabel>("VAROMAIN", "ResumenDeAvisos").text(); }
    QString frases() const { return widget<QTextEdit>("VAROMAIN", "FrasesDelAviso").toPlainText(); }
    QString dicho() const { return widget<RotuloRecortado>("VAROMAIN", "EstadoMensaje").texto(); }
    Rejilla& celdas() const { return dynamic_cast<Hojadedatos&>(*modelo("Hojadedatos")).MSFlexGrid1; }
    QMdiArea& zona() const { return *escritorio_.findChild<QMdiArea*>(); }

    void llegarALosPapeles() {
        llegarA(Etapa::Columnas);
        darPapeles();
    }
    /// The line of the list about a row of the sheet; -1 where there is none.
    int lineaDe(int filaDeLaHoja) const {
        for (int linea = 0; linea < tabla().rowCount(); ++linea) {
            if (tabla().item(linea, 1)->text() == QString::number(filaDeLaHoja)) {
                return linea;
            }
        }
        return -1;
    }
    void clicEnLinea(int linea) const {
        tabla().scrollToItem(tabla().item(linea, 1));
        Clic(*tabla().viewport(), tabla().visualItemRect(tabla().item(linea, 1)).center());
    }
    /// The cells of the grid with a background of their own: "6,9" for row 6 of the sheet's grid, column 9.
    std::vector<QPoint> conFondo() const {
        std::vector<QPoint> cuales;
        for (int fila = 0; fila < rejilla().model()->rowCount(); ++fila) {
            for (int columna = 0; columna < rejilla().model()->columnCount(); ++columna) {
                if (rejilla().model()->index(fila, columna).data(Qt::BackgroundRole).isValid()) {
                    cuales.emplace_back(columna, fila + 1);
                }
            }
        }
        return cuales;
    }
    void senalarLosTotales() {
        clic("VAROMAIN", "EstadoAvisos");
        ASSERT_GE(lineaDe(filaDeTotales), 0);
        clicEnLinea(lineaDe(filaDeTotales));
    }

private:
    QMainWindow& escritorio_ = escritorio.marco();
};

// --- The status bar ---

TEST_F(LosAvisos, SinColumnasElegidasNoHayNadaQueDecir) {
    EXPECT_TRUE(boton().isHidden());
    llegarA(Etapa::Columnas);
    EXPECT_TRUE(boton().isHidden());
    EXPECT_EQ(boton().focusPolicy(), Qt::NoFocus);
}

TEST_F(LosAvisos, ElegidasLasColumnasLaBarraDiceCuantosHay) {
    llegarALosPapeles();
    const auto hallazgos = AvisosDeLaHoja(programa, {});
    ASSERT_GE(hallazgos.size(), 1U);
    EXPECT_TRUE(boton().isVisible());
    EXPECT_EQ(boton().text().toStdString(), CuantosAvisos(hallazgos.size()));
    EXPECT_EQ(boton().toolTip().toStdString(), CuentaDeHallazgos(hallazgos));
    EXPECT_TRUE(boton().toolTip().contains("de cifras equivocadas")) << "los totales";
    EXPECT_FALSE(boton().icon().isNull());
}

TEST_F(LosAvisos, AlQuitarLasColumnasElBotonSeVaYVuelveConEllas) {
    llegarALosPapeles();
    clic("SelCol4R", "CmdQuitarTodo");
    EXPECT_TRUE(boton().isHidden());
    darPapeles();
    EXPECT_TRUE(boton().isVisible());
}

TEST_F(LosAvisos, LasOpcionesCuentanCuandoSeCierran) {
    llegarALosPapeles();
    const QString antes = boton().text();
    clicMenu("VAROMAIN", "mnuOpciones");
    clicFicha(0);
    clic("OpcionesPrograma", "OptMDIA"); // girths of 40 to 100 m
    EXPECT_EQ(boton().text(), antes);
    clic("OpcionesPrograma", "CmdAceptar");
    EXPECT_NE(boton().text(), antes);
    EXPECT_EQ(boton().text().toStdString(), CuantosAvisos(AvisosDeLaHoja(programa, {}).size()));
}

TEST_F(LosAvisos, SinTamanoNoSePreguntaPorLosDatosDeParcela) {
    llegarALosPapeles();
    const auto conTamano = boton().text();
    programa.atender([this] { programa.sesion.ColumnaDAP = 0; });
    const LoPedido sinDatos{.indices = true, .datosDeParcela = false};
    EXPECT_EQ(boton().text().toStdString(), CuantosAvisos(AvisosDeLaHoja(programa, sinDatos).size()));
    EXPECT_NE(boton().text(), conTamano);
}

TEST_F(LosAvisos, AlCerrarElArchivoElBotonSeVaYLaVentanaLoDice) {
    llegarALosPapeles();
    clic("VAROMAIN", "EstadoAvisos");
    EXPECT_TRUE(tabla().isVisible());
    clicMenu("VAROMAIN", "mnuCerrar");
    EXPECT_TRUE(boton().isHidden());
    EXPECT_EQ(resumen(), "Elija las columnas: después se revisa la hoja.");
    EXPECT_FALSE(tabla().isVisible());
}

TEST_F(LosAvisos, UnFalloDeLaRevisionSeDiceYNoParaNada) {
    llegarALosPapeles();
    QString dichoAparte;
    AvisosEnPantalla otros{escritorio, [&](const QString& texto) { dichoAparte = texto; },
                           [](Programa&, const LoPedido&) -> std::vector<Hallazgo> {
                               throw ErrorEjecucion{fallo::divisionPorCero};
                           }};
    otros.seguir();
    EXPECT_EQ(dichoAparte, "La hoja no se ha podido revisar. Error 11: División por cero");
    const auto botones = escritorio.marco().statusBar()->findChildren<QToolButton*>("EstadoAvisos");
    ASSERT_EQ(botones.size(), 2);
    EXPECT_EQ(botones[1]->text(), "sin revisar");
    EXPECT_EQ(botones[1]->toolTip(), dichoAparte);
}

// --- The window ---

TEST_F(LosAvisos, LaVentanaTieneUnaLineaPorAvisoLosGravesPrimero) {
    llegarALosPapeles();
    clic("VAROMAIN", "EstadoAvisos");
    ASSERT_NE(avisos(), nullptr);
    EXPECT_TRUE(avisos()->isVisible());
    EXPECT_FALSE(avisos()->isModal());
    const auto hallazgos = AvisosDeLaHoja(programa, {});
    ASSERT_EQ(tabla().rowCount(), static_cast<int>(hallazgos.size()));
    for (int linea = 0; linea < tabla().rowCount(); ++linea) {
        const Hallazgo& hallazgo = hallazgos[static_cast<std::size_t>(linea)];
        EXPECT_EQ(tabla().item(linea, 0)->text().toStdString(), PalabraDe(hallazgo.gravedad));
        EXPECT_EQ(tabla().item(linea, 5)->text().toStdString(), hallazgo.que);
    }
    const int totales = lineaDe(filaDeTotales);
    ASSERT_GE(totales, 0);
    EXPECT_EQ(tabla().item(totales, 2)->text(), "Total");
    EXPECT_EQ(resumen().toStdString(), CuentaDeHallazgos(hallazgos));
}

TEST_F(LosAvisos, AlAbrirseEstaElegidoElPrimeroConSusFrases) {
    llegarALosPapeles();
    clicMenu("VAROMAIN", "AyudaAvisos");
    const auto hallazgos = AvisosDeLaHoja(programa, {});
    EXPECT_EQ(tabla().currentRow(), 0);
    EXPECT_EQ(frases().toStdString(), "Qué pasa: " + hallazgos[0].que + "\nQué efecto tiene: " +
                                          hallazgos[0].efecto + "\nQué hacer: " + hallazgos[0].remedio);
    ASSERT_GE(hallazgos.size(), 2U);
    QTest::keyClick(&tabla(), Qt::Key_Down);
    EXPECT_EQ(tabla().currentRow(), 1);
    EXPECT_TRUE(frases().contains(QString::fromStdString(hallazgos[1].que)));
    QTest::keyClick(&tabla(), Qt::Key_Escape);
    EXPECT_FALSE(avisos()->isVisible());
}

TEST_F(LosAvisos, SinColumnasLaVentanaDiceQueFaltan) {
    clicMenu("VAROMAIN", "AyudaAvisos");
    EXPECT_EQ(menu("AyudaAvisos").text(), "A&visos de la hoja");
    EXPECT_EQ(resumen(), "Elija las columnas: después se revisa la hoja.");
    EXPECT_FALSE(tabla().isVisible());
    avisos()->close();
    EXPECT_EQ(programa.activa(), modelo("VAROMAIN"));
}

TEST_F(LosAvisos, SinNadaQueAvisarLaVentanaLoDice) {
    llegarALosPapeles();
    AvisosEnPantalla otros{escritorio, [](const QString&) {},
                           [](Programa&, const LoPedido&) { return std::vector<Hallazgo>{}; }};
    otros.seguir();
    otros.mostrarVentana();
    const auto botones = escritorio.marco().statusBar()->findChildren<QToolButton*>("EstadoAvisos");
    ASSERT_EQ(botones.size(), 2);
    EXPECT_EQ(botones[1]->text(), "sin avisos");
    EXPECT_TRUE(botones[1]->icon().isNull());
    EXPECT_EQ(resumen(), "No hay nada que avisar.");
    EXPECT_FALSE(tabla().isVisible());
}

TEST_F(LosAvisos, LaVentanaAbiertaSigueALasOpciones) {
    llegarALosPapeles();
    clic("VAROMAIN", "EstadoAvisos");
    clicEnLinea(lineaDe(filaDeTotales));
    const int antes = tabla().rowCount();
    clicMenu("VAROMAIN", "mnuOpciones");
    clicFicha(0);
    clic("OpcionesPrograma", "OptMDIA");
    clic("OpcionesPrograma", "CmdAceptar");
    EXPECT_NE(tabla().rowCount(), antes);
    EXPECT_EQ(tabla().currentRow(), lineaDe(filaDeTotales)) << "el elegido sigue siéndolo";
    EXPECT_TRUE(conFondo().empty());
}

TEST_F(LosAvisos, ControlCCopiaLaLineaConSusFrases) {
    llegarALosPapeles();
    senalarLosTotales();
    tabla().setFocus();
    QTest::keyClick(&tabla(), Qt::Key_C, Qt::ControlModifier);
    const QStringList campos = QGuiApplication::clipboard()->text().split('\t');
    ASSERT_EQ(campos.size(), 8);
    EXPECT_EQ(campos[1], "7");
    EXPECT_EQ(campos[2], "Total");
    EXPECT_TRUE(frases().contains(campos[7]));
    EXPECT_EQ(dicho(), "Copiado el aviso, con sus frases.");
}

// --- The grid ---

TEST_F(LosAvisos, UnClicEnUnAvisoSenalaSuCeldaYNoTocaElPrograma) {
    llegarALosPapeles();
    clicColumna(3);
    const Formulario* const activa = programa.activa();
    const Control* const foco = programa.foco();
    senalarLosTotales();
    const auto senaladas = conFondo();
    ASSERT_EQ(senaladas.size(), 11U) << "la fila entera";
    for (const QPoint celda : senaladas) {
        EXPECT_EQ(celda.y(), 6);
    }
    EXPECT_EQ(celdas().ColSel(), 3);
    EXPECT_TRUE(rejilla().selectionModel()->isColumnSelected(3));
    EXPECT_EQ(programa.activa(), activa);
    EXPECT_EQ(programa.foco(), foco);
    EXPECT_TRUE(
        rejilla().viewport()->rect().contains(rejilla().visualRect(rejilla().model()->index(5, 9)).center()));
}

TEST_F(LosAvisos, LaCeldaSenaladaSeDistingueDeSuFilaYDeLaColumnaElegida) {
    llegarALosPapeles();
    const Hallazgo totales = [this] {
        for (const Hallazgo& hallazgo : AvisosDeLaHoja(programa, {})) {
            if (hallazgo.fila == filaDeTotales && hallazgo.numeroDeColumna > 0) {
                return hallazgo;
            }
        }
        return Hallazgo{};
    }();
    ASSERT_GT(totales.numeroDeColumna, 0);
    const int columna = totales.numeroDeColumna - 1;
    clicColumna(columna);
    senalarLosTotales();
    const auto color = [this](int fila, int cual) {
        const QRect sitio = rejilla().visualRect(rejilla().model()->index(fila, cual));
        return rejilla().viewport()->grab().toImage().pixelColor(sitio.right() - 2, sitio.top() + 2);
    };
    const int otra = columna > 2 ? columna - 1 : columna + 1;
    EXPECT_NE(color(5, columna), color(4, columna)) << "la columna elegida";
    EXPECT_NE(color(5, columna), color(5, otra)) << "el resto de la fila";
    EXPECT_NE(color(5, otra), color(4, otra)) << "otra fila";
}

TEST_F(LosAvisos, LaSenalSeVaAlElegirUnaColumna) {
    llegarALosPapeles();
    for (const int columna : {3, 3, 4}) { // the chosen one too
        senalarLosTotales();
        ASSERT_FALSE(conFondo().empty());
        clicColumna(columna);
        EXPECT_TRUE(conFondo().empty()) << columna;
        EXPECT_EQ(celdas().ColSel(), columna);
    }
}

TEST_F(LosAvisos, LaSenalSeVaAlCerrarLaVentana) {
    llegarALosPapeles();
    senalarLosTotales();
    ASSERT_FALSE(conFondo().empty());
    avisos()->close();
    Reposar();
    EXPECT_TRUE(conFondo().empty());
}

TEST_F(LosAvisos, LaSenalSeVaCuandoLaRejillaCambia) {
    llegarALosPapeles();
    senalarLosTotales();
    ASSERT_FALSE(conFondo().empty());
    ventana("Hojadedatos").resize(500, 200);
    Reposar();
    EXPECT_FALSE(conFondo().empty()) << "otro tamaño no es otra hoja";
    programa.atender([this] { celdas().RemoveItem(1); });
    EXPECT_TRUE(conFondo().empty());
}

TEST_F(LosAvisos, DeUnaFilaQueElMapaQuitoSeDiceDondeFue) {
    filas[1][8] = 5000.0; // a girth of 50 m
    llegarA(Etapa::Mapa);
    ASSERT_EQ(celdas().Rows(), 6);
    senalarLosTotales();
    EXPECT_TRUE(conFondo().empty());
    EXPECT_EQ(dicho(), "La fila 7 ya no se ve en la hoja: al dibujar el mapa se quitan las filas sin "
                       "coordenadas.");
    clicEnLinea(lineaDe(2));
    EXPECT_FALSE(conFondo().empty());
    EXPECT_EQ(dicho(), "");
}

TEST_F(LosAvisos, BajoElMapaLaHojaSubeSinActivarseYElMapaVuelveConUnClic) {
    constexpr int filaDelGrueso = 2;
    filas[1][8] = 5000.0; // a girth of 50 m
    llegarA(Etapa::Mapa);
    const Formulario* const activa = programa.activa();
    ASSERT_EQ(activa, modelo("FrmMapa"));
    ventana("FrmMapa").setGeometry(ventana("Hojadedatos").geometry().adjusted(20, 20, 60, 60));
    Reposar();
    const auto laDeArriba = [this] {
        return zona().subWindowList(QMdiArea::StackingOrder).back()->objectName().toStdString();
    };
    ASSERT_EQ(laDeArriba(), "FrmMapa");
    clic("VAROMAIN", "EstadoAvisos");
    ASSERT_GE(lineaDe(filaDelGrueso), 0);
    clicEnLinea(lineaDe(filaDelGrueso));
    EXPECT_FALSE(conFondo().empty());
    EXPECT_EQ(laDeArriba(), "Hojadedatos");
    EXPECT_EQ(programa.activa(), activa);
    QWidget& mapa = ventana("FrmMapa");
    Clic(mapa, {mapa.width() - 40, mapa.height() - 20});
    EXPECT_EQ(laDeArriba(), "FrmMapa");
    EXPECT_EQ(programa.activa(), activa);
}

} // namespace varo::prueba
