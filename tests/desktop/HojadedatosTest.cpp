// The grid of the sheet on the screen: headers, widths, selected column, and the measures of its window.
#include "data/Hojadedatos.h"
#include "desktop/Pantalla.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace varo::prueba {

namespace {

/// The widest text of a column and a margin of 100 twips, in pixels of 15 twips.
int AnchoEsperado(const QStringList& textos) {
    const QFontMetricsF medidas{QApplication::font()};
    double ancho = 0;
    for (const QString& texto : textos) {
        ancho = std::max(ancho, std::nearbyint(medidas.horizontalAdvance(texto) * 15 + 100));
    }
    return static_cast<int>(ancho / 15);
}

} // namespace

class LaHojaDeDatos : public Pantalla {
protected:
    LaHojaDeDatos() { llegarA(Etapa::Hoja); }

    Hojadedatos& hoja() const { return dynamic_cast<Hojadedatos&>(*modelo("Hojadedatos")); }
    Rejilla& celdas() const { return hoja().MSFlexGrid1; }
    void clicCabecera(int columna) const {
        QHeaderView& cabecera = *rejilla().horizontalHeader();
        Clic(*cabecera.viewport(),
             {cabecera.sectionViewportPosition(columna) + cabecera.sectionSize(columna) / 2,
              cabecera.height() / 2});
    }
    void esperarElegida(int columna) const {
        EXPECT_EQ(celdas().ColSel(), columna);
        for (int otra = 0; otra < celdas().Cols(); ++otra) {
            EXPECT_EQ(rejilla().selectionModel()->isColumnSelected(otra), otra == columna) << otra;
        }
    }
    void esperarNormalConElMenuDelMapa() const {
        clicMenu("VAROMAIN", "mnuMapa");
        EXPECT_EQ(hoja().WindowState(), 0);
        EXPECT_FALSE(ventana("Hojadedatos").isMaximized());
        EXPECT_FALSE(ventana("Hojadedatos").isMinimized());
        EXPECT_EQ(ventana("Hojadedatos").height(), 220);         // 3300 twips
        EXPECT_EQ(ventana("Hojadedatos").pos(), QPoint(100, 6)); // 1500 and 100 twips
    }
};

TEST_F(LaHojaDeDatos, LasCabecerasSonElNumeroYLosCampos) {
    const QStringList esperadas{
        QString::fromUtf8("Nº de punto"), "Arbol", "X", "Y", "RN", "RE", "RS", "RO", "Cod", "CAP", "Nota"};
    ASSERT_EQ(rejilla().model()->columnCount(), esperadas.size());
    for (int columna = 0; columna < esperadas.size(); ++columna) {
        EXPECT_EQ(rejilla().model()->headerData(columna, Qt::Horizontal).toString(), esperadas[columna]);
    }
    EXPECT_TRUE(rejilla().horizontalHeader()->isVisible());
    EXPECT_TRUE(rejilla().verticalHeader()->isHidden());
}

TEST_F(LaHojaDeDatos, LasCeldasSonLasDeLaHoja) {
    const auto texto = [this](int fila, int columna) {
        return rejilla().model()->index(fila, columna).data().toString();
    };
    ASSERT_EQ(rejilla().model()->rowCount(), 5);
    EXPECT_EQ(texto(0, 0), "1");
    EXPECT_EQ(texto(4, 0), "5");
    EXPECT_EQ(texto(4, 2), "4");
    EXPECT_EQ(texto(4, 3), "6");
    EXPECT_EQ(texto(1, 8), "QP");
    EXPECT_EQ(texto(0, 9), "100");
    EXPECT_EQ(texto(0, 10), ""); // Meant: the data of the last field never arrive.
}

TEST_F(LaHojaDeDatos, NingunaCeldaSePuedeEscribir) {
    for (int columna = 0; columna < 10; ++columna) {
        EXPECT_FALSE(rejilla().model()->index(0, columna).flags().testFlag(Qt::ItemIsEditable));
    }
}

