// What a person takes from the grid: its cells for a spreadsheet, whole headers, wider columns.
#include "desktop/Pantalla.h"
#include "desktop/widgets/RotuloRecortado.h"
#include "desktop/widgets/TextoParaHojas.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QTest>

namespace varo::prueba {

class CopiarDeLaRejilla : public Pantalla {
protected:
    void tecla(Qt::Key tecla) const {
        QTest::keyClick(&rejilla(), tecla, Qt::ControlModifier);
        Reposar();
    }
    static QString portapapeles() { return QGuiApplication::clipboard()->text(); }
    Rejilla& celdas() const { return dynamic_cast<Rejilla&>(modelo("Hojadedatos")->control("MSFlexGrid1")); }
    QString estado(const std::string& rotulo) const {
        return dynamic_cast<const RotuloRecortado&>(widget<QWidget>("VAROMAIN", rotulo)).texto();
    }
    /// Drags the right edge of a header by so many pixels.
    void arrastrarBorde(int columna, int pasos) const {
        QHeaderView& cabecera = *rejilla().horizontalHeader();
        QWidget* const vista = cabecera.viewport();
        const QPoint borde{cabecera.sectionViewportPosition(columna) + cabecera.sectionSize(columna) - 1,
                           cabecera.height() / 2};
        QTest::mouseMove(vista, borde);
        QTest::mousePress(vista, Qt::LeftButton, Qt::NoModifier, borde);
        QTest::mouseMove(vista, borde + QPoint{pasos, 0});
        QTest::mouseRelease(vista, Qt::LeftButton, Qt::NoModifier, borde + QPoint{pasos, 0});
        Reposar();
    }
};

/// A grid outside of any window.
struct RejillaSuelta {
    ServiciosPreparados servicios;
    Programa programa{servicios};
    Formulario ventana{programa, "v", TipoVentana::Libre, ""};
    Rejilla rejilla{ventana, "r"};

