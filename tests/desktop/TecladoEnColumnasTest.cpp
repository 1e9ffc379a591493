// The column dialog under the keyboard: none of its buttons answers to Enter or Escape everywhere.
#include "data/SelColumnas.h"
#include "desktop/Pantalla.h"

#include <QApplication>
#include <QTest>

namespace varo::prueba {

class ElDialogoDeColumnas : public Pantalla {
protected:
    ElDialogoDeColumnas() {
        llegarA(Etapa::Columnas);
        clicColumna(2);
    }

    SelColumnas& dialogo() const { return dynamic_cast<SelColumnas&>(*modelo("SelCol4R")); }
    QWidget& de(const std::string& control) const { return widget("SelCol4R", control); }
    void enfocar(const std::string& control) const {
        activar("SelCol4R");
        de(control).setFocus();
        Reposar();
        ASSERT_EQ(QApplication::focusWidget(), &de(control));
    }
    static void tecla(Qt::Key tecla) {
        QTest::keyClick(QApplication::focusWidget(), tecla);
        Reposar();
    }
};

TEST_F(ElDialogoDeColumnas, EntrarPulsaElBotonQueTieneElFocoUnaVez) {
    enfocar("Command1(0)");
    tecla(Qt::Key_Return);
    ASSERT_EQ(dialogo().List1.ListCount(), 1);
    EXPECT_EQ(dialogo().List1.List(0), "Coordenada X: Columna: 3 (X)");
    EXPECT_FALSE(de("Command1(0)").isEnabled());
    enfocar("CmdQuitarTodo");
    tecla(Qt::Key_Enter);
    EXPECT_EQ(dialogo().List1.ListCount(), 0);
    EXPECT_TRUE(de("Command1(0)").isEnabled());
}

TEST_F(ElDialogoDeColumnas, EntrarYEscaparFueraDeUnBotonNoHacenNada) {
    clic("SelCol4R", "Command1(0)");
    enfocar("List1");
    for (const Qt::Key nada : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        tecla(nada);
        EXPECT_TRUE(alaVista("SelCol4R"));
        EXPECT_EQ(dialogo().List1.ListCount(), 1);
        EXPECT_EQ(programa.activa(), &dialogo());
        EXPECT_EQ(programa.foco(), &dialogo().List1);
    }
    EXPECT_TRUE(alaVista("Hojadedatos"));
    EXPECT_EQ(menusHabilitados(), "mnuCerrar mnuOpciones");
}

TEST_F(ElDialogoDeColumnas, EscaparEnUnBotonNoLoPulsaNiCierraElDialogo) {
    enfocar("Command1(0)");
    tecla(Qt::Key_Escape);
    EXPECT_TRUE(alaVista("SelCol4R"));
    EXPECT_EQ(dialogo().List1.ListCount(), 0);
}

// --- A button that got the focus from one that disabled itself ---

TEST_F(ElDialogoDeColumnas, ElBotonQueRecibeElFocoDeUnoInhabilitadoAtiendeAlRaton) {
    clic("SelCol4R", "Command1(6)");
    ASSERT_FALSE(de("Command1(6)").isEnabled());
    clicColumna(3);
    clic("SelCol4R", "Command1(0)");
    clicColumna(4);
    clic("SelCol4R", "Command1(1)");
    EXPECT_EQ(dialogo().List1.ListCount(), 3);
}

TEST_F(ElDialogoDeColumnas, ElRatonPulsaElBotonSinPasarPorLaRejilla) {
    clic("SelCol4R", "Command1(6)");
    contestador.pulsar("Aceptar"); // the same column again
    clic("SelCol4R", "Command1(0)");
    EXPECT_EQ(contestador.cajas().size(), 1U);
}

TEST_F(ElDialogoDeColumnas, ElBotonQueRecibeElFocoDeUnoInhabilitadoAtiendeALaBarra) {
    clic("SelCol4R", "Command1(6)");
    const QWidget* const siguiente = QApplication::focusWidget();
    ASSERT_NE(siguiente, nullptr);
    ASSERT_NE(siguiente, &de("Command1(6)"));
    contestador.pulsar("Aceptar"); // the same column again
    tecla(Qt::Key_Space);
    EXPECT_EQ(contestador.cajas().size(), 1U) << siguiente->objectName().toStdString();
    EXPECT_EQ(programa.foco()->nombreCompleto(), siguiente->objectName().toStdString());
}

} // namespace varo::prueba