TEST_F(LaHojaDeDatos, CadaColumnaTieneElAnchoDeSuTextoMasLargo) {
    const QStringList numeros{"1", "2", "3", "4", "5"};
    EXPECT_EQ(rejilla().columnWidth(0),
              AnchoEsperado({"Arbol"})); // Meant: the name of the first field decides.
    EXPECT_EQ(rejilla().columnWidth(1), AnchoEsperado(QStringList{"Arbol"} + numeros));
    EXPECT_EQ(rejilla().columnWidth(2), AnchoEsperado({"X", "0", "10", "4"}));
    EXPECT_EQ(rejilla().columnWidth(4), AnchoEsperado({"RN", "10"}));
    EXPECT_EQ(rejilla().columnWidth(8), AnchoEsperado({"Cod", "PS", "QP"}));
    EXPECT_EQ(rejilla().columnWidth(9), AnchoEsperado({"CAP", "100", "80", "60", "40", "50"}));
}

TEST_F(LaHojaDeDatos, DelAnchoDelModeloSoloCuentaSiEsNulo) {
    const int antes = rejilla().columnWidth(2);
    celdas().ColWidth(2, 1500);
    celdas().ColWidth(4, 0);
    celdas().ColSel = 1; // the grid tells of a change, and the view reads the widths
    EXPECT_EQ(rejilla().columnWidth(2), antes);
    EXPECT_TRUE(rejilla().isColumnHidden(4));
}

TEST_F(LaHojaDeDatos, ElTextoMasLargoDecideSeaCualSeaSuOrdenYSusLetras) {
    const QStringList textos{"1111", QString::fromUtf8("ñañ"), "WiW", "iiiiiii",
                             "WWW",  QString::fromUtf8("áé")};
    for (const bool alReves : {false, true}) {
        celdas().Visible = false;
        celdas().Rows(7);
        for (int fila = 1; fila <= 6; ++fila) {
            celdas().TextMatrix(alReves ? 7 - fila : fila, 2, textos[fila - 1].toStdString());
        }
        celdas().Visible = true;
        EXPECT_EQ(rejilla().columnWidth(2), AnchoEsperado(textos));
    }
    celdas().Visible = false;
    celdas().TextMatrix(3, 2, std::string(5000, 'n'));
    celdas().Visible = true;
    EXPECT_EQ(rejilla().columnWidth(2), 2184); // 32,767 twips
}

TEST_F(LaHojaDeDatos, SoloLaUltimaColumnaEstaOculta) {
    for (int columna = 0; columna < 10; ++columna) {
        EXPECT_FALSE(rejilla().isColumnHidden(columna)) << columna;
    }
    EXPECT_TRUE(rejilla().isColumnHidden(10));
}

// --- The selected column ---

TEST_F(LaHojaDeDatos, AlAbrirseEstaElegidaLaPrimera) {
    esperarElegida(0);
}

TEST_F(LaHojaDeDatos, UnClicEnUnaCeldaEligeSuColumna) {
    clicColumna(3);
    esperarElegida(3);
    clicColumna(9);
    esperarElegida(9);
}

TEST_F(LaHojaDeDatos, UnClicEnLaCabeceraEligeSuColumna) {
    clicCabecera(4);
    esperarElegida(4);
    clicCabecera(0);
    esperarElegida(0);
}

TEST_F(LaHojaDeDatos, LasFlechasCambianDeColumnaYNoDeEleccionAlBajar) {
    clicColumna(3);
    QTest::keyClick(&rejilla(), Qt::Key_Right);
    Reposar();
    esperarElegida(4);
    QTest::keyClick(&rejilla(), Qt::Key_Down);
    Reposar();
    esperarElegida(4);
    QTest::keyClick(&rejilla(), Qt::Key_Left);
    QTest::keyClick(&rejilla(), Qt::Key_Left);
    Reposar();
    esperarElegida(2);
}

TEST_F(LaHojaDeDatos, UnClicEnLaParteVaciaNoQuitaLaEleccion) {
    ventana("Hojadedatos").resize(900, 500);
    Reposar();
    clicColumna(3);
    const QWidget& dentro = *rejilla().viewport();
    for (const QPoint vacio : {QPoint{10, dentro.height() - 5}, QPoint{dentro.width() - 5, 10}}) {
        ASSERT_FALSE(rejilla().indexAt(vacio).isValid());
        Clic(*rejilla().viewport(), vacio);
        esperarElegida(3);
    }
}

