// A field of the options that keeps the focus: a box tells it once, and nothing else of the dialog moves.
#include "desktop/Pantalla.h"
#include "options/OpcionesPrograma.h"

#include <QApplication>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWheelEvent>

namespace varo::prueba {

namespace {

constexpr int fichaAOI = 3;

/// One notch of the wheel over a widget: -120 towards the person, 120 away.
void Rueda(QWidget& widget, int vuelta) {
    const QPointF punto = widget.rect().center();
    QWheelEvent suceso{punto,          widget.mapToGlobal(punto), QPoint{}, QPoint{0, vuelta}, Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase,         false};
    QApplication::sendEvent(&widget, &suceso);
    Reposar();
}

} // namespace

/// The tab of the areas of influence, switched on, with the person in the first coefficient of its radius.
class UnCampoDeLasOpciones : public Pantalla {
protected:
    UnCampoDeLasOpciones() {
        llegarA(Etapa::Opciones);
        clicFicha(fichaAOI);
        clic("OpcionesPrograma", "ChAOIActivar");
    }

    OpcionesPrograma& opciones() const {
        return dynamic_cast<OpcionesPrograma&>(*modelo("OpcionesPrograma"));
    }
    QTabWidget& fichas() const { return widget<QTabWidget>("OpcionesPrograma", "SSTab1"); }
    QLineEdit& campo() const { return widget<QLineEdit>("OpcionesPrograma", "TxtRm(0)"); }
    /// Answers the box about the key, the first of the test.
    void escribirMal() {
        contestador.pulsar("Aceptar");
        Clic(campo());
        QTest::keyClick(&campo(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&campo(), "x");
        Reposar();
        ASSERT_EQ(contestador.cajas().size(), 1U);
        ASSERT_TRUE(campo().hasFocus());
    }
    void esperarFicha(int ficha) const {
        EXPECT_EQ(opciones().SSTab1.Tab(), ficha);
        EXPECT_EQ(fichas().currentIndex(), ficha);
        EXPECT_TRUE(fichas().widget(ficha)->isVisible());
    }
    void esperarQueSeQueda(std::size_t cajas) const {
        EXPECT_EQ(contestador.cajas().size(), cajas);
        EXPECT_EQ(contestador.cajas().back().texto.toStdString(), "El valor debe ser numérico");
        EXPECT_EQ(contestador.cajas().back().titulo.toStdString(), "Valor erróneo");
        EXPECT_TRUE(campo().hasFocus());
        EXPECT_EQ(programa.foco(), &opciones().TxtRm(0));
        EXPECT_EQ(campo().text(), "x");
        esperarFicha(fichaAOI);
    }
    /// A key to whatever has the focus.
    static void tecla(Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), tecla, con);
        Reposar();
    }
};

// --- The tabs ---

TEST_F(UnCampoDeLasOpciones, RechazadoNoDejaPulsarOtraFichaYSeDiceUnaVez) {
    escribirMal();
    contestador.pulsar("Aceptar");
    clicFicha(0);
    esperarQueSeQueda(2);
}

TEST_F(UnCampoDeLasOpciones, RechazadoNoDejaCambiarDeFichaConLasFlechas) {
    escribirMal();
    std::size_t cajas = 1;
    for (const Qt::Key flecha : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Right, Qt::Key_Left}) {
        contestador.pulsar("Aceptar");
        QTest::keyClick(fichas().tabBar(), flecha);
        Reposar();
        esperarQueSeQueda(++cajas);
    }
}

