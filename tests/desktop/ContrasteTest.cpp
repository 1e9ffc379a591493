// Frames and the chosen tab can be seen on a light background and on a dark one.
#include "desktop/Pantalla.h"

#include <QApplication>
#include <QGroupBox>
#include <QImage>
#include <QPalette>
#include <QTabBar>
#include <QTabWidget>

#include <cstdlib>

namespace varo::prueba {

class ElContraste : public Pantalla, public testing::WithParamInterface<bool> {
protected:
    ElContraste() : antes_{QApplication::palette()} {
        if (GetParam()) {
            QPalette oscura{QColor{50, 50, 50}, QColor{45, 45, 45}};
            oscura.setColor(QPalette::Highlight, QColor{70, 130, 200});
            QApplication::setPalette(oscura);
        }
        llegarA(Etapa::Opciones);
    }
    ~ElContraste() override { QApplication::setPalette(antes_); }

    /// The greatest difference in brightness to the background along a row of a picture.
    static int relieve(const QImage& imagen, int fila, int desde, int hasta) {
        const int fondo = qGray(imagen.pixel(hasta, fila));
        int mayor = 0;
        for (int columna = desde; columna < hasta; ++columna) {
            mayor = std::max(mayor, std::abs(qGray(imagen.pixel(columna, fila)) - fondo));
        }
        return mayor;
    }

    static constexpr int visible = 35; ///< of 255

private:
    QPalette antes_;
};

TEST_P(ElContraste, ElBordeDeUnMarcoSeVe) {
    clicFicha(0);
    for (const char* nombre : {"Frame3", "Frame4", "Frame2"}) {
        const QImage imagen = widget<QGroupBox>("OpcionesPrograma", nombre).grab().toImage();
        EXPECT_GE(relieve(imagen, imagen.height() / 2, 0, 6), visible) << nombre;
    }
}

TEST_P(ElContraste, LaFichaElegidaSeVe) {
    QTabBar& barra = *widget<QTabWidget>("OpcionesPrograma", "SSTab1").tabBar();
    const QRgb resalte = barra.palette().color(QPalette::Highlight).rgb();
    for (const int ficha : {0, 4}) {
        clicFicha(ficha);
        const QImage imagen = barra.grab().toImage();
        for (int otra = 0; otra < barra.count(); ++otra) {
            const QRect sitio = barra.tabRect(otra);
            bool resaltada = false;
            for (int columna = sitio.left(); columna < sitio.left() + 9; ++columna) {
                resaltada = resaltada || imagen.pixel(columna, sitio.center().y()) == resalte;
            }
            EXPECT_EQ(resaltada, otra == ficha) << ficha << " " << otra;
        }
        const QRect elegida = barra.tabRect(ficha);
        EXPECT_GE(relieve(imagen, elegida.center().y(), elegida.left(), elegida.left() + 9), visible)
            << ficha;
    }
}

INSTANTIATE_TEST_SUITE_P(Fondos, ElContraste, testing::Bool(), [](const auto& fondo) {
    return fondo.param ? std::string{"Oscuro"} : std::string{"Claro"};
});

} // namespace varo::prueba
