// The plot data window on the desktop: labels follow their models, come and go with them, and can be copied.
#include "desktop/Pantalla.h"
#include "plot/FrmResultados.h"
#include "plot/TextoDeResultados.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMdiSubWindow>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace varo::prueba {

namespace {

/// A run with this many codes, each named after `nombre`.
CifrasDeParcela ConCodigos(int cuantos, const std::string& nombre = "Pinus pinaster ") {
    CifrasDeParcela cifras{.numCodigos = cuantos,
                           .piesHa = 12345.6,
                           .abHa = 34.5,
                           .titulo = "Parcela Lillo$",
                           .superficie = 1963.5,
                           .areaCopas = 12100,
                           .areaCopasInterior = 11800.2,
                           .areaIntersecCopas = 10200.7,
                           .fcc = 0.875F};
    cifras.piesHaCodigo.redimensionar(cuantos - 1);
    cifras.abHaCodigo.redimensionar(cuantos - 1);
    for (int c = 0; c < cuantos; ++c) {
        cifras.codigos.push_back(nombre + std::to_string(c));
        cifras.piesHaCodigo(c) = 1000.5 * (c + 1);
        cifras.abHaCodigo(c) = 1.5 * c;
    }
    return cifras;
}

} // namespace

class LosResultados : public Pantalla {
protected:
    FrmResultados& resultados() { return programa.tocar<FrmResultados>(); }
    void hacer(const std::function<void(FrmResultados&)>& acto) {
        programa.atender([&] { acto(resultados()); });
        Reposar();
    }
    void correr(const CifrasDeParcela& cifras) {
        hacer([&](FrmResultados& ventana) {
            ventana.tablasConCodigos(cifras);
            ventana.resumen(cifras);
            ventana.Show();
        });
    }
    void correrSinCodigos() {
        hacer([](FrmResultados& ventana) {
            ventana.tablasSinCodigos(ConCodigos(1));
            ventana.resumen(ConCodigos(1));
            ventana.Show();
        });
    }
    [[nodiscard]] QLabel& etiqueta(const std::string& nombre) const {
        return widget<QLabel>("FrmResultados", nombre);
    }
    [[nodiscard]] QScrollArea& hoja() const { return *ventana("FrmResultados").findChild<QScrollArea*>(); }
    [[nodiscard]] bool tieneWidget(const std::string& nombre) const {
        return ventana("FrmResultados").findChild<QLabel*>(QString::fromStdString(nombre)) != nullptr;
    }
    [[nodiscard]] std::vector<QLabel*> conTexto() const {
        std::vector<QLabel*> vistas;
        for (QLabel* const widget : ventana("FrmResultados").findChildren<QLabel*>()) {
            if (widget->isVisible() && !widget->text().trimmed().isEmpty()) {
                vistas.push_back(widget);
            }
        }
        return vistas;
    }
    /// Each text is whole, and none lies over another.
    void comprobarQueSeLee() const {
        const auto vistas = conTexto();
        for (const QLabel* const una : vistas) {
            EXPECT_GE(una->width(), una->sizeHint().width()) << una->objectName().toStdString();
            EXPECT_GE(una->height(), una->sizeHint().height()) << una->objectName().toStdString();
            EXPECT_TRUE(una->parentWidget()->rect().contains(QRect{una->pos(), una->sizeHint()}))
                << una->objectName().toStdString();
            for (const QLabel* const otra : vistas) {
                if (una < otra) {
                    const QRect lugar{una->pos(), una->sizeHint()};
                    EXPECT_FALSE(lugar.intersects({otra->pos(), otra->sizeHint()}))
                        << una->objectName().toStdString() << " y " << otra->objectName().toStdString();
                }
            }
        }
    }
    /// What a person finds on the clipboard after Ctrl+C in the window.
    std::string copiado() {
        QApplication::clipboard()->clear();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
        Reposar();
        return QApplication::clipboard()->text().toStdString();
    }
};

TEST_F(LosResultados, SonUnaHijaDelMarcoQueSePuedeAgrandar) {
    correrSinCodigos();
    auto& hija = dynamic_cast<QMdiSubWindow&>(ventana("FrmResultados"));
    EXPECT_TRUE(hija.isVisible());
    EXPECT_EQ(hija.windowTitle(), "Datos de parcela");
    EXPECT_TRUE(hija.windowFlags() & Qt::WindowMaximizeButtonHint);
    EXPECT_GE(hija.width(), 446); // 6,700 twips are 446 pixels
}