    RejillaSuelta() {
        rejilla.Rows(3);
        rejilla.Cols(3);
        rejilla.TextMatrix(0, 0, "a");
        rejilla.TextMatrix(0, 1, "b");
        rejilla.TextMatrix(0, 2, "c");
        rejilla.TextMatrix(1, 0, "1,5");
        rejilla.TextMatrix(2, 1, "x");
    }
};

TEST(ElTextoParaHojas, UnaColumnaLlevaSuCabeceraYUnaLineaPorFila) {
    const RejillaSuelta suelta;
    EXPECT_EQ(ColumnaParaHojas(suelta.rejilla, 0), "a\n1,5\n\n");
}

TEST(ElTextoParaHojas, LasColumnasOcultasNoVan) {
    RejillaSuelta suelta;
    suelta.rejilla.ColWidth(2, 0);
    EXPECT_EQ(RejillaParaHojas(suelta.rejilla), "a\tb\n1,5\t\n\tx\n");
}

TEST(ElTextoParaHojas, LoQueRomperiaUnaCeldaVaEntreComillas) {
    RejillaSuelta suelta;
    suelta.rejilla.TextMatrix(1, 0, "dos\tcosas");
    suelta.rejilla.TextMatrix(1, 1, "una\nlínea");
    suelta.rejilla.TextMatrix(1, 2, "el \"viejo\"");
    suelta.rejilla.TextMatrix(2, 0, "\r");
    suelta.rejilla.TextMatrix(2, 1, "\"viejo\" o no");
    suelta.rejilla.TextMatrix(2, 2, " con blancos ");
    EXPECT_EQ(RejillaParaHojas(suelta.rejilla), "a\tb\tc\n"
                                                "\"dos\tcosas\"\t\"una\nlínea\"\tel \"viejo\"\n"
                                                "\"\r\"\t\"\"\"viejo\"\" o no\"\t con blancos \n");
}

TEST_F(CopiarDeLaRejilla, ControlCCopiaLaColumnaMarcada) {
    llegarA(Etapa::Hoja);
    clicColumna(8);
    tecla(Qt::Key_C);
    EXPECT_EQ(portapapeles().toStdString(), ColumnaParaHojas(celdas(), 8));
    EXPECT_EQ(portapapeles().section('\n', 0, 0).toStdString(), celdas().TextMatrix(0, 8));
    EXPECT_EQ(estado("EstadoMensaje").toStdString(),
              "Copiada la columna «" + celdas().TextMatrix(0, 8) + "», con su cabecera: 5 filas.");
}

TEST_F(CopiarDeLaRejilla, ControlAYControlCCopianTodaLaHojaYLaColumnaMarcadaSigue) {
    llegarA(Etapa::Hoja);
    clicColumna(3);
    tecla(Qt::Key_A);
    EXPECT_EQ(celdas().ColSel(), 3);
    EXPECT_TRUE(rejilla().selectionModel()->isColumnSelected(3));
    EXPECT_EQ(rejilla().selectionModel()->selectedColumns().size(), 1);
    tecla(Qt::Key_C);
    EXPECT_EQ(portapapeles().toStdString(), RejillaParaHojas(celdas()));
    EXPECT_EQ(celdas().ColSel(), 3);
    EXPECT_EQ(rejilla().selectionModel()->selectedColumns().size(), 1);
}

TEST_F(CopiarDeLaRejilla, TrasElegirOtraColumnaYaNoEsToda) {
    llegarA(Etapa::Hoja);
    clicColumna(3);
    tecla(Qt::Key_A);
    clicColumna(4);
    tecla(Qt::Key_C);
    EXPECT_EQ(portapapeles().toStdString(), ColumnaParaHojas(celdas(), 4));
    tecla(Qt::Key_A);
    clicColumna(4); // the same column: a click is a choice too
    tecla(Qt::Key_C);
    EXPECT_EQ(portapapeles().toStdString(), ColumnaParaHojas(celdas(), 4));
}

TEST_F(CopiarDeLaRejilla, UnaCabeceraDiceSuNombreEnteroAlPararseEnElla) {
    filas[0][1] = Valor{std::string{"x<b>largo</b>"}};
    llegarA(Etapa::Hoja);
    const auto& modelo = *rejilla().model();
    EXPECT_EQ(modelo.headerData(0, Qt::Horizontal, Qt::ToolTipRole), "Nº de punto");
    EXPECT_EQ(modelo.headerData(2, Qt::Horizontal), "x<b>largo</b>");
    EXPECT_EQ(modelo.headerData(2, Qt::Horizontal, Qt::ToolTipRole), "<p>x&lt;b&gt;largo&lt;/b&gt;</p>");
}

TEST_F(CopiarDeLaRejilla, UnaColumnaSeEnsanchaAManoYSigueAnchaTrasUnActo) {
    llegarA(Etapa::Hoja);
    const int antes = rejilla().columnWidth(2);
    const int enElModelo = celdas().ColWidth(2);
    arrastrarBorde(2, 60);
    EXPECT_EQ(rejilla().columnWidth(2), antes + 60);
    clicColumna(4);
    EXPECT_EQ(celdas().ColSel(), 4);
    EXPECT_EQ(rejilla().columnWidth(2), antes + 60);
    EXPECT_EQ(celdas().ColWidth(2), enElModelo);
    EXPECT_TRUE(rejilla().isColumnHidden(celdas().Cols() - 1));
}

TEST_F(CopiarDeLaRejilla, EnsancharNoEligeLaColumna) {
    llegarA(Etapa::Hoja);
    clicColumna(4);
    arrastrarBorde(2, 60);
    EXPECT_EQ(celdas().ColSel(), 4);
}

TEST_F(CopiarDeLaRejilla, LaBarraDiceQueLaUltimaColumnaNoSeVeYPorQue) {
    llegarA(Etapa::Hoja);
    EXPECT_EQ(estado("EstadoColumna"), "No se ve «Nota»: la última columna no se lee");
    clicMenu("VAROMAIN", "mnuCerrar");
    EXPECT_EQ(estado("EstadoColumna"), "");
}

} // namespace varo::prueba
