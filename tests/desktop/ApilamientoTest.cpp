// Which window stands over which: the last one that the model shows is on top, and so on downwards.
#include "desktop/Pantalla.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace varo::prueba {

/// The map is up and takes the whole frame.
class SobreElMapa : public Pantalla {
protected:
    SobreElMapa() { llegarA(Etapa::Mapa); }

    QMdiArea& zona() const { return *ventana("VAROMAIN").findChild<QMdiArea*>(); }
    /// The children on show, the lowest first.
    std::vector<std::string> deAbajoArriba() const {
        std::vector<std::string> nombres;
        for (const QMdiSubWindow* const hija : zona().subWindowList(QMdiArea::StackingOrder)) {
            if (hija->isVisible()) {
                nombres.push_back(hija->objectName().toStdString());
            }
        }
        return nombres;
    }
    void elegirColumnasDeNuevo() const {
        clicMenu("VAROMAIN", "mnuOpciones");
        clic("OpcionesPrograma", "CmdAceptar");
        clicMenu("VAROMAIN", "mnuMapa");
    }
};

TEST_F(SobreElMapa, ElMapaCubreLaHoja) {
    EXPECT_TRUE(ventana("FrmMapa").geometry().contains(zona().viewport()->rect()));
    EXPECT_EQ(deAbajoArriba(), (std::vector<std::string>{"Hojadedatos", "FrmMapa"}));
}

TEST_F(SobreElMapa, LaHojaSubeYElDialogoDeColumnasQuedaSobreElla) {
    elegirColumnasDeNuevo();
    EXPECT_EQ(deAbajoArriba(), (std::vector<std::string>{"FrmMapa", "Hojadedatos", "SelCol4R"}));
    EXPECT_EQ(programa.activa(), modelo("SelCol4R"));
    EXPECT_EQ(zona().activeSubWindow(), &ventana("SelCol4R"));
}

TEST_F(SobreElMapa, UnaColumnaDeLaHojaSePuedePulsarSobreElMapa) {
    elegirColumnasDeNuevo();
    const QPoint punto = rejilla().viewport()->mapTo(zona().viewport(), QPoint{20, 20});
    QWidget* const encima = zona().viewport()->childAt(punto);
    EXPECT_TRUE(rejilla().isAncestorOf(encima));
}

TEST_F(SobreElMapa, ConElMapaMaximizadoNiElDialogoDeColumnasNiLaHojaSeMaximizan) {
    ventana("FrmMapa").showMaximized();
    Reposar();
    ASSERT_TRUE(ventana("FrmMapa").isMaximized());
    elegirColumnasDeNuevo();
    EXPECT_FALSE(ventana("SelCol4R").isMaximized());
    EXPECT_FALSE(ventana("Hojadedatos").isMaximized());
    EXPECT_EQ(modelo("SelCol4R")->WindowState(), 0);
    EXPECT_EQ(modelo("Hojadedatos")->WindowState(), 0);
    EXPECT_EQ(ventana("Hojadedatos").height(), 220); // 3300 twips
    EXPECT_EQ(deAbajoArriba(), (std::vector<std::string>{"FrmMapa", "Hojadedatos", "SelCol4R"}));
}

} // namespace varo::prueba