TEST_F(LosResultados, CadaEtiquetaEstaEnSuLugarConSuLetra) {
    correrSinCodigos();
    EXPECT_EQ(etiqueta("LbAreaTotal").pos(), QPoint(72, 48));
    EXPECT_EQ(etiqueta("LbFcc").pos(), QPoint(72, 384));
    EXPECT_EQ(etiqueta("LbFcc").width(), 345);
    EXPECT_EQ(etiqueta("LbPiesHaValor(0)").pos(), QPoint(194, 136)); // 2,922.5 and 2,040 twips
    EXPECT_EQ(etiqueta("LbFcc").text(), "Fcc: 0,88");
    EXPECT_TRUE(etiqueta("LbFcc").font().bold());
    EXPECT_EQ(etiqueta("LbFcc").font().family(), "Arial");
    EXPECT_FALSE(etiqueta("LbValorPha").font().bold());
    EXPECT_EQ(etiqueta("LbValorPha").font().family(), "Times New Roman");
    comprobarQueSeLee();
}

TEST_F(LosResultados, UnaEtiquetaSigueASuModelo) {
    correrSinCodigos();
    hacer([](FrmResultados& ventana) {
        ventana.LbFcc.Left = 1500;
        ventana.LbFcc.Top = 6000;
        ventana.LbFcc.Width = 3000;
        ventana.LbFcc.Caption = "Fcc: 0,11";
        ventana.LbFcc.Font = Fuente{.nombre = "Arial", .tamano = 12};
        ventana.LbAreaCopas.Visible = false;
    });
    EXPECT_EQ(etiqueta("LbFcc").pos(), QPoint(100, 400));
    EXPECT_EQ(etiqueta("LbFcc").width(), 200);
    EXPECT_EQ(etiqueta("LbFcc").text(), "Fcc: 0,11");
    EXPECT_EQ(etiqueta("LbFcc").font().pointSize(), 12);
    EXPECT_FALSE(etiqueta("LbAreaCopas").isVisible());
    hacer([](FrmResultados& ventana) {
        ventana.LbFcc.Width = 15;
        ventana.LbAreaCopas.Visible = true;
    });
    EXPECT_TRUE(etiqueta("LbAreaCopas").isVisible());
    comprobarQueSeLee();
}

TEST_F(LosResultados, UnMiembroQueNaceConLaVentanaALaVistaTieneSuWidget) {
    correrSinCodigos();
    EXPECT_FALSE(tieneWidget("LbPiesHaValor(1)"));
    correr(ConCodigos(2));
    EXPECT_EQ(etiqueta("LbPiesHaValor(2)").text(), "12345,6");
    EXPECT_EQ(etiqueta("LbAbHaCodigo(2)").text(), "Total");
    EXPECT_TRUE(etiqueta("LbAbHaCodigo(1)").isVisible());
    EXPECT_EQ(escritorio.widgetDe(resultados().LbAbHaCodigo(1)), &etiqueta("LbAbHaCodigo(1)"));
    comprobarQueSeLee();
}

TEST_F(LosResultados, UnMiembroQueSeQuitaPierdeSuWidget) {
    correr(ConCodigos(2));
    hacer([](FrmResultados& ventana) { ventana.LbPiesHaValor.quitar(1); });
    EXPECT_FALSE(tieneWidget("LbPiesHaValor(1)"));
    EXPECT_TRUE(tieneWidget("LbPiesHaValor(2)"));
    correr(ConCodigos(2));
    EXPECT_EQ(etiqueta("LbPiesHaValor(1)").text(), "2001,0");
    comprobarQueSeLee();
    cerrar("FrmResultados");
    EXPECT_EQ(modelo("FrmResultados"), nullptr);
}

TEST_F(LosResultados, ConUnoCincoYCuarentaCodigosTodoSeLee) {
    for (const int cuantos : {1, 5, 40}) {
        SCOPED_TRACE(cuantos);
        correr(ConCodigos(cuantos));
        comprobarQueSeLee();
        EXPECT_EQ(etiqueta("LbPiesHaCodigo(" + std::to_string(cuantos) + ")").text(), "Total");
        cerrar("FrmResultados");
    }
}

