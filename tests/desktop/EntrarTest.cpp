// The ring of the default button: it stands on what Enter presses, in every window.
#include "desktop/Pantalla.h"
#include "options/OpcionesPrograma.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace varo::prueba {

class ElAnilloDeEntrar : public Pantalla {
protected:
    OpcionesPrograma& opciones() const {
        return dynamic_cast<OpcionesPrograma&>(*modelo("OpcionesPrograma"));
    }
    /// The visible buttons of a window that wear the ring.
    std::vector<std::string> conAnillo(const std::string& nombre) const {
        std::vector<std::string> botones;
        for (const QPushButton* const boton : ventana(nombre).findChildren<QPushButton*>()) {
            if (boton->isVisible() && boton->isDefault()) {
                botones.push_back(boton->objectName().toStdString());
            }
        }
        return botones;
    }
    void enfocar(QWidget& widget) const {
        widget.setFocus();
        Reposar();
        ASSERT_TRUE(widget.hasFocus()) << widget.objectName().toStdString();
    }
    static void entrar() {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        Reposar();
    }
    /// Enter in the field presses the button of its function, and that one wears the ring.
    void esperarQueAnada(const std::string& campo, const std::string& boton, const std::string& texto,
                         const Lista& lista) const {
        SCOPED_TRACE(campo);
        const int antes = lista.ListCount();
        Escribir(widget("OpcionesPrograma", campo), QString::fromStdString(texto));
        EXPECT_EQ(conAnillo("OpcionesPrograma"), std::vector<std::string>{boton});
        entrar();
        EXPECT_EQ(lista.ListCount(), antes + 1);
        EXPECT_TRUE(alaVista("OpcionesPrograma"));
    }
    /// With the focus on any widget of the window the ring is on that button, or on "Aceptar".
    void esperarAnilloEnCadaFoco(const std::string& nombre, const std::string& aceptar) const {
        activar(nombre);
        for (QWidget* const widget : ventana(nombre).findChildren<QWidget*>()) {
            if (!widget->isVisible() || !widget->isEnabled() || widget->focusPolicy() == Qt::NoFocus ||
                widget->focusProxy() != nullptr) {
                continue;
            }
            SCOPED_TRACE(nombre + "." + widget->objectName().toStdString());
            enfocar(*widget);
            std::vector<std::string> esperados;
            if (qobject_cast<QPushButton*>(widget) != nullptr) {
                esperados = {widget->objectName().toStdString()};
            } else if (!aceptar.empty()) {
                esperados = {aceptar};
            }
            EXPECT_EQ(conAnillo(nombre), esperados);
        }
    }
};

TEST_F(ElAnilloDeEntrar, AlAbrirseLasOpcionesEstaEnAceptarEnTodasLasFichas) {
    llegarA(Etapa::Opciones);
    for (const int ficha : {4, 0, 1, 2, 3, 5, 6}) {
        clicFicha(ficha);
        EXPECT_EQ(conAnillo("OpcionesPrograma"), std::vector<std::string>{"CmdAceptar"}) << ficha;
    }
    entrar();
    EXPECT_FALSE(alaVista("OpcionesPrograma"));
}

TEST_F(ElAnilloDeEntrar, EnElRadioDeInfluenciaPulsaAnadir) {
    llegarA(Etapa::Opciones);
    clicFicha(3);
    clic("OpcionesPrograma", "ChAOIActivar");
    for (int i = 0; i <= 4; ++i) {
        esperarQueAnada("TxtRm(" + std::to_string(i) + ")", "CmdAñadir", std::to_string(i + 1),
                        opciones().LstAOI);
    }
}

TEST_F(ElAnilloDeEntrar, EnLaFuncionDeDistanciaPulsaAnadir) {
    llegarA(Etapa::Opciones);
    clicFicha(5);
    clic("OpcionesPrograma", "ChDRActivar");
    for (int i = 0; i <= 4; ++i) {
        esperarQueAnada("TxtEXP(" + std::to_string(i) + ")", "CmdAñadirDist", std::to_string(i + 1),
                        opciones().LstDist);
    }
}

TEST_F(ElAnilloDeEntrar, EnLasFuncionesDeTamanoPulsaAnadir) {
    llegarA(Etapa::Opciones);
    for (const int i : {0, 1}) {
        const std::string miembro = "(" + std::to_string(i) + ")";
        clicFicha(4 + i);
        clic("OpcionesPrograma", i == 0 ? "ChIDPActivar" : "ChDRActivar");
        clic("OpcionesPrograma", "OptFunc" + miembro);
        for (int j = 0; j < 3; ++j) {
            esperarQueAnada("TxtRich(" + std::to_string(3 * i + j) + ")", "CmdAñadirRich" + miembro,
                            std::to_string(j + 2), opciones().LstRich(i));
        }
        clic("OpcionesPrograma", "OptHiper" + miembro);
        for (const int j : {2, 0, 1, 3, 4, 5, 6}) { // first what may not be all null
            esperarQueAnada("TxtHIP(" + std::to_string(7 * i + j) + ")", "CmdAñadirRich" + miembro,
                            std::to_string(j + 2), opciones().LstRich(i));
        }
    }
}

TEST_F(ElAnilloDeEntrar, EnUnIntervaloPulsaAceptar) {
    llegarA(Etapa::Opciones);
    clicFicha(3);
    clic("OpcionesPrograma", "ChAOIActivar");
    enfocar(widget("OpcionesPrograma", "TxtBAF1(6)"));
    EXPECT_EQ(conAnillo("OpcionesPrograma"), std::vector<std::string>{"CmdAceptar"});
    entrar();
    EXPECT_FALSE(alaVista("OpcionesPrograma"));
    EXPECT_EQ(opciones().LstAOI.ListCount(), 0);
}

TEST_F(ElAnilloDeEntrar, SigueAlFocoEnLasDemasVentanas) {
    llegarA(Etapa::Seleccion);
    esperarAnilloEnCadaFoco("FrmSeleccion", "CmdAceptar");
    aceptarHoja();
    clicMenu("VAROMAIN", "mnuMapa");
    esperarAnilloEnCadaFoco("SelCol4R", "");
    elegirColumnas();
    esperarAnilloEnCadaFoco("FrmFormato", "CmdAceptar");
    clic("FrmFormato", "CmdAceptar");
    clicMenu("FrmMapa", "mnuIndices");
    esperarAnilloEnCadaFoco("FrmCrearArchivo", "CmdAceptar");
}

} // namespace varo::prueba