TEST_F(LaHojaDeDatos, ConControlNoSeQuitaLaEleccion) {
    clicColumna(3);
    const auto conControl = [this](int columna) {
        QTest::mouseClick(rejilla().viewport(), Qt::LeftButton, Qt::ControlModifier,
                          rejilla().visualRect(rejilla().model()->index(1, columna)).center());
        Reposar();
    };
    conControl(3);
    esperarElegida(3);
    conControl(5);
    esperarElegida(5);
    QTest::keyClick(&rejilla(), Qt::Key_Space, Qt::ControlModifier);
    Reposar();
    esperarElegida(5);
    for (const Qt::Key tecla : {Qt::Key_Space, Qt::Key_Left, Qt::Key_A, Qt::Key_Right, Qt::Key_Escape}) {
        for (const auto con : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier}) {
            QTest::keyClick(&rejilla(), tecla, con);
            Reposar();
            esperarElegida(celdas().ColSel());
        }
    }
}

// --- The window ---

TEST_F(LaHojaDeDatos, AlCambiarDeTamanoLaRejillaLoSigue) {
    ventana("Hojadedatos").resize(600, 400);
    Reposar();
    EXPECT_EQ(hoja().Width(), 9000.0F);
    EXPECT_EQ(hoja().Height(), 6000.0F);
    EXPECT_EQ(celdas().Width(), 8950.0F);
    EXPECT_EQ(celdas().Height(), 5600.0F);
    ventana("Hojadedatos").resize(500, 300);
    Reposar();
    EXPECT_EQ(celdas().Width(), 7450.0F);
    EXPECT_EQ(celdas().Height(), 4100.0F);
}

TEST_F(LaHojaDeDatos, ElMenuDelMapaLaPoneArribaConAltoFijo) {
    clicMenu("VAROMAIN", "mnuMapa");
    EXPECT_EQ(ventana("Hojadedatos").height(), 220); // 3300 twips
    EXPECT_EQ(ventana("Hojadedatos").y(), 6);        // 100
    EXPECT_EQ(ventana("Hojadedatos").x(), 100);      // 1500
    EXPECT_EQ(ventana("SelCol4R").y(), 233);         // 3500
    EXPECT_EQ(ventana("SelCol4R").x(), 200);         // 3000
    EXPECT_EQ(celdas().Height(), 2900.0F);
}

TEST_F(LaHojaDeDatos, MaximizadaVuelveASuEstadoNormalConElMenuDelMapa) {
    ventana("Hojadedatos").showMaximized();
    Reposar();
    EXPECT_EQ(hoja().WindowState(), 2);
    esperarNormalConElMenuDelMapa();
}

TEST_F(LaHojaDeDatos, MinimizadaVuelveASuEstadoNormalConElMenuDelMapa) {
    ventana("Hojadedatos").showMinimized();
    Reposar();
    EXPECT_EQ(hoja().WindowState(), 1);
    esperarNormalConElMenuDelMapa();
}

TEST_F(LaHojaDeDatos, UnaRejillaDeTodasLasFilasPosiblesSeMuestraEntera) {
    celdas().Visible = false;
    celdas().Cols(100);
    celdas().Rows(32767);
    for (int columna = 0; columna < 100; ++columna) {
        celdas().TextMatrix(0, columna, "campo " + std::to_string(columna));
        celdas().TextMatrix(32766, columna, "fin " + std::to_string(columna));
    }
    celdas().Visible = true;
    Reposar();
    ASSERT_EQ(rejilla().model()->rowCount(), 32766);
    ASSERT_EQ(rejilla().model()->columnCount(), 100);
    const QModelIndex ultima = rejilla().model()->index(32765, 99);
    rejilla().scrollTo(ultima);
    Reposar();
    EXPECT_EQ(ultima.data().toString(), "fin 99");
    EXPECT_TRUE(rejilla().viewport()->rect().contains(rejilla().visualRect(ultima).center()));
    Clic(*rejilla().viewport(), rejilla().visualRect(ultima).center());
    EXPECT_EQ(celdas().ColSel(), 99);
}

} // namespace varo::prueba