TEST_F(LosResultados, LoQueQuedaDeUnaCorridaConMasCodigosNoTapaNada) {
    correr(ConCodigos(40, "C"));
    correr(ConCodigos(1, "C"));
    comprobarQueSeLee();
    EXPECT_EQ(etiqueta("LbPiesHaCodigo(1)").text(), "Total");
    EXPECT_EQ(etiqueta("LbPiesHaCodigo(39)").text(), "C39");
}

TEST_F(LosResultados, LasColumnasSonRectas) {
    correr(ConCodigos(5));
    for (int c = 0; c <= 5; ++c) {
        const std::string miembro = "(" + std::to_string(c) + ")";
        const int izquierda = etiqueta("LbPiesHaCodigo" + miembro).x();
        for (const char* const nombre : {"LbPiesHaValor", "LbAbHaCodigo", "LbAbHaValor"}) {
            EXPECT_EQ(etiqueta(nombre + miembro).x(), izquierda) << nombre << c;
        }
    }
}

TEST_F(LosResultados, ConMuchosCodigosLaVentanaCabeEnElMarcoYSeDesplaza) {
    correr(ConCodigos(40));
    QWidget& hija = ventana("FrmResultados");
    EXPECT_TRUE(hija.parentWidget()->rect().contains(hija.geometry()));
    EXPECT_GT(hoja().horizontalScrollBar()->maximum(), 0);
    const QRect titulo = etiqueta("LbParcela").geometry();
    EXPECT_LE(titulo.right(), hoja().viewport()->width()) << "el título se ve sin desplazarse";
    EXPECT_NEAR(titulo.center().x(), hoja().viewport()->width() / 2.0, 1);
}

TEST_F(LosResultados, UnTituloLargoSeVeEntero) {
    CifrasDeParcela cifras = ConCodigos(1);
    cifras.titulo = std::string(80, 'M');
    correr(cifras);
    comprobarQueSeLee();
}

TEST_F(LosResultados, ControlCSinSeleccionCopiaTodaLaTabla) {
    correr(ConCodigos(2));
    EXPECT_EQ(copiado(), TextoDeResultados(resultados()));
}

TEST_F(LosResultados, ControlCCopiaLoSeleccionado) {
    correr(ConCodigos(2));
    QLabel& cifra = etiqueta("LbPiesHaValor(0)");
    QTest::mouseDClick(&cifra, Qt::LeftButton, Qt::NoModifier, {6, cifra.height() / 2});
    Reposar();
    EXPECT_EQ(cifra.selectedText(), "1000,5");
    EXPECT_EQ(copiado(), "1000,5");
    Clic(etiqueta("LbFcc"));
    EXPECT_FALSE(cifra.hasSelectedText());
    EXPECT_EQ(copiado(), TextoDeResultados(resultados()));
}

TEST_F(LosResultados, ElMenuDelBotonDerechoCopiaTodo) {
    correr(ConCodigos(2));
    QApplication::clipboard()->clear();
    EXPECT_EQ(hoja().contextMenuPolicy(), Qt::ActionsContextMenu);
    ASSERT_EQ(hoja().actions().size(), 2);
    EXPECT_EQ(hoja().actions()[0]->text(), "&Copiar");
    EXPECT_EQ(hoja().actions()[1]->text(), "Copiar &todo");
    etiqueta("LbFcc").setSelection(0, 3);
    hoja().actions()[1]->trigger();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), TextoDeResultados(resultados()));
    EXPECT_EQ(etiqueta("LbFcc").contextMenuPolicy(), Qt::NoContextMenu) << "el menú es el de la ventana";
}

TEST_F(LosResultados, ElFocoNoEsDeUnaEtiqueta) {
    correr(ConCodigos(2));
    Clic(etiqueta("LbFcc"));
    EXPECT_EQ(programa.foco(), nullptr);
    EXPECT_EQ(programa.activa(), &resultados());
}

TEST_F(LosResultados, SuAspaLaCierraYOlvidaLasCifras) {
    correr(ConCodigos(2));
    programa.sesion.PiesHaActual = 1;
    programa.sesion.AbHaActual = 1;
    cerrar("FrmResultados");
    EXPECT_EQ(modelo("FrmResultados"), nullptr);
    EXPECT_EQ(programa.sesion.PiesHaActual, 0);
    EXPECT_EQ(programa.sesion.AbHaActual, 0);
}

} // namespace varo::prueba
