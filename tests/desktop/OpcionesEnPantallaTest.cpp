// The options on the screen: each control with its widget on the page of its tab, the sets that share a
// place, and the formulas.
#include "desktop/Pantalla.h"
#include "desktop/formulas/Formulas.h"
#include "options/OpcionesPrograma.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

#include <algorithm>
#include <array>

namespace varo::prueba {

namespace {

bool EsDeSuClase(const QWidget& widget, TipoControl tipo) {
    switch (tipo) {
    case TipoControl::Etiqueta:
        return qobject_cast<const QLabel*>(&widget) != nullptr;
    case TipoControl::CajaTexto:
        return qobject_cast<const QLineEdit*>(&widget) != nullptr;
    case TipoControl::Casilla:
        return qobject_cast<const QCheckBox*>(&widget) != nullptr;
    case TipoControl::Opcion:
        return qobject_cast<const QRadioButton*>(&widget) != nullptr;
    case TipoControl::Lista:
        return qobject_cast<const QListWidget*>(&widget) != nullptr;
    case TipoControl::Boton:
        return qobject_cast<const QPushButton*>(&widget) != nullptr;
    case TipoControl::Marco:
        return qobject_cast<const QGroupBox*>(&widget) != nullptr;
    case TipoControl::Imagen:
        return dynamic_cast<const CuadroDeFormula*>(&widget) != nullptr;
    case TipoControl::Fichas:
        return qobject_cast<const QTabWidget*>(&widget) != nullptr;
    default:
        return false;
    }
}

/// A formula on one line, without blanks and with its squares as powers.
QString SinAdornos(QString formula) {
    return formula.remove(' ').replace(QString::fromUtf8("²"), "^2");
}

} // namespace

class LasOpcionesEnPantalla : public Pantalla {
protected:
    LasOpcionesEnPantalla() { llegarA(Etapa::Opciones); }