TEST_F(UnCampoDeLasOpciones, RechazadoNoDejaCambiarDeFichaConElTabulador) {
    escribirMal();
    contestador.pulsar("Aceptar");
    tecla(Qt::Key_Tab, Qt::ControlModifier);
    esperarQueSeQueda(2);
    contestador.pulsar("Aceptar");
    tecla(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    esperarQueSeQueda(3);
}

TEST_F(UnCampoDeLasOpciones, AdmitidoDejaPulsarOtraFicha) {
    Escribir(campo(), "15");
    clicFicha(0);
    esperarFicha(0);
    EXPECT_FALSE(fichas().widget(fichaAOI)->isVisible());
    EXPECT_EQ(programa.foco(), &opciones().SSTab1);
    EXPECT_TRUE(fichas().tabBar()->hasFocus());
}

TEST_F(UnCampoDeLasOpciones, AdmitidoDejaCambiarDeFichaConElTabulador) {
    Escribir(campo(), "15");
    tecla(Qt::Key_Tab, Qt::ControlModifier);
    esperarFicha(4);
    tecla(Qt::Key_Tab, Qt::ControlModifier);
    esperarFicha(5);
    tecla(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    esperarFicha(4);
}

TEST_F(UnCampoDeLasOpciones, LasFlechasRecorrenLasFichasDeUnExtremoAlOtro) {
    clicFicha(5);
    tecla(Qt::Key_Down);
    esperarFicha(6);
    tecla(Qt::Key_Down);
    esperarFicha(0);
    tecla(Qt::Key_Up);
    esperarFicha(6);
    tecla(Qt::Key_Left);
    esperarFicha(5);
    tecla(Qt::Key_Right);
    esperarFicha(6);
}

TEST_F(UnCampoDeLasOpciones, LaRuedaNoCambiaDeFicha) {
    QTabBar llana;
    llana.addTab("a");
    llana.addTab("b");
    llana.show();
    Rueda(llana, -120);
    ASSERT_EQ(llana.currentIndex(), 1); // a plain bar of Qt follows the wheel
    llana.hide();
    Escribir(campo(), "15");
    Rueda(*fichas().tabBar(), -120);
    Rueda(*fichas().tabBar(), -120);
    esperarFicha(fichaAOI);
    Rueda(*fichas().tabBar(), 120);
    esperarFicha(fichaAOI);
    EXPECT_EQ(programa.foco(), &opciones().TxtRm(0));
}

// --- The buttons ---

TEST_F(UnCampoDeLasOpciones, RechazadoNoDejaHundidoElBotonQueSePulsa) {
    escribirMal();
    const int lineas = opciones().LstAOI.ListCount();
    std::size_t cajas = 1;
    for (const char* nombre : {"CmdAñadir", "ChAOIUni", "OptAOIDjDi"}) {
        SCOPED_TRACE(nombre);
        auto& boton = widget<QAbstractButton>("OpcionesPrograma", nombre);
        contestador.pulsar("Aceptar");
        // The box comes up at the press and swallows the release.
        QTest::mousePress(&boton, Qt::LeftButton, Qt::NoModifier, {8, boton.rect().center().y()});
        Reposar();
        EXPECT_FALSE(boton.isDown());
        esperarQueSeQueda(++cajas);
    }
    EXPECT_EQ(opciones().LstAOI.ListCount(), lineas);
    EXPECT_EQ(opciones().ChAOIUni.Value(), 0);
}

TEST_F(UnCampoDeLasOpciones, AdmitidoDejaHundirElBotonHastaSoltarlo) {
    Escribir(campo(), "15");
    for (const char* nombre : {"ChAOIUni", "OptAOIDjDi", "CmdQuitarTodo"}) {
        SCOPED_TRACE(nombre);
        auto& boton = widget<QAbstractButton>("OpcionesPrograma", nombre);
        const QPoint punto{8, boton.rect().center().y()};
        QTest::mousePress(&boton, Qt::LeftButton, Qt::NoModifier, punto);
        EXPECT_TRUE(boton.isDown());
        QTest::mouseRelease(&boton, Qt::LeftButton, Qt::NoModifier, punto);
        EXPECT_FALSE(boton.isDown());
    }
    EXPECT_EQ(opciones().ChAOIUni.Value(), 1);
}

} // namespace varo::prueba