    OpcionesPrograma& opciones() const {
        return dynamic_cast<OpcionesPrograma&>(*modelo("OpcionesPrograma"));
    }
    QTabWidget& fichas() const { return widget<QTabWidget>("OpcionesPrograma", "SSTab1"); }
    QWidget& de(const std::string& control) const { return widget("OpcionesPrograma", control); }
    int fichaDe(const Control& control) const {
        const Control* exterior = &control;
        while (exterior->contenedor != nullptr) {
            exterior = exterior->contenedor;
        }
        for (int ficha = 0; ficha < opciones().SSTab1.Tabs(); ++ficha) {
            const auto& contenido = opciones().SSTab1.contenido(ficha);
            if (std::find(contenido.begin(), contenido.end(), exterior) != contenido.end()) {
                return ficha;
            }
        }
        return -1;
    }
    void esperarMismoSitio(int ficha, const std::string& uno, const std::string& otro) const {
        fichas().setCurrentIndex(ficha);
        Reposar();
        EXPECT_EQ(de(uno).parentWidget(), de(otro).parentWidget());
        EXPECT_EQ(de(uno).geometry(), de(otro).geometry()) << uno << " " << otro;
    }
    /// Shows one and hides the other, then the reverse; nothing else of the page moves.
    void esperarAlternancia(const std::string& uno, const std::string& otro) const {
        Control& primero = *buscar(uno);
        Control& segundo = *buscar(otro);
        const QPoint pie = de("CmdAceptar").mapTo(de("CmdAceptar").window(), QPoint{});
        primero.Visible = true;
        segundo.Visible = false;
        Reposar();
        EXPECT_TRUE(de(uno).isVisible()) << uno;
        EXPECT_FALSE(de(otro).isVisible()) << otro;
        const QRect sitio = de(uno).geometry();
        primero.Visible = false;
        segundo.Visible = true;
        Reposar();
        EXPECT_FALSE(de(uno).isVisible()) << uno;
        EXPECT_TRUE(de(otro).isVisible()) << otro;
        EXPECT_EQ(de(otro).geometry(), sitio) << otro;
        EXPECT_EQ(de("CmdAceptar").mapTo(de("CmdAceptar").window(), QPoint{}), pie);
    }
    /// Of the kinds of crown data this one alone is on, in the model and on the screen. It has the focus.
    void esperarElegida(const std::string& nombre) const {
        for (const Opcion* const opcion : opciones().datosDeCopa) {
            const bool esta = opcion->nombreCompleto() == nombre;
            EXPECT_EQ(opcion->Value(), esta) << opcion->nombreCompleto();
            EXPECT_EQ(dynamic_cast<QRadioButton&>(de(opcion->nombreCompleto())).isChecked(), esta);
        }
        EXPECT_EQ(QApplication::focusWidget(), &de(nombre));
        EXPECT_EQ(programa.foco(), buscar(nombre));
    }
    Control* buscar(const std::string& nombre) const {
        for (Control* const control : opciones().controles()) {
            if (control->nombreCompleto() == nombre) {
                return control;
            }
        }
        throw std::runtime_error{"no hay " + nombre};
    }
};

TEST_F(LasOpcionesEnPantalla, CadaControlTieneUnWidgetDeSuClaseEnLaPaginaDeSuFicha) {
    int enFichas = 0;
    for (const Control* const control : opciones().controles()) {
        SCOPED_TRACE(control->nombreCompleto());
        QWidget* const real = escritorio.widgetDe(*control);
        ASSERT_NE(real, nullptr);
        EXPECT_EQ(&de(control->nombreCompleto()), real);
        EXPECT_TRUE(EsDeSuClase(*real, control->tipo()));
        EXPECT_EQ(real->isEnabledTo(real->parentWidget()), control->Enabled());
        EXPECT_EQ(!real->isHidden(), control->Visible());
        const int ficha = fichaDe(*control);
        if (ficha >= 0) {
            ++enFichas;
            EXPECT_TRUE(fichas().widget(ficha)->isAncestorOf(real)) << ficha;
        }
        if (control->contenedor != nullptr) {
            EXPECT_TRUE(escritorio.widgetDe(*control->contenedor)->isAncestorOf(real));
        }
    }
    // All but the tabbed dialog itself and its two buttons lie on a tab.
    EXPECT_EQ(enFichas, static_cast<int>(opciones().controles().size()) - 3);
}

TEST_F(LasOpcionesEnPantalla, LasSieteFichasLlevanSusLeyendasYSeEmpiezaEnLaDensidadPuntual) {
    ASSERT_EQ(fichas().count(), 7);
    EXPECT_EQ(fichas().currentIndex(), 4);
    const std::array<const char*, 7> leyendas{"Unidades",
                                              "IND: Independientes de la distancia",
                                              "IND: Superposición de copas (ISC)",
                                              "IND: Superposición de Areas de Influencia (AOI)",
                                              "IND:Densidad puntual (DP)",
                                              "IND: Distancias ponderadas por dimensiones (DR)",
                                              "IND: Area Potencialmente Disponible (APA)"};
    for (int ficha = 0; ficha < 7; ++ficha) {
        EXPECT_EQ(fichas().tabText(ficha).toStdString(), leyendas.at(static_cast<std::size_t>(ficha)));
    }
}

TEST_F(LasOpcionesEnPantalla, CadaFichaSePulsaYMuestraSuPagina) {
    for (const int ficha : {0, 1, 2, 3, 5, 6, 4}) {
        clicFicha(ficha);
        EXPECT_EQ(opciones().SSTab1.Tab(), ficha);
        EXPECT_TRUE(fichas().widget(ficha)->isVisible());
    }
}

TEST_F(LasOpcionesEnPantalla, LasLeyendasSonLasDeSusControles) {
    EXPECT_EQ(dynamic_cast<QCheckBox&>(de("ChABj")).text(), "AB (m2/ha) (solo dj>di)");
    EXPECT_EQ(dynamic_cast<QLabel&>(de("LbAreaPropD")).text().toStdString(),
              "Area ocupada  proporcional al diámetro (APDi):");
    EXPECT_EQ(dynamic_cast<QGroupBox&>(de("Frame11")).title(), "Indice de densidad puntual (Spurr, 1962)");
    EXPECT_EQ(dynamic_cast<QGroupBox&>(de("FramISC")).title(), "");
    EXPECT_EQ(dynamic_cast<QLineEdit&>(de("TxtBAF1(6)")).text(), "0,00");
    EXPECT_EQ(dynamic_cast<QLineEdit&>(de("TxtRm(0)")).text(), "0,0000");
    EXPECT_EQ(dynamic_cast<QLineEdit&>(de("TxtBAF3(1)")).text(), "1");
}

TEST_F(LasOpcionesEnPantalla, LasCasillasSePulsanEnSuFicha) {
    clicFicha(1);
    for (const char* nombre :
         {"ChN", "ChAB", "ChABj", "ChDmed", "ChDmax", "ChDdom", "ChBmed", "ChBmax", "ChBdom", "ChAPDmed",
          "ChAPDmax", "ChAPDsum", "ChAPBmed", "ChAPBmax", "ChAPBsum"}) {
        clic("OpcionesPrograma", nombre);
        EXPECT_EQ(dynamic_cast<Casilla&>(*buscar(nombre)).Value(), 1) << nombre;
        EXPECT_TRUE(dynamic_cast<QCheckBox&>(de(nombre)).isChecked()) << nombre;
    }
}

TEST_F(LasOpcionesEnPantalla, UnRadioMedioSoloDejaElegirCirculos) {
    clicFicha(0);
    clic("OpcionesPrograma", "OptRM");
    EXPECT_TRUE(dynamic_cast<QRadioButton&>(de("Optcirc")).isChecked());
    EXPECT_FALSE(dynamic_cast<QRadioButton&>(de("OptElipse")).isChecked());
    EXPECT_FALSE(de("OptElipse").isEnabled());
    EXPECT_FALSE(dynamic_cast<QRadioButton&>(de("Opt4R")).isChecked());
    // The other groups keep their own.
    EXPECT_TRUE(dynamic_cast<QRadioButton&>(de("Optdecim")).isChecked());
    EXPECT_TRUE(dynamic_cast<QRadioButton&>(de("OptCAP")).isChecked());
}

TEST_F(LasOpcionesEnPantalla, LasFlechasEligenLaOpcionSiguienteDeSuGrupo) {
    clicFicha(0);
    clic("OpcionesPrograma", "Opt4R");
    const std::vector<std::pair<Qt::Key, const char*>> pasos{
        {Qt::Key_Down, "Opt2D"}, {Qt::Key_Right, "OptRM"}, {Qt::Key_Down, "Opt4R"},
        {Qt::Key_Up, "OptRM"},   {Qt::Key_Left, "Opt2D"},  {Qt::Key_Up, "Opt4R"}};
    for (const auto& [flecha, elegida] : pasos) {
        QTest::keyClick(QApplication::focusWidget(), flecha);
        Reposar();
        esperarElegida(elegida);
    }
    EXPECT_TRUE(opciones().Optdecim.Value()); // the group that stands beside it keeps its own
}

TEST_F(LasOpcionesEnPantalla, LasFlechasPasanPorAltoLaOpcionInhabilitada) {
    clicFicha(0);
    opciones().Opt2D.Enabled = false;
    clic("OpcionesPrograma", "Opt4R");
    for (const auto& [flecha, elegida] : {std::pair{Qt::Key_Down, "OptRM"}, {Qt::Key_Up, "Opt4R"}}) {
        QTest::keyClick(QApplication::focusWidget(), flecha);
        Reposar();
        esperarElegida(elegida);
    }
    clic("OpcionesPrograma", "OptRM"); // leaves circles as the only shape
    clic("OpcionesPrograma", "Optcirc");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    Reposar();
    EXPECT_TRUE(opciones().Optcirc.Value());
    EXPECT_FALSE(opciones().OptElipse.Value());
    EXPECT_TRUE(de("Optcirc").hasFocus());
}

// --- Sets that share a place ---

TEST_F(LasOpcionesEnPantalla, LosDosIntervalosDeUnaSeleccionEstanEnElMismoSitio) {
    for (const char* campo : {"TxtBAF1", "TxtBAF2", "TxtBAF3"}) {
        const std::string nombre{campo};
        esperarMismoSitio(4, nombre + "(0)", nombre + "(1)");
        esperarMismoSitio(5, nombre + "(2)", nombre + "(3)");
        fichas().setCurrentIndex(4);
        esperarAlternancia(nombre + "(0)", nombre + "(1)");
        fichas().setCurrentIndex(5);
        esperarAlternancia(nombre + "(2)", nombre + "(3)");
    }
}

TEST_F(LasOpcionesEnPantalla, IntervaloYFuncionesSeAlternanEnElMismoSitio) {
    for (const int i : {0, 1}) {
        const std::string indice = "(" + std::to_string(i) + ")";
        fichas().setCurrentIndex(4 + i);
        esperarAlternancia("FramFunc" + indice, "FramBAF" + indice);
        esperarAlternancia("FramRICH" + indice, "FramHIPER" + indice);
    }
}

TEST_F(LasOpcionesEnPantalla, LasDosFuncionesDeDistanciaTienenSuFormulaEnElMismoSitio) {
    fichas().setCurrentIndex(5);
    const auto lugar = [this](const std::string& imagen) { return de(imagen).geometry().left(); };
    EXPECT_EQ(lugar("ImgHiper2"), lugar("ImgExp2"));
    Control& hiperbolica = *buscar("ImgHiper2");
    Control& exponencial = *buscar("ImgExp2");
    hiperbolica.Visible = true;
    exponencial.Visible = false;
    EXPECT_TRUE(de("ImgHiper2").isVisible());
    EXPECT_FALSE(de("ImgExp2").isVisible());
    hiperbolica.Visible = false;
    exponencial.Visible = true;
    EXPECT_FALSE(de("ImgHiper2").isVisible());
    EXPECT_TRUE(de("ImgExp2").isVisible());
}

// --- Formulas ---

TEST_F(LasOpcionesEnPantalla, CadaFormulaDiceLoQueMuestra) {
    const std::vector<std::pair<const char*, const char*>> formulas{
        {"Image1", "AO_msk = Σ (j = 1..n) (aO_mij / AI_mi) (R_sij)^k"},
        {"Image3", "PD_k1 = (2500/m) [Σ (i = 1..m) (i − 1/2) (d_j / D_ij)²]"},
        {"Image4", "PD_k2 = (2500/m) [Σ (i = 1..m) (i + 1/2) (d_j / D_ij)²]"},
        {"Image5(0)", "dist = A (1 − e^(−k DBH))^(1/(1−m))"},
        {"Image5(1)", "dist = A (1 − e^(−k DBH))^(1/(1−m))"},
        {"Image6(0)", "dist = A − k (1 / (a + b DBH^c + d DBH^e))"},
        {"Image6(1)", "dist = A − k (1 / (a + b DBH^c + d DBH^e))"},
        {"Image7", "DR_ksf = Σ (j = 1..n) (R_sij)^k f(D_ij)"},
        {"ImgAPA", "W_k = d_i^k / (d_i^k + d_j^k)"},
        {"ImgExp2", "f(D_ij) = e^(−(a + b D_ij^c + d D_ij^e))"},
        {"ImgHiper2", "f(D_ij) = 1 / (a + b D_ij^c + d D_ij^e)"},
        {"ImgRm", "Rm = a + b (DBH)^c + d (DBH)^e"}};
    for (const auto& [nombre, formula] : formulas) {
        EXPECT_EQ(SinAdornos(de(nombre).accessibleName()).toStdString(),
                  SinAdornos(QString::fromUtf8(formula)).toStdString())
            << nombre;
    }
}

TEST_F(LasOpcionesEnPantalla, NingunaFormulaQuedaCortada) {
    for (const Control* const control : opciones().controles()) {
        if (control->tipo() != TipoControl::Imagen) {
            continue;
        }
        buscar(control->nombreCompleto())->Visible = true;
        fichas().setCurrentIndex(fichaDe(*control));
        Reposar();
        const QWidget& cuadro = de(control->nombreCompleto());
        EXPECT_GE(cuadro.width(), cuadro.sizeHint().width()) << control->nombreCompleto();
        EXPECT_GE(cuadro.height(), cuadro.sizeHint().height()) << control->nombreCompleto();
    }
}

} // namespace varo::prueba
